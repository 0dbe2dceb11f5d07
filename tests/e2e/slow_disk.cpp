// A disk that takes its time, for the program that this library is loaded into: whoever waits until a file
// below the folder BREVANT_SLOW_FOLDER is on the disk waits BREVANT_SLOW_SECONDS longer.
#include <dlfcn.h>
#include <limits.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>

namespace {

bool IsSlow(int file) {
  const char* folder = std::getenv("BREVANT_SLOW_FOLDER");
  if (folder == nullptr) return false;
  std::array<char, PATH_MAX> name{};
  const ssize_t length =
      readlink(("/proc/self/fd/" + std::to_string(file)).c_str(), name.data(), name.size());
  return length > 0 && std::string_view(name.data(), static_cast<std::size_t>(length))
                           .starts_with(std::string_view(folder));
}

}  // namespace

extern "C" int fsync(int file) {
  using Function = int (*)(int);
  static const auto next = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "fsync"));
  const char* seconds = std::getenv("BREVANT_SLOW_SECONDS");
  if (seconds != nullptr && IsSlow(file))
    std::this_thread::sleep_for(std::chrono::duration<double>(std::atof(seconds)));
  return next(file);
}
