#include "resources/menu_text.h"

namespace brevant {

std::u16string_view MenuTextWithoutHint(std::u16string_view menuText) {
  return menuText.substr(0, menuText.find(u'\t'));
}

std::u16string WithoutMnemonic(std::u16string_view text) {
  std::u16string plain(text);
  std::erase(plain, u'&');
  return plain;
}

}  // namespace brevant
