// Calls back once a window has been painted for the first time: what takes long at the start, a large
// document above all, must not keep the window from appearing. Used by TCBrevantApp.
#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>

class QWidget;

namespace brevant {

class TCFirstPaint : public QObject {
 public:
  // Calls `then` from the event loop, after the paint. A window that is not painted within `patience`,
  // because it starts minimised for one, is not waited for any longer.
  TCFirstPaint(QWidget& window, std::function<void()> then,
               std::chrono::milliseconds patience = std::chrono::milliseconds(500));

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  void Finish();

  QWidget& watched;
  std::function<void()> callback;
  QTimer timer;
};

}  // namespace brevant
