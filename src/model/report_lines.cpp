#include "model/report_lines.h"

#include <algorithm>

namespace brevant {

void TCReportLines::Enable(std::int32_t lineCapacity) {
  capacity = std::max(lineCapacity, 1);
  enabled = true;
  Clear();
}

void TCReportLines::Clear() {
  if (!enabled) return;
  lines.assign(static_cast<std::size_t>(capacity), {});
  writeIndex = 0;
  count = 0;
}

void TCReportLines::Append(std::u16string_view text, TCLineRole role) {
  if (!enabled) return;
  TCReportLine& slot = lines[static_cast<std::size_t>(writeIndex)];
  slot.text = text;
  slot.text += u"\r\n";
  slot.role = role;
  writeIndex = (writeIndex + 1) % capacity;
  count = std::min(count + 1, capacity);
}

std::vector<TCReportLine> TCReportLines::Lines() const {
  std::vector<TCReportLine> shown;
  shown.reserve(static_cast<std::size_t>(count));
  for (std::int32_t age = count; age > 0; --age) {
    shown.push_back(lines[static_cast<std::size_t>((writeIndex + capacity - age) % capacity)]);
  }
  return shown;
}

std::u16string TCReportLines::Text() const {
  std::u16string text;
  for (const TCReportLine& line : Lines()) text += line.text;
  return text;
}

}  // namespace brevant
