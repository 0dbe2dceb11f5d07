#include "views/jump_slider.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

namespace brevant {
namespace {

class JumpSlider : public testing::Test {
 protected:
  void SetUp() override {
    slider.ShowRange(100);
    slider.resize(214, 20);  // one value is two pixels, beside the handle's fourteen
    slider.show();
  }
  static QPoint PlaceOf(int value) { return {7 + 2 * value, 10}; }

  TCJumpSlider slider{TCWheel::Moves};
  QSignalSpy dragged{&slider, &TCJumpSlider::dragged};
  QSignalSpy picked{&slider, &TCJumpSlider::picked};
};

TEST_F(JumpSlider, JumpsToWhereItIsPressedAndPicksOnRelease) {
  QTest::mousePress(&slider, Qt::LeftButton, {}, PlaceOf(60));
  EXPECT_EQ(slider.value(), 60);
  EXPECT_EQ(dragged.count(), 1);
  EXPECT_EQ(picked.count(), 0);
  QTest::mouseRelease(&slider, Qt::LeftButton, {}, PlaceOf(60));
  ASSERT_EQ(picked.count(), 1);
  EXPECT_EQ(picked.at(0).at(0).toInt(), 60);
}

TEST_F(JumpSlider, FollowsTheMouseAndPicksOnce) {
  QTest::mousePress(&slider, Qt::LeftButton, {}, PlaceOf(10));
  QTest::mouseMove(&slider, PlaceOf(30));
  QTest::mouseMove(&slider, PlaceOf(50));
  QTest::mouseRelease(&slider, Qt::LeftButton, {}, PlaceOf(50));
  EXPECT_EQ(dragged.last().at(0).toInt(), 50);
  ASSERT_EQ(picked.count(), 1);
  EXPECT_EQ(picked.at(0).at(0).toInt(), 50);
}

TEST_F(JumpSlider, StaysWithinItsRangeWhereverTheMouseGoes) {
  QTest::mousePress(&slider, Qt::LeftButton, {}, PlaceOf(10));
  QTest::mouseMove(&slider, QPoint(-500, 10));
  EXPECT_EQ(slider.value(), 0);
  QTest::mouseMove(&slider, QPoint(5000, 10));
  EXPECT_EQ(slider.value(), 100);
  QTest::mouseRelease(&slider, Qt::LeftButton, {}, QPoint(5000, 10));
  EXPECT_EQ(picked.at(0).at(0).toInt(), 100);
}

TEST_F(JumpSlider, WhatTheProgramShowsPicksNothing) {
  slider.ShowValue(40);
  slider.ShowRange(20);
  EXPECT_EQ(slider.value(), 20);
  EXPECT_EQ(dragged.count(), 0);
  EXPECT_EQ(picked.count(), 0);
}

TEST_F(JumpSlider, DoesNotMoveUnderTheUsersHand) {
  QTest::mousePress(&slider, Qt::LeftButton, {}, PlaceOf(60));
  slider.ShowValue(5);
  EXPECT_EQ(slider.value(), 60);
}

TEST_F(JumpSlider, ACancelledDragPicksNothing) {
  QTest::mousePress(&slider, Qt::LeftButton, {}, PlaceOf(60));
  slider.CancelDrag();
  QTest::mouseMove(&slider, PlaceOf(80));
  QTest::mouseRelease(&slider, Qt::LeftButton, {}, PlaceOf(80));
  EXPECT_EQ(slider.value(), 60);
  EXPECT_EQ(picked.count(), 0);
}

TEST_F(JumpSlider, OtherButtonsDoNothing) {
  QTest::mouseClick(&slider, Qt::RightButton, {}, PlaceOf(60));
  QTest::mouseClick(&slider, Qt::MiddleButton, {}, PlaceOf(60));
  EXPECT_EQ(slider.value(), 0);
  EXPECT_EQ(picked.count(), 0);
}

void Turn(QWidget& widget, int eighthsOfADegree) {
  QWheelEvent event(QPointF(50, 10), QPointF(50, 10), {}, {0, eighthsOfADegree}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&widget, &event);
}

TEST_F(JumpSlider, ATurnOfTheWheelPicksAtOnce) {
  slider.ShowValue(50);
  Turn(slider, 120);
  EXPECT_GT(slider.value(), 50);
  ASSERT_EQ(picked.count(), 1);
  EXPECT_EQ(picked.at(0).at(0).toInt(), slider.value());
}

TEST_F(JumpSlider, ASliderThatIgnoresTheWheelStaysWhereItIs) {
  TCJumpSlider still(TCWheel::Ignored);
  still.ShowRange(100);
  still.ShowValue(50);
  still.resize(214, 20);
  Turn(still, 120);
  EXPECT_EQ(still.value(), 50);
}

TEST_F(JumpSlider, MirroredForScriptsFromRightToLeft) {
  slider.setLayoutDirection(Qt::RightToLeft);
  QTest::mousePress(&slider, Qt::LeftButton, {}, PlaceOf(30));
  EXPECT_EQ(slider.value(), 70);
}

TEST_F(JumpSlider, TakesNoKeyboardFocus) {
  EXPECT_EQ(slider.focusPolicy(), Qt::NoFocus);
}

TEST_F(JumpSlider, TheHandleIsDrawnWhereAPressWouldPutIt) {
  slider.ShowValue(80);
  const QColor handle = slider.palette().color(QPalette::WindowText);
  EXPECT_EQ(slider.grab().toImage().pixelColor(PlaceOf(80)), handle);
  EXPECT_NE(slider.grab().toImage().pixelColor(PlaceOf(40)), handle);
}

}  // namespace
}  // namespace brevant
