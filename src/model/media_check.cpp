#include "model/media_check.h"

#include <algorithm>

#include "text/case_folding.h"
#include "text/path_parts.h"
#include "text/quoted_words.h"

namespace brevant {

std::vector<std::u16string> ValidMediaExtensions(TCSetListStore& store) {
  store.validMediaExtensions = ToLower(store.validMediaExtensions);
  return SplitQuotedWords(store.validMediaExtensions);
}

bool IsValidMediaExtension(TCSetListStore& store, std::u16string_view extension) {
  if (extension.empty()) return false;
  const std::vector<std::u16string> words = ValidMediaExtensions(store);
  return std::find(words.begin(), words.end(), ToLower(extension)) != words.end();
}

TCSongStatus SongFileStatus(TCFileSystem& files, std::u16string_view path) {
  return files.FileExists(path) ? TCSongStatus::Found : TCSongStatus::NotFound;
}

void SetFolderForAllSongs(TCPlayList& playlist, std::u16string_view folder) {
  const TCSharedText sharedFolder{std::u16string(folder)};
  for (TCPlayListItem& song : playlist.items) song.folder = sharedFolder;
}

void SetExtensionForAllSongs(TCPlayList& playlist, std::u16string_view fileName) {
  const TCSharedText extension = ExtensionPart(fileName);
  for (TCPlayListItem& song : playlist.items) {
    song.fileName = ReplaceExtension(song.fileName, extension);
    song.extension = extension;
  }
}

}  // namespace brevant
