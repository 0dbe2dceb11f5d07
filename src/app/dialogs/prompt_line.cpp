#include "app/dialogs/prompt_line.h"

#include "views/text_conversion.h"

namespace brevant {

QLabel* MakePromptLine(const QString& name, std::u16string_view text) {
  auto* line = new QLabel(ToQString(text));
  line->setObjectName(name);
  line->setTextFormat(Qt::PlainText);
  line->setWordWrap(true);
  line->setAccessibleName(line->text());
  if (text.empty()) line->hide();
  return line;
}

}  // namespace brevant
