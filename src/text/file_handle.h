// An open file of the system's, closed when it goes out of scope.
#pragma once

#include <unistd.h>

#include <utility>

namespace brevant {

class TCFileHandle {
 public:
  TCFileHandle() = default;
  explicit TCFileHandle(int openFile) : file(openFile) {}
  TCFileHandle(TCFileHandle&& other) noexcept : file(std::exchange(other.file, -1)) {}
  TCFileHandle& operator=(TCFileHandle&& other) noexcept {
    std::swap(file, other.file);
    return *this;
  }
  ~TCFileHandle() {
    if (file >= 0) close(file);
  }

  [[nodiscard]] bool IsOpen() const { return file >= 0; }
  [[nodiscard]] int Get() const { return file; }

  // False when the system reports that something written before did not reach the disk.
  [[nodiscard]] bool Close() { return close(std::exchange(file, -1)) == 0; }

 private:
  int file = -1;
};

}  // namespace brevant
