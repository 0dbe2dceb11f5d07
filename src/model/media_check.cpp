#include "model/media_check.h"

#include <algorithm>

#include "text/case_folding.h"
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

}  // namespace brevant
