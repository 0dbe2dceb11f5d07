#include "model/document_file.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <unordered_map>

#include "lyrics/lyric_file.h"
#include "model/flat_line.h"
#include "model/group_list_file.h"
#include "model/media_check.h"
#include "text/case_folding.h"
#include "text/path_parts.h"

namespace brevant {

namespace {

// Decided by the first line alone.
bool IsFolderForm(std::u16string_view firstLine) {
  return ToLower(firstLine).find(TextOf(TCTextId::GroupListExtension)) != std::u16string::npos;
}

std::u16string ResolveGroupListLine(std::u16string_view documentFolder, std::u16string_view line) {
  const std::u16string folder = FolderPart(line);
  if (!folder.empty() && folder.find(u".\\") == std::u16string::npos) return std::u16string(line);
  std::u16string path(documentFolder);
  path += folder.empty() ? line : line.substr(2);  // ".\Tour.brvgl"
  return path;
}

// Finds the group and playlist of each line by name. A set list of 100,000 songs may name thousands of
// playlists, so names are looked up and not searched.
class TCNameIndex {
 public:
  explicit TCNameIndex(TCSetListStore& setLists) : store(setLists) {}

  TCPlayList& PlaylistFor(const TCFlatLine& line) {
    // Nearly always the songs of a playlist stand together.
    if (!store.groups.empty() && line.group == lastGroupName && line.playlist == lastPlaylistName) {
      return store.groups[lastGroup].playlists[lastPlaylist];
    }
    const auto [groupEntry, isNewGroup] = groups.try_emplace(ToLower(line.group));
    GroupNames& group = groupEntry->second;
    if (isNewGroup) {
      group.index = store.groups.size();
      store.groups.emplace_back().name = line.group;
    }
    std::vector<TCPlayList>& playlists = store.groups[group.index].playlists;
    const auto [entry, isNewPlaylist] = group.playlists.try_emplace(ToLower(line.playlist), playlists.size());
    if (isNewPlaylist) playlists.emplace_back().name = line.playlist;
    lastGroup = group.index;
    lastPlaylist = entry->second;
    lastGroupName = line.group;
    lastPlaylistName = line.playlist;
    return playlists[entry->second];
  }

 private:
  struct GroupNames {
    std::size_t index = 0;
    std::unordered_map<std::u16string, std::size_t> playlists;
  };

