#include "app/desktop/command_line.h"

#include <filesystem>

#include "text/native_path.h"

namespace brevant {

TCCommandLine ReadCommandLine(const std::vector<std::string_view>& arguments) {
  TCCommandLine line;
  bool onlyNames = false;
  for (const std::string_view argument : arguments) {
    if (onlyNames || argument.empty() || argument.front() != '-' || argument == "-") {
      if (!line.file && !argument.empty()) line.file = std::string(argument);
    } else if (argument == "--") {
      onlyNames = true;
    } else if (argument == "--help" || argument == "-h") {
      return {TCLaunchWish::ShowHelp, {}};
    } else if (argument == "--version" || argument == "-v") {
      return {TCLaunchWish::ShowVersion, {}};
    } else {
      line.wish = TCLaunchWish::Refuse;
    }
  }
  return line;
}

std::string AbsoluteNameOf(std::string_view file, std::string_view workingFolder) {
  // "./show.brv" and "show.brv" are one file and get one name. ".." is left to the system: behind a linked
  // folder it leads elsewhere than its text says.
  std::filesystem::path path;
  for (const std::filesystem::path& part : std::filesystem::path(workingFolder) / file) {
    if (part != ".") path /= part;
  }
  return path.native();
}

std::optional<std::u16string> ModelPathOf(std::string_view file, std::string_view workingFolder) {
  return TCNativePaths::FromNative(AbsoluteNameOf(file, workingFolder));
}

std::string_view UsageText() {
  return "Usage: brevant [FILE.brv]\n"
         "Plays set lists on stage. Without FILE it opens the document of the last run.\n"
         "While the program runs, a second start has it open FILE or come to the front.\n"
         "\n"
         "  -h, --help     show this text\n"
         "  -v, --version  show the version\n";
}

}  // namespace brevant
