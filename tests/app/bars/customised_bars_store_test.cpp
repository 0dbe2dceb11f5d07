#include "app/bars/customised_bars_store.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace brevant {
namespace {

using Id = TCCommandId;

class CustomisedBarsStore : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(folder.isValid()); }

  [[nodiscard]] QString FileName() const { return folder.filePath(QStringLiteral("Layout.ini")); }

  void Save(const TCCustomisedBars& bars) const {
    QSettings layout(FileName(), QSettings::IniFormat);
    SaveCustomisedBars(bars, layout);
  }
  [[nodiscard]] TCCustomisedBars Load() const {
    return LoadCustomisedBars(QSettings(FileName(), QSettings::IniFormat));
  }
  // A file as somebody might have left it.
  [[nodiscard]] TCCustomisedBars LoadText(const char* text) const {
    QFile file(FileName());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    return Load();
  }

  QTemporaryDir folder;
};

TCCustomisedBars Changed() {
  TCCustomisedBars bars;
  bars.keys.Assign(TCKeyCode::PageDown, Id::NextSong);
  bars.keys.Assign(Ctrl(CharacterKey(u'+')), Id::VolumeUp);
  bars.keys.Assign(CharacterKey(u','), Id::VolumeDown);
  bars.keys.Remove(TCKeyCode::Space);
  bars.look = {.iconSize = 48, .textsUnderIcons = true, .toolTips = false, .keysInToolTips = false};
  bars.Insert(TCTextId::StandardToolbar, 0, CommandItem(Id::RepeatBeginField));
  TCBarItem menu = NewMenuItem(u"Mine, \"all\" \\ \x00C4\x4E2D; = % &x");
  menu.entries = {Id::Play, Id::Stop};
  bars.Insert(TCTextId::StandardToolbar, 1, menu);
  bars.Insert(TCTextId::OptionsToolbar, 0, MenuItem(TCMenuPlace::Play));
  bars.SetItems(TCTextId::CreateToolbar, {});
  return bars;
}

TEST_F(CustomisedBarsStore, WithoutAFileAllIsAsDelivered) {
  EXPECT_EQ(Load(), TCCustomisedBars());
}

TEST_F(CustomisedBarsStore, WhatIsSavedIsLoaded) {
  Save(Changed());
  const TCCustomisedBars bars = Load();
  EXPECT_EQ(bars.keys, Changed().keys);
  EXPECT_EQ(bars.look, Changed().look);
  EXPECT_EQ(bars.changedBars, Changed().changedBars);
}

TEST_F(CustomisedBarsStore, WhatIsAsDeliveredAgainLeavesNothingInTheFile) {
  Save(Changed());
  Save(TCCustomisedBars());
  EXPECT_EQ(Load(), TCCustomisedBars());
  const QSettings layout(FileName(), QSettings::IniFormat);
  for (const QString& key : layout.allKeys()) {
    EXPECT_FALSE(key.contains(QStringLiteral("/Keys/")) || key.contains(QStringLiteral("/Bars/")))
        << key.toStdString();
  }
}

TEST_F(CustomisedBarsStore, LeavesTheRestOfTheFileAlone) {
  {
    QSettings layout(FileName(), QSettings::IniFormat);
    layout.setValue(QStringLiteral("CommandBars"), QByteArray("places"));
    layout.setValue(QStringLiteral("ColumnWidth1"), 80);
  }
  Save(Changed());
  const QSettings layout(FileName(), QSettings::IniFormat);
  EXPECT_EQ(layout.value(QStringLiteral("CommandBars")).toByteArray(), QByteArray("places"));
  EXPECT_EQ(layout.value(QStringLiteral("ColumnWidth1")).toInt(), 80);
}

TEST_F(CustomisedBarsStore, AValueThatMakesNoSenseIsAsDelivered) {
  for (const char* text : {
           "[CommandBars]\nKeys\\32772=Tab\n",
           "[CommandBars]\nKeys\\32772=\n",
           "[CommandBars]\nKeys\\32772=Q, Hyper+Q\n",
           "[CommandBars]\nKeys\\32772=@Variant(\\0\\0\\0\\x7f)\n",
           "[CommandBars]\nKeys\\1=Q\nKeys\\x=Q\nKeys=Q\n",
           "[CommandBars]\nBars\\Create=32772, 1\n",
           "[CommandBars]\nBars\\Create=\n",
           "[CommandBars]\nBars\\Main%20toolbar=32772\n",
           "[CommandBars]\nBars\\Another=32772\n",
           "[CommandBars]\nIconSize=1000\nToolTips=perhaps\nTextsUnderIcons=7\nKeysInToolTips=\n",
           "[CommandBars]\nIconSize=-1\n",
           "\xFF\xFE\x01[CommandBars]Keys\\32772=Q\n",
           "CommandBars=32772\n",
       }) {
    EXPECT_EQ(LoadText(text), TCCustomisedBars()) << text;
  }
}

TEST_F(CustomisedBarsStore, OneValueThatMakesNoSenseLeavesTheOthers) {
  const TCCustomisedBars bars = LoadText(
      "[CommandBars]\nKeys\\32772=Page Up\nKeys\\32773=Nonsense\nBars\\Create=nonsense\nBars\\Commands=none\n"
      "IconSize=32\nToolTips=nonsense\n");
  EXPECT_EQ(bars.keys.KeysOf(Id::Play), std::vector<TCKey>{TCKeyCode::PageUp});
  EXPECT_EQ(bars.keys.KeysOf(Id::Stop), TCKeyAssignment().KeysOf(Id::Stop));
  EXPECT_EQ(bars.ItemsOf(TCTextId::CreateToolbar), DeliveredItems(TCTextId::CreateToolbar));
  EXPECT_TRUE(bars.ItemsOf(TCTextId::CommandsToolbar).empty());
  EXPECT_EQ(bars.look.iconSize, 32);
  EXPECT_TRUE(bars.look.toolTips);
}

TEST_F(CustomisedBarsStore, WhatStandsTwiceInTheFileIsThereOnce) {
  const TCCustomisedBars bars =
      LoadText("[CommandBars]\nKeys\\32772=Q, Q\nKeys\\32773=Q\nBars\\Create=32772, 32773, 32772, 32933\n");
  EXPECT_EQ(bars.keys.KeysOf(Id::Play), std::vector<TCKey>{TCKeyCode::Q});
  EXPECT_TRUE(bars.keys.KeysOf(Id::Stop).empty());
  EXPECT_TRUE(bars.keys.KeysOf(Id::SongProperties).empty());
  EXPECT_EQ(bars.ItemsOf(TCTextId::CreateToolbar),
            (TCBarItems{CommandItem(Id::Stop), CommandItem(Id::Play), CommandItem(Id::RepeatBeginField)}));
  const TCBarItems play = bars.ItemsOf(TCTextId::PlayControlsToolbar);
  EXPECT_EQ(std::count(play.begin(), play.end(), CommandItem(Id::RepeatBeginField)), 0);
}

}  // namespace
}  // namespace brevant
