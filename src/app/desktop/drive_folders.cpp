#include "app/desktop/drive_folders.h"

#include <optional>
#include <string>

#include "text/ini_text.h"
#include "text/unicode.h"

namespace brevant {
namespace {

constexpr std::u16string_view kSection = u"Drives";
constexpr std::size_t kMaxProfileBytes = std::size_t{1} << 20;

// 0 when `key` is no drive letter.
char DriveLetter(std::u16string_view key) {
  if (key.size() != 1) return 0;
  if (key[0] >= u'A' && key[0] <= u'Z') return static_cast<char>(key[0]);
  if (key[0] >= u'a' && key[0] <= u'z') return static_cast<char>(key[0] - u'a' + u'A');
  return 0;
}

}  // namespace

TCNativePaths::DriveFolders ReadDriveFolders(TCFileSystem& files, std::u16string_view settingsFolder) {
  TCNativePaths::DriveFolders drives;
  const std::u16string path = std::u16string(settingsFolder) + u"Profile.ini";
  const std::optional<std::string> bytes = files.ReadFile(path, kMaxProfileBytes);
  if (!bytes) return drives;

  const TCIniText profile = TCIniText::Parse(*bytes);
  for (const std::u16string& key : profile.Keys(kSection)) {
    const char letter = DriveLetter(key);
    std::string folder = EncodeUtf8(profile.GetString(kSection, key, u""));
    if (letter == 0 || folder.empty() || folder.front() != '/') continue;
    while (!folder.empty() && folder.back() == '/') folder.pop_back();
    drives.emplace(letter, std::move(folder));
  }
  return drives;
}

}  // namespace brevant
