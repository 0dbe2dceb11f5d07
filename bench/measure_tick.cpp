// brevant_measure_tick DOCUMENT.brv: plays the first song of the model, then the last, and prints how long
// the transport's tick takes meanwhile: its only search goes through the songs until it finds the one that
// plays.
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "medians.h"
#include "opened_document.h"
#include "playback/transport.h"
#include "support/fake_player.h"

namespace brevant {
namespace {

constexpr int kTicks = 600;  // three minutes of a song
constexpr double kPeriod = 0.3;

class TCNoDisplay final : public TCSetListDisplay {
 public:
  void ShowPlaylist(std::int32_t, std::int32_t) override {}
  void HighlightCurrentSong() override {}
  void RefreshSongRow(std::int32_t, const TCPlayListItem&) override {}
  void SetSongTime(std::int32_t, std::u16string_view) override {}
  void RefreshPlaylistTotal() override {}
  void FocusPlaylist() override {}
  void FocusPlaylistUnlessTyping() override {}
};

class TCLineCounter final : public TCMessageDisplay {
 public:
  int lines = 0;

  void Clear() override {}
  void Append(std::u16string_view) override { ++lines; }
  void SetLineRole(TCLineRole) override {}
  void KeepFirstInView() override {}
};

// Of the current playlist.
bool MeasureSong(const char* which, TCAppRecord& record, std::int32_t song, TCFileSystem& files) {
  TCNoDisplay display;
  TCLineCounter messages;
  TCFakePlayer player;
  player.SetDefaultSong({.length = 1000.0});
  TCTransport transport({record, files, display, messages, &player});
  record.setLists.currentSong = song;
  transport.Play();
  if (!transport.State().playing) return false;
  std::vector<double> ticks;
  std::vector<double> processor;
  for (int tick = 0; tick < kTicks; ++tick) {
    player.Advance(kPeriod);
    const TCSpent spent = Spent([&transport] { transport.OnPlayTimerTick(); });
    ticks.push_back(spent.wall);
    processor.push_back(spent.processor);
  }
  const auto [fastest, slowest] = std::minmax_element(ticks.begin(), ticks.end());
  std::printf("the %-5s song plays: a tick takes %.3f ms (%.3f to %.3f), %.3f of the processor; ", which,
              Median(ticks), *fastest, *slowest, Median(processor));
  std::printf("%d lyric lines shown\n", messages.lines);
  return true;
}

int Measure(const std::u16string& path) {
  TCDiskFiles files{TCNativePaths()};
  TCNoMessages silence;
  TCAppRecord record;
  TCSetListStore& store = record.setLists;
  TCDocumentFile document(files, store, silence);
  if (!document.OpenSetListDocument(path)) return EXIT_FAILURE;
  std::size_t songs = 0;
  std::size_t withLyrics = 0;
  for (const TCPlayGroups& group : store.groups) {
    for (const TCPlayList& playlist : group.playlists) {
      songs += playlist.items.size();
      for (const TCPlayListItem& song : playlist.items) withLyrics += song.lyrics.Empty() ? 0 : 1;
    }
  }
  std::printf("%zu songs, %zu with lyrics\n", songs, withLyrics);
  bool played = MeasureSong("first", record, 0, files);
  store.currentGroup = static_cast<std::int32_t>(store.groups.size()) - 1;
  store.currentPlaylist = static_cast<std::int32_t>(store.groups.back().playlists.size()) - 1;
  const auto last = static_cast<std::int32_t>(store.CurrentPlaylist()->items.size()) - 1;
  played = MeasureSong("last", record, last, files) && played;
  return played ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace brevant

int main(int argc, char** argv) {
  const std::u16string path = brevant::DocumentArgument(argc, argv);
  return path.empty() ? EXIT_FAILURE : brevant::Measure(path);
}
