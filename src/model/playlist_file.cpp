#include "model/playlist_file.h"

#include "model/media_check.h"
#include "text/path_parts.h"
#include "text/text_lines.h"
#include "text/white_space.h"

namespace brevant {

namespace {

void SetSongFromLine(TCFileSystem& files, TCPlayListItem& song, std::u16string_view line,
                     TCSongTexts& texts) {
  std::u16string_view path = line;
  // A star in the first place is part of the name: there would be no path before it.
  if (const std::size_t star = line.find(u'*'); star != std::u16string_view::npos && star > 0) {
    path = TrimRight(line.substr(0, star));
    song.time = TrimLeft(line.substr(star + 1));
  }
  song.SetPath(path, texts);
  song.status = SongFileStatus(files, path);
}

}  // namespace

bool LoadPlaylistFile(TCFileSystem& files, const TCSetListStore& store, TCPlayList& playlist,
                      std::u16string_view path) {
  TextLines lines;
  if (!ReadTextLines(files, path, lines)) return false;
  if (lines.empty()) return true;

  playlist.items.resize(lines.size());
  TCSongTexts texts;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    SetSongFromLine(files, playlist.items[i], lines[i], texts);
  }

  playlist.name = PathWithoutExtension(FileNamePart(path));
  playlist.folder = FolderPart(path);
  playlist.extension = ExtensionPart(path);
  store.RecalcPlaylistTotalTime(playlist);
  return true;
}

}  // namespace brevant
