#include "app/help/whats_this.h"

#include <QApplication>
#include <QWhatsThis>
#include <QWidget>

#include "app/commands/tool_tips.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

const QString kActionPrefix = QStringLiteral("Command");

QString Escaped(std::u16string_view text) {
  return ToQString(text).trimmed().toHtmlEscaped();
}

void TellOfTheFocus() {
  const QWidget* focus = QApplication::focusWidget();
  if (focus == nullptr) return;
  for (const QWidget* part = focus; part != nullptr; part = part->parentWidget()) {
    if (part->whatsThis().isEmpty()) continue;
    QWhatsThis::showText(focus->mapToGlobal(focus->rect().center()), part->whatsThis());
    return;
  }
}

}  // namespace

QString WhatsThisText(const TCCommand& command, std::span<const TCKey> bound) {
  const std::u16string name = CommandTitle(command);
  const std::u16string_view says = StatusLine(command);
  const std::u16string keys = KeysText(bound);
  QString text = QStringLiteral("<b>") + Escaped(name) + QStringLiteral("</b>");
  if (!says.empty() && says != name) text += QStringLiteral("<p>") + Escaped(says) + QStringLiteral("</p>");
  if (!keys.empty()) text += QStringLiteral("<p>Keys: ") + Escaped(keys) + QStringLiteral("</p>");
  return text;
}

TCCommandId CommandOf(const QAction& action) {
  const QString name = action.objectName();
  if (!name.startsWith(kActionPrefix)) return TCCommandId::None;
  const int number = name.mid(kActionPrefix.size()).toInt();
  const TCCommand* command = CommandById(static_cast<TCCommandId>(number));
  return command != nullptr ? command->id : TCCommandId::None;
}

QString ActionName(TCCommandId command) {
  return kActionPrefix + QString::number(static_cast<int>(command));
}

void AskWhatThisIs() {
  if (!QWhatsThis::inWhatsThisMode()) {
    QWhatsThis::enterWhatsThisMode();
    return;
  }
  QWhatsThis::leaveWhatsThisMode();
  TellOfTheFocus();
}

}  // namespace brevant
