#include "app/dialog_enter_user_text.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "resources/string_table.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr int kWidthInCharacters = 92;  // no line of the program's own breaks
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

QLabel* MakeLine(const QString& name, std::u16string_view text) {
  auto* line = new QLabel(ToQString(text));
  line->setObjectName(name);
  line->setTextFormat(Qt::PlainText);
  line->setWordWrap(true);
  line->setAccessibleName(line->text());
  if (text.empty()) line->hide();
  return line;
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
  textField->setMinimumWidth(kWidthInCharacters * fontMetrics().averageCharWidth());
  textField->selectAll();

  QDialogButtonBox* buttons = MakeButtons();
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakeLine(QStringLiteral("Prompt"), prompt.prompt));
  layout->addWidget(MakeLine(QStringLiteral("Example"), prompt.example));
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
