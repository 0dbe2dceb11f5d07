#include "app/bars/drop_mark.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>
#include <optional>

namespace brevant {
namespace {

constexpr QRect kGap(0, 20, 60, 3);

class DropMark : public testing::Test {
 protected:
  void SetUp() override {
    for (QWidget* widget : {&here, &there}) widget->show();
  }

  [[nodiscard]] static QWidget* LineIn(const QWidget& widget) {
    return widget.findChild<QWidget*>(QStringLiteral("DropMark"));
  }
  // Empty without a cursor that goes before all others.
  [[nodiscard]] static std::optional<Qt::CursorShape> Cursor() {
    const QCursor* cursor = QApplication::overrideCursor();
    return cursor == nullptr ? std::nullopt : std::optional(cursor->shape());
  }

  QWidget here;
  QWidget there;
  TCDropMark mark;
};

TEST_F(DropMark, ALineStandsInTheGap) {
  mark.Show(here, kGap);
  QWidget* line = LineIn(here);
  ASSERT_NE(line, nullptr);
  EXPECT_TRUE(line->isVisible());
  EXPECT_EQ(line->geometry(), kGap);
  EXPECT_EQ(line->grab().toImage().pixelColor(1, 1), here.palette().color(QPalette::Highlight));
  EXPECT_EQ(Cursor(), Qt::DragMoveCursor);
}

TEST_F(DropMark, TheLineMovesWithTheGapIntoAnotherWidgetToo) {
  mark.Show(here, kGap);
  mark.Show(here, kGap.translated(0, 30));
  EXPECT_EQ(LineIn(here)->geometry(), kGap.translated(0, 30));
  EXPECT_EQ(here.findChildren<QWidget*>().size(), 1);
  mark.Show(there, kGap);
  EXPECT_EQ(LineIn(here), nullptr);
  ASSERT_NE(LineIn(there), nullptr);
  EXPECT_TRUE(LineIn(there)->isVisible());
}

TEST_F(DropMark, WhereItWouldGoNowhereTheCursorSaysSo) {
  mark.Show(here, kGap);
  mark.Refuse();
  EXPECT_EQ(LineIn(here), nullptr);
  EXPECT_EQ(Cursor(), Qt::ForbiddenCursor);
  mark.Show(here, kGap);
  EXPECT_EQ(Cursor(), Qt::DragMoveCursor);
}

TEST_F(DropMark, TheEndLeavesNeitherLineNorCursor) {
  mark.End();
  mark.Show(here, kGap);
  mark.Refuse();
  mark.Show(here, kGap);
  mark.End();
  EXPECT_EQ(LineIn(here), nullptr);
  EXPECT_EQ(Cursor(), std::nullopt) << "however often it changed";
}

TEST_F(DropMark, ADragThatIsCutShortLeavesNothingEither) {
  auto other = std::make_unique<TCDropMark>();
  other->Show(here, kGap);
  other.reset();
  EXPECT_EQ(LineIn(here), nullptr);
  EXPECT_EQ(Cursor(), std::nullopt);
}

TEST_F(DropMark, TheWidgetOfTheGapMayGoFirst) {
  auto list = std::make_unique<QWidget>();
  mark.Show(*list, kGap);
  list.reset();
  mark.Show(here, kGap);
  EXPECT_NE(LineIn(here), nullptr);
}

}  // namespace
}  // namespace brevant
