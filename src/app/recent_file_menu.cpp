#include "app/recent_file_menu.h"

#include <QApplication>
#include <QMenu>
#include <algorithm>

#include "resources/command_id.h"
#include "text/case_folding.h"
#include "text/path_parts.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr qsizetype kLongestFolder = 40;
constexpr qsizetype kLongestName = 60;

// In a menu "&" marks a letter and a tab begins the keys.
QString AsMenuText(QString text) {
  return text.replace(u'&', QStringLiteral("&&")).replace(u'\t', u' ');
}

QString NameText(std::u16string_view path) {
  const QString name = ToQString(FileNamePart(path));
  if (name.size() <= kLongestName) return name;
  return name.left(kLongestName / 2) + u'\u2026' + name.right(kLongestName / 2);
}

QString FolderText(std::u16string_view path) {
  const QString folder = ToQString(FolderPart(path));
  return folder.size() <= kLongestFolder ? folder : u'\u2026' + folder.right(kLongestFolder);
}

}  // namespace

QStringList RecentFileTexts(const std::vector<std::u16string>& paths) {
  QStringList texts;
  for (const std::u16string& path : paths) {
    const auto sameName = [name = FileNamePart(path)](const std::u16string& other) {
      return EqualIgnoringCase(FileNamePart(other), name);
    };
    QString text = NameText(path);
    if (std::ranges::count_if(paths, sameName) > 1) text += QStringLiteral("  (%1)").arg(FolderText(path));
    texts.append(QStringLiteral("&%1 ").arg(texts.size() + 1) + AsMenuText(text));
  }
  return texts;
}

TCRecentFileMenu::TCRecentFileMenu(QAction& command, QMenuBar& bar, const TCRecentFiles& recentFiles)
    : newest(command), files(recentFiles), emptyText(command.text()) {
  entries.append(&newest);
  AddEntries(bar);
  connect(&files, &TCRecentFiles::changed, this, &TCRecentFileMenu::ShowEntries);
  ShowEntries();
}

void TCRecentFileMenu::AddEntries(QMenuBar& bar) {
  for (const QAction* title : bar.actions()) {
    QMenu* menu = title->menu();
    if (menu == nullptr) continue;
    const qsizetype place = menu->actions().indexOf(&newest);
    if (place < 0) continue;
    QAction* behind = menu->actions().value(place + 1);
    for (std::size_t i = 1; i < kRecentFiles; ++i) {
      auto* entry = new QAction(menu);
      entry->setObjectName(
          QStringLiteral("Command%1").arg(static_cast<std::size_t>(TCCommandId::RecentFile) + i));
      entry->setStatusTip(newest.statusTip());
      entry->setWhatsThis(newest.whatsThis());
      // Queued, as every command is: it may ask the user something.
      connect(
          entry, &QAction::triggered, this, [this, i] { Choose(i); }, Qt::QueuedConnection);
      menu->insertAction(behind, entry);
      entries.append(entry);
    }
  }
}

void TCRecentFileMenu::ShowEntries() {
  const QStringList texts = RecentFileTexts(files.Paths());
  newest.setEnabled(!texts.isEmpty());
  for (qsizetype i = 0; i < entries.size(); ++i) {
    const bool isThere = i < texts.size();
    entries[i]->setVisible(isThere || i == 0);
    entries[i]->setText(isThere ? texts[i] : emptyText);
  }
}

void TCRecentFileMenu::Choose(std::size_t place) {
  // A screen reader reaches a menu behind a dialog.
  if (QApplication::activeModalWidget() != nullptr || place >= files.Paths().size()) return;
  const std::u16string path = files.Paths()[place];  // opening it moves it
  Q_EMIT openWanted(path);
}

}  // namespace brevant
