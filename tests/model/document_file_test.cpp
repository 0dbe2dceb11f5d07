#include "model/document_file.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/memory_files.h"
#include "support/message_log.h"

namespace brevant {
namespace {

constexpr std::u16string_view kPath = u"D:\\Docs\\show.brv";

class DocumentFile : public testing::Test {
 protected:
  TCMemoryFiles files;
  TCSetListStore store;
  TCMessageLog messages;
  TCDocumentFile document{files, store, messages};

  bool Open(std::u16string_view text) {
    files.PutUtf16(kPath, text);
    store.ClearSetLists();
    return document.OpenSetListDocument(kPath);
  }
  bool Save(std::u16string_view path) { return SaveSetListDocument(files, path, document.PrepareSave(path)); }

  TCPlayList& PlaylistOf(std::size_t group, std::size_t playlist) {
    return store.groups[group].playlists[playlist];
  }

  TextLines LinesOf(std::u16string_view path) {
    TextLines lines;
    EXPECT_TRUE(ReadTextLines(files, path, lines));
    return lines;
  }
};

TEST_F(DocumentFile, ASongIsReadWithItsPathTimeAndStatus) {
  files.Put(u"C:\\Music\\Open Road.mp3");
  ASSERT_TRUE(Open(u"\"Mariner Sets\" \"Set 1\" \"C:\\Music\\Open Road.mp3\" 03:25\r\n"));
  ASSERT_EQ(store.groups.size(), 1u);
  EXPECT_EQ(store.groups[0].name, u"Mariner Sets");
  EXPECT_EQ(PlaylistOf(0, 0).name, u"Set 1");
  const TCPlayListItem& song = PlaylistOf(0, 0).items.at(0);
  EXPECT_EQ(song.folder.str(), u"C:\\Music\\");
  EXPECT_EQ(song.fileName, u"Open Road.mp3");
  EXPECT_EQ(song.extension, u"mp3");
  EXPECT_EQ(song.time, u"03:25");
  EXPECT_EQ(song.status, TCSongStatus::Found);
  EXPECT_EQ(store.documentFileName, u"show.brv");
  EXPECT_EQ(store.documentFolder, u"D:\\Docs\\");
  EXPECT_EQ(store.documentExtension, u"brv");
}

TEST_F(DocumentFile, ASongsLyricFileIsReadWithIt) {
  files.Put(u"C:\\a.lrc", "[ti:Title]\r\n[00:01.00]First line\r\n");
  ASSERT_TRUE(Open(u"\"A\" \"P\" \"C:\\a.mp3\" 03:00\r\n\"A\" \"P\" \"C:\\b.mp3\" 03:00\r\n"));
  EXPECT_EQ(PlaylistOf(0, 0).items.at(0).lyrics.LineCount(), 1u);
  EXPECT_EQ(PlaylistOf(0, 0).items.at(0).lyrics.Headers().title, u"Title");
  EXPECT_TRUE(PlaylistOf(0, 0).items.at(1).lyrics.Empty());
}

TEST_F(DocumentFile, LinesOfOneGroupAreMergedWhateverTheirCaseAndPlace) {
  ASSERT_TRUE(
      Open(u"\"A\" \"P1\" \"x.mp3\" 03:00\r\n\"B\" \"Q\" \"z.mp3\" 01:00\r\n\"a\" \"P2\" \"y.mp3\" 02:00\r\n"
           u"\"A\" \"p1\" \"w.mp3\" 02:00\r\n"));
  ASSERT_EQ(store.groups.size(), 2u);
  EXPECT_EQ(store.groups[0].name, u"A");
  ASSERT_EQ(store.groups[0].playlists.size(), 2u);
  EXPECT_EQ(PlaylistOf(0, 0).name, u"P1");
  EXPECT_EQ(PlaylistOf(0, 0).items.size(), 2u);
  EXPECT_EQ(PlaylistOf(0, 1).name, u"P2");
}

TEST_F(DocumentFile, ALineWithoutATimeGivesAnEmptyTime) {
  ASSERT_TRUE(Open(u"\"A\" \"P1\" \"C:\\My Songs\\z.wav\"\r\n"));
  EXPECT_EQ(PlaylistOf(0, 0).items.at(0).time, u"");
}

TEST_F(DocumentFile, AMissingFileIsRefusedAndTheDocumentsPathStays) {
  store.documentFileName = u"before.brv";
  EXPECT_FALSE(document.OpenSetListDocument(u"D:\\none.brv"));
  EXPECT_EQ(store.documentFileName, u"before.brv");
}

TEST_F(DocumentFile, AnEmptyFileIsAnEmptyDocumentAndTheDocumentsPathStays) {
  store.documentFileName = u"before.brv";
  EXPECT_TRUE(Open(u""));
  EXPECT_TRUE(store.groups.empty());
  EXPECT_EQ(store.documentFileName, u"before.brv");
}

TEST_F(DocumentFile, ADocumentInAnotherEncodingIsOneUnreadableGroup) {
  files.Put(kPath, "\"A\" \"P1\" \"x.mp3\" 03:00\r\n\"A\" \"P1\" \"y.mp3\" 03:00\r\n");
  EXPECT_TRUE(document.OpenSetListDocument(kPath));
  EXPECT_EQ(store.groups.size(), 1u);
}

TEST_F(DocumentFile, AFirstLineWithAGroupListMakesTheFolderForm) {
  files.PutUtf16(u"D:\\Shows\\Summer.brvgl", u"Set 1.brvpl\r\n");
  files.PutUtf16(u"D:\\Shows\\Set 1.brvpl", u"a.mp3*03:00\r\nb.mp3*01:00\r\n");
  ASSERT_TRUE(Open(u"D:\\Shows\\Summer.brvgl\r\n"));
  ASSERT_EQ(store.groups.size(), 1u);
  EXPECT_EQ(store.groups[0].name, u"Summer");
  EXPECT_EQ(store.groups[0].folder.str(), u"D:\\Shows\\");
  EXPECT_EQ(PlaylistOf(0, 0).items.size(), 2u);
  EXPECT_EQ(PlaylistOf(0, 0).totalTime, u"04:15");
}

TEST_F(DocumentFile, GroupListNamesAreResolvedAgainstTheDocumentsFolder) {
  files.PutUtf16(u"D:\\Docs\\Bare.brvgl", u"p.brvpl\r\n");
  files.PutUtf16(u"D:\\Docs\\Tour.brvgl", u"p.brvpl\r\n");
  files.PutUtf16(u"D:\\Docs\\p.brvpl", u"a.mp3\r\n");
  ASSERT_TRUE(Open(u"Bare.brvgl\r\n.\\Tour.brvgl\r\n"));
  ASSERT_EQ(store.groups.size(), 2u);
  EXPECT_EQ(store.groups[0].name, u"Bare");
  EXPECT_EQ(store.groups[0].folder.str(), u"");
  EXPECT_EQ(store.groups[0].playlists.size(), 1u);
  EXPECT_EQ(store.groups[1].name, u"Tour");
  EXPECT_EQ(store.groups[1].folder.str(), u".\\");
  EXPECT_EQ(store.groups[1].playlists.size(), 1u);
}

TEST_F(DocumentFile, AnotherRelativeFolderIsUsedAsWrittenAndTheTypeCountsInAnyCase) {
  files.PutUtf16(u"Sub\\X.BRVGL", u"p.brvpl\r\n");
  files.PutUtf16(u"Sub\\p.brvpl", u"a.mp3\r\n");
  ASSERT_TRUE(Open(u"Sub\\X.BRVGL\r\n"));
  ASSERT_EQ(store.groups.size(), 1u);
  EXPECT_EQ(store.groups[0].name, u"X");
  EXPECT_EQ(store.groups[0].playlists.size(), 1u);
}

TEST_F(DocumentFile, ADotAndABackslashAnywhereInALinesFolderCostItsFirstTwoCharacters) {
  files.PutUtf16(u"D:\\Docs\\\\Old.\\Tour.brvgl", u"p.brvpl\r\n");
  files.PutUtf16(u"D:\\Docs\\\\Up.brvgl", u"p.brvpl\r\n");
  ASSERT_TRUE(Open(u"E:\\Old.\\Tour.brvgl\r\n..\\Up.brvgl\r\n"));
  ASSERT_EQ(store.groups.size(), 2u);
  EXPECT_EQ(store.groups[0].name, u"Tour");
  EXPECT_EQ(store.groups[0].folder.str(), u"E:\\Old.\\");
  EXPECT_EQ(store.groups[1].name, u"Up");
  EXPECT_EQ(store.groups[1].folder.str(), u"..\\");
}

TEST_F(DocumentFile, AnEmptyGroupListLeavesItsGroupNamedAfterTheWholeFileName) {
  files.Put(u"D:\\Docs\\Empty.brvgl");
  ASSERT_TRUE(Open(u"Empty.brvgl\r\n"));
  ASSERT_EQ(store.groups.size(), 1u);
  EXPECT_EQ(store.groups[0].name, u"Empty.brvgl");
  EXPECT_EQ(store.groups[0].folder.str(), u"");
  EXPECT_EQ(store.groups[0].extension, u"brv");
  EXPECT_TRUE(store.groups[0].playlists.empty());
  EXPECT_TRUE(messages.lines.empty());
}

TEST_F(DocumentFile, ALineOfAnotherTypeIsReportedInThreeMessages) {
  files.PutUtf16(u"D:\\Docs\\There.brvgl", u"p.brvpl\r\n");
  files.PutUtf16(u"D:\\Docs\\notes.txt", u"p.brvpl\r\n");
  files.PutUtf16(u"D:\\Docs\\p.brvpl", u"a.mp3\r\n");
  ASSERT_TRUE(Open(u"There.brvgl\r\nnotes.txt\r\n"));
  ASSERT_EQ(store.groups.size(), 2u);
  EXPECT_EQ(store.groups[1].name, u"notes.txt");
  EXPECT_EQ(messages.lines,
            (std::vector<std::u16string>{
                u"Bad file type, unable to load the play list file named: D:\\Docs\\notes.txt",
                u"Play lists must be text files not binary data files",
                u"Unable to load play list lists file: notes.txt"}));
}

TEST_F(DocumentFile, AMissingGroupListIsReportedAndStaysEmptyWhileTheRestLoads) {
  files.PutUtf16(u"D:\\Docs\\There.brvgl", u"p.brvpl\r\n");
  ASSERT_TRUE(Open(u"Gone.brvgl\r\nThere.brvgl\r\n"));
  ASSERT_EQ(store.groups.size(), 2u);
  EXPECT_EQ(store.groups[0].name, u"Gone.brvgl");
  EXPECT_EQ(store.groups[0].folder.str(), u"D:\\Docs\\");  // where it was looked for
  EXPECT_EQ(store.groups[0].extension, u"brv");
  EXPECT_TRUE(store.groups[0].playlists.empty());
  EXPECT_EQ(store.groups[1].name, u"There");
  EXPECT_EQ(messages.lines.at(0), u"Unable to load play list lists file: Gone.brvgl");
}

TEST_F(DocumentFile, ASongPathWithTheGroupListTypeInItIsTakenForTheFolderForm) {
  ASSERT_TRUE(Open(u"\"X\" \"Y\" \"C:\\brvgl\\a.mp3\" 01:00\r\n"));
  ASSERT_EQ(store.groups.size(), 1u);
  EXPECT_TRUE(store.groups[0].playlists.empty());
  EXPECT_FALSE(messages.lines.empty());
}

TEST_F(DocumentFile, SongsOfTheFolderFormCarryNoLyrics) {
  files.PutUtf16(u"D:\\Docs\\T.brvgl", u"p.brvpl\r\n");
  files.PutUtf16(u"D:\\Docs\\p.brvpl", u"C:\\a.mp3\r\n");
  files.Put(u"C:\\a.lrc", "[00:01.00]First line\r\n");
  ASSERT_TRUE(Open(u"T.brvgl\r\n"));
  EXPECT_TRUE(PlaylistOf(0, 0).items.at(0).lyrics.Empty());
}

TEST_F(DocumentFile, WhatIsSavedIsReadAgainAsItWas) {
  const std::u16string text =
      u"\"A\" \"P1\" \"C:\\x.mp3\" 03:00\r\n\"A\" \"P2\" \"y.mp3\" 02:00\r\n\"B\" \"P1\" \"D:\\z.mid\" "
      u"00:00\r\n";
  ASSERT_TRUE(Open(text));
  ASSERT_TRUE(Save(u"D:\\Docs\\copy.BRV"));
  EXPECT_EQ(files.BytesOf(u"D:\\Docs\\copy.BRV"), files.BytesOf(kPath));
  EXPECT_EQ(store.documentFileName, u"copy.BRV");
  EXPECT_EQ(store.documentExtension, u"brv");
}

TEST_F(DocumentFile, SongsThatAreSavedStandThereAgainAfterTheNextOpen) {
  store.groups.resize(2);
  store.groups[0].name = u"Mariner\rSets";  // a return would end the line
  store.groups[0].playlists.resize(2);
  PlaylistOf(0, 0).name = u"Set 1";
  PlaylistOf(0, 1).name = u"Set 2";
  PlaylistOf(0, 0).items.emplace_back().SetPath(u"C:\\Music\\Open Road.mp3");
  PlaylistOf(0, 0).items.emplace_back().SetPath(u"intro.wav");
  PlaylistOf(0, 1).items.emplace_back().SetPath(u"Set>Song.mp3");
  store.groups[1].name = u"Club";
  store.groups[1].playlists.resize(1);
  PlaylistOf(1, 0).name = u"Set 1";
  PlaylistOf(1, 0).items.emplace_back().SetPath(u"\\late.mid");
  PlaylistOf(1, 0).items[0].time = u"01:02:03";
  const TextLines written = document.FlatLines();
  ASSERT_TRUE(Save(kPath));
  EXPECT_EQ(written[0].substr(0, written[0].find(u"\" \"")), written[2].substr(0, written[2].find(u"\" \"")));

  store.ClearSetLists();
  ASSERT_TRUE(document.OpenSetListDocument(kPath));
  EXPECT_EQ(document.FlatLines(), written);
  ASSERT_EQ(store.groups.size(), 2u);
  EXPECT_EQ(store.groups[0].playlists.size(), 2u);
  EXPECT_EQ(PlaylistOf(0, 0).items.size(), 2u);
  EXPECT_EQ(PlaylistOf(0, 1).items.at(0).fileName, u"Song.mp3");
  EXPECT_EQ(PlaylistOf(1, 0).items.at(0).time, u"01:02:03");
}

TEST_F(DocumentFile, APlaylistWithoutSongsHasNoLine) {
  ASSERT_TRUE(Open(u"\"A\" \"P1\" \"x.mp3\" 03:00\r\n"));
  store.groups[0].playlists.emplace_back().name = u"Empty";
  ASSERT_TRUE(Save(kPath));
  EXPECT_EQ(LinesOf(kPath).size(), 1u);
}

TEST_F(DocumentFile, GroupsWithoutASongLeaveTheFileAsItWas) {
  files.PutUtf16(kPath, u"\"A\" \"P\" \"x.mp3\" 01:00\r\n");
  const auto before = files.BytesOf(kPath);
  store.groups.resize(1);
  store.groups[0].playlists.resize(1);
  EXPECT_FALSE(Save(kPath));
  EXPECT_EQ(files.BytesOf(kPath), before);
  store.ClearSetLists();
  ASSERT_TRUE(document.OpenSetListDocument(kPath));
  EXPECT_EQ(PlaylistOf(0, 0).items.size(), 1u);
}

TEST_F(DocumentFile, AStoreWithoutGroupsLeavesTheFileUntouchedButSetsThePath) {
  files.PutUtf16(kPath, u"kept");
  EXPECT_FALSE(Save(kPath));
  EXPECT_TRUE(files.writes.empty());
  EXPECT_EQ(store.documentFileName, u"show.brv");
}

TEST_F(DocumentFile, AFailedWriteIsAnsweredWithFalse) {
  ASSERT_TRUE(Open(u"\"A\" \"P1\" \"x.mp3\" 03:00\r\n"));
  files.failWrites = true;
  EXPECT_FALSE(Save(kPath));
}

TEST_F(DocumentFile, AFileThatWasNotReadWholeIsKeptBesideTheNewOne) {
  const std::vector<std::string> foreign = {
      "\"A\" \"P1\" \"x.mp3\" 03:00\r\n",  // 8-bit text
      std::string("a\0\n\0b\0\n\0", 8),    // lone line feeds
      std::string("\"\0A\0\"\0", 6),       // an unended line that says more than a song
      std::string("x\0\r\0\n\0y\0", 8),    // a last line that reading drops
  };
  for (const std::string& bytes : foreign) {
    files.Put(kPath, bytes);
    store.ClearSetLists();
    ASSERT_TRUE(document.OpenSetListDocument(kPath));
    ASSERT_TRUE(Save(kPath));
    EXPECT_EQ(files.BytesOf(u"D:\\Docs\\show.brv~"), bytes);
    EXPECT_NE(files.BytesOf(kPath), bytes);
    files.Remove(u"D:\\Docs\\show.brv~");
  }
}

TEST_F(DocumentFile, SongsThatWereTakenForGroupListsAreKeptBesideTheNewFile) {
  files.PutUtf16(u"D:\\Docs\\1.brvgl", u"p.brvpl\r\n");
  files.PutUtf16(u"D:\\Docs\\p.brvpl", u"a.mp3\r\n");
  ASSERT_TRUE(Open(u"\"X\" \"Y\" \"C:\\brvgl\\a.mp3\" 01:00\r\n1.brvgl\r\n"));
  const auto before = files.BytesOf(kPath);
  ASSERT_TRUE(Save(kPath));
  EXPECT_EQ(files.BytesOf(u"D:\\Docs\\show.brv~"), before);
}

TEST_F(DocumentFile, AWholeDocumentLeavesNoCopyBehind) {
  for (const std::u16string_view text :
       {u"\"A\" \"P1\" \"x.mp3\" 03:00\r\n", u"\uFEFF\"A\" \"P1\" \"x.mp3\" 03:00\r\n"}) {
    ASSERT_TRUE(Open(text));
    ASSERT_TRUE(Save(kPath));
    EXPECT_FALSE(files.BytesOf(u"D:\\Docs\\show.brv~").has_value());
  }
}

TEST_F(DocumentFile, TheListOfGroupFilesIsKeptBesideTheSongsThatReplaceIt) {
  files.PutUtf16(u"D:\\Docs\\There.brvgl", u"p.brvpl\r\n");
  files.PutUtf16(u"D:\\Docs\\p.brvpl", u"a.mp3\r\n");
  ASSERT_TRUE(Open(u"Gone.brvgl\r\nThere.brvgl\r\n"));
  const auto before = files.BytesOf(kPath);
  ASSERT_TRUE(Save(kPath));
  EXPECT_EQ(files.BytesOf(u"D:\\Docs\\show.brv~"), before);
}

TEST_F(DocumentFile, WhenTheForeignFileCannotBeKeptItIsNotReplaced) {
  files.Put(kPath, "other text");
  ASSERT_TRUE(document.OpenSetListDocument(kPath));
  files.failCopies = true;
  EXPECT_FALSE(Save(kPath));
  EXPECT_EQ(files.BytesOf(kPath), "other text");
}

TEST_F(DocumentFile, SongsThatAreLoadedReplaceWhatStoodThere) {
  store.groups.resize(2);
  store.groups[1].name = u"A";
  ASSERT_TRUE(document.LoadFlatDocument(JoinUtf16Lines({u"\"A\" \"P\" \"x.mp3\" 03:00"})));
  ASSERT_EQ(store.groups.size(), 1u);
  EXPECT_EQ(PlaylistOf(0, 0).items.size(), 1u);
}

TEST_F(DocumentFile, ADocumentIsReadFromTheDiskOnceInEitherForm) {
  ASSERT_TRUE(Open(u"gone.brvgl\r\n"));
  EXPECT_EQ(std::count(files.reads.begin(), files.reads.end(), kPath), 1);
  files.ForgetRequests();
  ASSERT_TRUE(Open(u"\"A\" \"P\" \"x.mp3\" 03:00\r\n"));
  EXPECT_EQ(std::count(files.reads.begin(), files.reads.end(), kPath), 1);
}

TEST(DocumentPath, ADocumentIsToldByItsTypeInAnyCase) {
  EXPECT_TRUE(IsDocumentPath(u"D:\\Docs\\show.BRV"));
  EXPECT_FALSE(IsDocumentPath(u"D:\\Docs\\show.brvgl"));
  EXPECT_FALSE(IsDocumentPath(u"D:\\Docs\\show"));
}

TEST_F(DocumentFile, AThousandPlaylistsAreToldApart) {
  TextLines lines;
  for (int i = 0; i < 3000; ++i) {
    const std::string name = std::to_string(i % 1000);
    lines.push_back(u"\"G\" \"P" + std::u16string(name.begin(), name.end()) + u"\" \"x.mp3\" 01:00");
  }
  ASSERT_TRUE(document.LoadFlatDocument(JoinUtf16Lines(lines)));
  ASSERT_EQ(store.groups[0].playlists.size(), 1000u);
  EXPECT_EQ(PlaylistOf(0, 999).items.size(), 3u);
}

TEST_F(DocumentFile, GarbageIsReadWithoutHarm) {
  std::string garbage;
  std::uint32_t state = 12345;
  for (int i = 0; i < 100001; ++i) {
    state = state * 1664525u + 1013904223u;
    garbage.push_back(static_cast<char>(state >> 24));
  }
  files.Put(kPath, garbage);
  EXPECT_TRUE(document.OpenSetListDocument(kPath));
  files.Put(kPath, std::string(1, '\x01'));
  store.ClearSetLists();
  EXPECT_TRUE(document.OpenSetListDocument(kPath));
  EXPECT_TRUE(store.groups.empty());
}

}  // namespace
}  // namespace brevant
