// Group list files: whatever the bytes, every line is a playlist, those that can be read hold their songs and
// those that cannot are reported and stay empty. The input is a group list and three playlist files.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "input_parts.h"
#include "model/group_list_file.h"
#include "must_hold.h"
#include "support/memory_files.h"
#include "support/message_log.h"
#include "text/path_parts.h"
#include "text/text_lines.h"

using namespace brevant;

namespace {

constexpr std::u16string_view kFolder = u"D:\\Shows\\";
constexpr std::u16string_view kPath = u"D:\\Shows\\Summer Tour.brvgl";
constexpr const char16_t* kPlaylistPaths[] = {u"D:\\Shows\\1.brvpl", u"D:\\Shows\\2.brvpl", u"E:\\3.brvpl"};

// How many songs the file at `path` brings; -1 when it cannot be read.
std::ptrdiff_t SongsIn(TCFileSystem& files, std::u16string_view path) {
  TextLines lines;
  return ReadTextLines(files, path, lines) ? static_cast<std::ptrdiff_t>(lines.size()) : -1;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::vector<std::string> parts = CutIntoParts(input, 1 + std::size(kPlaylistPaths));
  if (TooManyLines(parts)) return 0;
  TCMemoryFiles files;
  files.Put(kPath, parts[0]);
  for (std::size_t i = 0; i < std::size(kPlaylistPaths); ++i) files.Put(kPlaylistPaths[i], parts[i + 1]);

  const TCSetListStore store;
  TCMessageLog messages;
  TCPlayGroups group;
  group.name = u"Summer Tour.brvgl";
  group.folder = std::u16string(kFolder);
  MustHold(LoadGroupListFile(files, store, messages, group, kPath), "a file that can be read is loaded");

  const TextLines lines = SplitUtf16Lines(parts[0]);
  MustHold(group.playlists.size() == lines.size(), "every line is a playlist");
  if (lines.empty()) {
    MustHold(group.name == u"Summer Tour.brvgl" && messages.lines.empty(), "without lines nothing changes");
    return 0;
  }
  MustHold(group.name == u"Summer Tour" && group.folder.str() == kFolder, "it is named like its file");

  std::size_t unreadable = 0;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const TCPlayList& playlist = group.playlists[i];
    const bool bare = FolderPart(lines[i]).empty();
    const std::u16string path = bare ? std::u16string(kFolder) + lines[i] : lines[i];
    const std::ptrdiff_t songs = SongsIn(files, path);
    MustHold(playlist.items.size() == static_cast<std::size_t>(std::max<std::ptrdiff_t>(songs, 0)),
             "a playlist holds the songs of its file");
    MustHold(playlist.folder.str() == (bare ? u"" : FolderPart(lines[i])), "a bare name stays one");
    const std::u16string name = FileNamePart(path);
    MustHold(playlist.name == (songs > 0 ? PathWithoutExtension(name) : name), "it is named like its file");
    if (songs >= 0) continue;
    MustHold(messages.lines.at(unreadable).ends_with(u" " + name), "a file that cannot be read is reported");
    ++unreadable;
  }
  MustHold(messages.lines.size() == unreadable, "nothing else is reported");
  return 0;
}
