// The libraries that the program stands on, with the versions found at run time. Used by the About box.
#pragma once

#include <QStringList>

namespace brevant {

// "Name version" each.
[[nodiscard]] QStringList LibraryNames();

}  // namespace brevant
