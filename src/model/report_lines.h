// The recent lines of the message display, as many as it has room for: the oldest are forgotten.
// User-interface thread only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "model/message_display.h"

namespace brevant {

struct TCReportLine {
  std::u16string text;  // with carriage return and line feed at its end
  TCLineRole role = TCLineRole::Normal;
};

class TCReportLines {
 public:
  // Until this is called every append and clear does nothing. Drops what is there. Room for one line at
  // least.
  void Enable(std::int32_t lineCapacity);
  [[nodiscard]] bool Enabled() const { return capacity > 0; }

  void Clear();
  void Append(std::u16string_view text, TCLineRole role);

  [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(lines.size()); }
  // Oldest first.
  [[nodiscard]] std::vector<TCReportLine> Lines() const { return {lines.begin(), lines.end()}; }

 private:
  std::deque<TCReportLine> lines;
  std::size_t capacity = 0;  // 0: not enabled
};

}  // namespace brevant
