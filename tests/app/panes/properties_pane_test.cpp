#include "app/panes/properties_pane.h"

#include <gtest/gtest.h>

#include <QDockWidget>
#include <QHelpEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QToolTip>

#include "app/commands/key_filter.h"
#include "app/whole_program.h"
#include "resources/string_table.h"

namespace brevant {
namespace {

using P = TCProperty;

QString TextIn(const TCPropertiesPane& pane, P property) {
  const QTreeWidgetItem* row = pane.RowOf(property);
  return row == nullptr ? QStringLiteral("(no row)") : row->text(1);
}

QLineEdit* EditorOf(const TCPropertiesPane& pane) {
  return pane.findChild<QLineEdit*>();
}

class PropertiesPane : public testing::Test {
 protected:
  void Show() {
    pane.resize(400, 300);
    pane.show();
    pane.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&pane));
  }
  TCPropertiesPane pane;
};

TEST_F(PropertiesPane, IsBuiltOnceWhenItIsFirstShown) {
  const QSignalSpy built(&pane, &TCPropertiesPane::built);
  EXPECT_FALSE(pane.IsBuilt());
  EXPECT_EQ(pane.topLevelItemCount(), 0);
  pane.ShowProperty(P::Title, u"too early");  // and nothing happens
  Show();
  EXPECT_TRUE(pane.IsBuilt());
  EXPECT_EQ(TextIn(pane, P::Title), QString());
  pane.ShowProperty(P::Title, u"kept");
  pane.hide();
  pane.show();
  pane.BuildPropertiesPane();
  EXPECT_EQ(pane.topLevelItemCount(), 4);
  EXPECT_EQ(TextIn(pane, P::Title), QStringLiteral("kept"));
  EXPECT_EQ(built.count(), 1);
}

TEST_F(PropertiesPane, HasItsCategoriesAndCaptionsInOrder) {
  Show();
  auto row = kPropertyRows.begin();
  QStringList categories;
  for (int i = 0; i < pane.topLevelItemCount(); ++i) {
    const QTreeWidgetItem* category = pane.topLevelItem(i);
    categories.append(category->text(0));
    EXPECT_TRUE(category->isFirstColumnSpanned());
    for (int j = 0; j < category->childCount(); ++j, ++row) {
      ASSERT_NE(row, kPropertyRows.end());
      EXPECT_EQ(category->child(j), pane.RowOf(row->property));
      EXPECT_EQ(category->child(j)->text(0).toStdU16String(), TextOf(row->caption));
    }
  }
  EXPECT_EQ(row, kPropertyRows.end());
  EXPECT_EQ(
      categories,
      (QStringList{QStringLiteral("Playlist Manager Information"), QStringLiteral("Options Information"),
                   QStringLiteral("Lyrics Information"), QStringLiteral("Program Information")}));
}

TEST_F(PropertiesPane, OnlyTheFirstCategoryIsOpen) {
  Show();
  for (int i = 0; i < pane.topLevelItemCount(); ++i) EXPECT_EQ(pane.topLevelItem(i)->isExpanded(), i == 0);
  EXPECT_TRUE(pane.selectedItems().isEmpty());
}

TEST_F(PropertiesPane, TheDividerStandsAtFourTenthsOfAnyWidth) {
  Show();
  for (const int width : {250, 400, 900}) {
    pane.resize(width, 300);
    EXPECT_EQ(pane.columnWidth(0), pane.viewport()->width() * 4 / 10);
    EXPECT_EQ(pane.columnWidth(0) + pane.columnWidth(1), pane.viewport()->width());
  }
}

TEST_F(PropertiesPane, EveryTextButTheTitleRefusesEditing) {
  Show();
  pane.expandAll();
  for (const TCPropertyRow& row : kPropertyRows) {
    QTreeWidgetItem* item = pane.RowOf(row.property);
    pane.setCurrentItem(item);
    for (const int column : {0, 1}) {
      const QPoint place = pane.visualRect(pane.indexFromItem(item, column)).center();
      QTest::mouseClick(pane.viewport(), Qt::LeftButton, {}, place);
      QTest::mouseDClick(pane.viewport(), Qt::LeftButton, {}, place);
      const bool editable = row.property == P::Title && column == 1;
      EXPECT_EQ(EditorOf(pane) != nullptr, editable) << static_cast<int>(row.property) << ' ' << column;
    }
    QTest::keyClick(&pane, Qt::Key_Return);
    EXPECT_EQ(EditorOf(pane) != nullptr, row.property == P::Title);
    if (QLineEdit* editor = EditorOf(pane)) {
      QTest::keyClick(editor, Qt::Key_Escape);
      QCoreApplication::sendPostedEvents();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }
}

TEST_F(PropertiesPane, AnEditedTitleStandsUntilTheNextRefresh) {
  Show();
  pane.expandAll();
  pane.ShowProperty(P::Title, u"The song's own");
  pane.setCurrentItem(pane.RowOf(P::Title));
  QTest::keyClick(&pane, Qt::Key_Return);
  QLineEdit* editor = EditorOf(pane);
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->accessibleName(), QStringLiteral("Title"));
  EXPECT_EQ(FocusKind(editor), TCKeyFocus::Typing);
  editor->setText(QStringLiteral("Mine"));
  QTest::keyClick(editor, Qt::Key_Return);
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(TextIn(pane, P::Title), QStringLiteral("Mine"));
  pane.ShowProperty(P::Title, u"The song's own");
  EXPECT_EQ(TextIn(pane, P::Title), QStringLiteral("The song's own"));
}

