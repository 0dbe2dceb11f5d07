#include "text/folder_names.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <ctime>

#include "text/case_folding.h"
#include "text/folder_handle.h"
#include "text/unicode.h"

namespace brevant {

namespace {

// Time stamps of folders are as coarse as two seconds on some file systems.
constexpr std::int64_t kStampGrainSeconds = 3;

constexpr std::uint32_t kMaxOffset = 0x7FFF'FFFF;  // names of two gigabytes

const char* NativeName(const std::string& folder) {
  return folder.empty() ? "." : folder.c_str();
}

// One step of the FNV-1a hash.
std::uint32_t AddToHash(std::uint32_t hash, char16_t unit) {
  constexpr std::uint32_t kPrime = 16777619U;
  return (hash ^ unit) * kPrime;
}

char16_t LowerAscii(char letter) {
  return static_cast<char16_t>(letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter);
}

// Of the lower-cased name; empty for one that is not UTF-8. Plain ASCII, nearly every name, is hashed without
// being converted.
std::optional<std::uint32_t> FoldedHash(std::string_view name) {
  std::uint32_t hash = 2166136261U;  // FNV-1a's offset basis
  if (IsAscii(name)) {
    for (const char letter : name) hash = AddToHash(hash, LowerAscii(letter));
    return hash;
  }
  const std::optional<std::u16string> text = DecodeUtf8(name);
  if (!text) return std::nullopt;
  for (const char16_t unit : *text) hash = AddToHash(hash, ToLower(unit));
  return hash;
}

bool SameFolded(std::string_view a, std::string_view b) {
  if (a == b) return true;
  const std::optional<std::u16string> left = DecodeUtf8(a);
  const std::optional<std::u16string> right = DecodeUtf8(b);
  return left && right && EqualIgnoringCase(*left, *right);
}

}  // namespace

TCFolderNames TCFolderNames::Read(const std::string& folder) {
  TCFolderNames result;
  // The stamp is taken first: a change while the names are read shows as a newer one afterwards.
  result.stamp = StampOf(folder);
  const TCFolderHandle handle(result.stamp ? opendir(NativeName(folder)) : nullptr);
  if (!handle) return result;

  result.settled = std::time(nullptr) - result.stamp->seconds > kStampGrainSeconds;
  result.AddAll(handle.get());
  result.names.shrink_to_fit();
  result.entries.shrink_to_fit();
  return result;
}

TCFolderNames TCFolderNames::Read(DIR* open) {
  TCFolderNames result;
  result.AddAll(open);
  return result;
}

void TCFolderNames::AddAll(DIR* open) {
  errno = 0;
  while (const dirent* entry = readdir(open)) Add(*entry);
  complete = errno == 0;
  std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) { return a.hash < b.hash; });
}

bool TCFolderNames::StillHolds(const std::string& folder) const {
  const std::optional<Stamp> now = StampOf(folder);
  return stamp == now && (settled || !now);
}

bool TCFolderNames::IsMissing(std::string_view name) const {
  return complete && IsAscii(name) && Matches(name).empty();
}

std::vector<std::string> TCFolderNames::Matches(std::string_view name) const {
  std::vector<std::string> matches;
  const std::optional<std::uint32_t> hash = FoldedHash(name);
  if (!hash) return matches;

  for (auto entry = Find(*hash); entry != entries.end() && entry->hash == *hash; ++entry) {
    const std::string_view found(names.c_str() + entry->offset);
    if (SameFolded(found, name)) matches.emplace_back(found);
  }
  std::sort(matches.begin(), matches.end(), [name](const std::string& a, const std::string& b) {
    return (a == name) != (b == name) ? a == name : a < b;
  });
  return matches;
}

std::optional<TCFolderNames::Stamp> TCFolderNames::StampOf(const std::string& folder) {
  struct stat status {};
  if (stat(NativeName(folder), &status) != 0) return std::nullopt;
  return Stamp{status.st_dev, status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

bool TCFolderNames::IsRegular(std::string_view name) const {
  const std::optional<std::uint32_t> hash = FoldedHash(name);
  if (!hash) return false;
  for (auto entry = Find(*hash); entry != entries.end() && entry->hash == *hash; ++entry) {
    if (names.c_str() + entry->offset == name) return entry->regular != 0;
  }
  return false;
}

TCFolderNames::Entries::const_iterator TCFolderNames::Find(std::uint32_t hash) const {
  return std::lower_bound(entries.begin(), entries.end(), hash,
                          [](const Entry& a, std::uint32_t b) { return a.hash < b; });
}

void TCFolderNames::Add(const dirent& listed) {
  const std::optional<std::uint32_t> hash = FoldedHash(listed.d_name);
  if (!hash) return;
  entries.push_back({*hash, static_cast<std::uint32_t>(names.size()) & kMaxOffset, listed.d_type == DT_REG});
  names.append(listed.d_name).push_back('\0');
}

}  // namespace brevant
