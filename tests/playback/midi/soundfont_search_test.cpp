#include "playback/midi/soundfont_search.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
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

  // What was found below the test's own folder; the machine's own soundfont is none of its business.
  std::vector<std::string> Found(const std::string& configured,
                                 const std::vector<std::string>& folders) const {
    std::vector<std::string> found = FindSoundfonts(configured, folders);
    std::erase_if(found, [this](const std::string& file) { return !file.starts_with(folder.string()); });
    return found;
  }

  fs::path folder;
};

TEST_F(SoundfontSearch, TheConfiguredOneComesFirstThenTheFoldersInTheirOrderByName) {
  const std::string zebra = Make("home/sounds/sf2/zebra.sf2");
  const std::string ant = Make("home/sounds/sf2/ANT.SF2");
  const std::string compressed = Make("home/sounds/sf3/b.sf3");
  const std::string other = Make("system/soundfonts/c.sf2");
  const std::string mine = Make("mine.sf2");
  Make("home/sounds/sf2/readme.txt");
  EXPECT_THAT(Found(mine, {folder / "home", folder / "system"}),
              ElementsAre(mine, ant, zebra, compressed, other));
}

TEST_F(SoundfontSearch, AConfiguredOneThatIsMissingOrAFolderIsPassedOver) {
  const std::string other = Make("soundfonts/c.sf2");
  EXPECT_THAT(Found((folder / "gone.sf2").string(), {folder}), ElementsAre(other));
  EXPECT_THAT(Found(folder.string(), {folder}), ElementsAre(other));
}

TEST_F(SoundfontSearch, NoFileIsNamedTwice) {
  const std::string file = Make("soundfonts/c.sf2");
  EXPECT_THAT(Found(file, {folder, folder}), ElementsAre(file));
}

TEST_F(SoundfontSearch, AFolderNamedLikeASoundfontAndALinkToNothingAreNone) {
  fs::create_directories(folder / "soundfonts/folder.sf2");
  fs::create_symlink(folder / "nothing", folder / "soundfonts/broken.sf2");
  EXPECT_THAT(Found("", {folder}), ElementsAre());
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
