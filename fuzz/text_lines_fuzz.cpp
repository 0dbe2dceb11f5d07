// Text line files of both widths: whatever the bytes, the lines hold no line end, and writing them and
// reading them back changes nothing.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "must_hold.h"
#include "text/text_lines.h"

using namespace brevant;

namespace {

void CheckLines(const TextLines& lines, std::size_t units) {
  std::size_t length = 0;
  for (const std::u16string& line : lines) {
    MustHold(line.find(u'\r') == std::u16string::npos, "no line holds a carriage return");
    length += line.size();
  }
  MustHold(length <= units, "lines hold no more than the file does");
}

// Only at the head of the file is a mark no text: lines that begin with one are written behind another line.
void CheckWriting(TextLines lines) {
  lines.insert(lines.begin(), u"head");
  MustHold(SplitUtf16Lines(JoinUtf16Lines(lines)) == lines, "lines come back as they were written");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);

  const TextLines wide = SplitUtf16Lines(bytes);
  CheckLines(wide, size / 2);
  CheckWriting(wide);
  MustHold(SplitUtf16Lines(JoinUtf16Lines(wide)) == wide, "what was read comes back without a head");
  MustHold(SplitUtf16Lines(bytes.substr(0, size / 2 * 2)) == wide, "an odd last byte is ignored");
  MustHold(SplitUtf16Lines("\xFF\xFE" + std::string(bytes)) == wide,
           "one more mark in front changes nothing");

  const TextLines narrow = SplitAnsiLines(bytes);
  CheckLines(narrow, size);
  CheckWriting(narrow);
  return 0;
}
