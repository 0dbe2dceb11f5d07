// A folder on the real disk for one test, removed with everything in it afterwards.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "text/native_path.h"

namespace brevant {

class TCTempFolder {
 public:
  TCTempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "brevant-test-XXXXXX").string();
    const char* made = mkdtemp(pattern.data());
    EXPECT_NE(made, nullptr) << pattern;
    // Through any link in the way to it, so that names compare.
    if (made != nullptr) folder = std::filesystem::canonical(made).string();
  }
  TCTempFolder(const TCTempFolder&) = delete;
  TCTempFolder& operator=(const TCTempFolder&) = delete;
  ~TCTempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }

  // The system's name and the model's name of something in the folder; `name` uses slashes.
  [[nodiscard]] std::string Native(std::string_view name) const { return folder + "/" + std::string(name); }
  [[nodiscard]] std::u16string Model(std::string_view name) const {
    return TCNativePaths::FromNative(Native(name)).value_or(u"no name the model can hold");
  }

  // Makes the file and the folders above it. The file's native name.
  std::string Write(std::string_view name, std::string_view bytes = {}) const {
    const std::filesystem::path path = Native(name);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    file.close();
    EXPECT_TRUE(file.good()) << path;
    return path.string();
  }
  void MakeFolder(std::string_view name) const { std::filesystem::create_directories(Native(name)); }

  [[nodiscard]] std::string Read(std::string_view name) const {
    std::ifstream file(Native(name), std::ios::binary);
    EXPECT_TRUE(file.is_open()) << name;
    return {std::istreambuf_iterator<char>(file), {}};
  }

  // What stands directly in the folder, sorted.
  [[nodiscard]] std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  std::string folder;
};

// For as long as it lives, the process is an ordinary user, whom permissions bind; root is bound by none.
class TCOrdinaryUser {
 public:
  TCOrdinaryUser() {
    constexpr uid_t kNobody = 65534;
    if (wasRoot) {
      EXPECT_EQ(seteuid(kNobody), 0);
    }
  }
  TCOrdinaryUser(const TCOrdinaryUser&) = delete;
  TCOrdinaryUser& operator=(const TCOrdinaryUser&) = delete;
  ~TCOrdinaryUser() {
    if (wasRoot) {
      EXPECT_EQ(seteuid(0), 0);
    }
  }

 private:
  bool wasRoot = geteuid() == 0;
};

}  // namespace brevant
