// The questions the document asks the user. Tests answer them from a queue.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brevant {

enum class TCSaveAnswer { Save, Discard, Cancel };

class TCPrompts {
 public:
  virtual ~TCPrompts() = default;

  // Before unsaved changes would be lost. `name` is the document's file name, empty for a new one.
  [[nodiscard]] virtual TCSaveAnswer AskSaveChanges(std::u16string_view name) = 0;
  // Model paths; empty when the user cancelled or chose a name that the model cannot hold.
  [[nodiscard]] virtual std::optional<std::u16string> ChooseDocumentToOpen() = 0;
  [[nodiscard]] virtual std::optional<std::u16string> ChooseDocumentToSave(
      std::u16string_view suggestedPath) = 0;
};

}  // namespace brevant
