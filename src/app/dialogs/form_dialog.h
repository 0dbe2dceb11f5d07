// A dialog over a form of the document, which decides what every button does; the dialog hands over what the
// user does and shows what the form holds. Base of "Create Set Lists" and "Song properties".
#pragma once

#include <QDialog>
#include <functional>

#include "resources/string_table.h"

class QPushButton;

namespace brevant {

class TCFormDialog : public QDialog {
 public:
  // One of the dialog's own buttons is at work: what it asks may open over the dialog.
  [[nodiscard]] bool IsAtWork() const { return atWork; }

  // Not while a button is at work: its question stands over the dialog, and a screen reader reaches behind
  // it.
  void done(int answer) override;

 protected:
  TCFormDialog(const QString& name, TCTextId title, QWidget* parent);

  // A button that carries out `step`.
  [[nodiscard]] QPushButton* MakeButton(const QString& name, TCTextId text, std::function<void()> step);
  // OK is what Enter stands for, unless another button has the focus.
  [[nodiscard]] QPushButton* MakeOk();
  [[nodiscard]] QPushButton* MakeCancel();
  // Runs `step` and shows the form anew; nothing while another step is under way.
  void CarryOut(const std::function<void()>& step);

 private:
  virtual void ShowForm() = 0;

  bool atWork = false;
};

}  // namespace brevant
