#include "app/bars/options_page.h"

#include <QCheckBox>
#include <QComboBox>

#include "app/bars/open_customize_sheet.h"

namespace brevant {
namespace {

class OptionsPage : public TCOpenSheet {
 protected:
  void SetUp() override {
    TCOpenSheet::SetUp();
    ShowPage(1);
  }

  void Turn(const char* box) { QTest::mouseClick(&Find<QCheckBox>(box), Qt::LeftButton, {}, QPoint(8, 8)); }
  [[nodiscard]] bool IsOn(const char* box) const { return Find<QCheckBox>(box).isChecked(); }
};

TEST_F(OptionsPage, ShowsHowTheBarsAre) {
  EXPECT_EQ(Find<QComboBox>("IconSize").currentText(), QStringLiteral("Normal"));
  EXPECT_FALSE(IsOn("TextsUnderIcons"));
  EXPECT_TRUE(IsOn("ToolTips"));
  EXPECT_TRUE(IsOn("KeysInToolTips"));
  EXPECT_TRUE(Find<QCheckBox>("KeysInToolTips").isEnabled());
  EXPECT_EQ(bars.Customised(), TCCustomisedBars()) << "showing them changes nothing";
}

TEST_F(OptionsPage, WhatIsChosenIsOneChoiceAndLeavesTheOthers) {
  Turn("TextsUnderIcons");
  Find<QComboBox>("IconSize").setCurrentIndex(0);
  Turn("KeysInToolTips");
  const TCBarLook expected{
      .iconSize = 16, .textsUnderIcons = true, .toolTips = true, .keysInToolTips = false};
  EXPECT_EQ(bars.Customised().look, expected);
}

TEST_F(OptionsPage, KeysInToolTipsCanBeTurnedOnlyWhileThereAreToolTips) {
  Turn("ToolTips");
  EXPECT_FALSE(Find<QCheckBox>("KeysInToolTips").isEnabled());
  EXPECT_TRUE(bars.Customised().look.keysInToolTips) << "it comes back with them";
  Turn("ToolTips");
  EXPECT_TRUE(Find<QCheckBox>("KeysInToolTips").isEnabled());
}

TEST_F(OptionsPage, ShowsWhatAResetMadeOfThem) {
  Turn("TextsUnderIcons");
  Turn("ToolTips");
  Turn("KeysInToolTips");
  Find<QComboBox>("IconSize").setCurrentIndex(3);
  Click("Reset");
  EXPECT_EQ(Find<QComboBox>("IconSize").currentText(), QStringLiteral("Normal"));
  EXPECT_FALSE(IsOn("TextsUnderIcons"));
  EXPECT_TRUE(IsOn("ToolTips"));
  EXPECT_TRUE(Find<QCheckBox>("KeysInToolTips").isEnabled());
  EXPECT_EQ(bars.Customised(), TCCustomisedBars());
}

}  // namespace
}  // namespace brevant
