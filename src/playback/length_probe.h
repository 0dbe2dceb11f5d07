// Reads how long a song lasts without a sound and without touching the player, one song at a time. Called on
// the user-interface thread; never blocks.
#pragma once

#include <string_view>

namespace brevant {

class TCLengthProbe {
 public:
  virtual ~TCLengthProbe() = default;

  // Begins to read `path` and forgets the song before. The song that is being read already is read on.
  virtual void Open(std::u16string_view path) = 0;

  // Whole seconds, at least 1; 0 while not known yet; -1 when it is missing or cannot be read, or nothing is
  // open. A 0 always turns into one of the others within the load time.
  [[nodiscard]] virtual int GetDurationSeconds() const = 0;

  virtual void Close() = 0;
};

}  // namespace brevant
