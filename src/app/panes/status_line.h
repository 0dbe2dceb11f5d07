// The status bar: a pane for what the program has to say and for what a menu entry does, and beside it the
// key help. Part of the main frame.
#pragma once

#include <QStatusBar>
#include <QTimer>
#include <chrono>

#include "app/panes/status_pane.h"

namespace brevant {

class TCStatusLine : public QStatusBar {
 public:
  // `messageTime`: how long a message stands.
  explicit TCStatusLine(QWidget* parent, std::chrono::milliseconds messageTime = std::chrono::seconds(8));

  // Stands until the next one, or until its time is over.
  void ShowMessage(const QString& text);
  // Stands for as long as it is not empty; a message that comes later goes before it for its time.
  void ShowStanding(const QString& text);
  // Goes before both as long as it is not empty.
  void ShowHint(const QString& text);

  [[nodiscard]] QString ShownMessage() const { return messagePane.text(); }
  [[nodiscard]] QString KeyHelp() const { return keyHelpPane.text(); }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Refresh();

  TCStatusPane messagePane;
  TCStatusPane keyHelpPane;
  QString message;
  QString standing;
  QString hint;
  QTimer messageEnd;
};

}  // namespace brevant
