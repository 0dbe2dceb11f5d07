// A playlist of 5,000 songs in the real view, on a screen of Qt's own: showing it for the first time, showing
// another of that length in its place, painting what is seen, and a new current song.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <string>

#include "document/playlist_presenter.h"
#include "support/fake_tree.h"
#include "views/brevant_view.h"

namespace brevant {
namespace {

constexpr int kSongs = 5000;

std::u16string Numbered(const char* text, int number) {
  const std::string ascii = text + std::to_string(number);
  return {ascii.begin(), ascii.end()};
}

// Two playlists of one group.
TCAppRecord RecordOfSongs() {
  TCAppRecord record;
  TCPlayGroups& group = record.setLists.groups.emplace_back();
  for (int p = 0; p < 2; ++p) {
    TCPlayList& playlist = group.playlists.emplace_back();
    playlist.name = Numbered("Evening ", p);
    for (int i = 0; i < kSongs; ++i) {
      TCPlayListItem& song = playlist.items.emplace_back();
      song.SetPath(u"C:\\Music\\" + Numbered("A song of some length, number ", p * kSongs + i) + u".mp3");
      song.status = TCSongStatus::Found;
      song.time = u"03:25";
    }
    record.setLists.RecalcPlaylistTotalTime(playlist);
  }
  return record;
}

void Prepare(TCBrevantView& view, const TCSettings& settings) {
  view.resize(1200, 800);
  view.SetDisplayFont(settings.playListFontTypeName, settings.playListFontSize);
  view.show();
}

void PaintOnce(TCBrevantView& view, QImage& picture) {
  QCoreApplication::processEvents();
  view.render(&picture);
}

void ShowTheFirstPlaylist(benchmark::State& state) {
  TCAppRecord record = RecordOfSongs();
  TCFakeTree tree;
  QImage picture(1200, 800, QImage::Format_RGB32);
  for (auto _ : state) {
    state.PauseTiming();
    auto view = std::make_unique<TCBrevantView>();
    Prepare(*view, record.settings);
    PaintOnce(*view, picture);
    TCPlaylistPresenter presenter(record, *view, tree);
    state.ResumeTiming();
    presenter.ShowPlaylist(0, 0);
    PaintOnce(*view, picture);
    state.PauseTiming();
    view.reset();
    state.ResumeTiming();
  }
}

void ShowTheOtherPlaylist(benchmark::State& state) {
  TCAppRecord record = RecordOfSongs();
  TCFakeTree tree;
  QImage picture(1200, 800, QImage::Format_RGB32);
  TCBrevantView view;
  Prepare(view, record.settings);
  TCPlaylistPresenter presenter(record, view, tree);
  for (auto _ : state) {
    record.setLists.currentPlaylist = 1 - record.setLists.currentPlaylist;
    presenter.ShowPlaylist(0, record.setLists.currentPlaylist);
    PaintOnce(view, picture);
  }
}

void PaintWhatIsSeen(benchmark::State& state) {
  TCAppRecord record = RecordOfSongs();
  TCFakeTree tree;
  QImage picture(1200, 800, QImage::Format_RGB32);
  TCBrevantView view;
  Prepare(view, record.settings);
  TCPlaylistPresenter(record, view, tree).ShowPlaylist(0, 0);
  for (auto _ : state) PaintOnce(view, picture);
}

void MakeTheNextSongCurrent(benchmark::State& state) {
  TCAppRecord record = RecordOfSongs();
  TCFakeTree tree;
  QImage picture(1200, 800, QImage::Format_RGB32);
  TCBrevantView view;
  Prepare(view, record.settings);
  TCPlaylistPresenter presenter(record, view, tree);
  presenter.ShowPlaylist(0, 0);
  for (auto _ : state) {
    record.setLists.currentSong = (record.setLists.currentSong + 1) % kSongs;
    presenter.HighlightCurrentSong();
    PaintOnce(view, picture);
  }
}

BENCHMARK(ShowTheFirstPlaylist)->Unit(benchmark::kMillisecond);
BENCHMARK(ShowTheOtherPlaylist)->Unit(benchmark::kMillisecond);
BENCHMARK(PaintWhatIsSeen)->Unit(benchmark::kMillisecond);
BENCHMARK(MakeTheNextSongCurrent)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace brevant

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
