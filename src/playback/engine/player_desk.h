// Where the user interface and the worker meet: the queue of commands and notes on one side, the published
// state on the other. Every call takes one mutex for a moment and blocks on nothing else, except the worker's
// own WaitForItem.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "playback/engine/player_events.h"
#include "playback/engine/player_machine.h"
#include "playback/player_monitor.h"

namespace brevant {

class TCPlayerDesk {
 public:
  using Item = std::variant<TCPlayerCommand, TCPlayerNote>;
  // Seconds of a clock that never goes back.
  using Clock = std::function<double()>;

  enum class Wake {
    Item,   // one was taken from the queue
    Tick,   // the time is up
    Leave,  // the worker is no longer wanted: it was replaced, or the player closes
  };

  // A worker's right to work; 0 is none.
  using Ticket = std::uint64_t;

  struct Handover {
    Ticket ticket = 0;
    TCPlayerMachine machine;
  };

  explicit TCPlayerDesk(Clock clock = SteadyClock());
  [[nodiscard]] static Clock SteadyClock();

  // The user interface's side. A command takes effect on what is published at once, as far as its outcome is
  // certain: a stopped or newly loaded song reads 0.0 however late the worker gets to it.
  void Load(std::u16string_view url);
  bool Play();
  void Pause();
  void Stop();
  void Seek(double seconds);
  void SetVolume(int volume);
  [[nodiscard]] std::u16string Url() const;
  [[nodiscard]] int DurationSeconds() const;
  [[nodiscard]] int Volume() const;
  [[nodiscard]] TCPlayerSnapshot Snapshot() const;
  // A song that ends before anybody has seen it sound shows one position above 0.0 first, so that its end is
  // not taken for a start that is still to come.
  [[nodiscard]] double Position();

  // Hands the work over when the worker has been at one item for longer than `limit` seconds. Replaced
  // workers that come back were only slow, as on a machine with too much to do; the next gets up to four
  // times as long, until a song sounds again, so that there is an end to replacing.
  [[nodiscard]] std::optional<Handover> ReplaceWorkerIfStuck(double limit);
  // Wakes the worker for the last time and refuses everything after.
  void Close();

  // From any thread: pipelines and disk jobs.
  void Post(TCPlayerNote note);

  // The worker's side.
  [[nodiscard]] Ticket FirstTicket() const { return 1; }
  // Until `seconds` have passed, or for ever.
  [[nodiscard]] Wake WaitForItem(Ticket ticket, std::optional<double> seconds, Item& item);
  // A copy of the machine after each decision and before its actions. False when the worker was replaced.
  bool Publish(Ticket ticket, const TCPlayerMachine& machine);
  // The last thing a worker does.
  void LeaveWork(Ticket ticket);
  // Replaced workers that have not come back yet.
  [[nodiscard]] int StuckWorkers() const;
  [[nodiscard]] double Now() const { return clock(); }

 private:
  void Append(TCPlayerCommand command);
  void Show(const TCPlayerMachine& machine);
  void ShowAtRest();

  const Clock clock;
  mutable std::mutex mutex;
  std::condition_variable wake;
  std::deque<Item> queue;
  bool closed = false;

  TCPlayerSnapshot shown;
  int shownDuration = -1;
  // Commands that change what is shown at once; what the worker publishes before it has seen the newest is
  // old news.
  std::uint64_t barrier = 0;
  std::uint64_t shownEnds = 0;
  bool soundSeen = false;
  bool endHeld = false;
  double endHeldUntil = 0.0;

  Ticket worker = 1;
  int stuckWorkers = 0;
  int slowWorkers = 0;
  std::optional<double> busySince;
  std::optional<Item> inHand;  // taken by the worker, its decision not published yet
  TCPlayerMachine checkpoint;
};

}  // namespace brevant
