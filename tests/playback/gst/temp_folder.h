// A folder that is gone after the test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace brevant {

class TCTempFolder {
 public:
  TCTempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "player-XXXXXX").string();
    path = mkdtemp(pattern.data());
  }
  ~TCTempFolder() { std::filesystem::remove_all(path); }
  TCTempFolder(const TCTempFolder&) = delete;
  TCTempFolder& operator=(const TCTempFolder&) = delete;

  std::filesystem::path Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path / name, std::ios::binary) << bytes;
    return path / name;
  }

  std::filesystem::path path;
};

inline std::string BytesOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace brevant
