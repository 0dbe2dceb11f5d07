// The help commands in the whole program: which page opens, and whose the keys are while the guide is open.
#include "app/help/help.h"

#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>
#include <QWhatsThis>

#include "app/dialog_answer.h"
#include "app/help/guide_pages.h"
#include "app/whole_program.h"

namespace brevant {
namespace {

using Id = TCCommandId;

class Help : public TCWholeProgram {
 public:
  void TearDown() override {
    if (app && app->Help().Window() != nullptr) app->Help().Window()->close();
  }

  [[nodiscard]] QString Title() {
    return app->Help().Window() != nullptr ? app->Help().Window()->Page().Title() : QString();
  }

  void SetUp() override {
    TCWholeProgram::SetUp();
    player.SetDefaultSong({.length = 200.0});
  }

  void OpenGuide() {
    Press(Qt::Key_F1);
    ASSERT_NE(app->Help().Window(), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == app->Help().Window(); }));
  }

  void CloseGuide() {
    Press(Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(app->Help().Window(), nullptr);
    GoToMain();
  }

  void GoToMain() {
    Frame().activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Frame(); }));
  }
};

TEST_F(Help, F1OpensThePageForWhereTheKeysAre) {
  Start(kShow);
  const std::pair<QWidget*, const char*> places[] = {{&Frame().PlaylistView(), "Performing"},
                                                     {&Frame().Tree(), "Arranging set lists"},
                                                     {&Frame().Properties(), "The panes"},
                                                     {&Frame().MessageDisplay(), "Lyrics"}};
  for (const auto& [place, title] : places) {
    place->setFocus();
    ASSERT_EQ(QApplication::focusWidget(), place);
    OpenGuide();
    EXPECT_EQ(Title(), QString::fromLatin1(title));
    CloseGuide();
  }
}

TEST_F(Help, F1InADialogOpensThePageOfTheDialogWhichStaysOpen) {
  Start(kShow);
  const TCDialogAnswer<QDialog> answer([this](QDialog& dialog) {
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&dialog] { return QApplication::activeWindow() == &dialog; }));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(Title(), QStringLiteral("Options"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == app->Help().Window(); }))
        << "the dialog keeps nobody from the guide";
    EXPECT_TRUE(dialog.isVisible());
    dialog.reject();
  });
  app->Actions().ActionOf(Id::VolumeStep)->trigger();
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(Settings().volumeStep, TCSettings().volumeStep);
}

TEST_F(Help, F1OnTheEntryOfAMenuOpensItsPageAndRunsNothing) {
  Start(kShow);
  QAction* entry = app->Actions().ActionOf(Id::RefreshAllTimes);
  for (QAction* title : Frame().menuBar()->actions()) {
    if (!title->menu()->actions().contains(entry)) continue;
    title->menu()->popup({100, 100});
    title->menu()->setActiveAction(entry);
    ASSERT_EQ(QApplication::activePopupWidget(), title->menu());
    QTest::keyClick(title->menu(), Qt::Key_F1);
  }
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(Title(), QStringLiteral("Performing"));
  EXPECT_TRUE(app->Help().Window()->Page().source().hasFragment());
  EXPECT_FALSE(QWhatsThis::inWhatsThisMode());
}

TEST_F(Help, OneWindowShowsOnePageAfterTheOther) {
  Start(kShow);
  OpenGuide();
  const TCHelpWindow* window = app->Help().Window();
  app->Actions().ActionOf(Id::HelpTopics)->trigger();
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(app->Help().Window(), window);
  EXPECT_EQ(Title(), QStringLiteral("The Brevant guide"));
}

TEST_F(Help, TheMainWindowsKeysPerformWhileTheGuideIsOpen) {
  Start(kShow);
  OpenGuide();
  GoToMain();
  Press(Qt::Key_P);
  player.Advance(1.0);
  EXPECT_EQ(player.Snapshot().phase, TCPlayerPhase::Playing);
  Press(Qt::Key_S);
  EXPECT_NE(player.Snapshot().phase, TCPlayerPhase::Playing);
}

TEST_F(Help, InTheGuideOnlyFunctionAndMediaKeysPerform) {
  Start(kShow);
  OpenGuide();
  for (const Qt::Key key : {Qt::Key_P, Qt::Key_Return, Qt::Key_Space}) Press(key);
  EXPECT_NE(player.Snapshot().phase, TCPlayerPhase::Playing);
  Press(Qt::Key_F5);
  player.Advance(1.0);
  EXPECT_EQ(player.Snapshot().phase, TCPlayerPhase::Playing);
  Press(Qt::Key_F6);
  EXPECT_NE(player.Snapshot().phase, TCPlayerPhase::Playing);
  player.ForgetCalls();
  Press(Qt::Key_VolumeDown);
  EXPECT_FALSE(player.Calls().empty());
}

TEST_F(Help, F3BringsTheKeysBackToThePlaylist) {
  Start(kShow);
  OpenGuide();
  Press(Qt::Key_F3);
  EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::focusWidget() == &Frame().PlaylistView(); }));
  EXPECT_NE(app->Help().Window(), nullptr) << "the guide stays open";
}

TEST_F(Help, EveryPartOfTheMainWindowThatHasAPageIsThere) {
  Start(kShow);
  // Windows of their own go by these names where they are made.
  const QStringList windows{
      QStringLiteral("Help"),           QStringLiteral("AboutBox"),       QStringLiteral("EnterText"),
      QStringLiteral("CreateSetLists"), QStringLiteral("SongProperties"), QStringLiteral("ConfirmRemove"),
      QStringLiteral("SaveChanges"),    QStringLiteral("OpenDocument"),   QStringLiteral("SaveDocument"),
      QStringLiteral("FindSongs"),      QStringLiteral("Customize")};
  for (const TCGuidePlace& place : GuidePlaces()) {
    const QString name =
        QString::fromUtf8(place.objectName.data(), static_cast<qsizetype>(place.objectName.size()));
    if (windows.contains(name)) continue;
    EXPECT_NE(Frame().findChild<QWidget*>(name), nullptr) << place.objectName;
  }
}

}  // namespace
}  // namespace brevant
