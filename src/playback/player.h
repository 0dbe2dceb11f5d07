// The player: the ten operations through which the program makes sound. It sends no events; whoever wants to
// know what it does asks again. All calls come from the user-interface thread and none of them blocks: not on
// a slow disk, a dead sound server or a file that is no media.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brevant {

class TCPlayer {
 public:
  virtual ~TCPlayer() = default;

  // Makes `path` (the model's Windows path, never empty) the loaded song and stops it at once: loading never
  // starts playback. True when the command was accepted; what becomes of the file shows in the duration.
  virtual bool LoadUrl(std::u16string_view path) = 0;

  // The very text that LoadUrl was given last; empty before the first.
  [[nodiscard]] virtual std::u16string GetUrl() const = 0;

  // Whole seconds, truncated, at least 1 once known. 0 while the song is not opened yet; -1 when nothing is
  // loaded or the file cannot be played. A 0 always turns into one of the others within the load time.
  [[nodiscard]] virtual int GetDurationSeconds() const = 0;

  // Starts or resumes the loaded song; from its beginning when it was stopped or has ended. True when the
  // command was accepted; the sound follows a moment later.
  virtual bool Play() = 0;

  // The position returns to 0.
  virtual void Stop() = 0;

  // Keeps the position. Without effect on a stopped song.
  virtual void Pause() = 0;

  // Seconds from the start. Exactly 0.0 when the song has ended, was stopped or has not sounded yet; never
  // 0.0 while it plays or is paused once its sound has begun, not even after a seek to the start. Held, not
  // 0.0, while the sound device is gone. Empty when there are no controls to ask.
  [[nodiscard]] virtual std::optional<double> GetPosition() const = 0;

  // Moves the play position, clamped to the song's length.
  virtual void SetPosition(double seconds) = 0;

  // 0 to 100; 100 when it cannot be had.
  [[nodiscard]] virtual int GetVolume() const = 0;

  // Any value is taken and kept within 0 to 100 by the player.
  virtual void SetVolume(int volume) = 0;
};

}  // namespace brevant
