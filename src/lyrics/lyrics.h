// The lyric data of one song: its timed lines and the header values of its lyric file. Held by every song of
// the model, filled by the lyric reader, read by the lyric display and the properties pane. Any thread: what
// is packed never changes, and whoever changes a value has it to himself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brevant {

// The end of a line that no other line follows: far behind the end of any song (milliseconds).
inline constexpr std::int32_t kEndOfLyrics = 268435455;

// Who sings a line, by the mark in its text.
inline constexpr std::int32_t kNoSinger = 0;
inline constexpr std::int32_t kSingerM = 1;  // "M:"
inline constexpr std::int32_t kSingerF = 2;  // "F:"
inline constexpr std::int32_t kSingerD = 3;  // "D:"

// One timed line. It is current while start <= t < end (milliseconds from the start of the song).
struct TCLyric {
  std::u16string text;  // with its singer mark, if it has one
  std::int32_t start = 0;
  std::int32_t end = 0;
  std::int32_t singer = kNoSinger;

  friend bool operator==(const TCLyric&, const TCLyric&) = default;
};

// What the tags at the head of a lyric file say, as written.
struct TCLyricHeaders {
  std::u16string artist;
  std::u16string album;
  std::u16string title;
  std::u16string songCreator;
  std::u16string length;
  std::u16string lyricWriter;
  std::u16string editor;
  std::u16string version;
  std::u16string offset;  // milliseconds

  friend bool operator==(const TCLyricHeaders&, const TCLyricHeaders&) = default;
};

// Lyric data while it is being read: lines in file order, never sorted. Their texts stand one behind the
// other in one, since a sheet is filled for every song of a document.
struct TCLyricSheet {
  struct Line {
    std::int32_t start = 0;
    std::int32_t end = 0;
    std::int32_t singer = kNoSinger;
    std::size_t textEnd = 0;  // in `text`; it begins where the one before it ended
  };

  std::vector<Line> lines;
  std::string text;  // as EncodeLyricText gives it
  TCLyricHeaders headers;

  // An unknown singer counts as none once the sheet is packed.
  void Add(const TCLyric& line);
  // `utf8` is valid UTF-8.
  void Add(std::string_view utf8, std::int32_t start, std::int32_t end, std::int32_t singer);
};

// A finished sheet, packed: a value like any other, but copies share what they hold, since it never changes
// and is only ever replaced whole. A set list of 100,000 songs keeps one of these in each of them, most of
// them empty: an empty one is a null pointer. The lines are found by reading through what is packed.
class TCSongLyrics {
 public:
  TCSongLyrics() = default;
  explicit TCSongLyrics(const TCLyricSheet& sheet);

  // True without lines; header values may still be there.
  [[nodiscard]] bool Empty() const { return LineCount() == 0; }
  // True without lines and header values.
  [[nodiscard]] bool HoldsNothing() const { return packed == nullptr; }
  [[nodiscard]] std::size_t LineCount() const;

  // `count` lines in file order from `first` on, as far as there are so many.
  [[nodiscard]] std::vector<TCLyric> LinesFrom(std::size_t first, std::size_t count) const;

  // The first line with start <= timeMs < end, or -1. Unpacks no text.
  [[nodiscard]] std::int32_t FindLineAt(std::int32_t timeMs) const;

  [[nodiscard]] TCLyricHeaders Headers() const;

  // Equal when they hold the same lines and header values.
  friend bool operator==(const TCSongLyrics& a, const TCSongLyrics& b);

 private:
  std::shared_ptr<const char[]> packed;
};

}  // namespace brevant
