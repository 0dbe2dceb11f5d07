#include "text/native_path.h"

#include <algorithm>
#include <utility>

#include "text/case_folding.h"
#include "text/unicode.h"

namespace brevant {

namespace {

bool StartsWithDrive(std::u16string_view path) {
  if (path.size() < 2 || path[1] != u':') return false;
  const char16_t letter = ToLower(path[0]);
  return letter >= u'a' && letter <= u'z';
}

bool HasLoneSurrogate(std::u16string_view text) {
  return FindLoneSurrogate(text) != std::u16string_view::npos;
}

std::string WithoutTrailingSlashes(std::string_view folder) {
  return std::string(folder.substr(0, folder.find_last_not_of('/') + 1));
}

}  // namespace

TCNativePaths::TCNativePaths(DriveFolders driveFolders) : drives(std::move(driveFolders)) {}

std::string TCNativePaths::ToNative(std::u16string_view path) const {
  std::string native;
  if (StartsWithDrive(path)) {
    const auto letter = static_cast<char>(ToLower(path[0]) - u'a' + u'A');
    const auto drive = drives.find(letter);
    if (drive != drives.end() && !drive->second.empty()) {
      path.remove_prefix(2);
      native = WithoutTrailingSlashes(drive->second);
      const bool needsSlash = path.empty() ? native.empty() : path.front() != u'\\' && path.front() != u'/';
      if (needsSlash) native.push_back('/');
    }
  }
  const std::size_t begin = native.size();
  AppendUtf8(native, path);
  // Neither can be part of a name here; with a replacement in its place, the text could name another file.
  const bool ascii = native.size() - begin == path.size();
  if ((!ascii && HasLoneSurrogate(path)) || native.find('\0', begin) != std::string::npos) return {};

  for (std::size_t at = native.find('\\', begin); at != std::string::npos; at = native.find('\\', at)) {
    native[at] = '/';
  }
  return native;
}

std::optional<std::u16string> TCNativePaths::FromNative(std::string_view native) {
  constexpr std::string_view kUnknownToTheModel("\\\"\r\n\0", 5);
  if (native.find_first_of(kUnknownToTheModel) != std::string_view::npos) return std::nullopt;
  std::optional<std::u16string> path = DecodeUtf8(native);
  // A relative name such as "C:/a.mp3" would come back as a file on a drive.
  if (!path || StartsWithDrive(*path)) return std::nullopt;
  std::replace(path->begin(), path->end(), u'/', u'\\');
  return path;
}

}  // namespace brevant
