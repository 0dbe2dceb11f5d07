#include "playback/gst/soundfont_search.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/temp_folder.h"

namespace brevant {
namespace {

using testing::ElementsAre;

class SoundfontSearch : public testing::Test {
 protected:
  TCTempFolder folder;
};

TEST_F(SoundfontSearch, ThePreferredOnesComeFirstThenTheFoldersInTheirOrderByName) {
  const std::string zebra = folder.Write("home/sounds/sf2/zebra.sf2");
  const std::string ant = folder.Write("home/sounds/sf2/ANT.SF2");
  const std::string compressed = folder.Write("home/sounds/sf3/b.sf3");
  const std::string other = folder.Write("system/soundfonts/c.sf2");
  const std::string mine = folder.Write("mine.sf2");
  folder.Write("home/sounds/sf2/readme.txt");
  EXPECT_THAT(FindSoundfonts({"", mine}, {folder.Native("home"), folder.Native("system")}),
              ElementsAre(mine, ant, zebra, compressed, other));
}

TEST_F(SoundfontSearch, APreferredOneThatIsMissingOrAFolderIsPassedOver) {
  const std::string other = folder.Write("soundfonts/c.sf2");
  EXPECT_THAT(FindSoundfonts({folder.Native("gone.sf2")}, {folder.Native("")}), ElementsAre(other));
  EXPECT_THAT(FindSoundfonts({folder.Native("")}, {folder.Native("")}), ElementsAre(other));
}

TEST_F(SoundfontSearch, NoFileIsNamedTwice) {
  const std::string file = folder.Write("soundfonts/c.sf2");
  EXPECT_THAT(FindSoundfonts({file}, {folder.Native(""), folder.Native("")}), ElementsAre(file));
}

TEST_F(SoundfontSearch, AFolderNamedLikeASoundfontAndALinkToNothingAreNone) {
  folder.MakeFolder("soundfonts/folder.sf2");
  std::filesystem::create_symlink("nothing", folder.Native("soundfonts/broken.sf2"));
  EXPECT_THAT(FindSoundfonts({}, {folder.Native("")}), ElementsAre());
}

TEST(DataFolders, AreTheUsersThenTheSystems) {
  EXPECT_THAT(DataFolders("/home/me", "", ""),
              ElementsAre("/home/me/.local/share", "/usr/local/share", "/usr/share"));
  EXPECT_THAT(DataFolders("/home/me", "/data", "/a:/b:"), ElementsAre("/data", "/a", "/b"));
}

TEST(DataFolders, ThatAreRelativeCountForNothing) {
  EXPECT_THAT(DataFolders("/home/me", "data", "b::/c"), ElementsAre("/home/me/.local/share", "/c"));
  EXPECT_THAT(DataFolders("/home/me", "./data", "a:b"),
              ElementsAre("/home/me/.local/share", "/usr/local/share", "/usr/share"));
}

TEST(DataFolders, WithoutAHomeAreTheSystems) {
  EXPECT_THAT(DataFolders("", "", "/c"), ElementsAre("/c"));
  EXPECT_THAT(DataFolders("me", "data", "/c"), ElementsAre("/c"));
}

}  // namespace
}  // namespace brevant
