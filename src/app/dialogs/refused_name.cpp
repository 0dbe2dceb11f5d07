#include "app/dialogs/refused_name.h"

#include "text/unicode.h"

namespace brevant {

std::u16string RefusedNameText(std::string_view nativeName) {
  // A line break in the name would break the one line that tells of it.
  std::u16string name = DecodeAnsi(nativeName);
  for (char16_t& unit : name) {
    if (unit < u' ') unit = u'?';
  }
  const std::u16string reason = DecodeUtf8(nativeName) ? u"a backslash, double quote or line break in it"
                                                       : u"bytes in it that are not UTF-8";
  return u"A name with " + reason + u" cannot be used: " + name;
}

}  // namespace brevant
