// The About box: what the program is, its version, licence and the libraries it stands on. Shown at every
// start and by the Help menu.
#pragma once

#include <QDialog>
#include <QStringList>

namespace brevant {

class TCAboutBox : public QDialog {
 public:
  // `libraries`: one "Name version" each.
  TCAboutBox(const QStringList& libraries, QWidget* parent);

  // Opens one over `parent` and returns at once: the poll goes on, and the box closes and deletes itself on
  // Enter, Esc, Space or its button. Nothing when one is open already.
  static void Open(const QStringList& libraries, QWidget& parent);

  // Closes the one that is open over `parent`, if any.
  static void Close(QWidget& parent);
};

}  // namespace brevant