  TCSetListStore& store;
  std::unordered_map<std::u16string, GroupNames> groups;  // by lower-cased name
  std::size_t lastGroup = 0;
  std::size_t lastPlaylist = 0;
  std::u16string lastGroupName;
  std::u16string lastPlaylistName;
};

// Status and lyrics of every song. Folder by folder, however the playlists mix them: each is looked into
// once.
void ReadSongFiles(TCFileSystem& files, TCSetListStore& store) {
  struct SongInFolder {
    const std::u16string* folder = nullptr;  // equal folders are one text here: its place tells them apart
    TCPlayListItem* song = nullptr;
  };
  std::vector<SongInFolder> songs;
  for (TCPlayGroups& group : store.groups) {
    for (TCPlayList& playlist : group.playlists) {
      for (TCPlayListItem& song : playlist.items) songs.push_back({&song.folder.str(), &song});
    }
  }
  std::stable_sort(songs.begin(), songs.end(), [](const SongInFolder& a, const SongInFolder& b) {
    return std::less<>()(a.folder, b.folder);
  });

  const TCManyFiles many(files);
  for (const SongInFolder& entry : songs) {
    const std::u16string path = entry.song->FullPath();
    entry.song->status = SongFileStatus(files, path);
    LoadLyrics(files, path, entry.song->lyrics);
  }
}

[[nodiscard]] bool IsForeignFile(TCFileSystem& files, std::u16string_view path) {
  const std::optional<std::string> bytes = files.ReadFile(path, kMaxTextFileBytes);
  return !bytes || !IsWholeDocument(*bytes);
}

// False when it is to be kept and cannot be.
[[nodiscard]] bool KeepOldFile(TCFileSystem& files, std::u16string_view path, TCKeepOldFile keep) {
  if (!files.FileExists(path)) return true;
  if (keep == TCKeepOldFile::IfForeign && !IsForeignFile(files, path)) return true;
  return files.CopyFile(path, std::u16string(path) + u'~');
}

}  // namespace

TCDocumentFile::TCDocumentFile(TCFileSystem& fileSystem, TCSetListStore& setLists,
                               TCMessageDisplay& messageDisplay)
    : files(fileSystem), store(setLists), messages(messageDisplay) {}

void TCDocumentFile::SetDocumentPath(std::u16string_view path) {
  store.documentFileName = FileNamePart(path);
  store.documentFolder = FolderPart(path);
  store.documentExtension = ExtensionPart(path);
}

bool TCDocumentFile::OpenSetListDocument(std::u16string_view path) {
  const std::optional<std::string> bytes = files.ReadFile(path, kMaxTextFileBytes);
  if (!bytes) return false;
  const std::optional<std::u16string> firstLine = FirstUtf16Line(*bytes);
  if (!firstLine) return true;
  SetDocumentPath(path);
  return IsFolderForm(*firstLine) ? LoadFolderDocument(*bytes) : LoadFlatDocument(*bytes);
}

bool TCDocumentFile::LoadFolderDocument(std::string_view bytes) {
  const TextLines lines = SplitUtf16Lines(bytes);
  store.groups.resize(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    TCPlayGroups& group = store.groups[i];
    const std::u16string groupListPath = ResolveGroupListLine(store.documentFolder, lines[i]);
    store.SetGroupFileInfo(static_cast<std::int32_t>(i), groupListPath);
    if (LoadGroupListFile(files, store, messages, group, groupListPath)) {
      group.folder = FolderPart(lines[i]);
    } else {
      messages.AppendMessage(TCTextId::UnableToLoadGroupList, group.name);
    }
  }
  return true;
}

bool TCDocumentFile::LoadFlatDocument(std::string_view bytes) {
  store.groups.clear();
  TCNameIndex names(store);
  TCSongTexts texts;
  VisitUtf16Lines(bytes, [&](std::u16string_view text) {
    const TCFlatLine line = ParseFlatLine(text);
    TCPlayListItem& song = names.PlaylistFor(line).items.emplace_back();
    song.SetPath(line.path, texts);
    song.time = line.time;
  });
  for (TCPlayGroups& group : store.groups) {
    for (TCPlayList& playlist : group.playlists) playlist.items.shrink_to_fit();
  }
  ReadSongFiles(files, store);
  return true;
}

TextLines TCDocumentFile::FlatLines() const {
  TextLines lines;
  for (const TCPlayGroups& group : store.groups) {
    for (const TCPlayList& playlist : group.playlists) {
      for (const TCPlayListItem& song : playlist.items) {
        lines.push_back(FormatFlatLine(group.name, playlist.name, song));
      }
    }
  }
  return lines;
}

TextLines TCDocumentFile::PrepareSave(std::u16string_view path) {
  SetDocumentPath(path);
  store.documentExtension = ToLower(store.documentExtension);
  return FlatLines();
}

bool SaveSetListDocument(TCFileSystem& files, std::u16string_view path, const TextLines& lines,
                         TCKeepOldFile keep) {
  return !lines.empty() && KeepOldFile(files, path, keep) && WriteTextLines(files, path, lines);
}

bool IsDocumentPath(std::u16string_view path) {
  return EqualIgnoringCase(ExtensionPart(path), TextOf(TCTextId::DocumentExtension));
}

bool IsWholeDocument(std::string_view bytes) {
  const TextLines lines = SplitUtf16Lines(bytes);
  const std::string_view mark = "\xFF\xFE";
  while (bytes.substr(0, mark.size()) == mark) bytes.remove_prefix(mark.size());
  if (JoinUtf16Lines(lines) != bytes) return false;  // an unended line, an odd byte, a lone carriage return
  if (!lines.empty() && IsFolderForm(lines.front())) return false;
  return std::all_of(lines.begin(), lines.end(), [](const std::u16string& line) {
    return line.find(u'\n') == std::u16string::npos && IsWholeFlatLine(line);
  });
}

}  // namespace brevant
