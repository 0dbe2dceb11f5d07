// What the commands that edit set lists share: everything they read, change and show. Handed by value; all of
// it outlives them.
#pragma once

#include <functional>

#include "document/frame_display.h"
#include "document/playlist_presenter.h"
#include "document/prompts.h"
#include "document/song_check.h"
#include "document/tree_presenter.h"
#include "model/app_record.h"
#include "model/message_display.h"

namespace brevant {

struct TCEditParts {
  TCAppRecord& record;
  TCSongCheck& check;
  TCTreePresenter& tree;
  TCPlaylistPresenter& playlist;
  TCPlaylistDisplay& view;
  TCFrameDisplay& frame;
  TCMessageDisplay& messages;
  TCPrompts& prompts;
  std::function<void()> setModified;  // the set lists are not as they were saved any more

  [[nodiscard]] TCSetListStore& Store() const { return record.setLists; }

  // Closes every change of the set lists: the view shows the current playlist, which an index may name only
  // now, and the document is modified.
  void Changed() const;

  // The songs of `touched` are not what they were: their total, and the view when it shows them or should.
  void ShowChangedPlaylist(TCPlaylistPosition touched) const;
  // The view shows the current playlist, whichever that is now.
  void ShowCurrentPlaylist() const;
};

}  // namespace brevant
