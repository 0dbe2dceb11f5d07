// Watches whether the event loop of the thread that made it comes round. A thread of its own posts a beat
// every few milliseconds and waits for the answer; a loop within the loop (a menu, a dialog, a drag) answers
// as well as the outer one. Whoever answers late is asked by a signal where it stands.
#pragma once

#include <pthread.h>

#include <QObject>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "rehearsal/loop_beat.h"
#include "rehearsal/queue_times.h"
#include "rehearsal/stack_catcher.h"

namespace brevant {

class TCLoopWatch : public QObject {
 public:
  // Appends its lines, a JSON object each, to `file`. What stands before the first answer is the program's
  // start and is noted as such. `displayServer` is that process, 0 when it is not known.
  explicit TCLoopWatch(std::FILE* file, pid_t displayServer = 0);
  ~TCLoopWatch() override;
  TCLoopWatch(const TCLoopWatch&) = delete;
  TCLoopWatch& operator=(const TCLoopWatch&) = delete;

 protected:
  void customEvent(QEvent* event) override;

 private:
  struct Answer {
    TCLoopBeat beat;
    std::vector<TCCaughtStack> stacks;
  };

  void Watch();
  // False when the watch is over.
  bool Ask(Answer& answer);
  bool Rest();
  void Note(const Answer& answer);
  void NoteSpread();
  void Write(const std::string& line);

  std::FILE* file;
  pthread_t watched;
  TCQueueTimes times = TCQueueTimes::OfThisThread();
  TCHelpersQueue helpers;
  TCStackCatcher catcher;
  TCBeatSpread spread;
  double unwatched = 0.0;  // seconds that this thread came too late for its beats
  bool started = false;

  std::mutex mutex;
  std::condition_variable changed;
  bool answered = false;
  double answeredAt = 0.0;
  bool over = false;

  std::thread thread;
};

}  // namespace brevant
