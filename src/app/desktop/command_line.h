// The command line: one file name, or a question about the program itself. Read by main() before anything
// else stands; pure functions over what the system handed over.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brevant {

enum class TCLaunchWish {
  Run,
  ShowHelp,
  ShowVersion,
  Refuse,  // an option that is none
};

struct TCCommandLine {
  TCLaunchWish wish = TCLaunchWish::Run;
  // As typed, in the system's own bytes; empty when no file was named.
  std::optional<std::string> file;
};

// `arguments` without the program's name. The first name is the file, further ones are ignored; what follows
// "--" is a name whatever it begins with.
[[nodiscard]] TCCommandLine ReadCommandLine(const std::vector<std::string_view>& arguments);

// The model path of a file named on the command line, relative names seen from `workingFolder`. Empty when
// the model cannot hold the name.
[[nodiscard]] std::optional<std::u16string> ModelPathOf(std::string_view file,
                                                        std::string_view workingFolder);

// The absolute name of that file, in the system's own bytes.
[[nodiscard]] std::string AbsoluteNameOf(std::string_view file, std::string_view workingFolder);

// What the program answers to --help.
[[nodiscard]] std::string_view UsageText();

}  // namespace brevant
