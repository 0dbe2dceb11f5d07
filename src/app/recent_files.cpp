#include "app/recent_files.h"

#include "resources/string_table.h"
#include "text/case_folding.h"
#include "text/path_parts.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

// Counted from 0.
QString KeyOf(std::size_t place) {
  return QStringLiteral("Recent File List/File%1").arg(place + 1);
}

bool IsDocument(std::u16string_view path) {
  return ToLower(ExtensionPart(path)) == TextOf(TCTextId::DocumentExtension);
}

}  // namespace

TCRecentFiles::TCRecentFiles(QSettings& layoutStore) : layout(layoutStore) {
  writer.setMaxThreadCount(1);
  // Oldest first: each goes before those that are there.
  for (std::size_t place = kRecentFiles; place > 0; --place) {
    const std::u16string path = FromQString(layout.value(KeyOf(place - 1)).toString());
    if (IsDocument(path)) Enter(path);
  }
}

void TCRecentFiles::AddToRecentFileList(std::u16string_view path) {
  if (!IsDocument(path)) return;
  Enter(path);
  Write();
  Q_EMIT changed();
}

void TCRecentFiles::Enter(std::u16string_view path) {
  const std::u16string entered(path);
  std::erase_if(paths,
                [name = ToLower(entered)](const std::u16string& other) { return ToLower(other) == name; });
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
