// The recent lines of the message display: a ring of fixed size that forgets the oldest.
#pragma once

#include <cstddef>
#include <cstdint>
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
  // Until this is called every append and clear does nothing.
  void Enable(std::int32_t lineCapacity);
  [[nodiscard]] bool Enabled() const { return enabled; }

  void Clear();
  void Append(std::u16string_view text, TCLineRole role);

  [[nodiscard]] std::int32_t Count() const { return count; }
  // Oldest first.
  [[nodiscard]] std::vector<TCReportLine> Lines() const;
  // All lines in one text, oldest first.
  [[nodiscard]] std::u16string Text() const;

 private:
  std::vector<TCReportLine> lines;  // one slot a line
  std::int32_t capacity = 0;
  std::int32_t writeIndex = 0;  // the slot that the next line goes into
  std::int32_t count = 0;
  bool enabled = false;
};

}  // namespace brevant
