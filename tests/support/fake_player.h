// A player without sound, for tests of whoever drives a TCPlayer. Its clock stands still until Advance moves
// it. It keeps the same contract as the real back end (tests/support/player_contract.h runs over both).
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "playback/player.h"
#include "playback/player_monitor.h"

namespace brevant {

// What a song of the fake is like. Times in seconds.
struct TCFakeSong {
  double length = 180.0;                // as its header claims
  double opensAfter = 0.02;             // from LoadUrl until the duration is known
  bool playable = true;                 // false: the duration becomes -1 once opened
  double soundsAfter = 0.01;            // from Play until the position leaves 0.0
  std::optional<double> breaksOffAt{};  // a truncated file: the stream ends here, before `length`
};

class TCFakePlayer final : public TCPlayer, public TCPlayerMonitor {
 public:
  // Songs that no script names are like this.
  void SetDefaultSong(TCFakeSong script) { defaultSong = script; }
  void SetSong(std::u16string_view name, TCFakeSong script) {
    songs.insert_or_assign(std::u16string(name), script);
  }

  // The next Play and LoadUrl answer `accept`; a refused command changes nothing.
  void AcceptCommands(bool accept) { accepting = accept; }
  // While the controls are absent the position cannot be asked and commands do nothing.
  void ShowControls(bool present) { controlsPresent = present; }
  // While the device is gone the position is held; it goes on when the device is back.
  void ConnectDevice(bool connected) { deviceConnected = connected; }

  // The calls that ask for something to happen, oldest first: "LoadUrl \a.mp3", "Play", "Stop", "Pause",
  // "SetPosition 12.5", "SetVolume 80". Characters outside ASCII are written as \uXXXX.
  [[nodiscard]] const std::vector<std::string>& Calls() const { return calls; }
  void ForgetCalls() { calls.clear(); }

  // Lets time pass: files open, songs sound and end.
  void Advance(double seconds) {
    while (seconds > 0.0) {
      const double step = std::min(seconds, kStep);
      seconds -= step;
      now += step;
      Tick(step);
    }
  }

  bool LoadUrl(std::u16string_view path) override {
    calls.push_back("LoadUrl " + Narrow(path));
    if (!accepting || !controlsPresent) return accepting;
    url = path;
    const auto found = songs.find(url);
    song = found == songs.end() ? defaultSong : found->second;
    phase = TCPlayerPhase::Loading;
    opensAt = now + song.opensAfter;
    playWhenOpen = false;
    Rewind();
    if (song.opensAfter <= 0.0) Open();
    return true;
  }

  [[nodiscard]] std::u16string GetUrl() const override { return url; }

  [[nodiscard]] int GetDurationSeconds() const override {
    if (phase == TCPlayerPhase::Empty || phase == TCPlayerPhase::Failed) return -1;
    if (phase == TCPlayerPhase::Loading) return 0;
    return std::max(1, static_cast<int>(song.length));
  }

  bool Play() override {
    calls.emplace_back("Play");
    if (!accepting || !controlsPresent || phase == TCPlayerPhase::Empty) return false;
    if (phase == TCPlayerPhase::Loading) playWhenOpen = true;
    if (phase == TCPlayerPhase::Stopped) Begin();
    if (phase == TCPlayerPhase::Paused) phase = TCPlayerPhase::Playing;
    return true;
  }

  void Stop() override {
    calls.emplace_back("Stop");
    if (!controlsPresent) return;
    playWhenOpen = false;
    if (phase == TCPlayerPhase::Playing || phase == TCPlayerPhase::Paused) phase = TCPlayerPhase::Stopped;
    Rewind();
  }

  void Pause() override {
    calls.emplace_back("Pause");
    if (!controlsPresent) return;
    if (phase == TCPlayerPhase::Playing) phase = TCPlayerPhase::Paused;
    playWhenOpen = false;
  }

  [[nodiscard]] std::optional<double> GetPosition() const override {
    if (!controlsPresent) return std::nullopt;
    const double answer = VisiblePosition();
    if (answer > 0.0) seen = true;
    if (endUnseen && seen) endUnseen = false;
    return answer;
  }

