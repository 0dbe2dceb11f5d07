#include "model/report_lines.h"

#include <algorithm>

namespace brevant {

void TCReportLines::Enable(std::int32_t lineCapacity) {
  capacity = static_cast<std::size_t>(std::max(lineCapacity, 1));
  Clear();
}

void TCReportLines::Clear() {
  lines.clear();
}

void TCReportLines::Append(std::u16string_view text, TCLineRole role) {
  if (!Enabled()) return;
  if (lines.size() == capacity) lines.pop_front();
  lines.push_back({std::u16string(text) + u"\r\n", role});
}

}  // namespace brevant
