// Scrolls a view while something is dragged over its upper or lower edge, so that a place that is out of
// sight can be reached. Used by the playlist and the tree; user-interface thread only.
#pragma once

#include <QAbstractItemView>
#include <QObject>
#include <QPoint>
#include <QTimer>
#include <functional>

namespace brevant {

class TCEdgeScroll : public QObject {
 public:
  // `scrolled`: other rows lie under the mouse now. `scrolledView` outlives this.
  TCEdgeScroll(QAbstractItemView& scrolledView, std::function<void(QPoint globalPosition)> whenScrolled);

  // The drag has come here; above and below the view it scrolls as well.
  void Follow(QPoint globalPosition);
  void Stop();

 private:
  void Step();
  // Rows to scroll by at a step: -1 up, 1 down, 0 where the mouse is well inside or beside the view.
  [[nodiscard]] int Direction() const;

  QAbstractItemView& view;
  std::function<void(QPoint)> scrolled;
  QPoint place;
  QTimer timer{this};
};

}  // namespace brevant
