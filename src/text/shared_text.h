// Text that never changes and is shared by its copies: thousands of songs in one folder hold its name once.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace brevant {

class TCSharedText {
 public:
  TCSharedText() = default;
  TCSharedText(std::u16string value)  // NOLINT(google-explicit-constructor): a text like any other
      : text(value.empty() ? nullptr : std::make_shared<const std::u16string>(std::move(value))) {}
  TCSharedText(const char16_t* value)
      : TCSharedText(std::u16string(value)) {}  // NOLINT(google-explicit-constructor)

  [[nodiscard]] const std::u16string& str() const {
    static const std::u16string kEmpty;
    return text ? *text : kEmpty;
  }
  operator std::u16string_view() const { return str(); }  // NOLINT(google-explicit-constructor)
  [[nodiscard]] bool empty() const { return !text; }

  friend bool operator==(const TCSharedText& a, const TCSharedText& b) {
    return a.text == b.text || a.str() == b.str();
  }

 private:
  std::shared_ptr<const std::u16string> text;
};

// Gives equal texts the same copy, for as long as many of them are made.
class TCSharedTexts {
 public:
  [[nodiscard]] TCSharedText Share(std::u16string_view text) {
    const auto known = texts.find(text);
    if (known != texts.end()) return known->second;
    const TCSharedText shared{std::u16string(text)};
    texts.emplace(shared.str(), shared);
    return shared;
  }

 private:
  std::unordered_map<std::u16string_view, TCSharedText> texts;  // the keys stand in the values
};

}  // namespace brevant
