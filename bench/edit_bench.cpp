// Editing commands on documents of 1,000, 10,000 and 100,000 songs, in the real tree and the real playlist
// view on a screen of Qt's own: each with everything it shows, laid out and painted. And the whole tree,
// built and opened.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <string>

#include "document/entry_mover.h"
#include "document/set_list_editor.h"
#include "document/song_placement.h"
#include "document/song_properties.h"
#include "support/fake_frame.h"
#include "support/memory_files.h"
#include "support/message_log.h"
#include "views/brevant_view.h"
#include "views/play_list_manager_tree_view.h"

namespace brevant {
namespace {

constexpr std::int32_t kSongsInPlaylist = 100;
constexpr std::int32_t kPlaylistsInGroup = 25;

std::u16string Numbered(const char* text, std::int32_t number) {
  const std::string ascii = text + std::to_string(number);
  return {ascii.begin(), ascii.end()};
}

// Nobody to be asked.
class TCSilentPrompts final : public TCPrompts {
 public:
  std::optional<std::u16string> EnterText(const TCTextPrompt&) override { return {}; }
  TCSaveAnswer AskSaveChanges(std::u16string_view) override { return TCSaveAnswer::Cancel; }
  std::optional<std::u16string> ChooseDocumentToOpen() override { return {}; }
  std::optional<std::u16string> ChooseDocumentToSave(std::u16string_view) override { return {}; }
  std::optional<std::vector<std::u16string>> ChooseMediaFiles(const TCMediaFileQuestion&) override {
    return {};
  }
  bool ConfirmRemove(std::u16string_view) override { return true; }
  bool EditSetLists(TCAddPlayItems&) override { return false; }
  bool EditSongProperties(TCSongPropertiesForm&) override { return false; }
};

// A document in the middle of its use: the playlist in its midst is current, shown, and open in the tree.
class TCStudio {
 public:
  explicit TCStudio(std::int32_t songs, std::int32_t inPlaylist = kSongsInPlaylist)
      : songsInPlaylist(inPlaylist) {
    for (std::int32_t i = 0; i < songs; ++i) AddSong(i);
    store.currentGroup = static_cast<std::int32_t>(store.groups.size()) / 2;
    store.RecalcAllTotalTimes();
    for (QWidget* widget : std::initializer_list<QWidget*>{&view, &tree}) {
      widget->resize(600, 800);
      widget->show();
    }
    Show();
  }

  void Show() {
    treePresenter.BuildAll();
    presenter.ShowPlaylist(store.currentGroup, 0);
    tree.SelectNode(Song(0).treeNode);
    Paint();
  }

  [[nodiscard]] TCPlayListItem& Song(std::size_t index) { return store.CurrentPlaylist()->items[index]; }

  // Lays out and paints what has changed.
  void Paint() { QCoreApplication::processEvents(); }

  TCAppRecord record;
  TCSetListStore& store = record.setLists;
  TCMemoryFiles files;
  TCMessageLog messages;
  TCFakeFrame frame;
  TCSilentPrompts prompts;
  TCBrevantView view;
  TCPlayListManagerTreeView tree;
  TCPlaylistPresenter presenter{record, view, tree};
  TCTreePresenter treePresenter{store, tree};
  TCSongCheck check{files, store, treePresenter, presenter};
  TCEditParts parts{record, check, treePresenter, presenter, view, frame, messages, prompts, [] {}};
  TCSetListEditor editor{parts};
  TCEntryMover mover{parts};
  TCSongPlacement placement{parts, editor};

 private:
  void AddSong(std::int32_t number) {
    const std::int32_t playlists = number / songsInPlaylist;
    if (number % (songsInPlaylist * kPlaylistsInGroup) == 0)
      store.groups.emplace_back().name = Numbered("Tour ", playlists / kPlaylistsInGroup);
    std::vector<TCPlayList>& lists = store.groups.back().playlists;
    if (number % songsInPlaylist == 0) lists.emplace_back().name = Numbered("Evening ", playlists);
    TCPlayListItem& song = lists.back().items.emplace_back();
    song.SetPath(u"C:\\Music\\" + Numbered("A song of some length, number ", number) + u".mp3");
    song.time = u"03:25";
  }

