#include "document/option_commands.h"

#include <array>

namespace brevant {

namespace {

struct OptionCommand {
  TCCommandId command;
  bool (*isOn)(const TCSettings&);
  void (*invert)(TCSettings&);
};

template <auto Option>
constexpr OptionCommand Toggle(TCCommandId command) {
  return {command, [](const TCSettings& settings) { return static_cast<bool>(settings.*Option); },
          [](TCSettings& settings) { settings.*Option = !(settings.*Option); }};
}

constexpr std::array kOptionCommands = {
    Toggle<&TCSettings::autoSongAdvance>(TCCommandId::AutoSongAdvance),
    Toggle<&TCSettings::autoPlayPlayList>(TCCommandId::AutoPlayPlayList),
    Toggle<&TCSettings::autoRecycle>(TCCommandId::AutoRecycle),
    // With the two colours that follow it.
    OptionCommand{TCCommandId::WhiteOnBlack, [](const TCSettings& settings) { return settings.whiteOnBlack; },
                  [](TCSettings& settings) { settings.SetWhiteOnBlack(!settings.whiteOnBlack); }},
    Toggle<&TCSettings::dynamicPlayColours>(TCCommandId::DynamicPlayColours),
    Toggle<&TCSettings::immediatePlay>(TCCommandId::ImmediatePlay),
    Toggle<&TCSettings::playlistManagerImmediatePlay>(TCCommandId::PlaylistManagerImmediatePlay),
    Toggle<&TCSettings::confirmFileRemove>(TCCommandId::ConfirmFileRemove),
    Toggle<&TCSettings::disableEditing>(TCCommandId::DisableEditing),
    Toggle<&TCSettings::foldersSaveFormat>(TCCommandId::FoldersSaveFormat),
    Toggle<&TCSettings::loadLastFileOnProgramRun>(TCCommandId::LoadLastFile),
    Toggle<&TCSettings::loadLastWindowState>(TCCommandId::LoadLastWindowState),
    OptionCommand{TCCommandId::Reset, [](const TCSettings& settings) { return settings.resetPending; },
                  [](TCSettings& settings) { settings.ToggleReset(); }},
};

const OptionCommand* OptionOf(TCCommandId command) {
  for (const OptionCommand& entry : kOptionCommands) {
    if (entry.command == command) return &entry;
  }
  return nullptr;
}

}  // namespace

bool IsOptionCommand(TCCommandId command) {
  return OptionOf(command) != nullptr;
}

bool IsOptionOn(TCCommandId command, const TCSettings& settings) {
  const OptionCommand* entry = OptionOf(command);
  return entry != nullptr && entry->isOn(settings);
}

void InvertOption(TCCommandId command, TCSettings& settings) {
  if (const OptionCommand* entry = OptionOf(command)) entry->invert(settings);
}

}  // namespace brevant
