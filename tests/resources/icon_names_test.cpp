#include "resources/icons/icon_names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "resources/command_bars.h"
#include "resources/command_table.h"

namespace brevant {
namespace {

namespace fs = std::filesystem;

const fs::path kIcons = fs::path(BREVANT_ICONS);

std::string ReadFile(const fs::path& path) {
  std::ifstream file(path);
  EXPECT_TRUE(file.is_open()) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

std::set<std::string> NamesInUse() {
  std::set<std::string> names = {std::string(kRowIcon),       std::string(kBarMoreIcon),
                                 std::string(kPaneFloatIcon), std::string(kPaneCloseIcon),
                                 std::string(kVolumeIcon),    std::string(kPressedCursor),
                                 std::string(kRowCursor),     std::string(kDragCursor),
                                 std::string(kBusyCursor),    std::string(kProgramIcon)};
  for (const std::string_view name : kTreeIcons) names.emplace(name);
  for (const TCCommand& command : Commands()) {
    const std::string_view name = IconName(command.id);
    if (!name.empty()) names.emplace(name);
  }
  return names;
}

std::set<std::string> PictureFiles() {
  std::set<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(kIcons)) {
    if (entry.path().extension() == ".svg") names.insert(entry.path().stem().string());
  }
  return names;
}

// Every value of an attribute like stroke="..." in a picture.
std::set<std::string> Values(const std::string& picture, const std::string& attribute) {
  std::set<std::string> values;
  const std::string opening = " " + attribute + "=\"";
  for (std::size_t at = picture.find(opening); at != std::string::npos; at = picture.find(opening, at)) {
    at += opening.size();
    values.insert(picture.substr(at, picture.find('"', at) - at));
  }
  return values;
}

TEST(IconNames, GiveEveryButtonAPicture) {
  for (const TCCommandBar& bar : CommandBars()) {
    for (const TCCommandId id : bar.items) {
      if (id != TCCommandId::None && !IsTimeField(id)) {
        EXPECT_NE(IconName(id), "") << static_cast<int>(id);
      }
    }
  }
}

TEST(IconNames, GiveNoTwoCommandsTheSamePicture) {
  std::set<std::string_view> seen;
  for (const TCCommand& command : Commands()) {
    const std::string_view name = IconName(command.id);
    EXPECT_TRUE(name.empty() || seen.insert(name).second) << name;
  }
}

TEST(IconNames, AreEmptyForWhatHasNoPicture) {
  EXPECT_EQ(IconName(TCCommandId::Exit), "");
  EXPECT_EQ(IconName(TCCommandId::None), "");
  EXPECT_EQ(IconName(TCCommandId::RepeatBeginField), "");
}

TEST(IconNames, AreThePictureFilesAllOfThemAndNoOthers) {
  EXPECT_EQ(NamesInUse(), PictureFiles());
}

TEST(IconNames, AreAllCompiledIn) {
  const std::string list = ReadFile(kIcons / "icons.qrc");
  for (const std::string& name : PictureFiles()) {
    EXPECT_NE(list.find("<file>" + name + ".svg</file>"), std::string::npos) << name;
  }
  EXPECT_EQ(IconResource("play"), ":/icons/play.svg");
  EXPECT_NE(list.find("prefix=\"/icons\""), std::string::npos);
}

TEST(Icons, AreDrawnInTheOneColourThatCanBeReplaced) {
  const std::set<std::string> allowed = {std::string(kIconColour), "none"};
  for (const std::string& name : PictureFiles()) {
    if (name == kProgramIcon) continue;
    std::set<std::string> allowedHere = allowed;
    if (name.starts_with("cursor_")) allowedHere.insert("#ffffff");
    const std::string picture = ReadFile(kIcons / (name + ".svg"));
    for (const char* const attribute : {"stroke", "fill"}) {
      const std::set<std::string> used = Values(picture, attribute);
      EXPECT_TRUE(std::ranges::includes(allowedHere, used)) << name << " " << attribute;
    }
    EXPECT_TRUE(Values(picture, "stroke").contains(std::string(kIconColour))) << name;
  }
}

TEST(Icons, HaveTheSizesTheirPlacesExpect) {
  for (const std::string& name : PictureFiles()) {
    std::string width = "24";
    std::string height = "24";
    if (name.starts_with("tree_")) {
      width = "23";
      height = "19";
    } else if (name.starts_with("cursor_")) {
      width = height = "32";
    } else if (name == kProgramIcon) {
      width = height = "128";
    }
    const std::string size = "width=\"" + width + "\" height=\"" + height + "\"";
    EXPECT_NE(ReadFile(kIcons / (name + ".svg")).find(size), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace brevant
