#include "document/option_prompts.h"

#include <array>

#include "resources/string_table.h"
#include "text/numbers.h"
#include "text/white_space.h"

namespace brevant {

namespace {

using NumberField = std::int32_t& (*)(TCAppRecord&);

struct NumberPrompt {
  TCCommandId command;
  TCTextPromptMode mode;
  TCTextId prompt;
  std::optional<TCTextId> explanation;
  NumberField field;
};

constexpr std::array kNumberPrompts = {
    NumberPrompt{TCCommandId::SongLatency, TCTextPromptMode::SongLatency, TCTextId::SongLatencyPrompt,
                 TCTextId::SongLatencyExplanation,
                 [](TCAppRecord& record) -> std::int32_t& { return record.setLists.songLatencySeconds; }},
    NumberPrompt{TCCommandId::VolumeStep, TCTextPromptMode::Property, TCTextId::VolumeStepPrompt,
                 TCTextId::VolumeStepExplanation,
                 [](TCAppRecord& record) -> std::int32_t& { return record.settings.volumeStep; }},
    NumberPrompt{TCCommandId::SeekStep, TCTextPromptMode::Property, TCTextId::SeekStepPrompt,
                 TCTextId::SeekStepExplanation,
                 [](TCAppRecord& record) -> std::int32_t& { return record.settings.seekStepSeconds; }},
    NumberPrompt{TCCommandId::PlaylistFontSize, TCTextPromptMode::Property, TCTextId::PlayListFontSizePrompt,
                 std::nullopt,
                 [](TCAppRecord& record) -> std::int32_t& { return record.settings.playListFontSize; }},
    NumberPrompt{TCCommandId::LyricsFontSize, TCTextPromptMode::Property, TCTextId::LyricsFontSizePrompt,
                 std::nullopt,
                 [](TCAppRecord& record) -> std::int32_t& { return record.settings.lyricsFontSize; }},
    NumberPrompt{TCCommandId::LyricLines, TCTextPromptMode::Property, TCTextId::LyricLinesPrompt,
                 std::nullopt,
                 [](TCAppRecord& record) -> std::int32_t& { return record.settings.numberLyricLines; }},
};

const NumberPrompt* NumberPromptOf(TCCommandId command) {
  for (const NumberPrompt& entry : kNumberPrompts) {
    if (entry.command == command) return &entry;
  }
  return nullptr;
}

bool AskForMediaTypes(TCAppRecord& record, TCPrompts& prompts) {
  std::u16string& types = record.setLists.validMediaExtensions;
  const auto answer = prompts.EnterText({TCTextPromptMode::Property, TextOf(TCTextId::MediaTypesPrompt),
                                         TextOf(TCTextId::MediaTypesExplanation), types});
  if (!answer || Trim(*answer).empty()) return false;
  types = Trim(*answer);
  return true;
}

}  // namespace

bool IsOptionPrompt(TCCommandId command) {
  return command == TCCommandId::MediaFileTypes || NumberPromptOf(command) != nullptr;
}

bool AskForOption(TCCommandId command, TCAppRecord& record, TCPrompts& prompts) {
  if (command == TCCommandId::MediaFileTypes) return AskForMediaTypes(record, prompts);
  const NumberPrompt* entry = NumberPromptOf(command);
  if (entry == nullptr) return false;
  const auto answer =
      prompts.EnterText({entry->mode, TextOf(entry->prompt),
                         entry->explanation ? TextOf(*entry->explanation) : std::u16string_view(),
                         FormatDecimal(entry->field(record))});
  const std::optional<std::int32_t> number = answer ? ReadDecimal(Trim(*answer)) : std::nullopt;
  if (number) entry->field(record) = *number;
  return number.has_value();
}

}  // namespace brevant
