// INI text: whatever the bytes, what was read is written so that it reads the same, and every key answers in
// the same way before and after.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "must_hold.h"
#include "text/ini_text.h"
#include "text/unicode.h"

using namespace brevant;

namespace {

void CheckSameAnswers(const TCIniText& a, const TCIniText& b, std::u16string_view section) {
  const std::vector<std::u16string> keys = a.Keys(section);
  MustHold(keys == b.Keys(section), "the same keys stand there after writing");
  for (const std::u16string& key : keys) {
    MustHold(a.GetString(section, key, u"DEF") == b.GetString(section, key, u"DEF"), "a key keeps its value");
    MustHold(a.GetInt(section, key, -77) == b.GetInt(section, key, -77), "a key keeps its number");
  }
}

// A section, a key and a value out of the input itself, so that the changes meet what stands there.
std::u16string Piece(std::string_view bytes, std::size_t part) {
  const std::size_t length = bytes.size() / 4;
  return DecodeAnsi(bytes.substr(part * length, length));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);

  // Lone surrogates of a UTF-16 file are gone once it was written, so the fixed point begins behind that.
  const std::string written = TCIniText::Parse(bytes).Serialize();
  const TCIniText ini = TCIniText::Parse(written);
  MustHold(ini.Serialize() == written, "what was written reads and writes the same");
  MustHold(DecodeUtf8(written).has_value(), "what is written is UTF-8");

  TCIniText changed = ini;
  const std::u16string section = Piece(bytes, 1);
  changed.SetString(u"Brevant", u"Volume", u"7");
  MustHold(changed.GetInt(u"brevant", u"VOLUME", 0) == 7, "what was set is there");
  changed.SetString(section, Piece(bytes, 2), Piece(bytes, 3));
  const TCIniText readBack = TCIniText::Parse(changed.Serialize());
  for (const std::u16string_view name : {std::u16string_view(u"S"), std::u16string_view(u"Brevant"),
                                         std::u16string_view(section), std::u16string_view()}) {
    CheckSameAnswers(changed, readBack, name);
    CheckSameAnswers(ini, TCIniText::Parse(written), name);
  }
  return 0;
}
