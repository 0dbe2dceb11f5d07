#include "model/settings_file.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "support/memory_files.h"

namespace brevant {
namespace {

constexpr std::u16string_view kFolder = u"\\home\\me\\.config\\Korvel\\Brevant\\";
constexpr std::u16string_view kPath = u"\\home\\me\\.config\\Korvel\\Brevant\\Brevant.ini";

class SettingsFile : public testing::Test {
 protected:
  TCMemoryFiles files;
  TCAppRecord record;
  TCSettingsFile settingsFile{files, kFolder};

  // Loads a file that holds `keys` under the heading.
  TCSettings Load(const std::string& keys) {
    files.Put(kPath, "[Brevant]\r\n" + keys);
    EXPECT_TRUE(settingsFile.LoadSettings(record));
    return record.settings;
  }
};

TEST_F(SettingsFile, TheFileLiesInItsFolder) {
  EXPECT_EQ(settingsFile.SettingsFilePath(), kPath);
}

TEST_F(SettingsFile, WithoutAFileEveryOptionKeepsItsDefault) {
  EXPECT_FALSE(settingsFile.LoadSettings(record));
  const TCSettings& settings = record.settings;
  EXPECT_FALSE(settings.settingsFileFound);
  EXPECT_TRUE(settings.loadLastWindowState);
  EXPECT_TRUE(settings.loadLastFileOnProgramRun);
  EXPECT_TRUE(settings.whiteOnBlack);
  EXPECT_TRUE(settings.dynamicPlayColours);
  EXPECT_TRUE(settings.confirmFileRemove);
  EXPECT_TRUE(settings.foldersSaveFormat);
  EXPECT_TRUE(settings.immediatePlay);
  EXPECT_FALSE(settings.playlistManagerImmediatePlay);
  EXPECT_TRUE(settings.autoSongAdvance);
  EXPECT_FALSE(settings.autoRecycle);
  EXPECT_FALSE(settings.autoPlayPlayList);
  EXPECT_FALSE(settings.liveViewMode);
  EXPECT_EQ(settings.lastMediaFileName, u"");
  EXPECT_EQ(settings.lastMediaFileExtSpec, u"");
  EXPECT_EQ(record.setLists.lastGroupListName, u"");
  EXPECT_EQ(record.setLists.lastPlayListName, u"");
  EXPECT_EQ(record.setLists.lastSongName, u"");
  EXPECT_EQ(settings.playListFontTypeName, u"Times New Roman");
  EXPECT_EQ(settings.lyricsFontTypeName, u"Times New Roman");
  EXPECT_EQ(settings.playListFontSize, 14);
  EXPECT_EQ(settings.lyricsFontSize, 18);
  EXPECT_EQ(settings.numberLyricLines, 2);
  EXPECT_EQ(settings.volumeStep, 5);
  EXPECT_EQ(settings.seekStepSeconds, 2);
  EXPECT_EQ(settings.disableEditing, 0);
  EXPECT_EQ(record.setLists.songLatencySeconds, 15);
  EXPECT_EQ(record.setLists.validMediaExtensions, u"mid mp3 wav wma");
  EXPECT_EQ(settings.backgroundColour, 0x000000u);
  EXPECT_EQ(settings.textColour, 0xFFFFFFu);
  EXPECT_FALSE(settings.resetPending);
}

TEST_F(SettingsFile, AFileWithOnlyTheHeadingTurnsOnWhatIsMissing) {
  TCSettings& before = record.settings;
  constexpr std::array kOnWhenMissing = {
      &TCSettings::loadLastWindowState, &TCSettings::loadLastFileOnProgramRun,
      &TCSettings::whiteOnBlack,        &TCSettings::dynamicPlayColours,
      &TCSettings::confirmFileRemove,   &TCSettings::foldersSaveFormat,
      &TCSettings::autoSongAdvance,     &TCSettings::autoRecycle,
      &TCSettings::immediatePlay};
  for (const auto option : kOnWhenMissing) before.*option = false;
  before.playlistManagerImmediatePlay = true;
  before.autoPlayPlayList = true;
  before.liveViewMode = true;
  before.playListFontSize = 33;
  before.numberLyricLines = 7;
  record.setLists.songLatencySeconds = 21;
  const TCSettings settings = Load("");
  EXPECT_TRUE(settings.settingsFileFound);
  for (const auto option : kOnWhenMissing) EXPECT_TRUE(settings.*option);
  EXPECT_FALSE(settings.playlistManagerImmediatePlay);
  EXPECT_TRUE(settings.autoPlayPlayList);  // a missing key leaves it, and those below
  EXPECT_TRUE(settings.liveViewMode);
  EXPECT_EQ(settings.playListFontSize, 33);
  EXPECT_EQ(settings.numberLyricLines, 7);
  EXPECT_EQ(record.setLists.songLatencySeconds, 21);
  EXPECT_EQ(record.setLists.validMediaExtensions, u"mid mp3 wav wma");
  EXPECT_EQ(settings.lastMediaFileExtSpec, u"*.mp3");
  EXPECT_EQ(settings.lyricsFontSize, 33);  // the playlist's size just read
  EXPECT_EQ(settings.playListFontTypeName, u"Times New Roman");
  EXPECT_EQ(settings.lyricsFontTypeName, u"Times New Roman");
}

TEST_F(SettingsFile, AFirstFileWithOnlyTheHeadingChangesThreeOptions) {
  const TCSettings settings = Load("");
  EXPECT_TRUE(settings.autoRecycle);
  EXPECT_EQ(settings.lastMediaFileExtSpec, u"*.mp3");
  EXPECT_EQ(settings.lyricsFontSize, 14);
  EXPECT_FALSE(settings.playlistManagerImmediatePlay);
  EXPECT_FALSE(settings.autoPlayPlayList);
  EXPECT_FALSE(settings.liveViewMode);
}

TEST_F(SettingsFile, ALyricsSizeOfItsOwnIsReadWhateverThePlaylistsIs) {
  EXPECT_EQ(Load("LyricsFontSize=21\r\nPlayListFontSize=40\r\n").lyricsFontSize, 21);
  EXPECT_EQ(Load("LyricsFontSize=\r\nPlayListFontSize=40\r\n").lyricsFontSize, 40);
}

TEST_F(SettingsFile, MostOptionsAreOnUnlessTheValueBeginsWithN) {
  EXPECT_FALSE(Load("WhiteOnBlack=nope\r\n").whiteOnBlack);
  EXPECT_FALSE(Load("WhiteOnBlack=No\r\n").whiteOnBlack);
  EXPECT_TRUE(Load("WhiteOnBlack=YES\r\n").whiteOnBlack);
  EXPECT_TRUE(Load("WhiteOnBlack=1\r\n").whiteOnBlack);
  EXPECT_TRUE(Load("WhiteOnBlack=false\r\n").whiteOnBlack);
}

TEST_F(SettingsFile, AnEmptyValueLeavesTheOptionAsItIs) {
  record.settings.autoSongAdvance = false;
  record.settings.lastMediaFileName = u"kept";
  const TCSettings settings = Load("AutoSongAdvance=\r\nLastMediaFileName=\r\n");
  EXPECT_FALSE(settings.autoSongAdvance);
  EXPECT_EQ(settings.lastMediaFileName, u"kept");
}

TEST_F(SettingsFile, SomeOptionsAreOnOnlyWhenTheValueBeginsWithY) {
  EXPECT_TRUE(Load("AutoPlayPlayList=Yes\r\n").autoPlayPlayList);
  EXPECT_FALSE(Load("AutoPlayPlayList=1\r\n").autoPlayPlayList);
  EXPECT_TRUE(Load("LiveViewMode=yep\r\n").liveViewMode);
  EXPECT_FALSE(Load("LiveViewMode=No\r\n").liveViewMode);
  EXPECT_TRUE(Load("PlaylistManagerImmediatePlay=y\r\n").playlistManagerImmediatePlay);
}

TEST_F(SettingsFile, TheTwoColoursFollowWhiteOnBlack) {
  const TCSettings off = Load("WhiteOnBlack=No\r\n");
  EXPECT_EQ(off.backgroundColour, 0xFFFFFFu);
  EXPECT_EQ(off.textColour, 0x000000u);
  const TCSettings on = Load("WhiteOnBlack=Yes\r\n");
  EXPECT_EQ(on.backgroundColour, 0x000000u);
  EXPECT_EQ(on.textColour, 0xFFFFFFu);
}

TEST_F(SettingsFile, ANumberThatIsNoneReadsAsZeroAndNoRangeIsHeld) {
  const TCSettings settings = Load("SongLatencySeconds=abc\r\nPlayListFontSize=-5\r\nVolumeStep=12x\r\n");
  EXPECT_EQ(record.setLists.songLatencySeconds, 0);
  EXPECT_EQ(settings.playListFontSize, -5);
  EXPECT_EQ(settings.volumeStep, 12);
}

TEST_F(SettingsFile, TheKeyWithABlankIsReadAsANumber) {
  EXPECT_EQ(Load("Disable Editing=1\r\n").disableEditing, 1);
}

TEST_F(SettingsFile, EveryKeyIsWrittenInItsOrderUnderTheOneHeading) {
  record.settings.autoSongAdvance = false;
  record.setLists.documentFolder = u"D:\\Docs\\";
  record.setLists.documentFileName = u"show.brv";
  record.setLists.lastSongName = u"a.mp3";
  ASSERT_TRUE(settingsFile.SaveSettings(record));
  EXPECT_EQ(files.BytesOf(kPath),
            "[Brevant]\r\n"
            "LoadLastWindowState=Yes\r\n"
            "LoadLastFileOnProgramRun=Yes\r\n"
            "LastLoadedFileName=D:\\Docs\\show.brv\r\n"
            "WhiteOnBlack=Yes\r\n"
            "DynamicPlayColours=Yes\r\n"
            "ConfirmFileRemove=Yes\r\n"
            "FoldersSaveFormat=Yes\r\n"
            "ImmediatePlay=Yes\r\n"
            "PlaylistManagerImmediatePlay=No\r\n"
            "AutoSongAdvance=No\r\n"
            "AutoRecycle=No\r\n"
            "AutoPlayPlayList=No\r\n"
            "LiveViewMode=No\r\n"
            "ValidMediaFileExtensions=mid mp3 wav wma\r\n"
            "LastMediaFileName=\r\n"
            "LastMediaFileExtSpec=\r\n"
            "LastGroupListName=\r\n"
            "LastPlayListName=\r\n"
            "LastSongName=a.mp3\r\n"
            "PlayListFontTypeName=Times New Roman\r\n"
            "LyricsFontTypeName=Times New Roman\r\n"
            "SongLatencySeconds=15\r\n"
            "FastFowardFastReverseTimeStep=2\r\n"
            "VolumeStep=5\r\n"
            "Disable Editing=0\r\n"
            "PlayListFontSize=14\r\n"
            "LyricsFontSize=18\r\n"
            "NumberLyricLines=2\r\n");
  EXPECT_EQ(files.foldersMade, std::vector<std::u16string>{std::u16string(kFolder)});
}

TEST_F(SettingsFile, WhatWasWrittenIsReadBack) {
  TCAppRecord written;
  written.settings.autoRecycle = true;
  written.settings.liveViewMode = true;
  written.settings.dynamicPlayColours = false;
  written.settings.lyricsFontSize = 44;
  written.settings.disableEditing = 1;
  written.setLists.validMediaExtensions = u"\"mp3\" \"wav\"";
  written.setLists.lastGroupListName = u"Zürich 東京";
  written.setLists.lastPlayListName = u" blanks ";
  ASSERT_TRUE(settingsFile.SaveSettings(written));
  ASSERT_TRUE(settingsFile.LoadSettings(record));
  EXPECT_TRUE(record.settings.autoRecycle);
  EXPECT_TRUE(record.settings.liveViewMode);
  EXPECT_FALSE(record.settings.dynamicPlayColours);
  EXPECT_EQ(record.settings.lyricsFontSize, 44);
  EXPECT_EQ(record.settings.disableEditing, 1);
  EXPECT_EQ(record.setLists.validMediaExtensions, u"\"mp3\" \"wav\"");
  EXPECT_EQ(record.setLists.lastGroupListName, u"Zürich 東京");
  EXPECT_EQ(record.setLists.lastPlayListName, u" blanks ");
}

TEST_F(SettingsFile, ALineBreakInANameBringsNoKeyOrHeadingIntoTheFile) {
  record.setLists.lastGroupListName = u"A\r\n[Other]\nVolumeStep=99\r";
  ASSERT_TRUE(settingsFile.SaveSettings(record));
  TCAppRecord readBack;
  ASSERT_TRUE(settingsFile.LoadSettings(readBack));
  EXPECT_EQ(readBack.setLists.lastGroupListName, u"A  [Other] VolumeStep=99 ");
  EXPECT_EQ(readBack.settings.volumeStep, 5);
  const std::optional<std::string> once = files.BytesOf(kPath);
  ASSERT_TRUE(settingsFile.SaveSettings(record));
  EXPECT_EQ(files.BytesOf(kPath), once);
}

TEST_F(SettingsFile, WhatElseStandsInTheFileIsKept) {
  files.Put(kPath, "; mine\r\n[Other]\r\na=1\r\n[Brevant]\r\nUnknown=7\r\n");
  ASSERT_TRUE(settingsFile.SaveSettings(record));
  const std::string bytes = files.BytesOf(kPath).value_or("");
  EXPECT_NE(bytes.find("; mine"), std::string::npos);
  EXPECT_NE(bytes.find("[Other]\r\na=1"), std::string::npos);
  EXPECT_NE(bytes.find("Unknown=7"), std::string::npos);
}

TEST_F(SettingsFile, EveryKeyBelongsToItsOwnOption) {
  struct BoolKey {
    const char* key;
    bool TCSettings::*option;
  };
  const std::vector<BoolKey> keys = {
      {"LoadLastWindowState", &TCSettings::loadLastWindowState},
      {"LoadLastFileOnProgramRun", &TCSettings::loadLastFileOnProgramRun},
      {"WhiteOnBlack", &TCSettings::whiteOnBlack},
      {"DynamicPlayColours", &TCSettings::dynamicPlayColours},
      {"ConfirmFileRemove", &TCSettings::confirmFileRemove},
      {"FoldersSaveFormat", &TCSettings::foldersSaveFormat},
      {"ImmediatePlay", &TCSettings::immediatePlay},
      {"PlaylistManagerImmediatePlay", &TCSettings::playlistManagerImmediatePlay},
      {"AutoSongAdvance", &TCSettings::autoSongAdvance},
      {"AutoRecycle", &TCSettings::autoRecycle},
      {"AutoPlayPlayList", &TCSettings::autoPlayPlayList},
      {"LiveViewMode", &TCSettings::liveViewMode},
  };
  for (const BoolKey& on : keys) {
    std::string text;
    for (const BoolKey& key : keys) text += std::string(key.key) + (&key == &on ? "=Yes\r\n" : "=No\r\n");
    const TCSettings settings = Load(text);
    for (const BoolKey& key : keys) EXPECT_EQ(settings.*key.option, &key == &on) << on.key << " " << key.key;
    ASSERT_TRUE(settingsFile.SaveSettings(record));
    EXPECT_NE(files.BytesOf(kPath)->find(text.substr(text.find(on.key), std::string(on.key).size() + 4)),
              std::string::npos);
  }
  Load(
      "LastMediaFileName=a\r\nLastMediaFileExtSpec=b\r\nLastGroupListName=c\r\nLastPlayListName=d\r\n"
      "LastSongName=e\r\nPlayListFontTypeName=f\r\nLyricsFontTypeName=g\r\nValidMediaFileExtensions=h\r\n"
      "SongLatencySeconds=1\r\nFastFowardFastReverseTimeStep=2\r\nVolumeStep=3\r\nDisable Editing=4\r\n"
      "PlayListFontSize=5\r\nLyricsFontSize=6\r\nNumberLyricLines=7\r\n");
  EXPECT_EQ(record.settings.lastMediaFileName, u"a");
  EXPECT_EQ(record.settings.lastMediaFileExtSpec, u"b");
  EXPECT_EQ(record.setLists.lastGroupListName, u"c");
  EXPECT_EQ(record.setLists.lastPlayListName, u"d");
  EXPECT_EQ(record.setLists.lastSongName, u"e");
  EXPECT_EQ(record.settings.playListFontTypeName, u"f");
  EXPECT_EQ(record.settings.lyricsFontTypeName, u"g");
  EXPECT_EQ(record.setLists.validMediaExtensions, u"h");
  EXPECT_EQ(record.setLists.songLatencySeconds, 1);
  EXPECT_EQ(record.settings.seekStepSeconds, 2);
  EXPECT_EQ(record.settings.volumeStep, 3);
  EXPECT_EQ(record.settings.disableEditing, 4);
  EXPECT_EQ(record.settings.playListFontSize, 5);
  EXPECT_EQ(record.settings.lyricsFontSize, 6);
  EXPECT_EQ(record.settings.numberLyricLines, 7);
}

TEST_F(SettingsFile, AFileThatCannotBeReadIsNotWrittenOver) {
  files.Put(kPath, std::string((std::size_t{1} << 20) + 1, ';'));
  EXPECT_TRUE(settingsFile.SaveSettings(record));
  EXPECT_TRUE(files.writes.empty());
}

TEST_F(SettingsFile, APendingResetDeletesTheFileInsteadOfWritingIt) {
  files.Put(kPath, "[Brevant]\r\n");
  record.settings.ToggleReset();
  EXPECT_FALSE(settingsFile.SaveSettings(record));
  EXPECT_FALSE(files.BytesOf(kPath).has_value());
  EXPECT_TRUE(files.writes.empty());
}

TEST_F(SettingsFile, AResetChosenTwiceIsNone) {
  record.settings.ToggleReset();
  record.settings.ToggleReset();
  EXPECT_TRUE(settingsFile.SaveSettings(record));
  EXPECT_TRUE(files.BytesOf(kPath).has_value());
}

TEST_F(SettingsFile, AFailedWriteIsSilent) {
  files.failWrites = true;
  EXPECT_TRUE(settingsFile.SaveSettings(record));
  files.failFolders = true;
  EXPECT_TRUE(settingsFile.SaveSettings(record));
}

TEST_F(SettingsFile, TheLastDocumentIsReadOnItsOwn) {
  EXPECT_EQ(settingsFile.LastLoadedFileName(), u"");
  files.Put(kPath, "[Brevant]\r\nLastLoadedFileName=D:\\Docs\\show.brv\r\n");
  EXPECT_EQ(settingsFile.LastLoadedFileName(), u"D:\\Docs\\show.brv");
}

TEST_F(SettingsFile, AValueOfMoreThan4091CharactersIsCutOff) {
  Load("LastSongName=" + std::string(5000, 'x') + "\r\n");
  EXPECT_EQ(record.setLists.lastSongName.size(), 4091u);
}

}  // namespace
}  // namespace brevant
