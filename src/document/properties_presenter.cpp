#include "document/properties_presenter.h"

#include "text/numbers.h"
#include "text/path_parts.h"

namespace brevant {

TCPropertiesPresenter::TCPropertiesPresenter(TCAppRecord& appRecord, const TCProgramFolders& programFolders,
                                             const TCPlaylistDisplay& playlistView,
                                             TCPropertiesDisplay* properties)
    : record(appRecord), folders(programFolders), view(playlistView), display(properties) {}

void TCPropertiesPresenter::RefreshProperties(std::u16string_view documentPath) {
  if (!IsBuilt()) return;
  RefreshSelectionProperties(record.setLists.currentGroup, record.setLists.currentPlaylist, ShownSong());
  RefreshOptions();
  display->ShowProperty(TCProperty::ProgramPath, folders.program);
  display->ShowProperty(TCProperty::ProgramDataPath, folders.settings);
  display->ShowProperty(TCProperty::BrvFileName, FileNamePart(documentPath));
  display->ShowProperty(TCProperty::BrvFilePath, FolderPart(documentPath));
  RefreshLyricProperties();
}

std::int32_t TCPropertiesPresenter::ShownSong() const {
  const TCSetListStore& store = record.setLists;
  // While an empty playlist is current the rows on the screen, and the selected one, are another's.
  const std::int32_t selected = store.shown == store.CurrentPosition() ? view.SelectedRow() : -1;
  return selected >= 0 ? selected : store.currentSong;
}

void TCPropertiesPresenter::RefreshOptions() {
  const TCSettings& settings = record.settings;
  display->ShowProperty(TCProperty::SongLatency, FormatDecimal(record.setLists.songLatencySeconds));
  display->ShowProperty(TCProperty::VolumeStep, FormatDecimal(settings.volumeStep));
  display->ShowProperty(TCProperty::SeekStep, FormatDecimal(settings.seekStepSeconds));
  display->ShowProperty(TCProperty::FontSize, FormatDecimal(settings.playListFontSize));
}

void TCPropertiesPresenter::RefreshSelectionProperties(std::int32_t group, std::int32_t playlist,
                                                       std::int32_t song) {
  if (!IsBuilt()) return;
  const TCPlayListItem* item = record.setLists.SongAt({group, playlist, song});
  if (item == nullptr) return;
  display->ShowProperty(TCProperty::GroupName, record.setLists.GroupAt(group)->name);
  display->ShowProperty(TCProperty::PlaylistName, record.setLists.PlaylistAt({group, playlist})->name);
  display->ShowProperty(TCProperty::SongFileName, item->fileName);
  display->ShowProperty(TCProperty::SongFilePath, item->folder);
}

void TCPropertiesPresenter::RefreshLyricProperties() {
  if (!IsBuilt()) return;
  const TCPlayListItem* song = record.setLists.SongInCurrentPlaylist(record.setLists.currentSong);
  if (song == nullptr) return;
  const TCLyricHeaders tags = song->lyrics.Headers();
  display->ShowProperty(TCProperty::Artist, tags.artist);
  display->ShowProperty(TCProperty::Album, tags.album);
  display->ShowProperty(TCProperty::Title, tags.title);
  display->ShowProperty(TCProperty::SongCreator, tags.songCreator);
  display->ShowProperty(TCProperty::LyricLength, tags.length);
  display->ShowProperty(TCProperty::LyricWriter, tags.lyricWriter);
  display->ShowProperty(TCProperty::Editor, tags.editor);
  display->ShowProperty(TCProperty::Version, tags.version);
  display->ShowProperty(TCProperty::LyricDelay, tags.offset);
}

}  // namespace brevant
