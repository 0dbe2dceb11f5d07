// The tool bar "Play controls": a button for each command of a performance and the two time fields of the
// repeat range, laid out as the command bar table says. User-interface thread only.
#pragma once

#include <QToolBar>

#include "app/command_actions.h"
#include "app/repeat_time_field.h"
#include "playback/repeat_range.h"

namespace brevant {

class TCPlayControlsBar final : public QToolBar, public TCRepeatFields {
  Q_OBJECT

 public:
  // The time fields are there from the start, so that the document can be made with them; they are shown once
  // the bar is filled.
  explicit TCPlayControlsBar(QWidget* parent = nullptr);

  // Once. Shows the buttons of what somebody carries out, and the time fields, in the table's order.
  void Fill(const TCCommandActions& actions);

  [[nodiscard]] TCRepeatTimeField& FieldOf(TCCommandId timeField);

  [[nodiscard]] std::int32_t RepeatBegin() const override { return beginField->Seconds(); }
  [[nodiscard]] std::int32_t RepeatEnd() const override { return endField->Seconds(); }
  void SetRepeatBegin(std::int32_t seconds) override { beginField->SetSeconds(seconds); }
  void SetRepeatEnd(std::int32_t seconds) override { endField->SetSeconds(seconds); }

 Q_SIGNALS:
  // A time was entered, or given up: the keyboard belongs to the playlist again.
  void typingEnded();

 private:
  TCRepeatTimeField* beginField = nullptr;
  TCRepeatTimeField* endField = nullptr;
};

}  // namespace brevant
