// The songs that the build makes for the player's tests, as the system and as the model names them, and a way
// to wait for the player.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <thread>

#include "text/native_path.h"

namespace brevant {

inline std::filesystem::path SongFile(const std::string& name) {
  return std::filesystem::path(BREVANT_TEST_SONGS) / name;
}

inline std::u16string UrlOf(const std::filesystem::path& file) {
  return TCNativePaths::FromNative(file.string()).value_or(u"");
}

inline std::u16string SongUrl(const std::string& name) {
  return UrlOf(SongFile(name));
}

inline std::string BytesOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  EXPECT_TRUE(stream.is_open()) << file;
  return {std::istreambuf_iterator<char>(stream), {}};
}

// Polls `condition` until it holds; false when it does not within `seconds`.
inline bool AwaitReally(const std::function<bool()>& condition, double seconds) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
  while (!condition()) {
    if (std::chrono::steady_clock::now() >= deadline) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

}  // namespace brevant
