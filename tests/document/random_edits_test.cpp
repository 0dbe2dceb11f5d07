// A hundred thousand editing commands in a random order, with rows and nodes that are not there among them.
// After each the tree, the playlist view and the set lists tell the same story.

#include <gtest/gtest.h>

#include <iostream>

#include "document/brevant_doc.h"
#include "support/fake_frame.h"
#include "support/fake_player.h"
#include "support/fake_playlist_view.h"
#include "support/fake_tree.h"
#include "support/memory_files.h"
#include "support/message_log.h"
#include "support/random_user.h"

namespace brevant {
namespace {

class RandomEditsTest : public testing::TestWithParam<std::uint32_t> {
 protected:
  RandomEditsTest() {
    for (const std::u16string_view path : {u"C:\\a.mp3", u"C:\\b c.wav", u"\\home\\me\\d.mid"})
      files.Put(path);
    files.Put(u"C:\\a.lrc", "[00:01.0]Hello");
    document.OnNewDocument();
  }

  template <typename Entry, typename TextOf, typename CheckChild>
  void CheckNodes(const std::vector<TCTreeNode>& nodes, const std::vector<Entry>& entries,
                  const TextOf& textOf, const CheckChild& checkChild) {
    ASSERT_EQ(nodes.size(), entries.size());
    for (std::size_t i = 0; i < nodes.size(); ++i) {
      ASSERT_EQ(nodes[i], entries[i].treeNode);
      const TCFakeTree::Node& node = tree.nodes.at(nodes[i]);
      ASSERT_EQ(node.text, textOf(entries[i]));
      checkChild(node, entries[i]);
    }
  }

  void CheckTree() {
    const auto name = [](const auto& entry) { return entry.name; };
    const auto fileName = [](const TCPlayListItem& song) { return song.fileName; };
    const auto leaf = [](const TCFakeTree::Node& node, const TCPlayListItem&) {
      ASSERT_TRUE(node.children.empty());
    };
    CheckNodes(tree.roots, record.setLists.groups, name, [&](const auto& node, const TCPlayGroups& group) {
      CheckNodes(node.children, group.playlists, name, [&](const auto& child, const TCPlayList& playlist) {
        CheckNodes(child.children, playlist.items, fileName, leaf);
      });
    });
  }

  void CheckView() {
    const TCPlayList* current = record.setLists.CurrentPlaylist();
    if (current == nullptr || current->items.empty()) return;  // what stood there may stay
    ASSERT_EQ(view.rows.size(), current->items.size());
    for (std::size_t i = 0; i < view.rows.size(); ++i) {
      ASSERT_EQ(view.rows[i].texts.name, current->items[i].fileName);
      ASSERT_EQ(view.rows[i].texts.time, current->items[i].time);
    }
    TCPlayList total = *current;
    record.setLists.RecalcPlaylistTotalTime(total);
    ASSERT_EQ(view.header, current->name + u" - Total Playlist Time: " + total.totalTime);
  }

  TCDice dice{GetParam()};
  TCMemoryFiles files;
  TCAppRecord record;
  TCFakePlayer player;
  TCFakePlaylistView view;
  TCFakeTree tree;
  TCMessageLog messages;
  TCFakeFrame frame;
  TCRandomPrompts prompts{dice};
  TCBrevantDoc document{{record, files, &player, view, tree, messages, frame, prompts, {}}};
  TCRandomUser user{
      dice,
      record,
      document,
      tree,
      {[this](const std::vector<std::int32_t>& rows) { view.selected = rows; },
       [this] { return static_cast<std::int32_t>(view.rows.size()); },
       [this](bool treeHasIt) { tree.focused = treeHasIt; }, [this] { tree.selected = TCTreeNode::None; }}};
};

TEST_P(RandomEditsTest, TreeAndRowsAgreeWithTheSetListsAfterEveryCommand) {
  constexpr int kCommands = 10'000;
  std::cout << "seed " << GetParam() << ", " << kCommands << " commands\n";
  for (int i = 0; i < kCommands; ++i) {
    user.Act();
    CheckTree();
    CheckView();
    ASSERT_FALSE(HasFatalFailure()) << "at command " << i << " of seed " << GetParam();
    messages.lines.clear();
    files.ForgetRequests();
    player.ForgetCalls();
  }
  EXPECT_TRUE(document.IsModified());
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEditsTest, testing::Range<std::uint32_t>(1, 11));

}  // namespace
}  // namespace brevant
