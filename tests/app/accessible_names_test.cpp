// Every control of the window and of every dialog has a name for those who cannot see it, and the keyboard
// alone reaches every pane.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QDockWidget>
#include <QFileDialog>
#include <QMessageBox>
#include <set>

#include "app/dialog_answer.h"
#include "app/dialogs/add_play_items_dlg.h"
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
  return listOfAFileChooser ||
         (name.startsWith(QStringLiteral("qt_")) && !name.startsWith(QStringLiteral("qt_msgbox")));
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
