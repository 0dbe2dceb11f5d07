#include "document/add_play_items.h"

#include "text/case_folding.h"

namespace brevant {

namespace {

template <typename List>
std::int32_t FirstOf(const List& list) {
  return list.empty() ? -1 : 0;
}

}  // namespace

TCAddPlayItems::TCAddPlayItems(const TCEditParts& editParts, TCSetListEditor& setListEditor,
                               TCSongPlacement& songPlacement)
    : parts(editParts),
      editor(setListEditor),
      placement(songPlacement),
      chooser(parts.record, parts.prompts) {
  FillLists();
  ChooseGroup(FirstOf(lists));
  const TCSetListStore& store = parts.Store();
  for (std::size_t i = 0; i < lists.size(); ++i) {
    if (EqualIgnoringCase(lists[i].groupName, store.lastGroupListName))
      ChooseGroup(static_cast<std::int32_t>(i));
  }
  if (group < 0) return;
  const std::int32_t named =
      TCSetListStore::FindPlaylistByName(*parts.Store().GroupAt(group), store.lastPlayListName);
  if (named >= 0) ChoosePlaylist(named);
}

void TCAddPlayItems::FillLists() {
  parts.Store().BuildGroupNamesLists(lists);
}

void TCAddPlayItems::ChooseGroup(std::int32_t index) {
  group = index >= 0 && static_cast<std::size_t>(index) < lists.size() ? index : -1;
  playlist = group < 0 ? -1 : FirstOf(lists[static_cast<std::size_t>(group)].playlistNames);
}

void TCAddPlayItems::ChoosePlaylist(std::int32_t index) {
  playlist = parts.Store().IsValidPlaylist(group, index) ? index : -1;
}

void TCAddPlayItems::FindSongs() {
  if (std::u16string text = chooser.ChooseSongs(); !text.empty()) songFiles = std::move(text);
}

void TCAddPlayItems::CreateGroup() {
  if (!editor.AskForGroup()) return;
  FillLists();
  ChooseGroup(parts.tree.SelectedEntry().group);
}

void TCAddPlayItems::CreateSet() {
  const TCPlayGroups* chosen = parts.Store().GroupAt(group);
  if (chosen == nullptr) return;
  parts.tree.Tree().SelectNode(chosen->treeNode);  // the new playlist goes into the selected node's group
  if (!editor.AskForPlaylist()) return;
  FillLists();
  ChoosePlaylist(parts.tree.SelectedEntry().playlist);
}

void TCAddPlayItems::RememberNames() {
  TCSetListStore& store = parts.Store();
  if (const TCPlayGroups* chosen = store.GroupAt(group)) store.lastGroupListName = chosen->name;
  if (const TCPlayList* chosen = store.PlaylistAt({group, playlist})) store.lastPlayListName = chosen->name;
}

bool TCAddPlayItems::MakeChosenCurrent() {
  TCSetListStore& store = parts.Store();
  const TCPlayList* chosen = store.PlaylistAt({group, playlist});
  if (chosen == nullptr) return false;
  store.currentGroup = group;
  store.currentPlaylist = playlist;
  parts.tree.Tree().SelectNode(chosen->treeNode);
  parts.ShowCurrentPlaylist();
  return true;
}

void TCAddPlayItems::Create() {
  RememberNames();
  if (MakeChosenCurrent()) placement.PlaceText(songFiles);
}

void TCAddPlayItems::Accept() {
  RememberNames();
  parts.Changed();
}

}  // namespace brevant
