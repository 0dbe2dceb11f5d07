// Which page of the user guide tells about which part of the program. Used by TCHelp.
#pragma once

#include <QString>
#include <QWidget>
#include <span>
#include <string_view>

#include "resources/command_id.h"

namespace brevant {

inline constexpr const char* kContentsPage = "README.md";

// A part of a window, by its object name.
struct TCGuidePlace {
  std::string_view objectName;
  std::string_view page;  // of the guide, with a heading's anchor or without
};

[[nodiscard]] std::span<const TCGuidePlace> GuidePlaces();

// The page of the innermost part that `widget` stands in; the contents for null and where no part has one.
[[nodiscard]] QString GuidePageOf(const QWidget* widget);

// The page of a command, or else of the menu it is in.
[[nodiscard]] QString GuidePageOf(TCCommandId command);

}  // namespace brevant
