#include "model/media_check.h"

#include <gtest/gtest.h>

#include "support/memory_files.h"
#include "text/path_parts.h"

namespace brevant {
namespace {

TEST(MediaCheck, TheDefaultTypesAreValidInAnyCase) {
  TCSetListStore store;
  EXPECT_TRUE(IsValidMediaExtension(store, ExtensionPart(u"song.MP3")));
  EXPECT_TRUE(IsValidMediaExtension(store, u"wma"));
  EXPECT_FALSE(IsValidMediaExtension(store, ExtensionPart(u"song.flac")));
  EXPECT_FALSE(IsValidMediaExtension(store, ExtensionPart(u"song")));
}

TEST(MediaCheck, OnlyWholeWordsOfTheListCount) {
  TCSetListStore store;
  EXPECT_FALSE(IsValidMediaExtension(store, u"mp"));
  EXPECT_FALSE(IsValidMediaExtension(store, u"mp3 wav"));
}

TEST(MediaCheck, TheListIsStoredLowerCasedByTheFirstCheck) {
  TCSetListStore store;
  store.validMediaExtensions = u"MP3 Wav";
  EXPECT_TRUE(IsValidMediaExtension(store, u"wav"));
  EXPECT_EQ(store.validMediaExtensions, u"mp3 wav");
}

TEST(MediaCheck, AQuotedTypeCountsLikeAnother) {
  TCSetListStore store;
  store.validMediaExtensions = u"\"mp3\" wav";
  EXPECT_TRUE(IsValidMediaExtension(store, u"mp3"));
}

TEST(MediaCheck, AnEmptyTypeIsInvalidEvenInAListWithAnEmptyWord) {
  TCSetListStore store;
  store.validMediaExtensions = u"\"\" mp3";
  EXPECT_FALSE(IsValidMediaExtension(store, u""));
}

TEST(MediaCheck, ASongIsFoundWhenItsFileCanBeOpened) {
  TCMemoryFiles files;
  files.Put(u"C:\\a.txt");
  EXPECT_EQ(SongFileStatus(files, u"C:\\a.txt"), TCSongStatus::Found);
  files.MakeUnreadable(u"C:\\a.txt");
  EXPECT_EQ(SongFileStatus(files, u"C:\\a.txt"), TCSongStatus::NotFound);
}

}  // namespace
}  // namespace brevant
