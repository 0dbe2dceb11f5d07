// Files as the desktop names them, in what is dropped and what is said on the bus: "file:///a%20b.brv". Not
// by way of the toolkit's file names, which hold no byte that is not UTF-8. Pure functions.
#pragma once

#include <QString>
#include <string>

namespace brevant {

// Of an absolute native name, whatever bytes it holds.
[[nodiscard]] QString FileAddress(const std::string& nativeName);

// And back, byte for byte; empty for an address that is no file of this machine.
[[nodiscard]] std::string FileNameOf(const QString& address);

}  // namespace brevant
