// Whether the session's bus is one that answers. The toolkit itself reaches for the bus when it starts and
// would wait there for ever, so this is asked before it stands. Used by main().
#pragma once

#include <chrono>
#include <string>

namespace brevant {

// False when somebody listens at `address` (as DBUS_SESSION_BUS_ADDRESS has it) and says nothing to a
// greeting for as long as `patience`. True for a bus that answers, and for every other case: nobody there, or
// a transport that is not a socket of this machine; the toolkit notices those by itself.
[[nodiscard]] bool BusIsNotSilent(const std::string& address, std::chrono::milliseconds patience);

// Has the whole process do without the session's bus if that one is silent.
void LeaveOutASilentBus();

}  // namespace brevant
