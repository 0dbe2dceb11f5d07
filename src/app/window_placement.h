// Where the main window stood when it was closed, kept as the nine numbers of the section
// "MainWindowFrameLayout" in the layout file, and how large a window may be. TCMainFrame saves and restores
// it. The numbers and the screens are pure; only the last four functions touch a window or a file.
// User-interface thread only.
#pragma once

#include <QList>
#include <QRect>
#include <QSettings>
#include <QWidget>
#include <array>
#include <optional>

namespace brevant {

struct TCWindowPlacement {
  QRect normal;  // the window without the window manager's frame, as it is while it is not maximised
  bool maximised = false;
  friend bool operator==(const TCWindowPlacement&, const TCWindowPlacement&) = default;
};

// Show state (1 normal, 2 minimised, 3 maximised); top, left, bottom and right, the latter two being the
// first beyond the window; x and y of the minimised and of the maximised window, -1 where nobody knows.
using TCPlacementNumbers = std::array<int, 9>;

[[nodiscard]] TCPlacementNumbers ToNumbers(const TCWindowPlacement& placement);

// A window that was closed while minimised comes back to be seen. Nothing for another show state, and for a
// rectangle that holds nothing or lies beyond everything.
[[nodiscard]] std::optional<TCWindowPlacement> FromNumbers(const TCPlacementNumbers& numbers);

// `normal` itself where all of it can be seen, across two screens too; otherwise moved and, where it must be,
// made smaller, onto the screen that has the most of it or else the first. `screens` are what panels leave
// of them.
[[nodiscard]] QRect OnScreens(const QRect& normal, const QList<QRect>& screens);

// `wanted`, or as much of it as the screen that the window is on has room for, title bar and borders
// included.
[[nodiscard]] QSize SizeOnScreen(const QWidget& window, QSize wanted);

void SavePlacement(const QWidget& window, QSettings& layout);

// Nothing unless all nine numbers are there and make a placement.
[[nodiscard]] std::optional<TCWindowPlacement> SavedPlacement(const QSettings& layout);

// Before the window is shown: where it will stand. Afterwards it is maximised as well, if it was.
void PlaceWindow(QWidget& window, const TCWindowPlacement& placement);

}  // namespace brevant
