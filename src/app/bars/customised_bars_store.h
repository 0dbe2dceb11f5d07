// The user's bars and keys in the layout file, in the group "CommandBars". Only what is not as delivered is
// written, so that what a later version delivers is seen by everybody who has not changed it.
#pragma once

#include <QSettings>

#include "resources/customised_bars.h"

namespace brevant {

void SaveCustomisedBars(const TCCustomisedBars& bars, QSettings& layout);

// What is not there, or makes no sense, is as delivered: the keys of that command, that bar, that option.
[[nodiscard]] TCCustomisedBars LoadCustomisedBars(const QSettings& layout);

}  // namespace brevant
