// The document's questions as dialogs over the main window. One at a time: whoever asks while another
// question is open, by a key pressed twice or through a screen reader, gets the answer of a user who cancels.
// Songs play on and the document's tick goes on behind a question.
#pragma once

#include "app/main_frame.h"
#include "document/prompts.h"
#include "model/set_list_store.h"
#include "text/native_path.h"

class QDialog;
class QFileDialog;

namespace brevant {

class TCQtPrompts final : public TCPrompts {
 public:
  // The choosers start in the folder of the document that the set lists were opened from or saved to last.
  TCQtPrompts(TCMainFrame& mainFrame, const TCSetListStore& setListStore, TCNativePaths nativePaths);

  [[nodiscard]] std::optional<std::u16string> EnterText(const TCTextPrompt& prompt) override;
  [[nodiscard]] TCSaveAnswer AskSaveChanges(std::u16string_view name) override;
  [[nodiscard]] std::optional<std::u16string> ChooseDocumentToOpen() override;
  [[nodiscard]] std::optional<std::u16string> ChooseDocumentToSave(
      std::u16string_view suggestedPath) override;

 private:
  void SetUp(QFileDialog& dialog) const;
  // What the dialog ends with; cancelled at once while another question is open.
  int Run(QDialog& dialog);
  [[nodiscard]] std::optional<std::u16string> Choose(QFileDialog& dialog);

  TCMainFrame& frame;
  const TCSetListStore& setLists;
  TCNativePaths paths;
  bool asking = false;
};

}  // namespace brevant
