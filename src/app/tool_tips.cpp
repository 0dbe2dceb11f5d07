#include "app/tool_tips.h"

#include <algorithm>
#include <vector>

#include "text/case_folding.h"

namespace brevant {
namespace {

// Blanks and commas stand between words: "Go to next song ^ arrow, d".
std::vector<std::u16string> WordsOf(std::u16string_view text) {
  std::vector<std::u16string> words(1);
  for (const char16_t unit : text) {
    if (unit != u' ' && unit != u',') {
      words.back() += unit;
    } else if (!words.back().empty()) {
      words.emplace_back();
    }
  }
  return words;
}

std::vector<std::u16string> KeysOf(TCCommandId command) {
  std::vector<std::u16string> keys;
  for (const TCKeyBinding& binding : EffectiveBindings()) {
    if (binding.command == command) keys.push_back(KeyName(binding.key));
  }
  return keys;
}

}  // namespace

std::u16string ToolTipWithKeys(const TCCommand& command) {
  std::u16string tip = ToolTip(command);
  const std::vector<std::u16string> words = WordsOf(ToLower(tip));
  const std::vector<std::u16string> keys = KeysOf(command.id);
  const bool named = std::ranges::all_of(keys, [&words](const std::u16string& key) {
    return std::ranges::find(words, ToLower(key)) != words.end();
  });
  return named ? tip : tip + u" (" + KeysText(command.id) + u")";
}

std::u16string KeysText(TCCommandId command) {
  std::u16string list;
  for (const std::u16string& key : KeysOf(command)) list += (list.empty() ? u"" : u", ") + key;
  return list;
}

}  // namespace brevant
