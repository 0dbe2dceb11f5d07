// A disk that hangs, for the whole test program: whoever opens the file waits until this object goes.
#pragma once

#include <filesystem>

namespace brevant {

// One at a time.
class TCHangingDisk {
 public:
  // The first `goodOpens` opens of `file` still succeed.
  explicit TCHangingDisk(const std::filesystem::path& file, int goodOpens = 0);
  // Returns when everybody who waited has gone on.
  ~TCHangingDisk();
  TCHangingDisk(const TCHangingDisk&) = delete;
  TCHangingDisk& operator=(const TCHangingDisk&) = delete;

  // How many threads hang.
  [[nodiscard]] int Waiting() const;
  // How often the file was opened without hanging.
  [[nodiscard]] int GoodOpens() const;
};

}  // namespace brevant
