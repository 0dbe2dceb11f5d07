#include "app/recent_files.h"

#include "model/document_file.h"
#include "text/case_folding.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

// Counted from 0.
QString KeyOf(std::size_t place) {
  return QStringLiteral("Recent File List/File%1").arg(place + 1);
}

}  // namespace

TCRecentFiles::TCRecentFiles(QSettings& layoutStore) : layout(layoutStore) {
  writer.setMaxThreadCount(1);
  // Oldest first: each goes before those that are there.
  for (std::size_t place = kRecentFiles; place > 0; --place) {
    const std::u16string path = FromQString(layout.value(KeyOf(place - 1)).toString());
    if (IsDocumentPath(path)) Enter(path);
  }
}

void TCRecentFiles::AddToRecentFileList(std::u16string_view path) {
  if (!IsDocumentPath(path)) return;
  Enter(path);
  Write();
  Q_EMIT changed();
}

void TCRecentFiles::Enter(std::u16string_view path) {
  const std::u16string entered(path);
  std::erase_if(paths, [&](const std::u16string& other) { return EqualIgnoringCase(other, entered); });
  paths.insert(paths.begin(), entered);
  if (paths.size() > kRecentFiles) paths.resize(kRecentFiles);
}

void TCRecentFiles::Write() {
  // What one object knows of the file, the others of this program know at once, on every thread.
  writer.start([file = layout.fileName(), list = paths] {
    QSettings written(file, QSettings::IniFormat);
    for (std::size_t place = 0; place < kRecentFiles; ++place) {
      if (place < list.size()) {
        written.setValue(KeyOf(place), ToQString(list[place]));
      } else {
        written.remove(KeyOf(place));
      }
    }
    written.sync();
  });
}

}  // namespace brevant
