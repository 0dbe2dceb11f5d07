#include "document/set_list_editor.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "model/set_list_edit.h"
#include "resources/string_table.h"
#include "text/white_space.h"

namespace brevant {

std::u16string CleanName(std::u16string_view typed) {
  std::u16string name(typed);
  std::erase(name, u'"');
  // A paste can bring them into a field of one line, which shows a blank for each.
  std::replace_if(
      name.begin(), name.end(), [](char16_t unit) { return unit == u'\r' || unit == u'\n'; }, u' ');
  return std::u16string(Trim(name));
}

namespace {

struct TCNodeRun {
  TCTreeNode first = TCTreeNode::None;
  std::size_t count = 0;
};

// The nodes of songs of the current playlist, those of neighbouring rows as one run; the last run first, so
// that each leaves fewer behind it to be numbered anew. `rows` ascend.
std::vector<TCNodeRun> NodesOf(const TCSetListStore& store, const std::vector<std::int32_t>& rows) {
  std::vector<TCNodeRun> runs;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const bool neighbour = i > 0 && rows[i] == rows[i - 1] + 1;
    if (!neighbour) runs.push_back({store.GetSongTreeNode(rows[i]), 0});
    ++runs.back().count;
  }
  std::reverse(runs.begin(), runs.end());
  return runs;
}

}  // namespace

TCSetListEditor::TCSetListEditor(const TCEditParts& editParts) : parts(editParts) {}

bool TCSetListEditor::CreateGroup(std::u16string_view name) {
  return CreateGroupAt(parts.tree.Tree().SelectedNode(), name);
}

bool TCSetListEditor::CreatePlaylist(std::u16string_view name) {
  return CreatePlaylistAt(parts.tree.Tree().SelectedNode(), name);
}

bool TCSetListEditor::CreateGroupAt(TCTreeNode node, std::u16string_view name) {
  TCPlayGroups group;
  group.name = CleanName(name);
  if (group.name.empty()) return false;
  TCSetListStore& store = parts.Store();
  auto place = static_cast<std::int32_t>(store.groups.size());
  if (node != TCTreeNode::None) {
    const TCNodeEntry selected = parts.tree.EntryOf(node);
    if (selected.kind == TCNodeKind::None) return false;
    place = selected.group + 1;
  }
  InsertGroup(store, place, std::move(group));
  parts.tree.AddGroupNode(place);
  parts.Changed();
  return true;
}

bool TCSetListEditor::CreatePlaylistAt(TCTreeNode node, std::u16string_view name) {
  TCPlayList playlist;
  playlist.name = CleanName(name);
  const TCNodeEntry selected = parts.tree.EntryOf(node);
  if (playlist.name.empty() || selected.kind == TCNodeKind::None) return false;
  TCSetListStore& store = parts.Store();
  const auto count = static_cast<std::int32_t>(store.GroupAt(selected.group)->playlists.size());
  const TCPlaylistPosition place{selected.group,
                                 selected.kind == TCNodeKind::Group ? count : selected.playlist + 1};
  InsertPlaylist(store, place, std::move(playlist));
  parts.tree.AddPlaylistNode(place);
  parts.Changed();
  return true;
}

// The show goes on while a prompt stands there, and the tree may follow its next song: what was selected when
// the user asked counts.

bool TCSetListEditor::AskForGroup() {
  const TCTreeNode node = parts.tree.Tree().SelectedNode();
  const auto name = parts.prompts.EnterText({TCTextPromptMode::CreateGroup,
                                             TextOf(TCTextId::GroupNamePrompt),
                                             TextOf(TCTextId::GroupNameExample),
                                             {}});
  return name && CreateGroupAt(node, *name);
}

bool TCSetListEditor::AskForPlaylist() {
  const TCTreeNode node = parts.tree.Tree().SelectedNode();
  if (parts.tree.EntryOf(node).kind == TCNodeKind::None) return false;
  const auto name = parts.prompts.EnterText({TCTextPromptMode::CreateSetList,
                                             TextOf(TCTextId::PlayListNamePrompt),
                                             TextOf(TCTextId::PlayListNameExample),
                                             {}});
  return name && CreatePlaylistAt(node, *name);
}

