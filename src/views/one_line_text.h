// Names as a row or node shows them. A damaged file may hold a name of a million characters or with line
// breaks inside.
#pragma once

#include <QString>
#include <QStringView>

namespace brevant {

// Cut to what any window could show of one line, with a blank in place of whatever would break the line.
[[nodiscard]] QString OneLineText(QStringView text);

}  // namespace brevant
