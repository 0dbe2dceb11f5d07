// Looks over the shoulder of whoever edits set lists: what the playlist view shows after each command is what
// the set lists hold, the selection stands for the same songs as before, and the document counts as modified
// exactly when the command changed it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "document/brevant_doc.h"
#include "model/play_marks.h"
#include "model/set_list_edit.h"
#include "resources/string_table.h"
#include "support/fake_frame.h"
#include "support/random_user.h"
#include "text/numbers.h"

namespace brevant {

class TCEditWatch {
 public:
  // The playlist view at hand.
  struct TCScreen {
    std::function<std::int32_t()> rowCount;
    std::function<TCPlaylistRow(std::int32_t row)> row;
    std::function<std::vector<std::int32_t>()> selectedRows;
  };

  TCEditWatch(TCAppRecord& appRecord, TCBrevantDoc& doc, const TCTreeDisplay& treeDisplay,
              const TCFakeFrame& fakeFrame, TCScreen screenAtHand)
      : record(appRecord),
        document(doc),
        tree(treeDisplay),
        frame(fakeFrame),
        screen(std::move(screenAtHand)) {}

  // All that a document keeps and which entry is which, but for the songs' times, which are measured while
  // nobody edits.
  [[nodiscard]] std::vector<std::u16string> SetLists() const {
    std::vector<std::u16string> lines;
    for (const TCPlayGroups& group : record.setLists.groups) {
      lines.push_back(Entry(u"", group.name, group.treeNode));
      for (const TCPlayList& playlist : group.playlists) {
        const std::u16string boxes = FormatDecimal(playlist.state2) + FormatDecimal(playlist.state3);
        lines.push_back(Entry(u"  ", playlist.name + boxes, playlist.treeNode));
        for (const TCPlayListItem& song : playlist.items)
          lines.push_back(Entry(u"    ", song.FullPath(), song.treeNode));
      }
    }
    return lines;
  }

  void BeforeCommand() {
    listsBefore = SetLists();
    modifiedBefore = document.IsModified();
    songsSelected = SelectedSongs();
  }

  void AfterCommand(const TCDeed& deed) {
    CheckRows();
    CheckMarks();
    CheckSelection(deed);
    CheckModified(deed);
    EXPECT_EQ(frame.placing == TCPlacing::Waiting, document.Placement().Pending());
  }

 private:
  [[nodiscard]] static std::u16string Entry(std::u16string indent, const std::u16string& text,
                                            TCTreeNode node) {
    return indent + text + u" #" + FormatDecimal(static_cast<std::int64_t>(node));
  }
  [[nodiscard]] const TCPlayList* Shown() const { return record.setLists.PlaylistAt(record.setLists.shown); }

  // The node of the song that stands at each selected row; none when the rows are what is left of a playlist
  // that was removed or emptied.
  [[nodiscard]] std::map<std::int32_t, TCTreeNode> SelectedSongs() const {
    std::map<std::int32_t, TCTreeNode> songs;
    const TCPlayList* shown = Shown();
    if (shown == nullptr || shown->items.empty()) return songs;
    for (const std::int32_t row : screen.selectedRows()) {
      const bool there = row >= 0 && static_cast<std::size_t>(row) < shown->items.size();
      songs[row] = there ? shown->items[static_cast<std::size_t>(row)].treeNode : TCTreeNode::None;
    }
    return songs;
  }

  void CheckRows() {
    const TCPlayList* current = record.setLists.CurrentPlaylist();
    if (current != nullptr && !current->items.empty()) {
      ASSERT_EQ(Shown(), current);
    }
    const TCPlayList* shown = Shown();
    if (shown == nullptr || shown->items.empty()) return;  // what stood there may stay
    ASSERT_EQ(screen.rowCount(), static_cast<std::int32_t>(shown->items.size()));
    for (std::int32_t i = 0; i < screen.rowCount(); ++i) {
      const TCPlayListItem& song = shown->items[static_cast<std::size_t>(i)];
      const TCPlaylistRow row = screen.row(i);
      std::u16string status(StatusText(song.status));
      if (!song.lyrics.Empty()) status += TextOf(TCTextId::LyricsMark);
      ASSERT_EQ(row.texts.number, FormatDecimal(i + 1));
      ASSERT_EQ(row.texts.status, status);
      ASSERT_EQ(row.texts.time, song.time);
      ASSERT_EQ(row.texts.name, song.fileName);
      ASSERT_EQ(row.colours.text, RowTextColour(song.flags, record.settings)) << "row " << i;
      ASSERT_EQ(row.colours.background, record.settings.backgroundColour);
    }
  }

  void CheckMarks() {
    const std::int32_t current = record.setLists.currentSong;
    const TCPlayList* playlist = record.setLists.CurrentPlaylist();
    if (!record.setLists.IsValidSongIndex(current)) return;
    for (std::size_t i = 0; i < playlist->items.size(); ++i) {
      ASSERT_EQ(playlist->items[i].flags, PlayMarkOf(static_cast<std::int32_t>(i), current)) << "row " << i;
    }
  }

  // A row that stays selected has the song it had; one that is newly selected was selected by the command.
  void CheckSelection(const TCDeed& deed) {
    int added = 0;
    for (const auto& [row, song] : SelectedSongs()) {
      ASSERT_GE(row, 0);
      ASSERT_LT(row, screen.rowCount());
      const auto before = songsSelected.find(row);
      if (before == songsSelected.end() || before->second != song) ++added;
    }
    ASSERT_LE(added, deed.selectsARow ? 1 : 0);
    const TCTreeNode node = tree.SelectedNode();
    ASSERT_TRUE(node == TCTreeNode::None || IsEntry(node));
  }

  [[nodiscard]] bool IsEntry(TCTreeNode node) const {
    for (const TCPlayGroups& group : record.setLists.groups) {
      if (group.treeNode == node) return true;
      for (const TCPlayList& playlist : group.playlists) {
        if (playlist.treeNode == node) return true;
        for (const TCPlayListItem& song : playlist.items) {
          if (song.treeNode == node) return true;
        }
      }
    }
    return false;
  }

  void CheckModified(const TCDeed& deed) {
    EXPECT_EQ(frame.mark == TCModifiedMark::Modified, document.IsModified() || document.IsSaving());
    if (deed.endsModified) {
      ASSERT_FALSE(document.IsModified());
    } else if (SetLists() != listsBefore) {
      ASSERT_TRUE(document.IsModified());
    } else if (!deed.mayCountAsChange) {
      ASSERT_EQ(document.IsModified(), modifiedBefore);
    }
  }

  TCAppRecord& record;
  TCBrevantDoc& document;
  const TCTreeDisplay& tree;
  const TCFakeFrame& frame;
  TCScreen screen;
  std::vector<std::u16string> listsBefore;
  bool modifiedBefore = false;
  std::map<std::int32_t, TCTreeNode> songsSelected;
};

}  // namespace brevant
