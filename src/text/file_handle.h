// An open file of the system's, closed when it goes out of scope.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <cstddef>
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

  // At most `size` bytes from where the last call left off, as read(2) answers: how many came, 0 at the end,
  // -1 with errno when it failed. A signal does not break it off.
  [[nodiscard]] ssize_t Read(char* bytes, std::size_t size) const {
    while (true) {
      const ssize_t got = read(file, bytes, size);
      if (got >= 0 || errno != EINTR) return got;
    }
  }

  // False when the system reports that something written before did not reach the disk.
  [[nodiscard]] bool Close() { return close(std::exchange(file, -1)) == 0; }

 private:
  int file = -1;
};

}  // namespace brevant