bool TCSetListEditor::Rename(TCTreeNode node, std::u16string_view typed) {
  const std::u16string name = CleanName(typed);
  const TCNodeEntry entry = parts.tree.EntryOf(node);
  if (name.empty()) return false;
  TCSetListStore& store = parts.Store();
  switch (entry.kind) {
    case TCNodeKind::None:
      return false;
    case TCNodeKind::Group:
      store.GroupAt(entry.group)->name = name;
      if (entry.group == store.currentGroup) store.RecordLastShownNames();
      break;
    case TCNodeKind::Playlist:
      store.PlaylistAt(entry.Playlist())->name = name;
      // Its name stands in the header.
      if (entry.Playlist() == store.shown) parts.playlist.ShowPlaylist(entry.group, entry.playlist);
      break;
    case TCNodeKind::Song:
      RenameSong(entry.Song(), name);
      break;
  }
  parts.tree.Tree().SetNodeText(node, parts.tree.NameOf(entry));
  parts.Changed();
  return true;
}

void TCSetListEditor::RenameSong(TCSongPosition at, std::u16string_view name) {
  TCPlayListItem& song = *parts.Store().SongAt(at);
  // A name with a backslash in it is read from a saved document as folder and name; so it is here.
  song.SetPath(std::u16string(std::u16string_view(song.folder)) + std::u16string(name));
  parts.check.CheckSongFiles(at, 1);
  if (at.Playlist() == parts.Store().shown) parts.playlist.RefreshSongRow(at.song, song);
}

void TCSetListEditor::AskForNewName() {
  const TCTreeNode node = parts.tree.Tree().SelectedNode();
  if (parts.tree.EntryOf(node).kind == TCNodeKind::None) return;
  const auto name =
      parts.prompts.EnterText({TCTextPromptMode::Property, TextOf(TCTextId::RenamePrompt), {}, {}});
  if (name) Rename(node, *name);
}

void TCSetListEditor::RemoveSelectedRows() {
  TCSetListStore& store = parts.Store();
  const TCPlaylistPosition current = store.CurrentPosition();
  const std::vector<std::int32_t> rows = parts.view.SelectedRows();
  const std::vector<TCNodeRun> nodes = NodesOf(store, rows);
  if (!RemoveSongs(store, current, rows)) return;
  for (const TCNodeRun& run : nodes) parts.tree.Tree().DeleteNodes(run.first, run.count);
  parts.ShowChangedPlaylist(current);
  parts.view.ResetMouseState();
  parts.Changed();
}

bool TCSetListEditor::UserWantsRemoved(const TCNodeEntry& entry) const {
  if (!parts.record.settings.confirmFileRemove) return true;
  std::u16string question(TextOf(TCTextId::RemoveQuestion));
  question += u" ";
  question += parts.tree.NameOf(entry);
  return parts.prompts.ConfirmRemove(question);
}

void TCSetListEditor::RemoveSelectedNode() {
  const TCTreeNode node = parts.tree.Tree().SelectedNode();
  const TCNodeEntry asked = parts.tree.EntryOf(node);
  if (asked.kind == TCNodeKind::None || !UserWantsRemoved(asked)) return;
  // The tick goes on while the question stands there, and may have moved the entry's number.
  const TCNodeEntry entry = parts.tree.EntryOf(node);
  TCSetListStore& store = parts.Store();
  parts.tree.Tree().DeleteNode(node);
  switch (entry.kind) {
    case TCNodeKind::None:
      return;
    case TCNodeKind::Group:
      RemoveGroup(store, entry.group);
      break;
    case TCNodeKind::Playlist:
      RemovePlaylist(store, entry.Playlist());
      break;
    case TCNodeKind::Song:
      RemoveSong(store, entry.Song());
      parts.ShowChangedPlaylist(entry.Playlist());
      break;
  }
  parts.Changed();
}

}  // namespace brevant
