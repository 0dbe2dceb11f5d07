// A horizontal slider whose handle jumps to where it is pressed and follows the mouse from there. Tells what
// the user picked, never what the program set. Draws itself: the styles' handles are hard to see on black.
#pragma once

#include <QSlider>

namespace brevant {

// Whether a turn of the mouse wheel over the slider moves it.
enum class TCWheel { Moves, Ignored };

class TCJumpSlider final : public QSlider {
  Q_OBJECT

 public:
  explicit TCJumpSlider(TCWheel wheel, QWidget* parent = nullptr);

  // What the program knows. The value is not moved while the user holds the handle.
  void ShowRange(int newMaximum);
  void ShowValue(int value);
  // The user's drag ends here and picks nothing.
  void CancelDrag();

 Q_SIGNALS:
  // While the handle is held, and at once when it is not.
  void dragged(int value);
  // The handle was let go, or a single step was taken by wheel, key or assistive technology.
  void picked(int value);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  [[nodiscard]] int ValueAt(int x) const;
  // Of the handle's middle.
  [[nodiscard]] int PlaceOf(int value) const;

  TCWheel wheel;
  bool showing = false;  // the value changes by the program's doing
};

}  // namespace brevant
