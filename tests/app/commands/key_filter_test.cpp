#include "app/commands/key_filter.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDateTimeEdit>
#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "app/bars/key_field.h"
#include "app/commands/qt_keys.h"
#include "app/fake_target.h"
#include "app/look/stage_style.h"
#include "app/timed_key.h"

namespace brevant {
namespace {

// A window with one widget of every kind that would like keys for itself.
class KeyFilter : public testing::Test {
 protected:
  void SetUp() override {
    target.handled = {TCCommandId::Play,
                      TCCommandId::PauseContinue,
                      TCCommandId::NextSong,
                      TCCommandId::LoadSong,
                      TCCommandId::Cancel,
                      TCCommandId::NextPlaylist,
                      TCCommandId::AutoSongAdvance,
                      TCCommandId::SelectAll,
                      TCCommandId::MediaVolumeUp};
    actions.emplace(target, window);
    filter.emplace(*actions, window);
    auto* middle = new QWidget;
    window.setCentralWidget(middle);
    for (QWidget* widget :
         {static_cast<QWidget*>(list), static_cast<QWidget*>(line), static_cast<QWidget*>(readOnlyText),
          static_cast<QWidget*>(timeField), static_cast<QWidget*>(button)}) {
      widget->setParent(middle);
    }
    list->addItems({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
    list->setCurrentRow(0);
    readOnlyText->setReadOnly(true);
    window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("Entry"));
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  void Focus(QWidget* widget) {
    widget->setFocus();
    ASSERT_EQ(QApplication::focusWidget(), widget);
  }

  // A window counts as active already while the one it belongs to is, so that is not what is awaited.
  void Activate(QWidget& other) {
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&other] { return QApplication::activeWindow() == &other; }));
  }

  std::vector<TCCommandId> Type(QWidget* widget, Qt::Key key,
                                Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    target.ran.clear();
    QTest::keyClick(widget, key, modifiers);
    QCoreApplication::sendPostedEvents();
    return target.ran;
  }

