#include "app/dialogs/dialog_enter_user_text.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/dialogs/prompt_line.h"
#include "resources/string_table.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr int kGapAboveButtons = 6;

TCTextId TitleOf(TCTextPromptMode mode) {
  switch (mode) {
    case TCTextPromptMode::CreateGroup:
      return TCTextId::CreateGroupTitle;
    case TCTextPromptMode::CreateSetList:
      return TCTextId::CreateSetListTitle;
    case TCTextPromptMode::SongLatency:
      return TCTextId::SetSongLatencyTitle;
    case TCTextPromptMode::Property:
      break;
  }
  return TCTextId::EnterPropertyTitle;  // of every other number too
}

QDialogButtonBox* MakeButtons() {
  auto* buttons = new QDialogButtonBox;
  QPushButton* ok =
      buttons->addButton(ToQString(TextOf(TCTextId::OkMnemonicButton)), QDialogButtonBox::AcceptRole);
  buttons->addButton(ToQString(TextOf(TCTextId::CancelMnemonicButton)), QDialogButtonBox::RejectRole);
  ok->setDefault(true);
  return buttons;
}

}  // namespace

TCDialogEnterUserText::TCDialogEnterUserText(const TCTextPrompt& prompt, QWidget* parent)
    : QDialog(parent), textField(new QLineEdit(ToQString(prompt.text))) {
  setObjectName(QStringLiteral("EnterText"));
  setWindowTitle(ToQString(TextOf(TitleOf(prompt.mode))));

  textField->setObjectName(QStringLiteral("Text"));
  textField->setAccessibleName(ToQString(prompt.prompt));
  textField->setAccessibleDescription(ToQString(prompt.example));
  textField->setWhatsThis(
      QStringLiteral("What is asked for above. Enter takes it, Esc leaves everything as it was."));
  textField->setMinimumWidth(kPromptWidthInCharacters * fontMetrics().averageCharWidth());
  textField->selectAll();

  QDialogButtonBox* buttons = MakeButtons();
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakePromptLine(QStringLiteral("Prompt"), prompt.prompt));
  layout->addWidget(MakePromptLine(QStringLiteral("Example"), prompt.example));
  layout->addWidget(textField);
  layout->addSpacing(kGapAboveButtons);
  layout->addStretch(1);
  layout->addWidget(buttons);
  textField->setFocus();
}

std::u16string TCDialogEnterUserText::Text() const {
  return FromQString(textField->text());
}

}  // namespace brevant
