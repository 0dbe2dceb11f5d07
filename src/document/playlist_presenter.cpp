#include "document/playlist_presenter.h"

#include <utility>

#include "model/play_marks.h"
#include "resources/string_table.h"
#include "text/numbers.h"

namespace brevant {

TCPlaylistPresenter::TCPlaylistPresenter(TCAppRecord& appRecord, TCPlaylistDisplay& playlistView,
                                         TCTreeDisplay& treeView, std::function<void()> somethingShown)
    : record(appRecord), view(playlistView), tree(treeView), tellShown(std::move(somethingShown)) {}

void TCPlaylistPresenter::ShowPlaylist(std::int32_t group, std::int32_t playlist) {
  Show({group, playlist}, TCShowRows::KeepPlace);
}

void TCPlaylistPresenter::ShowAgain() {
  Show(record.setLists.shown, TCShowRows::KeepPlace);
}

void TCPlaylistPresenter::ShowEditedPlaylist(TCPlaylistPosition position) {
  Show(position, TCShowRows::Edited);
}

void TCPlaylistPresenter::Show(TCPlaylistPosition position, TCShowRows whenShownAlready) {
  const TCPlayList* shown = record.setLists.PlaylistAt(position);
  // An emptied playlist stays on the screen until another one is shown.
  if (shown == nullptr || shown->items.empty()) return;
  record.setLists.RecordLastShownNames();

  const bool sameAsBefore = position == record.setLists.shown;
  record.setLists.shown = position;
  if (UpdatePlayMarks(record.setLists)) rowToMove = record.setLists.currentSong;

  std::vector<TCPlaylistRow> rows;
  rows.reserve(shown->items.size());
  std::int32_t row = 0;
  for (const TCPlayListItem& song : shown->items) rows.push_back({TextsOf(row++, song), ColoursOf(song)});
  ShowHeader(*shown);
  view.ShowRows(std::move(rows), sameAsBefore ? whenShownAlready : TCShowRows::Afresh);
  tellShown();
}

void TCPlaylistPresenter::ShowHeader(const TCPlayList& playlist) {
  std::u16string header = playlist.name;
  header += u" - ";
  header += TextOf(TCTextId::TotalPlaylistTime);
  header += u": ";
  header += playlist.totalTime;
  view.SetPlaylistHeader(header);
}

void TCPlaylistPresenter::Recolour() {
  if (!UpdatePlayMarks(record.setLists)) return;
  ShowColours();
  rowToMove = record.setLists.currentSong;
}

void TCPlaylistPresenter::ShowColours() {
  // Of what stands on the screen, as ShowAgain has it.
  const TCPlayList* playlist = record.setLists.PlaylistAt(record.setLists.shown);
  if (playlist == nullptr) return;
  std::vector<TCRowColours> colours;
  colours.reserve(playlist->items.size());
  for (const TCPlayListItem& song : playlist->items) colours.push_back(ColoursOf(song));
  view.SetRowColours(std::move(colours));
}

void TCPlaylistPresenter::HighlightCurrentSong() {
  Recolour();
  if (record.setLists.IsValidSongIndex(record.setLists.currentSong)) {
    view.ScrollToRow(record.setLists.currentSong);
    tree.FollowNode(record.setLists.GetSongTreeNode(record.setLists.currentSong));
  }
  tellShown();
}

void TCPlaylistPresenter::RefreshSongRow(std::int32_t row, const TCPlayListItem& song) {
  view.SetRowTexts(row, TextsOf(row, song));
}

void TCPlaylistPresenter::SetSongTime(std::int32_t row, std::u16string_view time) {
  if (!time.empty()) view.SetRowTime(row, time);
}

void TCPlaylistPresenter::RefreshPlaylistTotal() {
  if (const TCPlayList* playlist = record.setLists.CurrentPlaylist()) ShowHeader(*playlist);
  tellShown();
}

void TCPlaylistPresenter::FocusPlaylist() {
  view.TakeFocus();
}

void TCPlaylistPresenter::FocusPlaylistUnlessTyping() {
  view.TakeFocusUnlessTyping();
}

void TCPlaylistPresenter::Clear() {
  record.setLists.shown = {};
  rowToMove = -1;
  view.ClearRows();
  view.SetPlaylistHeader(TextOf(TCTextId::PlayListColumn));
}

TCRowColours TCPlaylistPresenter::ColoursOf(const TCPlayListItem& song) const {
  return {record.settings.backgroundColour, RowTextColour(song.flags, record.settings)};
}

TCRowTexts TCPlaylistPresenter::TextsOf(std::int32_t row, const TCPlayListItem& song) {
  TCRowTexts texts;
  texts.number = FormatDecimal(std::int64_t{row} + 1);
  texts.status = StatusText(song.status);
  if (!song.lyrics.Empty()) texts.status += TextOf(TCTextId::LyricsMark);
  texts.time = song.time;
  texts.name = song.fileName;
  return texts;
}

}  // namespace brevant
