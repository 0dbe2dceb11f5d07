// The tool bar "Play controls" and the two time fields of the repeat range, which are at home there. What
// else stands on it is TCBarSet's business, as for every bar. User-interface thread only.
#pragma once

#include <QToolBar>
#include <QWidgetAction>

#include "app/bars/repeat_time_field.h"
#include "playback/repeat_range.h"
#include "resources/command_id.h"

namespace brevant {

class TCPlayControlsBar final : public QToolBar, public TCRepeatFields {
  Q_OBJECT

 public:
  // The time fields are there from the start, so that the document can be made with them; they are shown once
  // their actions are on a bar.
  explicit TCPlayControlsBar(QWidget* parent = nullptr);

  // Puts the field on the bar that it is added to.
  [[nodiscard]] QAction& FieldAction(TCCommandId timeField);
  [[nodiscard]] TCRepeatTimeField& FieldOf(TCCommandId timeField);

  [[nodiscard]] std::int32_t RepeatBegin() const override { return beginField->Seconds(); }
  [[nodiscard]] std::int32_t RepeatEnd() const override { return endField->Seconds(); }
  void SetRepeatBegin(std::int32_t seconds) override { beginField->SetSeconds(seconds); }
  void SetRepeatEnd(std::int32_t seconds) override { endField->SetSeconds(seconds); }

 Q_SIGNALS:
  // A time was entered, or given up: the keyboard belongs to the playlist again.
  void typingEnded();

 private:
  // An action owns its field, whichever bar the field is on.
  QWidgetAction beginAction;
  QWidgetAction endAction;
  TCRepeatTimeField* beginField = nullptr;
  TCRepeatTimeField* endField = nullptr;
};

}  // namespace brevant
