#include "app/panes/status_line.h"

#include <algorithm>

#include "resources/string_table.h"
#include "views/text_conversion.h"

namespace brevant {

TCStatusLine::TCStatusLine(QWidget* parent, std::chrono::milliseconds messageTime)
    : QStatusBar(parent), messagePane(this), keyHelpPane(this, QStringLiteral("|")) {
  setObjectName(QStringLiteral("StatusBar"));
  setAccessibleName(QStringLiteral("Status bar"));
  messagePane.setObjectName(QStringLiteral("StatusMessage"));
  messagePane.setAccessibleName(QStringLiteral("Status message"));
  keyHelpPane.setObjectName(QStringLiteral("KeyHelp"));
  keyHelpPane.setText(ToQString(TextOf(TCTextId::KeyHelp)));
  // The name is what a screen reader reads out, so it holds the whole text even where the pane cuts it.
  keyHelpPane.setAccessibleName(keyHelpPane.text());
  messagePane.setWhatsThis(
      QStringLiteral("What the program has just done or waits for; and what a menu entry or a button does "
                     "while you point at "
                     "it."));
  keyHelpPane.setWhatsThis(QStringLiteral("The keys that a performance needs most."));
  messagePane.setContentsMargins(6, 0, 6, 0);
  keyHelpPane.setContentsMargins(6, 0, 6, 0);

  messagePane.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  keyHelpPane.setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  addWidget(&messagePane, 1);
  addPermanentWidget(&keyHelpPane);

  messageEnd.setSingleShot(true);
  messageEnd.setInterval(messageTime);
  connect(&messageEnd, &QTimer::timeout, this, [this] {
    message.clear();
    Refresh();
  });
}

void TCStatusLine::ShowMessage(const QString& text) {
  messageEnd.start();
  // A long wait says the same at every poll; a screen reader is to hear it once.
  if (text == message) return;
  message = text;
  Refresh();
}

void TCStatusLine::ShowStanding(const QString& text) {
  standing = text;
  message.clear();
  Refresh();
}

void TCStatusLine::ShowHint(const QString& text) {
  hint = text;
  Refresh();
}

void TCStatusLine::Refresh() {
  const QString& said = message.isEmpty() ? standing : message;
  messagePane.setText(hint.isEmpty() ? said : hint);
  messagePane.setAccessibleName(messagePane.text().isEmpty() ? QStringLiteral("Status message")
                                                             : messagePane.text());
  // A message takes what it needs of a narrow bar, up to half; without one the keys have it all.
  messagePane.setMinimumWidth(
      std::min(messagePane.text().isEmpty() ? 0 : messagePane.sizeHint().width(), width() / 2));
}

void TCStatusLine::resizeEvent(QResizeEvent* event) {
  QStatusBar::resizeEvent(event);
  Refresh();
}

}  // namespace brevant
