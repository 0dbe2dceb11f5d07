#include "app/desktop/bus_probe.h"

#include <gtest/gtest.h>

#include <optional>

#include "app/desktop/session_bus.h"

namespace brevant {
namespace {

using std::chrono::milliseconds;

constexpr const char* kVariable = "DBUS_SESSION_BUS_ADDRESS";

// Puts the variable back as it was.
class TCVariable {
 public:
  explicit TCVariable(const std::string& value) {
    if (const char* old = std::getenv(kVariable)) before = old;
    ::setenv(kVariable, value.c_str(), 1);
  }
  ~TCVariable() { before ? ::setenv(kVariable, before->c_str(), 1) : ::unsetenv(kVariable); }
  TCVariable(const TCVariable&) = delete;
  TCVariable& operator=(const TCVariable&) = delete;

 private:
  std::optional<std::string> before;
};

TEST(BusProbe, ABusThatAnswersIsNotSilent) {
  const TCSessionBus bus;
  ASSERT_TRUE(bus.ComesUp());
  EXPECT_TRUE(BusIsNotSilent(bus.Address(), std::chrono::seconds(20)));
}

TEST(BusProbe, OneThatLetsEverybodyInAndSaysNothingIsSilent) {
  const TCSilentBus bus;
  ASSERT_TRUE(bus.Listens());
  EXPECT_FALSE(BusIsNotSilent(bus.Address(), milliseconds(50)));
}

TEST(BusProbe, OneWhoseDoorIsCrowdedIsSilentToo) {
  const TCSilentBus bus;
  ASSERT_TRUE(bus.Listens());
  std::vector<int> waiting;
  for (int i = 0; i < 8; ++i) {
    waiting.push_back(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    const std::string name = bus.Address().substr(10, bus.Address().find(',') - 10);
    std::ranges::copy(name, static_cast<char*>(place.sun_path));
    ::connect(waiting.back(), reinterpret_cast<const sockaddr*>(&place), sizeof(place));
  }
  EXPECT_FALSE(BusIsNotSilent(bus.Address(), milliseconds(50)));
  for (const int handle : waiting) ::close(handle);
}

TEST(BusProbe, WhereNobodyIsOrNoSocketTheToolkitIsLeftToFindOut) {
  for (const char* address :
       {"", "disabled:", "unix:path=/nowhere/bus", "tcp:host=localhost,port=1", "unix:"}) {
    EXPECT_TRUE(BusIsNotSilent(address, milliseconds(50))) << address;
  }
}

TEST(BusProbe, OnlyASilentBusIsLeftOut) {
  {
    const TCSilentBus bus;
    const TCVariable variable(bus.Address());
    LeaveOutASilentBus();
    EXPECT_STREQ(std::getenv(kVariable), "disabled:");
  }
  const TCSessionBus bus;
  ASSERT_TRUE(bus.ComesUp());
  const TCVariable variable(bus.Address());
  LeaveOutASilentBus();
  EXPECT_EQ(std::getenv(kVariable), bus.Address());
}

}  // namespace
}  // namespace brevant
