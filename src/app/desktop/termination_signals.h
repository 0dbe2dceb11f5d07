// Turns the system's requests to end (SIGTERM, SIGINT, SIGHUP) into an event of the main loop. One for the
// process, on the user-interface thread.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <array>
#include <memory>

namespace brevant {

class TCTerminationSignals : public QObject {
  Q_OBJECT

 public:
  TCTerminationSignals();
  ~TCTerminationSignals() override;

 Q_SIGNALS:
  void endWanted();

 private:
  std::array<int, 2> pipe{-1, -1};  // read end, write end
  std::unique_ptr<QSocketNotifier> notifier;
};

}  // namespace brevant
