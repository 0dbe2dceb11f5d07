// Playlist files: whatever the bytes, every line is a song with the path before the first star and the time
// behind it, songs that stood there keep what the file does not say, and a second load changes nothing.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "model/playlist_file.h"
#include "must_hold.h"
#include "support/memory_files.h"
#include "text/path_parts.h"
#include "text/text_lines.h"
#include "text/white_space.h"

using namespace brevant;

namespace {

constexpr std::u16string_view kPath = u"D:\\Sets\\My.Set.brvpl";

void CheckSong(const TCPlayListItem& song, const std::u16string& line, TCFileSystem& files) {
  const std::size_t star = line.find(u'*');
  const bool timed = star != std::u16string::npos && star != 0;
  const std::u16string path(timed ? TrimRight(std::u16string_view(line).substr(0, star)) : line);
  MustHold(song.fileName == FileNamePart(path), "the file name is the path's");
  MustHold(song.folder.str() == FolderPart(path), "the folder is the path's");
  MustHold(song.extension == ExtensionPart(path), "the type is the path's");
  MustHold((song.status == TCSongStatus::Found) == files.FileExists(path), "the status tells if it is there");
  if (timed) {
    MustHold(song.time == TrimLeft(std::u16string_view(line).substr(star + 1)), "the time is what follows");
  }
  MustHold(song.lyrics.Empty(), "no lyrics are read");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  TCMemoryFiles files;
  files.Put(kPath, bytes);
  files.Put(u"a.mp3");
  files.Put(u"a.lrc", "[00:01.00]Not read\r\n");

  TCPlayList playlist;
  playlist.name = u"before";
  playlist.items.resize(2);
  for (TCPlayListItem& song : playlist.items) {
    song.time = u"09:09";
    song.option1 = u"kept";
  }
  const TCSetListStore store;
  MustHold(LoadPlaylistFile(files, store, playlist, kPath), "a file that can be read is loaded");

  const TextLines lines = SplitUtf16Lines(bytes);
  if (lines.empty()) {
    MustHold(playlist.name == u"before" && playlist.items.size() == 2, "without lines nothing changes");
    return 0;
  }
  MustHold(playlist.name == u"My.Set" && playlist.folder.str() == u"D:\\Sets\\", "it is named like its file");
  MustHold(playlist.items.size() == lines.size(), "every line is a song");
  for (std::size_t i = 0; i < lines.size(); ++i) {
    CheckSong(playlist.items[i], lines[i], files);
    MustHold(playlist.items[i].option1 == (i < 2 ? u"kept" : u"30"), "what no file says stays");
    const bool timed = lines[i].find(u'*', 1) != std::u16string::npos && lines[i].front() != u'*';
    if (!timed) MustHold(playlist.items[i].time == (i < 2 ? u"09:09" : u"00:00"), "an untold time stays");
  }

  TCPlayList again = playlist;
  MustHold(LoadPlaylistFile(files, store, again, kPath), "it loads again");
  MustHold(again.totalTime == playlist.totalTime && again.items.size() == lines.size(),
           "loading again changes nothing");
  MustHold(!LoadPlaylistFile(files, store, again, u"D:\\none.brvpl") && again.items.size() == lines.size(),
           "a missing file changes nothing");
  return 0;
}
