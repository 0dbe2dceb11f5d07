// One tick of the transport at 100,000 songs with the last of them current, in each of the states that a tick
// can find: with the songs dealt out to playlists as a musician does, and all in one.
#include <benchmark/benchmark.h>

#include "document/playlist_presenter.h"
#include "playback/transport.h"
#include "support/fake_player.h"
#include "support/fake_playlist_view.h"
#include "support/fake_tree.h"
#include "support/memory_files.h"
#include "support/message_log.h"

namespace brevant {
namespace {

constexpr std::int32_t kSongs = 100'000;
constexpr std::int32_t kPlaylistsPerGroup = 25;

// The transport as the document puts it together, with a view that only keeps what it is shown.
class TCStage {
 public:
  explicit TCStage(std::int32_t songsPerPlaylist) {
    files.Put(u"song.mp3");
    const std::int32_t playlists = kSongs / songsPerPlaylist;
    for (std::int32_t i = 0; i < playlists; ++i) {
      if (i % kPlaylistsPerGroup == 0) store.groups.emplace_back();
      TCPlayList& playlist = store.groups.back().playlists.emplace_back();
      playlist.name = u"A set";
      playlist.items.resize(static_cast<std::size_t>(songsPerPlaylist));
      for (TCPlayListItem& song : playlist.items) song.SetPath(u"song.mp3");
    }
    store.currentGroup = static_cast<std::int32_t>(store.groups.size()) - 1;
    store.currentPlaylist = static_cast<std::int32_t>(store.groups.back().playlists.size()) - 1;
    store.currentSong = songsPerPlaylist - 1;
    player.SetDefaultSong({.length = 1e9});
    presenter.ShowPlaylist(store.currentGroup, store.currentPlaylist);
  }

  void PlayToTheMiddle() {
    transport.Play();
    player.Advance(1.0);
    transport.OnPlayTimerTick();
    transport.OnPlayTimerTick();
  }

  TCAppRecord record;
  TCSetListStore& store = record.setLists;
  TCMemoryFiles files;
  TCFakePlayer player;
  TCMessageLog messages;
  TCFakePlaylistView view;
  TCFakeTree tree;
  TCPlaylistPresenter presenter{record, view, tree};
  TCTransport transport{{record, files, presenter, messages, &player}};
};

// Nearly all ticks are like this one.
void TickWhileASongPlays(benchmark::State& state) {
  TCStage stage(static_cast<std::int32_t>(state.range(0)));
  stage.PlayToTheMiddle();
  if (!stage.transport.State().started) state.SkipWithError("nothing plays");
  for (auto _ : state) stage.transport.OnPlayTimerTick();
}

// The first tick behind Play that knows the length: the song's time and the playlist's total change.
void TickThatLearnsTheTime(benchmark::State& state) {
  TCStage stage(static_cast<std::int32_t>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    stage.transport.Play();
    stage.player.Advance(0.1);
    stage.store.SongInCurrentPlaylist(stage.store.currentSong)->time = u"00:01";
    state.ResumeTiming();
    stage.transport.OnPlayTimerTick();
  }
}

void EndSongs(benchmark::State& state, TCStage& stage, std::int32_t songsBeforeTheLast) {
  stage.record.settings.autoSongAdvance = true;
  stage.record.settings.autoRecycle = true;
  const std::int32_t group = stage.store.currentGroup;
  const std::int32_t playlist = stage.store.currentPlaylist;
  const std::int32_t song = stage.store.currentSong - songsBeforeTheLast;
  for (auto _ : state) {
    state.PauseTiming();
    stage.store.currentGroup = group;
    stage.store.currentPlaylist = playlist;
    stage.store.currentSong = song;
    stage.PlayToTheMiddle();
    stage.player.Stop();
    state.ResumeTiming();
    stage.transport.OnPlayTimerTick();
    if (stage.store.currentSong == song) state.SkipWithError("the song did not end");
  }
}

// All rows are coloured anew.
void TickThatGoesOnToTheNextSong(benchmark::State& state) {
  TCStage stage(static_cast<std::int32_t>(state.range(0)));
  EndSongs(state, stage, 1);
}

// Behind the last song of all the first playlist is shown.
void TickThatStartsTheArrangementAgain(benchmark::State& state) {
  TCStage stage(static_cast<std::int32_t>(state.range(0)));
  EndSongs(state, stage, 0);
}

#define BREVANT_BENCH_TICK(name) \
  BENCHMARK(name)->ArgName("songs_a_playlist")->Arg(200)->Arg(kSongs)->Unit(benchmark::kMicrosecond)

BREVANT_BENCH_TICK(TickWhileASongPlays);
BREVANT_BENCH_TICK(TickThatLearnsTheTime);
BREVANT_BENCH_TICK(TickThatGoesOnToTheNextSong);
BREVANT_BENCH_TICK(TickThatStartsTheArrangementAgain);

}  // namespace
}  // namespace brevant

BENCHMARK_MAIN();