  TCFakeTarget target;
  QMainWindow window;
  QListWidget* list = new QListWidget;
  QLineEdit* line = new QLineEdit;
  QPlainTextEdit* readOnlyText = new QPlainTextEdit(QStringLiteral("text"));
  QDateTimeEdit* timeField = new QDateTimeEdit;
  QPushButton* button = new QPushButton(QStringLiteral("Button"));
  std::optional<TCCommandActions> actions;
  std::optional<TCKeyFilter> filter;
};

using Ran = std::vector<TCCommandId>;

TEST_F(KeyFilter, TheTablesKeysActFromListButtonAndReadOnlyText) {
  for (QWidget* widget :
       {static_cast<QWidget*>(list), static_cast<QWidget*>(button), static_cast<QWidget*>(readOnlyText)}) {
    Focus(widget);
    EXPECT_EQ(Type(widget, Qt::Key_P), Ran{TCCommandId::Play});
    EXPECT_EQ(Type(widget, Qt::Key_Space), Ran{TCCommandId::PauseContinue});
    EXPECT_EQ(Type(widget, Qt::Key_Down), Ran{TCCommandId::NextSong});
    EXPECT_EQ(Type(widget, Qt::Key_Return), Ran{TCCommandId::LoadSong});
    EXPECT_EQ(Type(widget, Qt::Key_Enter, Qt::KeypadModifier), Ran{TCCommandId::LoadSong});
    EXPECT_EQ(Type(widget, Qt::Key_Escape), Ran{TCCommandId::Cancel});
    EXPECT_EQ(Type(widget, Qt::Key_A, Qt::ControlModifier), Ran{TCCommandId::SelectAll});
  }
  EXPECT_EQ(list->currentRow(), 0) << "the arrow was the table's, not the list's";
  EXPECT_FALSE(readOnlyText->textCursor().hasSelection()) << "Ctrl+A was the table's";
}

TEST_F(KeyFilter, WhileTypingTheTableKeepsOnlyItsFunctionKeys) {
  Focus(line);
  EXPECT_EQ(Type(line, Qt::Key_P), Ran{});
  EXPECT_EQ(Type(line, Qt::Key_Space), Ran{});
  EXPECT_EQ(Type(line, Qt::Key_Return), Ran{});
  EXPECT_EQ(Type(line, Qt::Key_Down), Ran{});
  EXPECT_EQ(Type(line, Qt::Key_Escape), Ran{});
  EXPECT_EQ(Type(line, Qt::Key_K, Qt::ControlModifier), Ran{});
  EXPECT_EQ(line->text(), QStringLiteral("p "));
  EXPECT_EQ(Type(line, Qt::Key_F5), Ran{TCCommandId::Play});
}

TEST_F(KeyFilter, ATimeFieldIsTypedInto) {
  Focus(timeField);
  EXPECT_EQ(Type(timeField, Qt::Key_Right), Ran{});
  EXPECT_EQ(Type(timeField, Qt::Key_Return), Ran{});
}

TEST_F(KeyFilter, ADialogKeepsItsKeys) {
  QDialog dialog(&window);
  auto* field = new QLineEdit(&dialog);
  dialog.open();
  Activate(dialog);
  Focus(field);
  EXPECT_EQ(Type(field, Qt::Key_P), Ran{});
  EXPECT_EQ(Type(field, Qt::Key_K, Qt::ControlModifier), Ran{});
  EXPECT_EQ(field->text(), QStringLiteral("p"));
  EXPECT_EQ(Type(field, Qt::Key_Return), Ran{});
  EXPECT_EQ(dialog.result(), QDialog::Rejected) << "there is no button to press";
  EXPECT_EQ(Type(field, Qt::Key_Escape), Ran{});
  EXPECT_FALSE(dialog.isVisible()) << "Esc is the dialog's";
}

TEST_F(KeyFilter, WhileADialogIsTypedIntoTheFunctionAndMediaKeysPerform) {
  QDialog dialog(&window);
  auto* field = new QLineEdit(&dialog);
  auto* dialogButton = new QPushButton(&dialog);
  dialog.open();
  Activate(dialog);
  Focus(field);
  EXPECT_EQ(Type(field, Qt::Key_F5), Ran{TCCommandId::Play});
  EXPECT_EQ(Type(field, Qt::Key_VolumeUp), Ran{TCCommandId::MediaVolumeUp});
  EXPECT_EQ(Type(field, Qt::Key_F12), Ran{}) << "no command has this key";
  EXPECT_EQ(field->text(), QString());
  EXPECT_TRUE(dialog.isVisible());
  Focus(dialogButton);
  EXPECT_EQ(Type(dialogButton, Qt::Key_F5), Ran{TCCommandId::Play});
  EXPECT_EQ(Type(dialogButton, Qt::Key_VolumeUp), Ran{TCCommandId::MediaVolumeUp});
}

TEST_F(KeyFilter, WhereADialogAsksForAKeyNoKeyPerforms) {
  QDialog dialog(&window);
  auto* field = new TCKeyField(&dialog);
  dialog.open();
  Activate(dialog);
  Focus(field);
  for (const Qt::Key key : {Qt::Key_P, Qt::Key_F5, Qt::Key_VolumeUp, Qt::Key_Escape, Qt::Key_Return}) {
    EXPECT_EQ(Type(field, key), Ran{});
    EXPECT_EQ(field->Key(), FromQtKey(key, {}));
  }
  EXPECT_TRUE(dialog.isVisible()) << "Esc was asked for as well";
}

TEST_F(KeyFilter, FollowsTheKeysThatTheUserHasAssigned) {
  TCKeyAssignment keys;
  keys.Assign(TCKeyCode::PageDown, TCCommandId::NextSong);
  keys.Assign(TCKeyCode::P, TCCommandId::PauseContinue);
  keys.Remove(TCKeyCode::Space);
  actions->Follow(keys, TCCommandActions::TCTips::WithKeys);
  Focus(list);
  EXPECT_EQ(Type(list, Qt::Key_PageDown), Ran{TCCommandId::NextSong});
  EXPECT_EQ(Type(list, Qt::Key_P), Ran{TCCommandId::PauseContinue});
  EXPECT_EQ(Type(list, Qt::Key_Space), Ran{});
  EXPECT_EQ(Type(list, Qt::Key_F5), Ran{TCCommandId::Play}) << "its other key is still its own";
  Focus(line);
  EXPECT_EQ(Type(line, Qt::Key_P), Ran{}) << "a letter is typed, whosever it is";
}

TEST_F(KeyFilter, TheButtonsOfADialogKeepTheOtherKeys) {
  QDialog dialog(&window);
  auto* dialogButton = new QPushButton(&dialog);
  dialogButton->setAutoDefault(true);
  int clicks = 0;
  QObject::connect(dialogButton, &QPushButton::clicked, [&clicks] { ++clicks; });
  dialog.open();
  Activate(dialog);
  Focus(dialogButton);
  EXPECT_EQ(Type(dialogButton, Qt::Key_P), Ran{});
  EXPECT_EQ(Type(dialogButton, Qt::Key_Space), Ran{});
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(Type(dialogButton, Qt::Key_Return), Ran{});
  EXPECT_EQ(clicks, 2);
}

TEST_F(KeyFilter, TheWindowBehindADialogHasNoKeys) {
  Focus(line);
  QDialog dialog(&window);
  dialog.open();
  for (QWidget* widget : {static_cast<QWidget*>(line), static_cast<QWidget*>(list)}) {
    EXPECT_EQ(Type(widget, Qt::Key_P), Ran{});
    EXPECT_EQ(Type(widget, Qt::Key_F5), Ran{});
    EXPECT_EQ(Type(widget, Qt::Key_Down), Ran{});
  }
  EXPECT_EQ(line->text(), QString());
  EXPECT_EQ(list->currentRow(), 0);
  dialog.reject();
  Activate(window);
  Focus(list);
  EXPECT_EQ(Type(list, Qt::Key_P), Ran{TCCommandId::Play});
}

TEST_F(KeyFilter, AFloatingPaneIsPartOfTheWindow) {
  QDockWidget pane(&window);
  auto* panel = new QWidget;
  auto* inside = new QListWidget(panel);
  auto* field = new QLineEdit(panel);
  inside->addItems({QStringLiteral("one"), QStringLiteral("two")});
  pane.setWidget(panel);
  window.addDockWidget(Qt::BottomDockWidgetArea, &pane);
  pane.setFloating(true);
  pane.show();
  Activate(pane);
  Focus(inside);
  EXPECT_EQ(Type(inside, Qt::Key_Down), Ran{TCCommandId::NextSong});
  Focus(field);
  EXPECT_EQ(Type(field, Qt::Key_K, Qt::ControlModifier), Ran{}) << "text is typed there";
}

TEST_F(KeyFilter, TheMenuBarIsWalkedWithTheArrows) {
  EXPECT_EQ(FocusKind(window.menuBar()), TCKeyFocus::Menu);
  Focus(window.menuBar());
  EXPECT_EQ(Type(window.menuBar(), Qt::Key_Right), Ran{});
}

TEST_F(KeyFilter, AltAloneLeavesTheStageKeysWhereTheyAre) {
  TCStageStyle style;
  window.menuBar()->setStyle(&style);
  Focus(list);
  QTest::keyClick(list, Qt::Key_Alt, Qt::AltModifier);
  EXPECT_EQ(QApplication::focusWidget(), list);
  EXPECT_EQ(Type(list, Qt::Key_P), Ran{TCCommandId::Play});
  window.menuBar()->setStyle(nullptr);
}

TEST_F(KeyFilter, AWidgetKeepsTheKeysItHasClaimed) {
  filter->LetKeep(*list, [](int key, Qt::KeyboardModifiers) { return key == Qt::Key_Down; });
  Focus(list);
  EXPECT_EQ(Type(list, Qt::Key_Down), Ran{});
  EXPECT_EQ(list->currentRow(), 1);
  EXPECT_EQ(Type(list, Qt::Key_P), Ran{TCCommandId::Play});
  Focus(button);
  EXPECT_EQ(Type(button, Qt::Key_Down), Ran{TCCommandId::NextSong})
      << "its claim holds only while it has focus";
}

TEST_F(KeyFilter, AHeldKeyActsOnceUnlessItsCommandMayRepeat) {
  Focus(list);
  for (const bool recognised : {true, false}) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Down}) {
      target.ran.clear();
      unsigned long time = recognised ? 10000 : 20000;
      SendKey(list, QEvent::KeyPress, key, time, false);
      for (int i = 0; i < 4; ++i) {
        time += 30;
        SendKey(list, QEvent::KeyRelease, key, time, recognised);
        SendKey(list, QEvent::KeyPress, key, time, recognised);
      }
      SendKey(list, QEvent::KeyRelease, key, time + 30, false);
      QCoreApplication::sendPostedEvents();
      if (key == Qt::Key_Space) {
        EXPECT_EQ(target.ran, Ran{TCCommandId::PauseContinue});
      } else {
        EXPECT_EQ(target.ran, Ran(5, TCCommandId::NextSong));
      }
    }
  }
  EXPECT_EQ(list->currentRow(), 0) << "what nobody may have is not handed to the list";
}

