// Where the tests' songs lie, as the model names them, and a player's rig without a sound device.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
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
