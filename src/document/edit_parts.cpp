#include "document/edit_parts.h"

namespace brevant {

void TCEditParts::Changed() const {
  if (Store().CurrentPosition() != Store().shown) ShowCurrentPlaylist();
  setModified();
}

void TCEditParts::ShowChangedPlaylist(TCPlaylistPosition touched) const {
  TCSetListStore& store = Store();
  if (TCPlayList* list = store.PlaylistAt(touched)) store.RecalcPlaylistTotalTime(*list);
  // Of the two the one that is not current stands on the screen only while the current one is empty.
  if (touched == store.CurrentPosition() || touched == store.shown) playlist.ShowEditedPlaylist(touched);
}

void TCEditParts::ShowCurrentPlaylist() const {
  const TCPlaylistPosition current = Store().CurrentPosition();
  playlist.ShowPlaylist(current.group, current.playlist);
}

}  // namespace brevant
