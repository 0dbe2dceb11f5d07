#include "playback/gst/soundfont_search.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace brevant {

namespace {

namespace fs = std::filesystem;

bool IsFile(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

bool IsSoundfontName(const fs::path& path) {
  std::string extension = path.extension().string();
  std::transform(extension.begin(), extension.end(), extension.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? char(letter - 'A' + 'a') : letter;
  });
  return extension == ".sf2" || extension == ".sf3";
}

std::vector<std::string> SoundfontsIn(const fs::path& folder) {
  std::vector<std::string> found;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (IsSoundfontName(entry->path()) && IsFile(entry->path())) found.push_back(entry->path().string());
  }
  std::sort(found.begin(), found.end());
  return found;
}

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

// Without the relative ones.
std::vector<std::string> FoldersIn(std::string_view list) {
  std::vector<std::string> folders;
  while (!list.empty()) {
    const std::size_t colon = std::min(list.find(':'), list.size());
    if (list.front() == '/') folders.emplace_back(list.substr(0, colon));
    list.remove_prefix(std::min(colon + 1, list.size()));
  }
  return folders;
}

}  // namespace

std::vector<std::string> DataFolders(std::string_view home, std::string_view dataHome,
                                     std::string_view dataDirs) {
  std::vector<std::string> folders;
  if (dataHome.starts_with('/')) {
    folders.emplace_back(dataHome);
  } else if (home.starts_with('/')) {
    folders.push_back(std::string(home) + "/.local/share");
  }
  std::vector<std::string> shared = FoldersIn(dataDirs);
  if (shared.empty()) shared = {"/usr/local/share", "/usr/share"};
  folders.insert(folders.end(), shared.begin(), shared.end());
  return folders;
}

std::vector<std::string> DataFoldersOfEnvironment() {
  return DataFolders(Environment("HOME"), Environment("XDG_DATA_HOME"), Environment("XDG_DATA_DIRS"));
}

std::vector<std::string> FindSoundfonts(const std::vector<std::string>& preferred,
                                        const std::vector<std::string>& dataFolders) {
  std::vector<std::string> found;
  const auto add = [&found](const std::string& file) {
    if (std::find(found.begin(), found.end(), file) == found.end()) found.push_back(file);
  };
  for (const std::string& file : preferred) {
    if (!file.empty() && IsFile(file)) add(file);
  }
  for (const std::string& folder : dataFolders) {
    for (const char* below : {"sounds/sf2", "sounds/sf3", "soundfonts"}) {
      for (const std::string& file : SoundfontsIn(fs::path(folder) / below)) add(file);
    }
  }
  return found;
}

}  // namespace brevant
