// The text of lyrics as it is kept: UTF-8, which holds most of them in half the room. A lone surrogate, which
// UTF-8 has no place for, is kept as three bytes of its own (the encoding known as WTF-8), so that every text
// comes back as it was.
#pragma once

#include <string>
#include <string_view>

namespace brevant {

// Adds `text` behind what `bytes` holds already.
void EncodeLyricText(std::string& bytes, std::u16string_view text);

// What EncodeLyricText was given; valid UTF-8 is read as such.
[[nodiscard]] std::u16string DecodeLyricText(std::string_view bytes);

}  // namespace brevant
