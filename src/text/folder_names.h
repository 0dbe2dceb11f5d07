// The names in one folder as they stood when it was read, found again without regard to case. Part of the
// search for files in other upper and lower case.
#pragma once

#include <dirent.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brevant {

class TCFolderNames {
 public:
  // Reads the folder ("" is the working folder). No names when it cannot be read. Names that are not UTF-8
  // have no upper and lower case and are passed over.
  [[nodiscard]] static TCFolderNames Read(const std::string& folder);

  // The names of an open folder, for a moment: StillHolds of these is always false.
  [[nodiscard]] static TCFolderNames Read(DIR* open);

  // True when the folder has certainly not changed since. A folder that was changed shortly before it was
  // read may have changed again within the same tick of its time stamp: it counts as changed.
  [[nodiscard]] bool StillHolds(const std::string& folder) const;

  // The names equal to `name` without regard to case: `name` itself first, the others in byte order.
  [[nodiscard]] std::vector<std::string> Matches(std::string_view name) const;

  // True when Matches would give nothing, and no other spelling of `name` can stand for it either: a disk may
  // hold letters outside ASCII in several forms for the same.
  [[nodiscard]] bool IsMissing(std::string_view name) const;

  // True when this very name was listed as a regular file. Some disks do not say what their names stand for.
  [[nodiscard]] bool IsRegular(std::string_view name) const;

  // False when the folder could not be read to its end: then there may be names that are not in here.
  [[nodiscard]] bool Complete() const { return complete; }

  [[nodiscard]] std::size_t Count() const { return entries.size(); }

 private:
  // Which folder this is and when it last changed.
  struct Stamp {
    std::uint64_t device = 0;
    std::uint64_t node = 0;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;

    friend bool operator==(const Stamp&, const Stamp&) = default;
  };
  struct Entry {
    std::uint32_t hash = 0;         // of the folded name
    std::uint32_t offset : 31 = 0;  // into `names`
    std::uint32_t regular : 1 = 0;  // listed as a regular file
  };
  using Entries = std::vector<Entry>;

  [[nodiscard]] static std::optional<Stamp> StampOf(const std::string& folder);
  void AddAll(DIR* open);
  void Add(const dirent& listed);
  // Where the names of that hash begin.
  [[nodiscard]] Entries::const_iterator Find(std::uint32_t hash) const;

  // A folder may hold a hundred thousand files: one text and eight bytes a name, sorted by hash.
  std::string names;
  Entries entries;
  std::optional<Stamp> stamp;
  bool settled = false;
  bool complete = false;
};

}  // namespace brevant
