#include "app/bars/repeat_time_field.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include "playback/repeat_range.h"

namespace brevant {
namespace {

const QTime kStart(0, 0);
const QTime kLast(0, 59, 59);
constexpr QSize kUsualSize(64, 24);
constexpr int kSecondsInMinute = 60;

}  // namespace

TCRepeatTimeField::TCRepeatTimeField(const QString& name, const QString& toolTip, QWidget* parent)
    : QTimeEdit(kStart, parent), timeBeforeTyping(kStart) {
  setDisplayFormat(QStringLiteral("mm':'ss"));
  setTimeRange(kStart, kLast);
  setAccessibleName(name);
  setToolTip(toolTip);
  setWhatsThis(toolTip);
  // By default a turn of the wheel over the field would change the range and take the keys from the playlist.
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

std::int32_t TCRepeatTimeField::Seconds() const {
  return time().minute() * kSecondsInMinute + time().second();
}

void TCRepeatTimeField::SetSeconds(std::int32_t seconds) {
  const TCFieldTime shown = RepeatFieldTime(seconds);
  setTime(QTime(0, shown.minutes, shown.seconds));
  timeBeforeTyping = time();  // what was typed until now is gone, and what it replaced with it
}

QSize TCRepeatTimeField::sizeHint() const {
  return QTimeEdit::sizeHint().expandedTo(kUsualSize);
}

QSize TCRepeatTimeField::minimumSizeHint() const {
  return sizeHint();
}

// A bar that floats gives the keys to the first field that Tab reaches, whatever on it was clicked.
void TCRepeatTimeField::showEvent(QShowEvent* event) {
  setFocusPolicy(window()->windowType() == Qt::Tool ? Qt::ClickFocus : Qt::StrongFocus);
  QTimeEdit::showEvent(event);
}

void TCRepeatTimeField::focusInEvent(QFocusEvent* event) {
  QTimeEdit::focusInEvent(event);
  // Back from another window, or from the field's own menu, the typing goes on where it was.
  if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason) return;
  timeBeforeTyping = time();
  // After the press that brought the focus, which puts the cursor where it points: four digits set the time
  // wherever the field was clicked.
  QMetaObject::invokeMethod(
      this, [this] { setSelectedSection(MinuteSection); }, Qt::QueuedConnection);
}

void TCRepeatTimeField::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      interpretText();
      break;
    case Qt::Key_Escape:
      setTime(timeBeforeTyping);
      break;
    case Qt::Key_Left:
    case Qt::Key_Right:
      // By default they would step through the digits.
      setSelectedSection(event->key() == Qt::Key_Left ? MinuteSection : SecondSection);
      event->accept();
      return;
    default:
      QTimeEdit::keyPressEvent(event);
      return;
  }
  event->accept();
  clearFocus();  // or it would have the keys again whenever its bar floats and is clicked
  Q_EMIT typingEnded();
}

void TCRepeatTimeField::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QTimeEdit::wheelEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace brevant
