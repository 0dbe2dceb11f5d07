// Text that never changes and is shared by its copies: thousands of songs in one folder hold its name once.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace brevant {

class TCSharedText {
 public:
  TCSharedText() = default;
  // Not explicit: a text like any other.
  TCSharedText(std::u16string value) : held(value.empty() ? nullptr : new Held{std::move(value)}) {}
  TCSharedText(const char16_t* value) : TCSharedText(std::u16string(value)) {}

  TCSharedText(const TCSharedText& other) : held(other.held) {
    if (held != nullptr) held->holders.fetch_add(1, std::memory_order_relaxed);
  }
  TCSharedText(TCSharedText&& other) noexcept : held(std::exchange(other.held, nullptr)) {}
  TCSharedText& operator=(TCSharedText other) noexcept {
    std::swap(held, other.held);
    return *this;
  }
  ~TCSharedText() {
    if (held != nullptr && held->holders.fetch_sub(1, std::memory_order_acq_rel) == 1) delete held;
  }

  [[nodiscard]] const std::u16string& str() const {
    static const std::u16string kEmpty;
    return held == nullptr ? kEmpty : held->text;
  }
  operator std::u16string_view() const { return str(); }
  [[nodiscard]] bool empty() const { return held == nullptr; }
  [[nodiscard]] std::size_t size() const { return held == nullptr ? 0 : held->text.size(); }

  friend bool operator==(const TCSharedText& a, const TCSharedText& b) {
    return a.held == b.held || a.str() == b.str();
  }

 private:
  // The count stands with the text, so that a song pays one pointer for each of its shared texts.
  struct Held {
    const std::u16string text;
    std::atomic<std::uint32_t> holders{1};
  };

  Held* held = nullptr;
};

// Gives equal texts the same copy, for as long as many of them are made.
class TCSharedTexts {
 public:
  [[nodiscard]] TCSharedText Share(std::u16string_view text) {
    // A comparison of blocks of memory; == would go through UTF-16 unit by unit.
    if (std::equal(text.begin(), text.end(), last.str().begin(), last.str().end())) return last;
    const auto known = texts.find(text);
    if (known != texts.end()) return last = known->second;
    last = TCSharedText(std::u16string(text));
    texts.emplace(last.str(), last);
    return last;
  }

 private:
  std::unordered_map<std::u16string_view, TCSharedText> texts;  // the keys stand in the values
  TCSharedText last;                                            // songs of one folder often stand together
};

}  // namespace brevant
