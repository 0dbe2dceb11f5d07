#include "model/group_list_file.h"

#include "model/playlist_file.h"
#include "text/case_folding.h"
#include "text/path_parts.h"
#include "text/text_lines.h"

namespace brevant {

bool IsSetListFileType(std::u16string_view path, TCMessageDisplay& messages) {
  const std::u16string type = ToLower(ExtensionPart(path));
  if (type == TextOf(TCTextId::GroupListExtension) || type == TextOf(TCTextId::PlayListExtension))
    return true;
  messages.AppendMessage(TCTextId::BadFileType, path);
  messages.AppendMessage(TCTextId::PlayListsMustBeText);
  return false;
}

bool LoadGroupListFile(TCFileSystem& files, const TCSetListStore& store, TCMessageDisplay& messages,
                       TCPlayGroups& group, std::u16string_view path) {
  if (!IsSetListFileType(path, messages)) return false;
  TextLines lines;
  if (!ReadTextLines(files, path, lines)) return false;
  if (lines.empty()) return true;

  group.playlists.resize(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    TCPlayList& playlist = group.playlists[i];
    const bool bareName = FolderPart(lines[i]).empty();
    const std::u16string playlistPath = bareName ? group.folder.str() + lines[i] : lines[i];
    TCSetListStore::SetPlaylistFileInfo(group, static_cast<std::int32_t>(i), playlistPath);
    if (!LoadPlaylistFile(files, store, playlist, playlistPath)) {
      messages.AppendMessage(TCTextId::UnableToLoadPlayList, playlist.name);
    }
    if (bareName) playlist.folder = {};  // remembers that the file named it without a folder
  }

  group.name = PathWithoutExtension(FileNamePart(path));
  group.folder = FolderPart(path);
  group.extension = ExtensionPart(path);
  return true;
}

}  // namespace brevant
