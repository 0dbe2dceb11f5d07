// The questions the document asks the user. Tests answer them from a queue.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brevant {

class TCAddPlayItems;
class TCSongPropertiesForm;

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

enum class TCChooseFiles { One, Several };

struct TCMediaFileQuestion {
  TCChooseFiles count = TCChooseFiles::Several;
  std::vector<std::u16string> types;  // without dots; all others are hidden at first
  std::u16string defaultType;         // may be empty
  std::u16string initialPath;         // of the file chosen last; may be empty
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
  // Model paths in the order of the chooser, without names that the model cannot hold, which may leave none;
  // empty when the user cancelled.
  [[nodiscard]] virtual std::optional<std::vector<std::u16string>> ChooseMediaFiles(
      const TCMediaFileQuestion& question) = 0;

  // A question with Yes and No; true is Yes.
  [[nodiscard]] virtual bool ConfirmRemove(std::u16string_view question) = 0;

  // The two larger dialogs show a form and work on it; true when they were closed with OK.
  [[nodiscard]] virtual bool EditSetLists(TCAddPlayItems& form) = 0;
  [[nodiscard]] virtual bool EditSongProperties(TCSongPropertiesForm& form) = 0;
};

}  // namespace brevant
