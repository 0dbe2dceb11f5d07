#include "model/message_display.h"

#include <string>

namespace brevant {

void TCMessageDisplay::AppendMessage(TCTextId id) {
  Append(TextOf(id));
}

void TCMessageDisplay::AppendMessage(TCTextId id, std::u16string_view detail) {
  std::u16string line(TextOf(id));
  line += u' ';
  line += detail;
  Append(line);
}

}  // namespace brevant
