#include "app/bars/play_controls_bar.h"

#include <utility>

#include "resources/string_table.h"
#include "views/text_conversion.h"

namespace brevant {

TCPlayControlsBar::TCPlayControlsBar(QWidget* parent)
    : QToolBar(ToQString(TextOf(TCTextId::PlayControlsToolbar)), parent),
      beginAction(nullptr),
      endAction(nullptr),
      beginField(new TCRepeatTimeField(
          QStringLiteral("Repeat start time"),
          QStringLiteral(
              "Repeat start time, in minutes and seconds; the passage repeats while Auto Play is on"))),
      endField(new TCRepeatTimeField(
          QStringLiteral("Repeat stop time"),
          QStringLiteral("Repeat stop time, in minutes and seconds; at 00:00 nothing repeats"))) {
  for (auto [action, field] : {std::pair(&beginAction, beginField), std::pair(&endAction, endField)}) {
    action->setText(field->accessibleName());
    action->setDefaultWidget(field);
    connect(field, &TCRepeatTimeField::typingEnded, this, &TCPlayControlsBar::typingEnded);
  }
}

TCRepeatTimeField& TCPlayControlsBar::FieldOf(TCCommandId timeField) {
  return timeField == TCCommandId::RepeatBeginField ? *beginField : *endField;
}

QAction& TCPlayControlsBar::FieldAction(TCCommandId timeField) {
  return timeField == TCCommandId::RepeatBeginField ? beginAction : endAction;
}

}  // namespace brevant