TEST_F(PropertiesPane, ARefreshThatChangesNothingLeavesTheEditorAlone) {
  Show();
  pane.expandAll();
  pane.ShowProperty(P::Title, u"The song's own");
  pane.setCurrentItem(pane.RowOf(P::Title));
  QTest::keyClick(&pane, Qt::Key_Return);
  ASSERT_NE(EditorOf(pane), nullptr);
  EditorOf(pane)->setText(QStringLiteral("Half a wo"));
  pane.ShowProperty(P::Title, u"The song's own");
  ASSERT_NE(EditorOf(pane), nullptr);
  EXPECT_EQ(EditorOf(pane)->text(), QStringLiteral("Half a wo"));
}

TEST_F(PropertiesPane, ATextThatIsCutOffStandsWholeInItsToolTip) {
  Show();
  const auto tipOver = [this](P property) {
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    const QPoint place = pane.visualRect(pane.indexFromItem(pane.RowOf(property), 1)).center();
    QHelpEvent ask(QEvent::ToolTip, place, pane.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(pane.viewport(), &ask);
    return QToolTip::text();
  };
  pane.ShowProperty(P::SongFileName, u"short.mp3");
  EXPECT_EQ(tipOver(P::SongFileName), QString());
  pane.ShowProperty(P::SongFilePath, u"\\" + std::u16string(200, u'm') + u" <b> & more\\");
  const QString whole = QStringLiteral("\\") + QString(200, u'm') + QStringLiteral(" &lt;b&gt; &amp; more\\");
  EXPECT_EQ(tipOver(P::SongFilePath), QStringLiteral("<span>%1</span>").arg(whole));
}

TEST_F(PropertiesPane, AScreenReaderReadsTheTextWithItsCaption) {
  Show();
  EXPECT_EQ(pane.accessibleName(), QStringLiteral("Properties"));
  pane.ShowProperty(P::GroupName, u"Band");
  EXPECT_EQ(pane.RowOf(P::GroupName)->data(0, Qt::AccessibleDescriptionRole).toString(),
            QStringLiteral("Band"));
}

TEST(PropertiesKeys, PlainArrowsAreThePanesAndEnterOnATextThatCanBeEdited) {
  for (const bool editable : {false, true}) {
    for (const int arrow : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right}) {
      EXPECT_TRUE(PropertiesKeepKey(arrow, Qt::NoModifier, editable));
      EXPECT_TRUE(PropertiesKeepKey(arrow, Qt::KeypadModifier, editable));
      EXPECT_FALSE(PropertiesKeepKey(arrow, Qt::ControlModifier, editable));
    }
    for (const int enter : {Qt::Key_Return, Qt::Key_Enter}) {
      EXPECT_EQ(PropertiesKeepKey(enter, Qt::NoModifier, editable), editable);
      EXPECT_FALSE(PropertiesKeepKey(enter, Qt::AltModifier, editable));
    }
    for (const int key : {Qt::Key_Space, Qt::Key_P, Qt::Key_F2, Qt::Key_Escape, Qt::Key_Delete}) {
      EXPECT_FALSE(PropertiesKeepKey(key, Qt::NoModifier, editable)) << key;
    }
  }
}

// In the whole program.

class PropertiesInTheProgram : public TCWholeProgram {
 protected:
  [[nodiscard]] TCPropertiesPane& Pane() { return Frame().Properties(); }
  [[nodiscard]] QString Shown(P property) { return TextIn(Pane(), property); }
  QLineEdit* EditTitle() {
    Pane().expandAll();
    Pane().setFocus();
    Pane().setCurrentItem(Pane().RowOf(P::Title));
    Press(Qt::Key_Return);
    return EditorOf(Pane());
  }
};

TEST_F(PropertiesInTheProgram, ShowsTheOpenDocument) {
  Start(kShow);
  EXPECT_EQ(Shown(P::SongFileName), QStringLiteral("one.mp3"));
  EXPECT_EQ(Shown(P::SongFilePath), QStringLiteral("\\m\\"));
  EXPECT_EQ(Shown(P::BrvFileName), QStringLiteral("show.brv"));
  EXPECT_EQ(Shown(P::VolumeStep), QStringLiteral("5"));
  EXPECT_EQ(Shown(P::ProgramDataPath), QStringLiteral("\\conf\\"));
}

