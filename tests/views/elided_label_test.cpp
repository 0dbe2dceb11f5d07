#include "views/elided_label.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(ElidedLabel, KeepsItsWholeTextForWhoReadsItAloud) {
  TCElidedLabel label;
  label.resize(30, 20);
  label.ShowText(QStringLiteral("A long name that does not fit"));
  EXPECT_EQ(label.text(), QStringLiteral("A long name that does not fit"));
}

TEST(ElidedLabel, AToolTipTellsWhatIsCutAndOnlyThen) {
  TCElidedLabel label;
  label.resize(1000, 20);
  label.show();
  label.ShowText(QStringLiteral("A long name"));
  EXPECT_EQ(label.toolTip(), QString());
  label.resize(30, 20);
  EXPECT_TRUE(label.toolTip().contains(QStringLiteral("A long name")));
  label.resize(1000, 20);
  EXPECT_EQ(label.toolTip(), QString());
}

TEST(ElidedLabel, MarkupInATextIsShownAsItIs) {
  TCElidedLabel label;
  label.resize(1000, 20);
  label.ShowText(QStringLiteral("<b>bold</b>"), QStringLiteral("a < b & c"));
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  EXPECT_TRUE(label.toolTip().contains(QStringLiteral("&lt;b&gt;bold")));
  EXPECT_TRUE(label.toolTip().contains(QStringLiteral("a &lt; b &amp; c")));
}

TEST(ElidedLabel, MayBecomeMuchNarrowerThanItsText) {
  TCElidedLabel label;
  label.ShowText(QString(500, QLatin1Char('x')));
  EXPECT_LT(label.minimumSizeHint().width(), 50);
}

TEST(ElidedLabel, KeepsItsHeightWithoutAText) {
  TCElidedLabel label;
  const int empty = label.sizeHint().height();
  label.ShowText(QStringLiteral("Text"));
  EXPECT_EQ(label.sizeHint().height(), empty);
}

}  // namespace
}  // namespace brevant
