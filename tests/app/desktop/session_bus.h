// A bus of its own for a test, and one that never says a word.
#pragma once

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>

#include "support/child_process.h"

namespace brevant {

class TCSessionBus {
 public:
  TCSessionBus() {
    const std::string path = std::getenv("PATH") != nullptr ? std::getenv("PATH") : "/usr/bin";
    daemon =
        std::make_unique<TCChildProcess>(std::vector<std::string>{"dbus-daemon", "--session", "--nofork",
                                                                  "--nopidfile", "--address=" + Address()},
                                         std::vector<std::string>{"PATH=" + path}, "");
  }

  [[nodiscard]] bool ComesUp() const {
    return folder.isValid() &&
           QTest::qWaitFor([this] { return QFile::exists(folder.filePath(QStringLiteral("bus"))); });
  }

  [[nodiscard]] std::string Address() const {
    return "unix:path=" + folder.filePath(QStringLiteral("bus")).toStdString();
  }

 private:
  QTemporaryDir folder;
  std::unique_ptr<TCChildProcess> daemon;
};

// Lets everybody in and answers nobody.
class TCSilentBus {
 public:
  TCSilentBus() : handle(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    const std::string name = folder.filePath(QStringLiteral("bus")).toStdString();
    std::ranges::copy(name, static_cast<char*>(place.sun_path));
    listens = ::bind(handle, reinterpret_cast<const sockaddr*>(&place), sizeof(place)) == 0 &&
              ::listen(handle, 1) == 0;
  }
  ~TCSilentBus() { ::close(handle); }
  TCSilentBus(const TCSilentBus&) = delete;
  TCSilentBus& operator=(const TCSilentBus&) = delete;

  [[nodiscard]] bool Listens() const { return listens; }
  [[nodiscard]] std::string Address() const {
    return "unix:path=" + folder.filePath(QStringLiteral("bus")).toStdString() + ",guid=12";
  }

 private:
  QTemporaryDir folder;
  int handle;
  bool listens = false;
};

}  // namespace brevant
