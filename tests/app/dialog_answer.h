// Answers a modal dialog that opens while the test waits inside the call that asked for it. Made before that
// call; fails the test when no dialog of the kind came.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QTimer>
#include <functional>
#include <utility>

namespace brevant {

template <typename Dialog>
class TCDialogAnswer {
 public:
  explicit TCDialogAnswer(std::function<void(Dialog&)> give) : answer(std::move(give)) {
    QObject::connect(&look, &QTimer::timeout, [this] { Look(); });
    look.start(0);
  }
  ~TCDialogAnswer() { EXPECT_TRUE(came) << "no such dialog opened"; }
  TCDialogAnswer(const TCDialogAnswer&) = delete;
  TCDialogAnswer& operator=(const TCDialogAnswer&) = delete;

 private:
  void Look() {
    QWidget* open = QApplication::activeModalWidget();
    if (auto* dialog = dynamic_cast<Dialog*>(open)) {
      look.stop();
      came = true;
      answer(*dialog);
    } else if (limit.hasExpired()) {
      // Another dialog would keep the test waiting for ever.
      look.stop();
      if (auto* other = qobject_cast<QDialog*>(open)) other->reject();
    }
  }

  std::function<void(Dialog&)> answer;
  QTimer look;
  QDeadlineTimer limit{std::chrono::seconds(10)};
  bool came = false;
};

}  // namespace brevant
