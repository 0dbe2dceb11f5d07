// The two time fields without a window.
#pragma once

#include "playback/repeat_range.h"

namespace brevant {

class TCFakeRepeatFields final : public TCRepeatFields {
 public:
  std::int32_t begin = 0;
  std::int32_t end = 0;

  [[nodiscard]] std::int32_t RepeatBegin() const override { return begin; }
  [[nodiscard]] std::int32_t RepeatEnd() const override { return end; }
  void SetRepeatBegin(std::int32_t seconds) override { begin = InField(seconds); }
  void SetRepeatEnd(std::int32_t seconds) override { end = InField(seconds); }

 private:
  static std::int32_t InField(std::int32_t seconds) {
    const TCFieldTime time = RepeatFieldTime(seconds);
    return time.minutes * 60 + time.seconds;
  }
};

}  // namespace brevant
