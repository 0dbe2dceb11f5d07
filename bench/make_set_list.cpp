#include "make_set_list.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

#include "text/native_path.h"
#include "text/text_lines.h"

namespace brevant {

namespace {

constexpr std::array<std::string_view, 32> kWords = {
    "river",  "lantern", "golden", "northern", "midnight", "harbour", "silver", "window",
    "summer", "letter",  "road",   "open",     "winter",   "heart",   "stone",  "garden",
    "echo",   "paper",   "train",  "ocean",    "quiet",    "morning", "shadow", "fire",
    "home",   "distant", "bright", "hollow",   "wild",     "evening", "bell",   "sky"};

// std::uniform_int_distribution gives other numbers with other libraries; the set list should not change.
class TCChance {
 public:
  int Below(int limit) { return static_cast<int>(engine() % static_cast<std::uint32_t>(limit)); }

  std::string Word() { return std::string(kWords[static_cast<std::size_t>(Below(kWords.size()))]); }

  std::string Words(int count) {
    std::string text = Word();
    text.front() = static_cast<char>(text.front() - 'a' + 'A');
    for (int i = 1; i < count; ++i) text += " " + Word();
    return text;
  }

  std::mt19937 engine{20240501};
};

std::string Numbered(const char* format, int number) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), format, number);
  return text.data();
}

std::string Time(int seconds) {
  return Numbered("%02d", seconds / 60) + Numbered(":%02d", seconds % 60);
}

void WriteFile(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream file;
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file.open(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// About 30 lines of about 25 characters, spread over the song.
std::string LyricText(TCChance& chance, const std::string& artist, const std::string& title, int seconds) {
  std::string text = "[ti:" + title + "]\r\n[ar:" + artist + "]\r\n[al:" + chance.Words(2) +
                     "]\r\n[by:" + chance.Words(2) + "]\r\n[length: " + Time(seconds) + "]\r\n";
  const int lines = 24 + chance.Below(17);
  for (int line = 0; line < lines; ++line) {
    const std::string tag = Time(10 + line * (seconds - 15) / lines) + Numbered(".%02d", chance.Below(100));
    text += "[" + tag + "]" + chance.Words(4) + "\r\n";
  }
  return text;
}

struct Song {
  std::filesystem::path path;
  std::string time;
};

std::vector<Song> MakeCollection(const std::filesystem::path& folder, const TCSetListSize& size,
                                 TCChance& chance) {
  std::vector<Song> songs;
  songs.reserve(static_cast<std::size_t>(size.songs));
  std::filesystem::path album;
  std::string artist;
  for (int number = 0; number < size.songs; ++number) {
    const int inFolder = number % size.songsPerFolder;
    if (inFolder == 0) {
      artist = "The " + chance.Words(2);
      album = folder / "Music" / artist / (chance.Words(2) + Numbered(" %d", number / size.songsPerFolder));
      std::filesystem::create_directories(album);
    }
    const int seconds = 120 + chance.Below(240);
    const std::string title = chance.Words(2);
    Song song{album / (Numbered("%02d ", inFolder + 1) + title + ".mp3"), Time(seconds)};
    WriteFile(song.path, {});
    if (number % size.songsPerLyricFile == 0) {
      WriteFile(std::filesystem::path(song.path).replace_extension("lrc"),
                LyricText(chance, artist, title, seconds));
    }
    songs.push_back(std::move(song));
  }
  return songs;
}

std::u16string Wide(const std::string& ascii) {
  return {ascii.begin(), ascii.end()};
}

TextLines DocumentLines(const std::vector<Song>& songs, const TCSetListSize& size) {
  const int playlists = size.groups * size.playlistsPerGroup;
  const auto songsPerPlaylist = (static_cast<int>(songs.size()) + playlists - 1) / playlists;
  TextLines lines;
  lines.reserve(songs.size());
  int number = 0;
  for (const Song& song : songs) {
    const int playlist = number++ / songsPerPlaylist;
    const std::string group = "Season" + Numbered(" %02d", playlist / size.playlistsPerGroup + 1);
    const std::string set = "Evening" + Numbered(" %02d", playlist % size.playlistsPerGroup + 1);
    lines.push_back(Wide("\"" + group + "\" \"" + set + "\" \"") +
                    TCNativePaths::FromNative(song.path.string()).value() + Wide("\" " + song.time));
  }
  return lines;
}

}  // namespace

std::u16string MakeSetList(const std::filesystem::path& folder, const TCSetListSize& size) {
  const std::filesystem::path root = std::filesystem::absolute(folder);
  std::filesystem::create_directories(root);
  TCChance chance;
  std::vector<Song> songs = MakeCollection(root, size, chance);
  if (size.order == TCSongOrder::Shuffled) {
    for (std::size_t at = songs.size(); at > 1; --at) {
      std::swap(songs[at - 1], songs[static_cast<std::size_t>(chance.Below(static_cast<int>(at)))]);
    }
  }
  const std::filesystem::path document = root / "bench.brv";
  WriteFile(document, JoinUtf16Lines(DocumentLines(songs, size)));
  return TCNativePaths::FromNative(document.string()).value();
}

}  // namespace brevant
