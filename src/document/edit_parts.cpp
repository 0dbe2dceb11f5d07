#include "document/edit_parts.h"

namespace brevant {

void TCEditParts::Changed() const {
  if (Store().CurrentPosition() != Store().shown) ShowCurrentPlaylist();
  setModified();
}

void TCEditParts::ShowChangedPlaylist(TCPlaylistPosition touched) const {
  TCSetListStore& store = Store();
  if (TCPlayList* list = PlaylistAt(store, touched)) store.RecalcPlaylistTotalTime(*list);
  if (touched == store.CurrentPosition()) {
    ShowCurrentPlaylist();
  } else if (touched == store.shown) {
    // The current playlist is empty, and this one still stands on the screen.
    playlist.ShowPlaylist(touched.group, touched.playlist);
  }
}

void TCEditParts::ShowCurrentPlaylist() const {
  const TCPlaylistPosition current = Store().CurrentPosition();
  playlist.ShowPlaylist(current.group, current.playlist);
}

}  // namespace brevant
