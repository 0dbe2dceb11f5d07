#include "playback/midi/soundfont_search.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace brevant {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class SoundfontSearch : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "soundfonts-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder = pattern;
  }
  void TearDown() override { fs::remove_all(folder); }

  std::string Make(const std::string& name) {
    const fs::path path = folder / name;
    fs::create_directories(path.parent_path());
    std::ofstream(path) << "x";
    return path.string();
  }

  fs::path folder;
};

TEST_F(SoundfontSearch, ThePreferredOnesComeFirstThenTheFoldersInTheirOrderByName) {
  const std::string zebra = Make("home/sounds/sf2/zebra.sf2");
  const std::string ant = Make("home/sounds/sf2/ANT.SF2");
  const std::string compressed = Make("home/sounds/sf3/b.sf3");
  const std::string other = Make("system/soundfonts/c.sf2");
  const std::string mine = Make("mine.sf2");
  Make("home/sounds/sf2/readme.txt");
  EXPECT_THAT(FindSoundfonts({"", mine}, {folder / "home", folder / "system"}),
              ElementsAre(mine, ant, zebra, compressed, other));
}

TEST_F(SoundfontSearch, APreferredOneThatIsMissingOrAFolderIsPassedOver) {
  const std::string other = Make("soundfonts/c.sf2");
  EXPECT_THAT(FindSoundfonts({(folder / "gone.sf2").string()}, {folder}), ElementsAre(other));
  EXPECT_THAT(FindSoundfonts({folder.string()}, {folder}), ElementsAre(other));
}

TEST_F(SoundfontSearch, NoFileIsNamedTwice) {
  const std::string file = Make("soundfonts/c.sf2");
  EXPECT_THAT(FindSoundfonts({file}, {folder, folder}), ElementsAre(file));
}

TEST_F(SoundfontSearch, AFolderNamedLikeASoundfontAndALinkToNothingAreNone) {
  fs::create_directories(folder / "soundfonts/folder.sf2");
  fs::create_symlink(folder / "nothing", folder / "soundfonts/broken.sf2");
  EXPECT_THAT(FindSoundfonts({}, {folder}), ElementsAre());
}

TEST(DataFolders, AreTheUsersThenTheSystems) {
  EXPECT_THAT(DataFolders("/home/me", "", ""),
              ElementsAre("/home/me/.local/share", "/usr/local/share", "/usr/share"));
  EXPECT_THAT(DataFolders("/home/me", "/data", "/a:/b:"), ElementsAre("/data", "/a", "/b"));
}

TEST(DataFolders, ThatAreNotAbsoluteCountForNothing) {
  EXPECT_THAT(DataFolders("", "data", "b::/c"), ElementsAre("/c"));
}

}  // namespace
}  // namespace brevant
