#include "text/other_case.h"

#include <limits.h>
#include <sys/stat.h>

#include <algorithm>
#include <utility>

namespace brevant {

namespace {

// Past these, what is remembered is dropped before another folder is read, so that a collection spread over a
// whole disk does not fill the memory. A name takes about thirty bytes.
constexpr std::size_t kMaxNames = 2'000'000;
constexpr std::size_t kMaxFolders = 20'000;

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
  MakeRoomFor(folder);

  const Moment now = clock();
  std::vector<std::string> found;
  for (Folder* candidate : MeaningOf(folder, now).folders) {
    Check(*candidate, now);
    for (const std::string& match : candidate->names.Matches(name))
      found.push_back(Join(candidate->path, match));
  }
  return found;
}

bool TCOtherCase::StandsAlone(std::string_view folder) {
  if (folder.empty() || folder == "/") return true;
  const auto [above, name] = Split(folder);
  if (folder.size() >= PATH_MAX || NamesNoEntry(name)) return false;
  MakeRoomFor(above);

  const Moment now = clock();
  const std::vector<Folder*>& parents = MeaningOf(above, now).folders;
  if (parents.size() != 1 || parents.front()->path != above) return false;
  Check(*parents.front(), now);
  const std::vector<std::string> matches = parents.front()->names.Matches(name);
  return matches.size() == 1 && matches.front() == name;
}

// Not where something points into the maps.
void TCOtherCase::MakeRoomFor(std::string_view folder) {
  const bool full = nameCount > kMaxNames || meanings.size() > kMaxFolders;
  if (full && meanings.find(folder) == meanings.end()) Forget();
}

void TCOtherCase::Forget() {
  meanings.clear();
  foldersByPath.clear();
  nameCount = 0;
}

TCOtherCase::Folder& TCOtherCase::Remember(std::string path, Moment now) {
  const auto known = foldersByPath.find(path);
  if (known != foldersByPath.end()) return known->second;
  Folder folder{path, TCFolderNames::Read(path), now};
  nameCount += folder.names.Count();
  return foldersByPath.emplace(std::move(path), std::move(folder)).first->second;
}

void TCOtherCase::Check(Folder& folder, Moment now) {
  if (now - folder.checked < kTrust) return;
  if (!folder.names.StillHolds(folder.path)) {
    nameCount -= folder.names.Count();
    folder.names = TCFolderNames::Read(folder.path);
    nameCount += folder.names.Count();
  }
  folder.checked = now;
}

const TCOtherCase::Meaning& TCOtherCase::MeaningOf(std::string_view written, Moment now) {
  const auto known = meanings.find(written);
  if (known != meanings.end() && now - known->second.checked < kTrust) return known->second;

  Meaning meaning{{}, now};
  for (std::string& path : ReadMeaning(written, now)) {
    meaning.folders.push_back(&Remember(std::move(path), now));
  }
  return meanings.insert_or_assign(std::string(written), std::move(meaning)).first->second;
}

std::vector<std::string> TCOtherCase::ReadMeaning(std::string_view written, Moment now) {
  if (written.empty() || written == "/") return {std::string(written)};

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

  const auto [above, name] = Split(written);
  for (Folder* parent : MeaningOf(above, now).folders) {
    add(Join(parent->path, name));
    if (NamesNoEntry(name)) continue;
    Check(*parent, now);
    for (const std::string& match : parent->names.Matches(name)) {
      if (match != name) add(Join(parent->path, match));
    }
  }
  return found;
}

}  // namespace brevant
