#include "app/commands/tool_tips.h"

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

}  // namespace

std::u16string ToolTipWithKeys(const TCCommand& command, std::span<const TCKey> keys) {
  std::u16string tip = ToolTip(command);
  const std::vector<std::u16string> words = WordsOf(ToLower(tip));
  const bool named = std::ranges::all_of(keys, [&words](const TCKey& key) {
    return std::ranges::find(words, ToLower(KeyName(key))) != words.end();
  });
  return named ? tip : tip + u" (" + KeysText(keys) + u")";
}

std::u16string KeysText(std::span<const TCKey> keys) {
  std::u16string list;
  for (const TCKey& key : keys) list += (list.empty() ? u"" : u", ") + KeyName(key);
  return list;
}

}  // namespace brevant
