// The text of an INI file: sections of key=value lines, read and written by the rules of the platform's
// private-profile calls. Used by the settings file and the per-user profile. Section and key names match
// without regard to case and to white space around them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brevant {

class TCIniText {
 public:
  TCIniText() = default;

  // Reads UTF-16 little-endian with a byte order mark, UTF-8 with or without one, else Windows-1252. Never
  // fails: what is no section and no key is kept as a line of its own. A line feed, a carriage return, or
  // returns before a line feed end a line.
  [[nodiscard]] static TCIniText Parse(std::string_view bytes);

  // UTF-8 without a byte order mark, carriage return and line feed after every line. Lines that were not set
  // are written as they were read: comments, blank lines and the blanks round an equals sign are the user's.
  [[nodiscard]] std::string Serialize() const;

  // The value up to a zero character, without surrounding white space and one pair of double or single
  // quotes; `fallback` (without trailing blanks and one pair of quotes) when the section or key is missing or
  // the key's line has no equals sign. The first of several equal sections or keys is the one that answers.
  // Keys above the first heading belong to the section "".
  [[nodiscard]] std::u16string GetString(std::u16string_view section, std::u16string_view key,
                                         std::u16string_view fallback) const;

  // Sign, then decimal digits or a lower-case 0x, 0o or 0b number, wrapping modulo 2^32; 0 when no number
  // stands there; `fallback` when the key is missing or its value empty.
  [[nodiscard]] std::int32_t GetInt(std::u16string_view section, std::u16string_view key,
                                    std::int32_t fallback) const;

  // Replaces the first such key, or adds it behind the section's last line that is not blank, or adds the
  // section at the end. White space before the key and the value is not written. A value with a line break in
  // it spills into lines of its own, and GetString reads what a reader of the file will read.
  void SetString(std::u16string_view section, std::u16string_view key, std::u16string_view value);

  // A text as it has to be set so that GetString gives it back: one pair of quotes more round a text that
  // begins or ends with white space or is quoted itself, blanks for its line breaks.
  [[nodiscard]] static std::u16string Protected(std::u16string text);

  // In order, as written; a key that stands twice is there twice. Lines without an equals sign and comments
  // are no keys.
  [[nodiscard]] std::vector<std::u16string> Keys(std::u16string_view section) const;

 private:
  // A half-open range of lines: a section without its heading.
  struct Range {
    std::size_t begin = 0;
    std::size_t end = 0;
  };

  [[nodiscard]] std::optional<Range> FindSection(std::u16string_view section) const;
  [[nodiscard]] std::optional<std::size_t> FindKey(Range range, std::u16string_view key) const;
  [[nodiscard]] std::optional<std::u16string_view> FindValue(std::u16string_view section,
                                                             std::u16string_view key) const;
  void InsertText(std::size_t at, std::u16string_view text);
  // At the head of the file a byte order mark is no text, wherever it came from.
  void DropMarks();

  // The lines as they are written, without their ends. What a line means is read off it when it is asked for:
  // so nothing can be held here that a reader of the file would not find in it.
  std::vector<std::u16string> lines;
};

}  // namespace brevant