TEST_F(PropertiesInTheProgram, APaneThatIsFirstShownLaterIsFilledThen) {
  Make();
  app->Frame().OnCommand(TCCommandId::PropertiesPane);  // closed before the window is seen
  app->InitInstance({true, "typed", std::u16string(kShow)});
  ASSERT_TRUE(QTest::qWaitFor([this] { return !AboutBoxes().isEmpty(); }));
  CloseAboutBox();
  Press(Qt::Key_Down);
  EXPECT_FALSE(Pane().IsBuilt());
  app->Actions().ActionOf(TCCommandId::PropertiesPane)->trigger();
  QCoreApplication::sendPostedEvents();
  EXPECT_TRUE(Pane().isVisible());
  EXPECT_EQ(Shown(P::SongFileName), QStringLiteral("two.mp3"));
}

TEST_F(PropertiesInTheProgram, FollowsTheSelectedRowAndThePressedNode) {
  Start(kShow);
  Frame().PlaylistView().SelectRow(1);
  EXPECT_EQ(Shown(P::SongFileName), QStringLiteral("two.mp3"));
  Frame().Tree().SelectNode(app->Record().setLists.groups[0].playlists[1].items[0].treeNode);
  EXPECT_EQ(Shown(P::SongFileName), QStringLiteral("two.mp3")) << "selecting is no press";
  QTreeView& tree = Frame().Tree();
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(tree.currentIndex()).center());
  EXPECT_EQ(Shown(P::PlaylistName), QStringLiteral("Set 2"));
  EXPECT_EQ(Shown(P::SongFileName), QStringLiteral("three.mp3"));
  EXPECT_EQ(app->Record().setLists.currentPlaylist, 0);
}

TEST_F(PropertiesInTheProgram, KeysAreTheTextsWhileTheTitleIsEdited) {
  Start(kShow);
  player.ForgetCalls();
  QLineEdit* editor = EditTitle();
  ASSERT_NE(editor, nullptr);
  ASSERT_EQ(QApplication::focusWidget(), editor);
  QTest::keyClicks(editor, QStringLiteral("sp 6"));
  EXPECT_EQ(editor->text(), QStringLiteral("sp 6"));
  Press(Qt::Key_Return);
  EXPECT_EQ(Shown(P::Title), QStringLiteral("sp 6"));
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(EditorOf(Pane()), nullptr) << "the Enter that ends the typing begins none";
  EXPECT_TRUE(player.Calls().empty());
  EXPECT_FALSE(app->Document().IsModified());
  app->Document().OnCommand(TCCommandId::NextSong);
  EXPECT_EQ(Shown(P::Title), QString());
}

TEST_F(PropertiesInTheProgram, ArrowsWalkThePaneAndAllOtherKeysPerform) {
  Start(kShow);
  Pane().setFocus();
  Pane().setCurrentItem(Pane().RowOf(P::SongFileName));
  Press(Qt::Key_Down);
  EXPECT_EQ(Pane().currentItem(), Pane().RowOf(P::SongFilePath));
  Press(Qt::Key_Left);
  EXPECT_EQ(Pane().currentItem(), Pane().topLevelItem(0));
  Press(Qt::Key_Left);
  EXPECT_FALSE(Pane().topLevelItem(0)->isExpanded());
  EXPECT_EQ(app->Record().setLists.currentSong, 0);
  player.ForgetCalls();
  Press(Qt::Key_Return);
  EXPECT_FALSE(player.Calls().empty()) << "Enter plays";
}

TEST_F(PropertiesInTheProgram, ThePanesBelowStandInTheirOrderAndAllFit) {
  Start(kShow);
  for (const QSize size : {QSize(1600, 1000), QSize(1280, 720)}) {
    Frame().resize(size);
    ASSERT_TRUE(QTest::qWaitFor([this, size] { return Frame().size() == size; }));
    QCoreApplication::processEvents();
    int left = 0;
    for (const char* name : {"Pane4004", "Pane4000", "Pane4003"}) {
      const auto* pane = Frame().findChild<QDockWidget*>(QLatin1String(name));
      ASSERT_NE(pane, nullptr) << name;
      const QRect place(pane->mapTo(&Frame(), QPoint(0, 0)), pane->size());
      EXPECT_GE(place.left(), left) << name;
      EXPECT_GE(place.width(), size.width() / 4) << name;
      EXPECT_TRUE(Frame().rect().contains(place)) << name;
      left = place.right();
    }
  }
}

}  // namespace
}  // namespace brevant
