// A hundred thousand commands in a random order while the music plays and the disk hangs now and then, with
// rows and nodes that are not there among them. After each the tree, the playlist view, the frame and the set
// lists tell the same story.

#include <gtest/gtest.h>

#include <iostream>

#include "document/brevant_doc.h"
#include "support/edit_watch.h"
#include "support/fake_frame.h"
#include "support/fake_length_probe.h"
#include "support/fake_player.h"
#include "support/fake_playlist_view.h"
#include "support/fake_tree.h"
#include "support/memory_files.h"
#include "support/message_log.h"
#include "support/random_user.h"

namespace brevant {
namespace {

class RandomEdits : public testing::TestWithParam<std::uint32_t> {
 protected:
  RandomEdits() {
    for (const std::u16string_view path : {u"C:\\a.mp3", u"C:\\b c.wav", u"\\home\\me\\d.mid"})
      files.Put(path);
    files.Put(u"C:\\a.lrc", "[00:01.0]Hello");
    player.SetDefaultSong({.length = 1.0});
    probe.defaultLength = 1;
    probe.looksUntilKnown = 1;
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

  void CheckHeader() {
    const TCPlayList* current = record.setLists.CurrentPlaylist();
    if (current == nullptr || current->items.empty()) return;  // what stood there may stay
    TCPlayList total = *current;
    record.setLists.RecalcPlaylistTotalTime(total);
    ASSERT_EQ(view.header, current->name + u" - Total Playlist Time: " + total.totalTime);
  }

  // What was saved and opened is saved as it was. Only then: the first save may bring groups of one name
  // together.
  void CheckSavedAgain() {
    document.OnSaveDocument(u"D:\\random.brv");
    document.OnOpenDocument(u"D:\\random.brv");
    document.OnSaveDocument(u"D:\\again.brv");
    document.OnOpenDocument(u"D:\\again.brv");
    document.OnSaveDocument(u"D:\\random.brv");
    ASSERT_EQ(files.BytesOf(u"D:\\random.brv"), files.BytesOf(u"D:\\again.brv"));
  }

  TCDice dice{GetParam()};
  TCMemoryFiles files;
  TCAppRecord record;
  TCFakePlayer player;
  TCFakeLengthProbe probe;
  TCFakePlaylistView view;
  TCFakeTree tree;
  TCMessageLog messages;
  TCFakeFrame frame;
  TCRandomPrompts prompts{dice};
  TCBrevantDoc document{{record, files, &player, view, tree, messages, frame, prompts, {}, &probe}};
  TCRandomUser user{
      dice,
      record,
      document,
      tree,
      {[this](const std::vector<std::int32_t>& rows) { view.selected = rows; },
       [this] { return static_cast<std::int32_t>(view.rows.size()); },
       [this](bool treeHasIt) { tree.focused = treeHasIt; }, [this] { tree.selected = TCTreeNode::None; },
       [this](double seconds) { player.Advance(seconds); }, [this] { files.Wake(); }}};
  TCEditWatch watch{record,
                    document,
                    tree,
                    frame,
                    {[this] { return static_cast<std::int32_t>(view.rows.size()); },
                     [this](std::int32_t row) { return view.rows[static_cast<std::size_t>(row)]; },
                     [this] { return view.selected; }}};
};

TEST_P(RandomEdits, TreeAndRowsAgreeWithTheSetListsAfterEveryCommand) {
  constexpr int kCommands = 10'000;
  std::cout << "seed " << GetParam() << ", " << kCommands << " commands\n";
  for (int i = 0; i < kCommands; ++i) {
    if (files.hangs && dice.Coin()) {
      files.Wake();
      document.OnPlayTimerTick();  // takes over what it said
    }
    if (dice.Roll(3000) == 0) files.hangs = true;
    user.SelectSomething();
    watch.BeforeCommand();
    watch.AfterCommand(user.Act());
    CheckTree();
    CheckHeader();
    ASSERT_FALSE(HasFatalFailure()) << "at act " << i << " of seed " << GetParam() << ": " << user.LastAct();
    messages.lines.clear();
    files.ForgetRequests();
    player.ForgetCalls();
    user.Prune();
  }
  files.Wake();
  CheckSavedAgain();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdits, testing::Range<std::uint32_t>(1, 11));

}  // namespace
}  // namespace brevant
