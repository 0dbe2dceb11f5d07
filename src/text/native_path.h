// Turns the model's Windows paths into the system's own and back. The only place that knows the difference.
// Immutable after construction, so any thread may use one.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace brevant {

class TCNativePaths {
 public:
  // Drive letter (upper case) to the native folder that stands for it, with or without a trailing slash. An
  // empty folder stands for nothing.
  using DriveFolders = std::map<char, std::string>;

  TCNativePaths() = default;
  explicit TCNativePaths(DriveFolders drives);

  // The system's name for `path`: `\` becomes `/`, a drive letter its folder. A drive that no folder stands
  // for is left as it is written ("D:/..."), which names nothing. A zero or a lone surrogate gives the empty
  // name, which names nothing either.
  [[nodiscard]] std::string ToNative(std::u16string_view path) const;

  // The model's name for a file chosen, dropped or named on the command line: `/home/me/a.mp3` is
  // `\home\me\a.mp3`. Empty when the model cannot hold it: a backslash, double quote or line break inside a
  // name, bytes that are not UTF-8, or a relative name that begins like a drive.
  [[nodiscard]] static std::optional<std::u16string> FromNative(std::string_view native);

 private:
  DriveFolders drives;
};

}  // namespace brevant
