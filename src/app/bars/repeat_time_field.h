// A time field of the play bar: minutes and seconds of one end of the repeat range, typed or stepped with the
// arrows. User-interface thread only.
#pragma once

#include <QTime>
#include <QTimeEdit>
#include <cstdint>

namespace brevant {

class TCRepeatTimeField final : public QTimeEdit {
  Q_OBJECT

 public:
  // Shows 00:00 at first. `name` is what a screen reader calls it.
  TCRepeatTimeField(const QString& name, const QString& toolTip, QWidget* parent = nullptr);

  // Of the time that is shown, 0 to 3599. While a time is being typed, the last that was complete.
  [[nodiscard]] std::int32_t Seconds() const;
  // Shows what RepeatFieldTime makes of any number of seconds. While the field is typed into, the typing
  // begins again from here: this is also what Esc brings back.
  void SetSeconds(std::int32_t seconds);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
  // Enter was pressed, or Esc, which brings back the time that stood there when the typing began: the field
  // has no more use for the keyboard.
  void typingEnded();

 protected:
  void showEvent(QShowEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QTime timeBeforeTyping;
};

}  // namespace brevant
