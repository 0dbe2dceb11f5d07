#include "app/desktop/app_folders.h"

#include <gtest/gtest.h>

#include "support/memory_files.h"

namespace brevant {
namespace {

TCFolderHints Hints() {
  return {"/conf", "/state", "/home/me", "/opt/brevant"};
}

TEST(AppFolders, LieWhereTheEnvironmentSays) {
  TCMemoryFiles files;
  const TCProgramFolders folders = FindProgramFolders(files, Hints());
  EXPECT_EQ(folders.settings, u"\\conf\\Korvel\\Brevant\\");
  EXPECT_EQ(folders.recovery, u"\\state\\Korvel\\Brevant\\recovery\\");
  EXPECT_EQ(folders.program, u"\\opt\\brevant\\");
}

TEST(AppFolders, LieInTheHomeFolderWhenTheEnvironmentSaysNothingUsable) {
  TCMemoryFiles files;
  TCFolderHints hints = Hints();
  hints.configHome.clear();
  hints.stateHome = "relative/folder";
  const TCProgramFolders folders = FindProgramFolders(files, hints);
  EXPECT_EQ(folders.settings, u"\\home\\me\\.config\\Korvel\\Brevant\\");
  EXPECT_EQ(folders.recovery, u"\\home\\me\\.local\\state\\Korvel\\Brevant\\recovery\\");
}

TEST(AppFolders, TheSettingsFolderIsMadeAndNoOther) {
  TCMemoryFiles files;
  const TCProgramFolders folders = FindProgramFolders(files, Hints());
  EXPECT_EQ(files.foldersMade, std::vector<std::u16string>{folders.settings});
}

TEST(AppFolders, TheProgramsFolderStandsInForASettingsFolderThatCannotBeMade) {
  TCMemoryFiles files;
  files.failFolders = true;
  EXPECT_EQ(FindProgramFolders(files, Hints()).settings, u"\\opt\\brevant\\");
}

TEST(AppFolders, TheProgramsFolderStandsInForANameThatTheModelCannotHold) {
  TCMemoryFiles files;
  TCFolderHints hints = Hints();
  hints.configHome = "/back\\slash";
  EXPECT_EQ(FindProgramFolders(files, hints).settings, u"\\opt\\brevant\\");
}

}  // namespace
}  // namespace brevant
