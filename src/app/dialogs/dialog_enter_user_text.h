// The text prompt, "Enter Text": two lines that say what is wanted, and a field for the answer. Opened by
// TCQtPrompts for names, numbers and lists alike.
#pragma once

#include <QDialog>
#include <string>

#include "document/prompts.h"

class QLineEdit;

namespace brevant {

class TCDialogEnterUserText : public QDialog {
 public:
  // The field holds the prompt's text, all of it selected. An empty example takes no room.
  TCDialogEnterUserText(const TCTextPrompt& prompt, QWidget* parent);

  // As it stands in the field: neither trimmed nor checked.
  [[nodiscard]] std::u16string Text() const;

 private:
  QLineEdit* textField = nullptr;
};

}  // namespace brevant
