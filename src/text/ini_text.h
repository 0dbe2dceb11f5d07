// The text of an INI file: sections of key=value lines, read and written by the rules of the platform's
// private-profile calls. Used by the settings file and the per-user profile.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brevant {

class TCIniText {
 public:
  TCIniText() = default;

  // Reads UTF-16 little-endian with a mark, UTF-8 (with or without a mark), else Windows-1252. Never fails:
  // what is no section and no key is kept as a line of its own.
  [[nodiscard]] static TCIniText Parse(std::string_view bytes);

  // UTF-8 without a mark, carriage return and line feed after every line.
  [[nodiscard]] std::string Serialize() const;

  // The value without surrounding white space and one pair of quotes; `fallback` (trailing blanks removed)
  // when the section or key is missing. The first of several equal sections or keys is the one that answers.
  [[nodiscard]] std::u16string GetString(std::u16string_view section, std::u16string_view key,
                                         std::u16string_view fallback) const;

  // Sign, then decimal digits or a lower-case 0x, 0o or 0b number, wrapping modulo 2^32; 0 when no number
  // stands there; `fallback` when the key is missing or its value empty.
  [[nodiscard]] std::int32_t GetInt(std::u16string_view section, std::u16string_view key,
                                    std::int32_t fallback) const;

  // Replaces the first such key, or adds it at the end of the section, or adds the section at the end.
  void SetString(std::u16string_view section, std::u16string_view key, std::u16string_view value);
  void DeleteKey(std::u16string_view section, std::u16string_view key);
  void DeleteSection(std::u16string_view section);

  [[nodiscard]] std::vector<std::u16string> Keys(std::u16string_view section) const;

 private:
  struct Line {
    // A heading holds the section name in `name`; a key line its key and, after '=', its value as written;
    // other lines (comments) stand whole in `value`.
    enum class Kind { Heading, Key, Other } kind = Kind::Other;
    std::u16string name;
    std::optional<std::u16string> value;
  };

  std::vector<Line> lines;
};

}  // namespace brevant
