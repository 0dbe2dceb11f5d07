// The passage that is played again and again: two times of the play bar, begin and end.
#pragma once

#include <cstdint>

namespace brevant {

// The two time fields, in seconds. Typed into by the user, so they are asked afresh whenever they matter.
class TCRepeatFields {
 public:
  virtual ~TCRepeatFields() = default;

  [[nodiscard]] virtual std::int32_t RepeatBegin() const = 0;
  // 0: no range is set.
  [[nodiscard]] virtual std::int32_t RepeatEnd() const = 0;
  // Any number of seconds; the field shows what RepeatFieldTime makes of it.
  virtual void SetRepeatBegin(std::int32_t seconds) = 0;
  virtual void SetRepeatEnd(std::int32_t seconds) = 0;
};

struct TCFieldTime {
  std::int32_t minutes = 0;  // 0 to 59
  std::int32_t seconds = 0;  // 0 to 59
};

// What a field shows: whole hours are dropped, a negative number is 00:00.
[[nodiscard]] TCFieldTime RepeatFieldTime(std::int32_t seconds);

}  // namespace brevant
