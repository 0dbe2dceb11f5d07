#include "app/dialogs/form_dialog.h"

#include <QPushButton>
#include <QScopedValueRollback>
#include <utility>

#include "views/text_conversion.h"

namespace brevant {

TCFormDialog::TCFormDialog(const QString& name, TCTextId title, QWidget* parent) : QDialog(parent) {
  setObjectName(name);
  setWindowTitle(ToQString(TextOf(title)));
  setSizeGripEnabled(true);
}

void TCFormDialog::done(int answer) {
  if (!atWork) QDialog::done(answer);
}

void TCFormDialog::CarryOut(const std::function<void()>& step) {
  if (atWork) return;
  {
    const QScopedValueRollback<bool> now(atWork, true);
    step();
  }
  ShowForm();
}

QPushButton* TCFormDialog::MakeButton(const QString& name, TCTextId text, std::function<void()> step) {
  auto* button = new QPushButton(ToQString(TextOf(text)), this);
  button->setObjectName(name);
  connect(button, &QPushButton::clicked, this, [this, todo = std::move(step)] { CarryOut(todo); });
  return button;
}

QPushButton* TCFormDialog::MakeOk() {
  auto* ok = new QPushButton(ToQString(TextOf(TCTextId::OkButton)), this);
  ok->setObjectName(QStringLiteral("OK"));
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  return ok;
}

QPushButton* TCFormDialog::MakeCancel() {
  auto* cancel = new QPushButton(ToQString(TextOf(TCTextId::CancelButton)), this);
  cancel->setObjectName(QStringLiteral("Cancel"));
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  return cancel;
}

}  // namespace brevant