  std::int32_t songsInPlaylist = kSongsInPlaylist;
};

void MoveASong(benchmark::State& state) {
  TCStudio studio(static_cast<std::int32_t>(state.range(0)));
  for (auto _ : state) {
    studio.mover.MoveRow(0, kSongsInPlaylist - 1);
    studio.Paint();
  }
}

void MoveAPlaylistIntoAnotherGroup(benchmark::State& state) {
  TCStudio studio(static_cast<std::int32_t>(state.range(0)));
  TCSetListStore& store = studio.store;
  if (store.groups.size() < 2) return state.SkipWithError("one group only");
  bool back = false;
  for (auto _ : state) {
    std::vector<TCPlayList>& from = store.groups[back ? 1 : 0].playlists;
    std::vector<TCPlayList>& to = store.groups[back ? 0 : 1].playlists;
    studio.mover.Move(from[3].treeNode, to[3].treeNode);
    back = !back;
    studio.Paint();
  }
}

void MoveAGroup(benchmark::State& state) {
  TCStudio studio(static_cast<std::int32_t>(state.range(0)));
  std::vector<TCPlayGroups>& groups = studio.store.groups;
  if (groups.size() < 2) return state.SkipWithError("one group only");
  for (auto _ : state) {
    studio.mover.Move(groups.front().treeNode, groups.back().treeNode);
    studio.Paint();
  }
}

void RenameASong(benchmark::State& state) {
  TCStudio studio(static_cast<std::int32_t>(state.range(0)));
  std::int32_t number = 0;
  for (auto _ : state) {
    studio.editor.Rename(studio.Song(5).treeNode, Numbered("Another name ", ++number) + u".mp3");
    studio.Paint();
  }
}

// The other half of each round, taking it away again, is not counted.
void AddASong(benchmark::State& state) {
  TCStudio studio(static_cast<std::int32_t>(state.range(0)));
  studio.record.settings.confirmFileRemove = false;
  for (auto _ : state) {
    studio.placement.PlaceText(u"C:\\new.mp3");
    studio.Paint();
    state.PauseTiming();
    studio.editor.RemoveSelectedNode();
    studio.tree.SelectNode(studio.Song(5).treeNode);
    studio.Paint();
    state.ResumeTiming();
  }
}

void RemoveASong(benchmark::State& state) {
  TCStudio studio(static_cast<std::int32_t>(state.range(0)));
  studio.record.settings.confirmFileRemove = false;
  for (auto _ : state) {
    state.PauseTiming();
    studio.tree.SelectNode(studio.Song(5).treeNode);
    studio.placement.PlaceText(u"C:\\new.mp3");
    studio.Paint();
    state.ResumeTiming();
    studio.editor.RemoveSelectedNode();
    studio.Paint();
  }
}

// Of one playlist that is open in the tree; the songs that go stand side by side, or each beside one that
// stays.
void RemoveHalfTheRows(benchmark::State& state) {
  const auto songs = static_cast<std::int32_t>(state.range(0));
  const bool sideBySide = state.range(1) != 0;
  TCStudio studio(songs, songs);
  const std::vector<TCPlayListItem> all = studio.store.CurrentPlaylist()->items;
  const QAbstractItemModel& rows = *studio.view.model();
  for (auto _ : state) {
    state.PauseTiming();
    studio.store.CurrentPlaylist()->items = all;
    studio.Show();
    QItemSelection selected;
    for (int i = 0; i < songs / 2; ++i) {
      const int row = sideBySide ? i + songs / 4 : 2 * i;
      selected.append(QItemSelectionRange(rows.index(row, 0), rows.index(row, rows.columnCount() - 1)));
    }
    studio.view.selectionModel()->select(selected, QItemSelectionModel::ClearAndSelect);
    studio.Paint();
    state.ResumeTiming();
    studio.editor.RemoveSelectedRows();
    studio.Paint();
  }
}

// "Song properties" left with its path for all songs of one playlist; the disk answers at once.
void ChangeTheFolderOfAllSongs(benchmark::State& state) {
  const auto songs = static_cast<std::int32_t>(state.range(0));
  TCStudio studio(songs, songs);
  bool back = false;
  for (auto _ : state) {
    TCSongPropertiesForm form(studio.parts, {0, 0, 5});
    form.songPath = back ? u"C:\\Music\\" : u"D:\\Music\\";
    form.pathForAll = true;
    form.Apply();
    back = !back;
    studio.Paint();
    state.PauseTiming();
    studio.files.ForgetRequests();
    state.ResumeTiming();
  }
}

// A hundred files behind the song in the midst of one playlist.
void PlaceAHundredFiles(benchmark::State& state) {
  const auto songs = static_cast<std::int32_t>(state.range(0));
  TCStudio studio(songs, songs);
  std::u16string files;
  for (std::int32_t i = 0; i < 100; ++i) files += u"\"" + Numbered("C:\\new ", i) + u".mp3\"";
  const std::vector<TCPlayListItem> all = studio.store.CurrentPlaylist()->items;
  for (auto _ : state) {
    state.PauseTiming();
    studio.store.CurrentPlaylist()->items = all;
    studio.Show();
    studio.tree.SelectNode(studio.Song(all.size() / 2).treeNode);
    studio.Paint();
    studio.files.ForgetRequests();
    state.ResumeTiming();
    studio.placement.PlaceText(files);
    studio.Paint();
  }
}

void BuildTheWholeTree(benchmark::State& state) {
  TCStudio studio(static_cast<std::int32_t>(state.range(0)));
  for (auto _ : state) {
    studio.treePresenter.BuildAll();
    studio.Paint();
  }
}

void OpenTheWholeTree(benchmark::State& state) {
  TCStudio studio(static_cast<std::int32_t>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    studio.tree.collapseAll();
    studio.Paint();
    state.ResumeTiming();
    studio.tree.expandAll();
    studio.Paint();
  }
}

#define BREVANT_EDIT_BENCHMARK(command) \
  BENCHMARK(command)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)

BREVANT_EDIT_BENCHMARK(MoveASong);
BREVANT_EDIT_BENCHMARK(MoveAPlaylistIntoAnotherGroup);
BREVANT_EDIT_BENCHMARK(MoveAGroup);
BREVANT_EDIT_BENCHMARK(RenameASong);
BREVANT_EDIT_BENCHMARK(AddASong);
BREVANT_EDIT_BENCHMARK(RemoveASong);
BENCHMARK(RemoveHalfTheRows)
    ->ArgNames({"songs", "sideBySide"})
    ->ArgsProduct({{100, 1'000, 10'000}, {1, 0}})
    ->Unit(benchmark::kMillisecond);
BREVANT_EDIT_BENCHMARK(ChangeTheFolderOfAllSongs);
BREVANT_EDIT_BENCHMARK(PlaceAHundredFiles);
BREVANT_EDIT_BENCHMARK(BuildTheWholeTree);
BREVANT_EDIT_BENCHMARK(OpenTheWholeTree);

}  // namespace
}  // namespace brevant

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
