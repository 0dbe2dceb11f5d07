#include "app/desktop/bus_probe.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace brevant {
namespace {

constexpr std::chrono::milliseconds kPatience(250);
constexpr const char* kVariable = "DBUS_SESSION_BUS_ADDRESS";
// An address of no transport there is: whoever tries it is refused at once.
constexpr const char* kNoBus = "disabled:";

// What stands behind `key` in "unix:path=/run/bus,guid=1".
std::optional<std::string> ValueOf(std::string_view address, std::string_view key) {
  const std::size_t at = address.find(key);
  if (at == std::string_view::npos) return {};
  const std::string_view value = address.substr(at + key.size());
  return std::string(value.substr(0, value.find_first_of(",;")));
}

// The name of the socket; an abstract one begins with a zero byte. Empty for another transport.
std::string SocketName(std::string_view address) {
  const std::string_view first = address.substr(0, address.find(';'));
  if (!first.starts_with("unix:")) return {};
  if (std::optional<std::string> path = ValueOf(first, "path=")) return *path;
  if (std::optional<std::string> name = ValueOf(first, "abstract=")) return '\0' + *name;
  return {};
}

class TCSocket {
 public:
  TCSocket() : handle(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {}
  ~TCSocket() {
    if (handle >= 0) ::close(handle);
  }
  TCSocket(const TCSocket&) = delete;
  TCSocket& operator=(const TCSocket&) = delete;

  enum class TCReached { No, Yes, Crowded };
  [[nodiscard]] TCReached Connect(const std::string& name) const {
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    if (handle < 0 || name.empty() || name.size() >= sizeof(place.sun_path)) return TCReached::No;
    std::ranges::copy(name, static_cast<char*>(place.sun_path));
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size());
    if (::connect(handle, reinterpret_cast<const sockaddr*>(&place), length) == 0) return TCReached::Yes;
    return errno == EAGAIN ? TCReached::Crowded : TCReached::No;
  }

  [[nodiscard]] bool Say(std::string_view words) const {
    return ::send(handle, words.data(), words.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(words.size());
  }

  // Something can be read, or the other side has hung up.
  [[nodiscard]] bool Hears(std::chrono::milliseconds patience) const {
    pollfd wanted{handle, POLLIN, 0};
    return ::poll(&wanted, 1, static_cast<int>(patience.count())) > 0;
  }

 private:
  int handle;
};

}  // namespace

bool BusIsNotSilent(const std::string& address, std::chrono::milliseconds patience) {
  const TCSocket socket;
  switch (socket.Connect(SocketName(address))) {
    case TCSocket::TCReached::No:
      return true;
    case TCSocket::TCReached::Crowded:
      return false;  // so many wait already that nobody is let in
    case TCSocket::TCReached::Yes:
      break;
  }
  // Every bus answers a question for the ways to sign in.
  using namespace std::string_view_literals;
  return !socket.Say("\0AUTH\r\n"sv) || socket.Hears(patience);
}

void LeaveOutASilentBus() {
  const char* address = std::getenv(kVariable);
  if (address != nullptr && !BusIsNotSilent(address, kPatience)) ::setenv(kVariable, kNoBus, 1);
}

}  // namespace brevant