  void SetPosition(double seconds) override {
    calls.push_back("SetPosition " + Number(seconds));
    if (!controlsPresent || (phase != TCPlayerPhase::Playing && phase != TCPlayerPhase::Paused)) return;
    position = std::isnan(seconds) ? 0.0 : std::clamp(seconds, 0.0, song.length);
  }

  [[nodiscard]] int GetVolume() const override { return controlsPresent ? volume : 100; }

  void SetVolume(int wanted) override {
    calls.push_back("SetVolume " + std::to_string(wanted));
    if (controlsPresent) volume = std::clamp(wanted, 0, 100);
  }

  [[nodiscard]] TCPlayerSnapshot Snapshot() const override {
    TCPlayerSnapshot snapshot;
    snapshot.phase = endUnseen ? TCPlayerPhase::Playing : phase;
    snapshot.url = url;
    snapshot.positionSeconds = VisiblePosition();
    const bool known = phase == TCPlayerPhase::Stopped || Sounding();
    snapshot.durationSeconds = known ? song.length : 0.0;
    snapshot.volume = volume;
    if (phase == TCPlayerPhase::Failed) snapshot.notice = TCPlayerNotice::CannotPlay;
    if (phase == TCPlayerPhase::Playing && !deviceConnected) snapshot.notice = TCPlayerNotice::NoSoundDevice;
    return snapshot;
  }

 private:
  static constexpr double kStep = 0.01;
  // What is answered in place of 0.0 while the song sounds or is paused.
  static constexpr double kJustBegun = 0.001;

  [[nodiscard]] bool Sounding() const {
    return phase == TCPlayerPhase::Playing || phase == TCPlayerPhase::Paused;
  }

  [[nodiscard]] double VisiblePosition() const {
    if (endUnseen) return std::max(endPosition, kJustBegun);
    return Sounding() && begun ? std::max(position, kJustBegun) : 0.0;
  }

  void Open() {
    phase = song.playable ? TCPlayerPhase::Stopped : TCPlayerPhase::Failed;
    if (song.playable && playWhenOpen) Begin();
    playWhenOpen = false;
  }

  void Begin() {
    Rewind();
    phase = TCPlayerPhase::Playing;
    soundsIn = song.soundsAfter;
  }

  void Rewind() {
    position = 0.0;
    begun = false;
    seen = false;
    endUnseen = false;
  }

  void Tick(double step) {
    if (phase == TCPlayerPhase::Loading && now >= opensAt) Open();
    if (phase != TCPlayerPhase::Playing || !deviceConnected) return;
    if (!begun) {
      soundsIn -= step;
      if (soundsIn >= 0.0) return;
      begun = true;
    }
    position += step;
    if (position < song.breaksOffAt.value_or(song.length)) return;
    const bool unseen = !seen;
    endPosition = position;
    phase = TCPlayerPhase::Stopped;
    Rewind();
    // A song shorter than the caller's polls still shows one position before its end, or its end would be
    // taken for a start that has not come yet.
    endUnseen = unseen;
  }

  static std::string Number(double value) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%g", value);
    return buffer;
  }

  static std::string Narrow(std::u16string_view text) {
    std::string result;
    for (const char16_t unit : text) {
      if (unit < 0x80) {
        result.push_back(static_cast<char>(unit));
      } else {
        char buffer[8];
        std::snprintf(buffer, sizeof buffer, "\\u%04X", static_cast<unsigned>(unit));
        result += buffer;
      }
    }
    return result;
  }

  TCFakeSong defaultSong{};
  std::map<std::u16string, TCFakeSong> songs{};
  std::vector<std::string> calls{};
  bool accepting = true;
  bool controlsPresent = true;
  bool deviceConnected = true;

  double now = 0.0;
  TCPlayerPhase phase = TCPlayerPhase::Empty;
  std::u16string url{};
  TCFakeSong song{};
  double opensAt = 0.0;
  bool playWhenOpen = false;
  double soundsIn = 0.0;
  double position = 0.0;
  bool begun = false;
  double endPosition = 0.0;
  int volume = 100;
  // Asking is what makes a position seen.
  mutable bool seen = false;
  mutable bool endUnseen = false;
};

}  // namespace brevant
