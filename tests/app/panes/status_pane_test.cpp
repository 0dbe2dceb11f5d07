#include "app/panes/status_pane.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QHelpEvent>

namespace brevant {
namespace {

const QString kText = QStringLiteral("Play=P | Stop=S | Next=v");

class StatusPane : public testing::Test {
 protected:
  StatusPane() { pane.setText(kText); }

  [[nodiscard]] int WidthOf(const QString& text) const { return pane.fontMetrics().horizontalAdvance(text); }

  TCStatusPane pane{nullptr, QStringLiteral("|")};
};

TEST_F(StatusPane, ShowsAllOfItsTextWhereThatFits) {
  EXPECT_EQ(pane.ShownText(WidthOf(kText)), kText);
  EXPECT_EQ(pane.ShownText(pane.sizeHint().width()), kText);
}

TEST_F(StatusPane, CutsBetweenEntries) {
  EXPECT_EQ(pane.ShownText(WidthOf(kText) - 1), QStringLiteral("Play=P | Stop=S | \u2026"));
  EXPECT_EQ(pane.ShownText(WidthOf(QStringLiteral("Play=P | Stop=S"))), QStringLiteral("Play=P | \u2026"));
}

TEST_F(StatusPane, CutsAnEntryWhenNotOneFits) {
  const QString shown = pane.ShownText(WidthOf(QStringLiteral("Play=")));
  EXPECT_TRUE(shown.endsWith(QChar(0x2026)));
  EXPECT_LE(WidthOf(shown), WidthOf(QStringLiteral("Play=")));
}

TEST_F(StatusPane, WhatIsCutStandsInTheToolTip) {
  const auto tip = [this] {
    QHelpEvent rest(QEvent::ToolTip, QPoint(1, 1), pane.mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(&pane, &rest);
    return pane.toolTip();
  };
  pane.resize(WidthOf(kText) / 2, 20);
  pane.show();
  EXPECT_EQ(tip(), kText);
  EXPECT_EQ(pane.text(), kText);
  pane.setText(kText + kText);
  EXPECT_EQ(tip(), kText + kText) << "what it says now";
  pane.setText(kText);
  pane.resize(WidthOf(kText) + 20, 20);
  EXPECT_EQ(tip(), QString());
}

TEST_F(StatusPane, NeverKeepsItsWindowWide) {
  EXPECT_EQ(pane.minimumSizeHint().width(), 0);
}

}  // namespace
}  // namespace brevant
