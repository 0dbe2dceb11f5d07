#include "app/desktop/session_end.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

namespace brevant {
namespace {

// A window that would ask something if it were closed.
class TCAskingWindow : public QWidget {
 public:
  int asked = 0;

 protected:
  void closeEvent(QCloseEvent* event) override {
    ++asked;
    event->ignore();
  }
};

class SessionEnd : public testing::Test {
 protected:
  SessionEnd() { window.show(); }

  TCAskingWindow window;
  TCSessionEnd sessionEnd{*qApp};
  QSignalSpy ends{&sessionEnd, &TCSessionEnd::endWanted};
  QEvent quit{QEvent::Quit};
};

TEST_F(SessionEnd, TheSessionManagersQuitAsksNoWindow) {
  QSpontaneKeyEvent::setSpontaneous(&quit);
  qApp->notify(qApp, &quit);  // sendEvent() would make it the program's own
  EXPECT_EQ(ends.count(), 1);
  EXPECT_EQ(window.asked, 0);
}

TEST_F(SessionEnd, TheProgramsOwnQuitStaysAsItIs) {
  QCoreApplication::sendEvent(qApp, &quit);
  EXPECT_EQ(ends.count(), 0);
  EXPECT_EQ(window.asked, 1);
}

}  // namespace
}  // namespace brevant
