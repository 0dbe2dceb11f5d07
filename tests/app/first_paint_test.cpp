#include "app/first_paint.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <QWidget>

namespace brevant {
namespace {

// Notes when it is painted.
class TCCanvas : public QWidget {
 public:
  bool painted = false;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override { painted = true; }
};

TEST(FirstPaint, CallsBackOnceAfterTheWindowIsPainted) {
  TCCanvas window;
  int calls = 0;
  bool paintedBefore = false;
  const TCFirstPaint paint(
      window,
      [&] {
        ++calls;
        paintedBefore = window.painted;
      },
      std::chrono::hours(1));
  EXPECT_EQ(calls, 0);
  window.show();
  ASSERT_TRUE(QTest::qWaitFor([&calls] { return calls > 0; }));
  EXPECT_TRUE(paintedBefore);

  window.painted = false;
  window.update();
  ASSERT_TRUE(QTest::qWaitFor([&window] { return window.painted; }));
  QCoreApplication::processEvents();
  EXPECT_EQ(calls, 1);
}

TEST(FirstPaint, DoesNotWaitForEverForAWindowThatIsNotShown) {
  TCCanvas window;
  int calls = 0;
  const TCFirstPaint paint(
      window, [&calls] { ++calls; }, std::chrono::milliseconds(1));
  EXPECT_TRUE(QTest::qWaitFor([&calls] { return calls == 1; }));
  EXPECT_FALSE(window.painted);
}

}  // namespace
}  // namespace brevant
