// The customise sheet's page of options: how the bars look and what their tool tips say. Acts at once.
#pragma once

#include <QWidget>

#include "app/bars/bar_set.h"

class QCheckBox;
class QComboBox;

namespace brevant {

class TCOptionsPage final : public QWidget {
  Q_OBJECT

 public:
  // `barSet` outlives the page.
  explicit TCOptionsPage(TCBarSet& barSet);

  // Shows the options as they are now: something else has changed them.
  void ShowLook();

 private:
  [[nodiscard]] QCheckBox* MakeBox(const char* name, const QString& text, bool TCBarLook::*option);
  void Change(const TCBarLook& look);

  TCBarSet& bars;
  QComboBox* iconSize;
  QCheckBox* texts;
  QCheckBox* toolTips;
  QCheckBox* keysInToolTips;
};

}  // namespace brevant
