// Every control of the window and of every dialog has a name for those who cannot see it, and the keyboard
// alone reaches every pane.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QDockWidget>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <set>
#include <utility>

#include "app/bars/customize_sheet.h"
#include "app/dialog_answer.h"
#include "app/dialogs/add_play_items_dlg.h"
#include "app/dialogs/form_dialog.h"
#include "app/help/help_window.h"
#include "app/whole_program.h"
#include "resources/command_table.h"

namespace brevant {
namespace {

using Id = TCCommandId;

bool IsControl(const QAccessibleInterface& element) {
  switch (element.role()) {
    case QAccessible::PushButton:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
    case QAccessible::MenuItem:
    case QAccessible::ButtonMenu:
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::List:
    case QAccessible::PageTab:
      return true;
    default:
      return element.state().focusable;
  }
}

bool InFileChooser(const QObject* object) {
  while (object != nullptr && !object->inherits("QFileDialog")) object = object->parent();
  return object != nullptr;
}

// What the toolkit puts into its own controls and dialogs, and names or leaves out as it likes.
bool IsTheToolkits(const QObject* object) {
  if (object == nullptr) return false;
  const bool listOfAFileChooser = object->inherits("QComboBoxListView") && InFileChooser(object);
  const QString name = object->objectName();
  const bool holdsOurs =
      name.startsWith(QStringLiteral("qt_msgbox")) || name.startsWith(QStringLiteral("qt_tabwidget"));
  return listOfAFileChooser || (name.startsWith(QStringLiteral("qt_")) && !holdsOurs);
}

// The controls below `root` that have no name, or one with the mark of a menu's letter in it.
void CollectFaults(QAccessibleInterface* root, const QString& way, QStringList& faults, int& seen) {
  if (root == nullptr || !root->isValid() || IsTheToolkits(root->object())) return;
  const QString name = root->text(QAccessible::Name);
  const QObject* object = root->object();
  const QString kind = object != nullptr ? QString::fromLatin1(object->metaObject()->className()) : QString();
  const QString here = way + u'/' + (name.isEmpty() ? kind : name);
  const bool entryOfATable = root->role() == QAccessible::Cell || root->role() == QAccessible::TreeItem;
  if (entryOfATable) return;
  if (IsControl(*root)) {
    ++seen;
    if (name.trimmed().isEmpty()) faults.append(here + QStringLiteral(" (") + kind + u')');
  }
  for (int i = 0; i < root->childCount(); ++i) CollectFaults(root->child(i), here, faults, seen);
}

std::string FaultsOf(QWidget& window, int fewest) {
  QStringList faults;
  int seen = 0;
  CollectFaults(QAccessible::queryAccessibleInterface(&window), {}, faults, seen);
  if (seen < fewest) faults.append(QStringLiteral("only %1 controls were looked at").arg(seen));
  return faults.join(u'\n').toStdString();
}

class AccessibleNames : public TCWholeProgram {
 public:
  void ExpectNamesInDialogOf(Id command, int fewest) {
    const TCDialogAnswer<QDialog> answer([fewest](QDialog& dialog) {
      EXPECT_EQ(FaultsOf(dialog, fewest), "") << dialog.objectName().toStdString();
      dialog.reject();
    });
    app->Actions().ActionOf(command)->trigger();
    QCoreApplication::sendPostedEvents();
  }
};

TEST_F(AccessibleNames, EveryControlOfTheWindowHasOne) {
  Start(kShow);
  EXPECT_EQ(FaultsOf(Frame(), 60), "");
}

TEST_F(AccessibleNames, EveryEntryOfTheContextMenusHasOne) {
  Start(kShow);
  for (QMenu* menu : Frame().findChildren<QMenu*>()) EXPECT_EQ(FaultsOf(*menu, 1), "");
}

TEST_F(AccessibleNames, EveryControlOfEveryDialogHasOne) {
  Start(kShow);
  for (const Id text : {Id::VolumeStep, Id::SongLatency, Id::SeekStep, Id::PlaylistFontSize,
                        Id::LyricsFontSize, Id::LyricLines, Id::MediaFileTypes, Id::CreateGroupList}) {
    ExpectNamesInDialogOf(text, 3);
  }
  ExpectNamesInDialogOf(Id::AddSongs, 9);
  ExpectNamesInDialogOf(Id::FileOpen, 5);
  Frame().PlaylistView().selectRow(0);
  ExpectNamesInDialogOf(Id::SongProperties, 9);
  Frame().Tree().setFocus();
  Frame().Tree().SelectNode(app->Record().setLists.groups[0].treeNode);
  ExpectNamesInDialogOf(Id::Remove, 2);
}

TEST_F(AccessibleNames, EveryControlOfEveryFileDialogHasOne) {
  Start(kShow);
  ExpectNamesInDialogOf(Id::FileSaveAs, 5);
  for (const auto& [command, button] :
       {std::pair(Id::AddSongs, "FindSongs"), std::pair(Id::SongProperties, "SetDir")}) {
    Frame().PlaylistView().selectRow(0);
    // The form asks for files itself, so its answer is given from within.
    const TCDialogAnswer<TCFormDialog> answer([name = button](TCFormDialog& form) {
      auto* chooser = form.findChild<QPushButton*>(QLatin1String(name));
      ASSERT_NE(chooser, nullptr) << name;
      {
        const TCDialogAnswer<QFileDialog> inner([](QFileDialog& dialog) {
          EXPECT_EQ(FaultsOf(dialog, 5), "") << dialog.windowTitle().toStdString();
          dialog.reject();
        });
        chooser->click();
      }
      form.reject();
    });
    app->Actions().ActionOf(command)->trigger();
    QCoreApplication::sendPostedEvents();
  }
}

TEST_F(AccessibleNames, EveryControlOfTheCustomizeSheetHasOne) {
  Start(kShow);
  TCCustomisedBars wanted;
  wanted.Insert(TCTextId::StandardToolbar, 0, NewMenuItem(u"Mine"));
  Frame().Bars().Customise(wanted);
  // The sheet lets its caller go on, so nobody is waiting while it is open.
  app->Actions().ActionOf(Id::Customize)->trigger();
  QCoreApplication::sendPostedEvents();
  auto* sheet = Frame().findChild<TCCustomizeSheet*>();
  ASSERT_NE(sheet, nullptr);
  auto* pages = sheet->findChild<QTabWidget*>(QStringLiteral("Pages"));
  ASSERT_NE(pages, nullptr);
  // The field for a menu's name comes with a menu of the user's own.
  auto* target = sheet->findChild<QComboBox*>(QStringLiteral("BarTarget"));
  const int mine = target->findText(QStringLiteral("Mine"), Qt::MatchContains);
  ASSERT_GE(mine, 0);
  target->setCurrentIndex(mine);
  constexpr int kFewest[] = {13, 9, 14};
  for (int page = 0; page < pages->count(); ++page) {
    pages->setCurrentIndex(page);
    EXPECT_EQ(FaultsOf(*sheet, kFewest[page]), "") << pages->tabText(page).toStdString();
  }
  sheet->accept();
}

TEST_F(AccessibleNames, TheGuideAndTheAboutBoxHaveThem) {
  Start(kShow);
  TCHelpWindow window;
  window.setAttribute(Qt::WA_DeleteOnClose, false);
  window.ShowPage(QStringLiteral("README.md"));
  EXPECT_EQ(FaultsOf(window, 4), "");
  app->Actions().ActionOf(Id::About)->trigger();
  QCoreApplication::sendPostedEvents();
  ASSERT_EQ(AboutBoxes().size(), 1);
  EXPECT_EQ(FaultsOf(*AboutBoxes().constFirst(), 1), "");
}

TEST_F(AccessibleNames, APaneIsCalledByItsWholeTitle) {
  Start(kShow);
  QStringList names;
  for (QDockWidget* pane : Frame().findChildren<QDockWidget*>()) {
    names.append(QAccessible::queryAccessibleInterface(pane)->text(QAccessible::Name));
  }
  names.sort();
  EXPECT_EQ(names.join(u'|').toStdString(),
            "Brevant Information & Lyrics|Play List Manager|Properties|Windows Media Player");
}

TEST_F(AccessibleNames, TabReachesEveryPaneThatKeysAreForAndComesBack) {
  Start(kShow);
  Frame().PlaylistView().TakeFocus();
  std::set<const QWidget*> reached;
  for (int i = 0; i < 20; ++i) {
    reached.insert(QApplication::focusWidget());
    Press(Qt::Key_Tab);
  }
  for (const QWidget* pane :
       {static_cast<QWidget*>(&Frame().PlaylistView()), static_cast<QWidget*>(&Frame().Tree()),
        static_cast<QWidget*>(&Frame().Properties()), static_cast<QWidget*>(&Frame().MessageDisplay())}) {
    EXPECT_TRUE(reached.contains(pane)) << pane->accessibleName().toStdString();
  }
  Press(Qt::Key_F2);
  EXPECT_EQ(QApplication::focusWidget(), &Frame().Tree());
  Press(Qt::Key_F3);
  EXPECT_EQ(QApplication::focusWidget(), &Frame().PlaylistView());
}

}  // namespace
}  // namespace brevant
