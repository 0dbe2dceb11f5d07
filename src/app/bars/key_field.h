// A field that shows the key that is pressed while it has the focus, whatever the key is for elsewhere. Tab
// alone leads on. Used by the customise sheet.
#pragma once

#include <QLineEdit>

#include "resources/key.h"

namespace brevant {

class TCKeyField final : public QLineEdit {
  Q_OBJECT

 public:
  explicit TCKeyField(QWidget* parent = nullptr);

  // The key that was pressed last; none at first.
  [[nodiscard]] TCKey Key() const { return pressed; }
  void SetKey(TCKey key);

 Q_SIGNALS:
  void keyChanged();

 protected:
  bool event(QEvent* event) override;

 private:
  TCKey pressed;
};

}  // namespace brevant
