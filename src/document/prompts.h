// The questions the document asks the user. Tests answer them from a queue.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brevant {

enum class TCSaveAnswer { Save, Discard, Cancel };

// Picks the text prompt's title.
enum class TCTextPromptMode : std::int32_t {
  CreateGroup = 0,
  CreateSetList = 1,
  SongLatency = 2,
  Property = 3
};

struct TCTextPrompt {
  TCTextPromptMode mode = TCTextPromptMode::Property;
  std::u16string_view prompt;
  std::u16string_view example;  // or an explanation; may be empty
  std::u16string text;          // what stands in the field at first
};

class TCPrompts {
 public:
  virtual ~TCPrompts() = default;

  // The text as the user typed it, neither trimmed nor checked; empty when the prompt was cancelled.
  [[nodiscard]] virtual std::optional<std::u16string> EnterText(const TCTextPrompt& prompt) = 0;

  // Before unsaved changes would be lost. `name` is the document's file name, empty for a new one.
  [[nodiscard]] virtual TCSaveAnswer AskSaveChanges(std::u16string_view name) = 0;
  // Model paths; empty when the user cancelled or chose a name that the model cannot hold.
  [[nodiscard]] virtual std::optional<std::u16string> ChooseDocumentToOpen() = 0;
  [[nodiscard]] virtual std::optional<std::u16string> ChooseDocumentToSave(
      std::u16string_view suggestedPath) = 0;
};

}  // namespace brevant
