// What a musician performs from: songs in playlists, playlists in groups. Plain values: assigning an element
// copies all of it, and lists are ordered, zero-based and hold their elements by value.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "lyrics/lyrics.h"
#include "resources/string_table.h"
#include "text/shared_text.h"

namespace brevant {

// The node of an entry in the playlist manager tree; meaningless after a clear.
enum class TCTreeNode : std::uint64_t { None = 0 };

// What the last check of the song's file said. The type of the file is no part of it.
enum class TCSongStatus : std::uint8_t { Pending, Found, NotFound };

// "Pending", "Found" or "Not found".
[[nodiscard]] std::u16string_view StatusText(TCSongStatus status);

// How a row stands to the current song; decides its colour.
enum class TCPlayMark : std::uint8_t { Ordinary = 0, Next = 1, Current = 2, Previous = 3 };

// What a new song has.
[[nodiscard]] const TCSharedText& DefaultOption1();  // "30"
[[nodiscard]] const TCSharedText& DefaultOption2();  // "Yes"

// What the songs of a document or playlist share while it is loaded.
struct TCSongTexts {
  TCSharedTexts folders;
  TCSharedTexts extensions;
};

// There can be a hundred thousand of these, so the texts that most of them have alike are shared.
struct TCPlayListItem {
  std::u16string fileName;  // with its type
  TCSharedText folder;      // with its trailing backslash; empty when the file was named without one
  TCSharedText extension;   // as written, without the dot
  TCSongLyrics lyrics;
  TCPlayMark flags = TCPlayMark::Ordinary;
  TCSongStatus status = TCSongStatus::Pending;
  TCTreeNode treeNode = TCTreeNode::None;
  std::u16string time = u"00:00";
  TCSharedText option1 = DefaultOption1();  // no file keeps it; copied with the song
  TCSharedText option2 = DefaultOption2();  // no file keeps it; copied with the song

  // Folder directly followed by the file name.
  [[nodiscard]] std::u16string FullPath() const;

  // Takes file name, folder and type from `path`.
  void SetPath(std::u16string_view path);
  // The same; folder and type are shared with the other songs that were given `texts`.
  void SetPath(std::u16string_view path, TCSongTexts& texts);
};

// One set list: songs in the order of the show.
struct TCPlayList {
  std::u16string name;
  TCSharedText folder;  // of the playlist file; empty when it was listed without a folder
  std::u16string extension{TextOf(TCTextId::PlayListExtension)};
  std::u16string totalTime;
  TCTreeNode treeNode = TCTreeNode::None;
  // No file keeps these three; they are copied with the playlist.
  std::int32_t state1 = 0;  // without a meaning so far
  std::int32_t state2 = 0;  // 1: "Song properties" was left with its path for all songs
  std::int32_t state3 = 0;  // 1: the same with its extension for all songs
  std::vector<TCPlayListItem> items;
};

// One group of playlists.
struct TCPlayGroups {
  std::u16string name;
  TCSharedText folder;  // of the group list file; bare playlist names are resolved against it
  std::u16string extension{TextOf(TCTextId::GroupListExtension)};
  TCTreeNode treeNode = TCTreeNode::None;
  std::vector<TCPlayList> playlists;
};

// The names of one group and its playlists, taken at one moment; later edits do not change it.
struct TCGroupNamesLists {
  std::u16string groupName;
  std::vector<std::u16string> playlistNames;
};

}  // namespace brevant
