// The whole program, reached from outside: by a second start or the desktop.
#include "app/desktop/program_door.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>

#include "app/dialog_answer.h"
#include "app/whole_program.h"

namespace brevant {
namespace {

constexpr std::u16string_view kOther = u"\\shows\\other.brv";

class ProgramDoor : public TCWholeProgram {
 public:
  void SetUp() override {
    TCWholeProgram::SetUp();
    files.PutUtf16(kOther, u"\"Duo\" \"Late\" \"\\m\\three.mp3\" 01:00\r\n");
  }

  [[nodiscard]] bool Opens(const char* name) {
    const bool opened = app->OpenFromOutside(name);
    QCoreApplication::sendPostedEvents();
    return opened;
  }

  [[nodiscard]] std::u16string OpenDocument() { return app->Document().GetPathName(); }
};

TEST_F(ProgramDoor, AFileIsOpened) {
  Start(kShow);
  EXPECT_TRUE(Opens("/shows/other.brv"));
  EXPECT_EQ(OpenDocument(), kOther);
  EXPECT_EQ(CellText(0, 4), QStringLiteral("three.mp3"));
}

TEST_F(ProgramDoor, AFileThatComesBeforeTheFirstDocumentIsOpenedInItsPlace) {
  Make();
  EXPECT_TRUE(app->OpenFromOutside("/shows/other.brv"));
  app->InitInstance({true, "show.brv", std::u16string(kShow)});
  EXPECT_TRUE(app->OpenFromOutside("/shows/other.brv"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !AboutBoxes().isEmpty(); }));
  EXPECT_EQ(OpenDocument(), kOther);
}

TEST_F(ProgramDoor, TheAboutBoxOfTheStartMakesRoom) {
  StartWith({});
  ASSERT_TRUE(AboutBoxes().constFirst()->isVisible());
  EXPECT_TRUE(Opens("/shows/other.brv"));
  EXPECT_EQ(OpenDocument(), kOther);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(ProgramDoor, UnsavedChangesAreAskedAboutAfterTheCallersAnswer) {
  Start(kShow);
  app->Document().SetModified();
  EXPECT_TRUE(app->OpenFromOutside("/shows/other.brv")) << "and nobody has been asked yet";
  EXPECT_EQ(OpenDocument(), kShow);
  const TCDialogAnswer<QMessageBox> answer(
      [](QMessageBox& box) { box.button(QMessageBox::Cancel)->click(); });
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(OpenDocument(), kShow);
}

TEST_F(ProgramDoor, WhileADialogIsOpenNothingIsOpenedAndTheStatusBarSaysSo) {
  Start(kShow);
  const TCDialogAnswer<QDialog> answer([this](QDialog& dialog) {
    EXPECT_FALSE(Opens("/shows/other.brv"));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Frame().StatusLine().ShownMessage(),
              QStringLiteral("Not opened while a dialog is open: other.brv"));
    dialog.reject();
  });
  app->Actions().ActionOf(TCCommandId::VolumeStep)->trigger();
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(OpenDocument(), kShow);
}

TEST_F(ProgramDoor, ADialogThatOpensBeforeItsTurnHoldsTheFileToo) {
  Start(kShow);
  app->Actions().ActionOf(TCCommandId::VolumeStep)->trigger();
  const TCDialogAnswer<QDialog> answer([](QDialog& dialog) {
    QCoreApplication::sendPostedEvents();
    dialog.reject();
  });
  EXPECT_TRUE(Opens("/shows/other.brv")) << "no dialog was open yet";
  EXPECT_EQ(OpenDocument(), kShow);
}

TEST_F(ProgramDoor, ANameThatTheModelCannotHoldIsRefusedInTheStatusBar) {
  Start(kShow);
  EXPECT_TRUE(Opens("/shows/a\\b.brv"));
  EXPECT_EQ(OpenDocument(), kShow);
  EXPECT_FALSE(Frame().StatusLine().ShownMessage().isEmpty());
}

TEST_F(ProgramDoor, AMinimisedWindowComesForward) {
  Start(kShow);
  Frame().setWindowState(Qt::WindowMinimized);
  app->ComeForward();
  EXPECT_FALSE(Frame().isMinimized());
  EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Frame(); }));
}

TEST_F(ProgramDoor, WhatComesForwardIsTheDialogWhereOneIsOpen) {
  Start(kShow);
  QWidget another;
  const auto comesForward = [this, &another](QWidget& window) {
    another.show();
    another.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&another));
    app->ComeForward();
    return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
  };
  EXPECT_TRUE(comesForward(Frame()));
  app->Actions().ActionOf(TCCommandId::About)->trigger();
  QCoreApplication::sendPostedEvents();
  ASSERT_EQ(AboutBoxes().size(), 1);
  EXPECT_TRUE(comesForward(*AboutBoxes().constFirst()));
  CloseAboutBox();
}

}  // namespace
}  // namespace brevant