TEST_F(KeyFilter, NothingOfAHeldKeyReachesTheDialogThatItOpened) {
  const QString letter = QStringLiteral("p");
  for (const bool recognised : {true, false}) {
    unsigned long time = recognised ? 10000 : 20000;
    Activate(window);
    Focus(list);
    SendKey(list, QEvent::KeyPress, Qt::Key_P, time, false, letter);
    QDialog dialog(&window);
    auto* field = new QLineEdit(&dialog);
    dialog.open();
    // The first repeats still come to the window, the later ones to the dialog.
    for (QWidget* receiver : {static_cast<QWidget*>(list), static_cast<QWidget*>(field)}) {
      if (receiver == field) {
        Activate(dialog);
        Focus(field);
      }
      for (int i = 0; i < 4; ++i) {
        time += 30;
        SendKey(receiver, QEvent::KeyRelease, Qt::Key_P, time, recognised);
        SendKey(receiver, QEvent::KeyPress, Qt::Key_P, time, recognised, letter);
      }
    }
    EXPECT_EQ(field->text(), QString());
    SendKey(field, QEvent::KeyRelease, Qt::Key_P, time + 30, false);

    SendKey(field, QEvent::KeyPress, Qt::Key_P, time + 100, false, letter);
    SendKey(field, QEvent::KeyRelease, Qt::Key_P, time + 130, recognised);
    SendKey(field, QEvent::KeyPress, Qt::Key_P, time + 130, recognised, letter);
    SendKey(field, QEvent::KeyRelease, Qt::Key_P, time + 160, false);
    EXPECT_EQ(field->text(), QStringLiteral("pp")) << "pressed anew it is typed, and repeats";
  }
}

