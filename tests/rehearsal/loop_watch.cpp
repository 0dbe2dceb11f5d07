#include "rehearsal/loop_watch.h"

#include <malloc.h>
#include <sys/resource.h>
#include <time.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <array>
#include <chrono>

namespace brevant {

namespace {

constexpr auto kPause = std::chrono::milliseconds(5);  // between an answer and the next beat
constexpr auto kPatience = std::chrono::milliseconds(100);
constexpr auto kNextLook =
    std::chrono::milliseconds(250);  // until a loop that still does not answer is asked again
constexpr std::size_t kLooks = 4;
constexpr int kUrgent = -15;           // as "nice" has it
constexpr double kSpreadEvery = 10.0;  // seconds

double Seconds(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

template <typename... Values>
std::string Line(const char* format, Values... values) {
  std::array<char, 512> text{};
  std::snprintf(text.data(), text.size(), format, values...);
  return text.data();
}

const char* NameOf(TCStall stall) {
  switch (stall) {
    case TCStall::None:
      return "none";
    case TCStall::OfTheMachine:
      return "machine";
    case TCStall::OfTheProgram:
      return "program";
  }
  return "";
}

}  // namespace

TCLoopWatch::TCLoopWatch(std::FILE* logFile, pid_t displayServer)
    : file(logFile), watched(pthread_self()), helpers(displayServer), thread([this] { Watch(); }) {}

TCLoopWatch::~TCLoopWatch() {
  {
    const std::lock_guard lock(mutex);
    over = true;
  }
  changed.notify_all();
  thread.join();
  NoteSpread();
}

void TCLoopWatch::customEvent(QEvent* /*event*/) {
  {
    const std::lock_guard lock(mutex);
    answered = true;
    answeredAt = Seconds(CLOCK_MONOTONIC);
  }
  changed.notify_all();
}

void TCLoopWatch::Watch() {
  // Where it may: a watch that stands in the queue itself sees nothing.
  setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), kUrgent);
  double spreadNoted = Seconds(CLOCK_MONOTONIC);
  do {
    Answer answer;
    if (!Ask(answer)) return;
    Note(answer);
    if (Seconds(CLOCK_MONOTONIC) - spreadNoted >= kSpreadEvery) {
      NoteSpread();
      spreadNoted = Seconds(CLOCK_MONOTONIC);
    }
  } while (Rest());
}

bool TCLoopWatch::Ask(Answer& answer) {
  std::unique_lock lock(mutex);
  answered = false;
  lock.unlock();
  helpers.Refresh(Seconds(CLOCK_MONOTONIC));
  QCoreApplication::postEvent(this, new QEvent(QEvent::User));
  // Only now: this thread may have been put aside on the way, and the beat is no later for that.
  const double posted = Seconds(CLOCK_MONOTONIC);
  const TCQueueTimes::TCSums before = times.Read();
  const double helpersBefore = helpers.Read();
  lock.lock();
  const auto settled = [this] { return answered || over; };
  auto patience = kPatience;
  while (!changed.wait_for(lock, patience, settled)) {
    patience = kNextLook;
    if (!started || answer.stacks.size() == kLooks) continue;
    lock.unlock();
    answer.stacks.push_back(catcher.Catch(watched));
    lock.lock();
  }
  if (over) return false;
  const double answeredThen = answeredAt;
  lock.unlock();
  const TCQueueTimes::TCSums after = times.Read();
  answer.beat = {std::max(answeredThen - posted, 0.0), after.worked - before.worked,
                 after.queued - before.queued, helpers.Read() - helpersBefore};
  return true;
}

bool TCLoopWatch::Rest() {
  const double begun = Seconds(CLOCK_MONOTONIC);
  std::unique_lock lock(mutex);
  if (changed.wait_for(lock, kPause, [this] { return over; })) return false;
  const double overslept = Seconds(CLOCK_MONOTONIC) - begun - std::chrono::duration<double>(kPause).count();
  unwatched += std::max(overslept, 0.0);
  return true;
}

void TCLoopWatch::Note(const Answer& answer) {
  const TCLoopBeat& beat = answer.beat;
  const TCStall stall = JudgeBeat(beat);
  if (started) spread.Add(beat.waited);
  if (started && stall == TCStall::None) return;
  std::string line = Line(
      "{\"at\":%.3f,\"kind\":\"%s\",\"judged\":\"%s\",\"waited\":%.4f,\"worked\":%.4f,\"queued\":%.4f,"
      "\"helpers\":%.4f",
      Seconds(CLOCK_REALTIME), started ? "stall" : "start", NameOf(stall), beat.waited, beat.worked,
      beat.queued, beat.helpersQueued);
  line += ",\"stacks\":[";
  for (const TCCaughtStack& stack : answer.stacks) {
    line += &stack == answer.stacks.data() ? "" : ",";
    line += JsonOf(stack);
  }
  Write(line + "]}");
  started = true;
}

void TCLoopWatch::NoteSpread() {
  const struct mallinfo2 heap = mallinfo2();
  Write(Line(
      "{\"at\":%.3f,\"kind\":\"spread\",\"count\":%llu,\"half\":%.4f,\"of100\":%.4f,\"of1000\":%.4f,"
      "\"longest\":%.4f,\"unwatched\":%.3f,\"heap\":%zu}",
      Seconds(CLOCK_REALTIME), static_cast<unsigned long long>(spread.Count()), spread.Within(0.5),
      spread.Within(0.99), spread.Within(0.999), spread.Longest(), unwatched, heap.uordblks + heap.hblkhd));
}

void TCLoopWatch::Write(const std::string& line) {
  std::fputs((line + "\n").c_str(), file);
  std::fflush(file);
}

}  // namespace brevant
