// Finds what stands on the disk under a name that differs in upper and lower case only, in the file's name or
// in any folder above it. Used behind TCDiskFiles and FindRegularFile; one thread at a time.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "text/folder_names.h"

namespace brevant {

class TCOtherCase {
 public:
  using Clock = std::function<std::chrono::steady_clock::time_point()>;

  // How long a folder's names are taken as they were read. After that they count as long as the folder's time
  // stamp has not moved.
  static constexpr std::chrono::seconds kTrust{1};

  explicit TCOtherCase(Clock clock = std::chrono::steady_clock::now);

  // The native names of everything that is `native` but for upper and lower case, `native` itself included if
  // it is there; the nearest first. Usually none.
  [[nodiscard]] std::vector<std::string> Find(std::string_view native);

  // True when whatever is asked about in `folder` (no trailing slash) can only mean what stands in it:
  // neither it nor a folder above it has a like in other case beside it. False also when the folders above
  // cannot say.
  [[nodiscard]] bool StandsAlone(std::string_view folder);

  // For after a change that this program made itself.
  void Forget();

 private:
  struct HashText {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  };
  template <class Value>
  using MapByName = std::unordered_map<std::string, Value, HashText, std::equal_to<>>;

  using Moment = std::chrono::steady_clock::time_point;

  struct Folder {
    std::string path;
    TCFolderNames names;
    Moment checked;
  };
  // The folders that a folder's name as written can mean: itself, and its likes in other case.
  struct Meaning {
    std::vector<Folder*> folders;
    Moment checked;
  };

  void MakeRoomFor(std::string_view folder);
  Folder& Remember(std::string path, Moment now);
  void Check(Folder& folder, Moment now);
  const Meaning& MeaningOf(std::string_view written, Moment now);
  [[nodiscard]] std::vector<std::string> ReadMeaning(std::string_view written, Moment now);

  Clock clock;
  MapByName<Folder> foldersByPath;  // a map whose elements stay where they are: meanings point to them
  MapByName<Meaning> meanings;
  std::size_t nameCount = 0;  // in all folders
};

}  // namespace brevant