TEST_F(KeyFilter, AHeldKeyPressesNoButtonOfTheDialogThatItOpened) {
  Focus(list);
  SendKey(list, QEvent::KeyPress, Qt::Key_Space, 1000, false);
  QDialog dialog(&window);
  auto* dialogButton = new QPushButton(&dialog);
  dialog.open();
  Activate(dialog);
  Focus(dialogButton);
  const auto repeat = [dialogButton](unsigned long time) {
    SendKey(dialogButton, QEvent::KeyRelease, Qt::Key_Space, time, false);
    SendKey(dialogButton, QEvent::KeyPress, Qt::Key_Space, time, false);
  };
  repeat(1030);
  EXPECT_FALSE(dialogButton->isDown());
  SendKey(dialogButton, QEvent::KeyRelease, Qt::Key_Space, 1060, false);
  SendKey(dialogButton, QEvent::KeyPress, Qt::Key_Space, 1200, false);
  EXPECT_TRUE(dialogButton->isDown());
}

TEST_F(KeyFilter, TwoQuickPressesAreTwo) {
  Focus(list);
  SendKey(list, QEvent::KeyPress, Qt::Key_Space, 1000, false);
  SendKey(list, QEvent::KeyRelease, Qt::Key_Space, 1040, false);
  SendKey(list, QEvent::KeyPress, Qt::Key_Space, 1050, false);
  SendKey(list, QEvent::KeyRelease, Qt::Key_Space, 1090, false);
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(target.ran, Ran(2, TCCommandId::PauseContinue));
}

TEST_F(KeyFilter, KeysActWithTheMenuBarHidden) {
  window.menuBar()->hide();
  Focus(list);
  EXPECT_EQ(Type(list, Qt::Key_P), Ran{TCCommandId::Play});
}

TEST(FocusKind, OnlyWhatCanBeChangedIsTypedInto) {
  QLineEdit line;
  QPlainTextEdit text;
  EXPECT_EQ(FocusKind(&line), TCKeyFocus::Typing);
  EXPECT_EQ(FocusKind(&text), TCKeyFocus::Typing);
  line.setReadOnly(true);
  text.setReadOnly(true);
  EXPECT_EQ(FocusKind(&line), TCKeyFocus::Ordinary);
  EXPECT_EQ(FocusKind(&text), TCKeyFocus::Ordinary);
  EXPECT_EQ(FocusKind(nullptr), TCKeyFocus::Ordinary);
}

}  // namespace
}  // namespace brevant
