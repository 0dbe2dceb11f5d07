#include "app/play_controls_bar.h"

#include <algorithm>

#include "resources/command_bars.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr QSize kPictureSize(24, 24);

std::span<const TCCommandId> ItemsOf(TCTextId bar) {
  const std::span<const TCCommandBar> bars = CommandBars();
  const auto found = std::ranges::find(bars, bar, &TCCommandBar::name);
  return found == bars.end() ? std::span<const TCCommandId>() : found->items;
}

}  // namespace

TCPlayControlsBar::TCPlayControlsBar(QWidget* parent)
    : QToolBar(ToQString(TextOf(TCTextId::PlayControlsToolbar)), parent),
      beginField(new TCRepeatTimeField(
          QStringLiteral("Repeat start time"),
          QStringLiteral(
              "Repeat start time, in minutes and seconds; the passage repeats while Auto Play is on"),
          this)),
      endField(new TCRepeatTimeField(
          QStringLiteral("Repeat stop time"),
          QStringLiteral("Repeat stop time, in minutes and seconds; at 00:00 nothing repeats"), this)) {
  // Saved states know the bar by this name.
  setObjectName(windowTitle());
  setAccessibleName(windowTitle());
  setIconSize(kPictureSize);
  for (TCRepeatTimeField* field : {beginField, endField}) {
    field->hide();
    connect(field, &TCRepeatTimeField::typingEnded, this, &TCPlayControlsBar::typingEnded);
  }
}

TCRepeatTimeField& TCPlayControlsBar::FieldOf(TCCommandId timeField) {
  return timeField == TCCommandId::RepeatBeginField ? *beginField : *endField;
}

void TCPlayControlsBar::Fill(const TCCommandActions& commandActions) {
  // A separator goes in only between buttons that are there.
  bool separatorDue = false;
  for (const TCCommandId item : ItemsOf(TCTextId::PlayControlsToolbar)) {
    QAction* action = commandActions.ActionOf(item);
    if (action == nullptr && !IsTimeField(item)) {
      separatorDue = separatorDue || item == TCCommandId::None;
      continue;
    }
    if (separatorDue && !actions().isEmpty()) addSeparator();
    separatorDue = false;
    if (action != nullptr) {
      addAction(action);
    } else {
      addWidget(&FieldOf(item))->setVisible(true);  // the field was hidden, and its action with it
    }
  }
}

}  // namespace brevant
