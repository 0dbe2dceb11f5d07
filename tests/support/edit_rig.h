// The set lists of a small band, in the model and in the tree, with everything that the editing commands work
// on. For tests of those commands.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "document/edit_parts.h"
#include "document/entry_mover.h"
#include "document/set_list_editor.h"
#include "document/song_placement.h"
#include "support/fake_frame.h"
#include "support/fake_playlist_view.h"
#include "support/fake_prompts.h"
#include "support/fake_tree.h"
#include "support/memory_files.h"
#include "support/message_log.h"

namespace brevant {

class TCEditRig {
 public:
  TCMemoryFiles files;
  TCAppRecord record;
  TCFakePlaylistView view;
  TCFakeTree tree;
  TCMessageLog messages;
  TCFakeFrame frame;
  TCFakePrompts prompts;
  int modified = 0;

  TCSetListStore& store = record.setLists;
  TCPlaylistPresenter presenter{record, view, tree};
  TCTreePresenter treePresenter{store, tree};
  TCSongCheck check{files, store, treePresenter, presenter};
  TCEditParts parts{record,   check,   treePresenter,         presenter, view, frame,
                    messages, prompts, [this] { ++modified; }};
  TCSetListEditor editor{parts};
  TCEntryMover mover{parts};
  TCSongPlacement placement{parts, editor};

  TCEditRig() = default;
  TCEditRig(const TCEditRig&) = delete;
  TCEditRig& operator=(const TCEditRig&) = delete;

  // A group at the end with playlists of songs; each song is "C:\NAME", a minute long.
  void AddGroup(std::u16string name,
                const std::vector<std::pair<std::u16string, std::vector<std::u16string>>>& playlists) {
    TCPlayGroups& group = store.groups.emplace_back();
    group.name = std::move(name);
    for (const auto& [playlistName, songs] : playlists) {
      TCPlayList& playlist = group.playlists.emplace_back();
      playlist.name = playlistName;
      for (const std::u16string& song : songs) {
        playlist.items.emplace_back().SetPath(u"C:\\" + song);
        playlist.items.back().time = u"01:00";
      }
    }
  }

  // The tree and the view show what is in the model.
  void Show() {
    store.RecalcAllTotalTimes();
    treePresenter.BuildAll();
    presenter.ShowPlaylist(store.currentGroup, store.currentPlaylist);
  }

  void Select(std::u16string_view text) { tree.selected = tree.NodeNamed(text); }

  // What the model holds, as TCFakeTree::Lines shows it.
  [[nodiscard]] std::vector<std::u16string> ModelLines() const {
    std::vector<std::u16string> lines;
    for (const TCPlayGroups& group : store.groups) {
      lines.push_back(group.name);
      for (const TCPlayList& playlist : group.playlists) {
        lines.push_back(u"  " + playlist.name);
        for (const TCPlayListItem& song : playlist.items) lines.push_back(u"    " + song.fileName);
      }
    }
    return lines;
  }

  // The names in the playlist view from top to bottom.
  [[nodiscard]] std::vector<std::u16string> Rows() const {
    std::vector<std::u16string> rows;
    for (const TCPlaylistRow& row : view.rows) rows.push_back(row.texts.name);
    return rows;
  }
};

}  // namespace brevant
