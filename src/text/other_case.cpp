#include "text/other_case.h"

#include <limits.h>
#include <sys/stat.h>

#include <algorithm>
#include <utility>

namespace brevant {

namespace {

// What is remembered is dropped past these, so that a collection spread over a whole disk does not fill the
// memory.
constexpr std::size_t kMaxNames = 500'000;
constexpr std::size_t kMaxFolders = 10'000;

struct SplitPath {
  std::string_view folder;  // without a trailing slash, except for the root
  std::string_view name;
};

SplitPath Split(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string_view::npos) return {{}, path};
  const std::size_t folderEnd = path.substr(0, slash).find_last_not_of('/');
  return {folderEnd == std::string_view::npos ? path.substr(0, 1) : path.substr(0, folderEnd + 1),
          path.substr(slash + 1)};
}

std::string Join(const std::string& folder, std::string_view name) {
  const bool needsSlash = !folder.empty() && folder.back() != '/';
  std::string path;
  path.reserve(folder.size() + 1 + name.size());
  return path.append(folder).append(needsSlash ? "/" : "").append(name);
}

bool NamesNoEntry(std::string_view name) {
  return name.empty() || name == "." || name == "..";
}

}  // namespace

TCOtherCase::TCOtherCase(Clock clockToUse) : clock(std::move(clockToUse)) {}

std::vector<std::string> TCOtherCase::Find(std::string_view native) {
  const auto [folder, name] = Split(native);
  if (native.size() >= PATH_MAX || NamesNoEntry(name)) return {};
  // Only here, where nothing refers into the maps.
  if (nameCount > kMaxNames || foldersByWrittenName.size() > kMaxFolders) Forget();

  std::vector<std::string> found;
  for (const std::string& candidate : FoldersFor(folder)) {
    for (const std::string& match : NamesIn(candidate).Matches(name)) found.push_back(Join(candidate, match));
  }
  return found;
}

void TCOtherCase::Forget() {
  namesByFolder.clear();
  foldersByWrittenName.clear();
  nameCount = 0;
}

const TCFolderNames& TCOtherCase::NamesIn(const std::string& folder) {
  const auto now = clock();
  const auto known = namesByFolder.find(folder);
  if (known == namesByFolder.end()) {
    const Names& fresh = namesByFolder.emplace(folder, Names{TCFolderNames::Read(folder), now}).first->second;
    nameCount += fresh.names.Count();
    return fresh.names;
  }
  Names& entry = known->second;
  if (now - entry.checked >= kTrust) {
    if (!entry.names.StillHolds(folder)) {
      nameCount -= entry.names.Count();
      entry.names = TCFolderNames::Read(folder);
      nameCount += entry.names.Count();
    }
    entry.checked = now;
  }
  return entry.names;
}

const std::vector<std::string>& TCOtherCase::FoldersFor(std::string_view folder) {
  const auto now = clock();
  const auto known = foldersByWrittenName.find(folder);
  if (known != foldersByWrittenName.end() && now - known->second.checked < kTrust) return known->second.found;

  std::vector<std::string> found = ReadFoldersFor(folder);
  return foldersByWrittenName.insert_or_assign(std::string(folder), Folders{std::move(found), now})
      .first->second.found;
}

std::vector<std::string> TCOtherCase::ReadFoldersFor(std::string_view folder) {
  if (folder.empty() || folder == "/") return {std::string(folder)};

  std::vector<std::string> found;
  std::vector<std::pair<dev_t, ino_t>> seen;
  // Where the disk itself does not tell upper from lower case, one folder answers to several names; counted
  // once a level, they do not multiply.
  const auto add = [&](std::string candidate) {
    struct stat status {};
    if (stat(candidate.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return;
    const std::pair<dev_t, ino_t> identity(status.st_dev, status.st_ino);
    if (std::find(seen.begin(), seen.end(), identity) != seen.end()) return;
    seen.push_back(identity);
    found.push_back(std::move(candidate));
  };

  const auto [above, name] = Split(folder);
  for (const std::string& parent : FoldersFor(above)) {
    add(Join(parent, name));
    if (NamesNoEntry(name)) continue;
    for (const std::string& match : NamesIn(parent).Matches(name)) add(Join(parent, match));
  }
  return found;
}

}  // namespace brevant
