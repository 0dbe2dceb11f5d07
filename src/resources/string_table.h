// The string table: every text the program says, looked up by number. Misspellings in it are the system's
// own.
#pragma once

#include <string_view>

namespace brevant {

// Numbers of the texts. The ones that documents and old settings know keep their place; the rest are ours.
enum class TCTextId : int {
  BadFileType = 102,              // "Bad file type, unable to load the play list file named:"
  PlayListsMustBeText = 103,      // "Play lists must be text files not binary data files"
  Yes = 108,                      // "Yes"
  UnableToLoadGroupList = 112,    // "Unable to load play list lists file:"
  UnableToLoadPlayList = 113,     // "Unable to load play list file"
  Pending = 117,                  // "Pending"
  NotFound = 119,                 // "Not found"
  Found = 124,                    // "Found"
  PlayListExtension = 139,        // "brvpl"
  GroupListExtension = 140,       // "brvgl"
  MessagePaneTitle = 150,         // "Brevant Information & Lyrics"
  DocumentExtension = 151,        // "brv"
  UnableToPlayMissingFile = 171,  // "Unable to play song as unable to find file:"
  KeyHelp = 182,                  // the status bar's second pane
  InvalidMediaType = 195,         // "Invalid media file type (.xxx) for file:"
  CommandCanceled = 209,          // "Command canceled"
  Banner = 1000,                  // "...Brevant..."
  TotalPlaylistTime,              // "Total Playlist Time"
  SongNumberColumn,               // "Song #"
  PlayListColumn,                 // "Play List"
  SongTimeColumn,                 // "Song Time"
  StatusColumn,                   // "Status"
  LyricsMark,                     // "\Lyrics", behind the status of a song that has lyric lines
};

// Never empty: every TCTextId has a text.
[[nodiscard]] std::u16string_view TextOf(TCTextId id);

}  // namespace brevant
