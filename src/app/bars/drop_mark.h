// What is seen of a drag on its way: a line in the gap into which it would go, and the mouse's cursor. Used
// by the customise sheet's page of commands.
#pragma once

#include <QPointer>
#include <QRect>
#include <QWidget>

namespace brevant {

class TCDropMark final {
 public:
  TCDropMark() = default;
  TCDropMark(const TCDropMark&) = delete;
  TCDropMark& operator=(const TCDropMark&) = delete;
  ~TCDropMark() { End(); }

  // It would go into this gap of `widget`.
  void Show(QWidget& widget, const QRect& gap);
  // It would go nowhere.
  void Refuse();
  // Nothing is dragged any more.
  void End();

 private:
  void ShowCursor(Qt::CursorShape shape);

  QPointer<QWidget> line;  // a child of the gap's widget, which may go first
  bool cursorShown = false;
};

}  // namespace brevant
