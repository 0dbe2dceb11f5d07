// "Customize": the bars and keys are made the user's own, on three pages. Everything that is done here acts
// at once and is seen in the main window behind; Reset brings back what was delivered.
#pragma once

#include <QDialog>

#include "app/bars/bar_set.h"

class QTabWidget;

namespace brevant {

class TCCommandsPage;
class TCKeyboardPage;
class TCOptionsPage;

class TCCustomizeSheet final : public QDialog {
  Q_OBJECT

 public:
  // `barSet` outlives the sheet.
  TCCustomizeSheet(TCBarSet& barSet, QWidget* parent);

  // Opens one over `parent` and returns at once: the poll goes on, and the sheet deletes itself when it is
  // closed. Nothing when one is open already.
  static void Open(TCBarSet& bars, QWidget& parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Reset();
  // Ctrl+Tab and its way back, from wherever the focus is.
  void AddPageKeys();

  TCBarSet& bars;
  QTabWidget* pages;
  TCKeyboardPage* keyboard;
  TCOptionsPage* options;
  TCCommandsPage* commands;
};

}  // namespace brevant
