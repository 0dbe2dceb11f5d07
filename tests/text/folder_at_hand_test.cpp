#include "text/folder_at_hand.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/temp_folder.h"

namespace brevant {
namespace {

TEST(FolderAtHand, TellsWhatIsMissingInIt) {
  const TCTempFolder folder;
  folder.Write("Song.lrc");
  const auto atHand = TCFolderAtHand::Open(folder.Native(""));
  ASSERT_TRUE(atHand);
  EXPECT_TRUE(atHand->IsMissing("Other.lrc"));
  EXPECT_FALSE(atHand->IsMissing("Song.lrc"));
  EXPECT_FALSE(atHand->IsMissing("SONG.lrc"));
  EXPECT_FALSE(atHand->IsMissing("Caf\xC3\xA9.lrc"));  // another spelling may stand there
  EXPECT_FALSE(atHand->IsMissing(".."));
}

TEST(FolderAtHand, IsOpen) {
  const TCTempFolder folder;
  folder.Write("Song.lrc");
  const auto atHand = TCFolderAtHand::Open(folder.Native(""));
  ASSERT_TRUE(atHand);
  EXPECT_EQ(faccessat(atHand->Descriptor(), "Song.lrc", R_OK, 0), 0);
}

TEST(FolderAtHand, IsNoFolderThatIsMissingAFileOrClosedToUs) {
  const TCTempFolder folder;
  folder.Write("Song.lrc");
  folder.MakeFolder("Closed");
  EXPECT_FALSE(TCFolderAtHand::Open(folder.Native("None")));
  EXPECT_FALSE(TCFolderAtHand::Open(folder.Native("Song.lrc")));
  ASSERT_EQ(chmod(folder.Native("").c_str(), 0755), 0);
  ASSERT_EQ(chmod(folder.Native("Closed").c_str(), 0311), 0);
  {
    const TCOrdinaryUser user;
    EXPECT_FALSE(TCFolderAtHand::Open(folder.Native("Closed")));
  }
  ASSERT_EQ(chmod(folder.Native("Closed").c_str(), 0755), 0);
}

}  // namespace
}  // namespace brevant
