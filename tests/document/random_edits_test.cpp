// A hundred thousand editing commands in a random order, with rows and nodes that are not there among them.
// After each the tree, the playlist view and the set lists tell the same story.

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <random>

#include "document/add_play_items.h"
#include "document/brevant_doc.h"
#include "document/song_properties.h"
#include "support/fake_frame.h"
#include "support/fake_player.h"
#include "support/fake_playlist_view.h"
#include "support/fake_tree.h"
#include "support/memory_files.h"
#include "support/message_log.h"

namespace brevant {
namespace {

using Id = TCCommandId;

class TCDice {
 public:
  explicit TCDice(std::uint32_t seed) : engine(seed) {}

  // 0 to `sides` - 1.
  int Roll(int sides) { return std::uniform_int_distribution<int>(0, sides - 1)(engine); }
  bool Coin() { return Roll(2) == 0; }
  // Of so few names that many are alike.
  std::u16string Name() {
    constexpr std::array kNames = {u"Sets", u"sets", u"Late", u" x \"y\" ", u"New Group Folder", u"\u4E00"};
    return kNames[static_cast<std::size_t>(Roll(static_cast<int>(kNames.size())))];
  }
  std::u16string Path() {
    constexpr std::array kPaths = {u"C:\\a.mp3",     u"C:\\b c.wav",  u"\\home\\me\\d.mid",
                                   u"C:\\x > y.wma", u"C:\\gone.mp3", u"C:\\notes.txt",
                                   u"song"};
    return kPaths[static_cast<std::size_t>(Roll(static_cast<int>(kPaths.size())))];
  }

 private:
  std::mt19937 engine;
};

// A user who answers whatever comes to mind.
class TCRandomPrompts final : public TCPrompts {
 public:
  explicit TCRandomPrompts(TCDice& randomDice) : dice(randomDice) {}

  std::optional<std::u16string> EnterText(const TCTextPrompt&) override {
    switch (dice.Roll(5)) {
      case 0:
        return std::nullopt;
      case 1:
        return u" \t";
      default:
        return dice.Name();
    }
  }
  TCSaveAnswer AskSaveChanges(std::u16string_view) override { return TCSaveAnswer::Discard; }
  std::optional<std::u16string> ChooseDocumentToOpen() override { return std::nullopt; }
  std::optional<std::u16string> ChooseDocumentToSave(std::u16string_view) override { return std::nullopt; }
  std::vector<std::u16string> ChooseMediaFiles(const TCMediaFileQuestion&) override {
    return dice.Coin() ? std::vector<std::u16string>() : std::vector{dice.Path(), dice.Path()};
  }
  bool ConfirmRemove(std::u16string_view) override { return dice.Roll(4) != 0; }
  bool EditSetLists(TCAddPlayItems& form) override {
    for (int i = dice.Roll(5); i > 0; --i) {
      switch (dice.Roll(6)) {
        case 0:
          form.ChooseGroup(dice.Roll(6) - 1);
          break;
        case 1:
          form.ChoosePlaylist(dice.Roll(6) - 1);
          break;
        case 2:
          form.CreateGroup();
          break;
        case 3:
          form.CreateSet();
          break;
        case 4:
          form.FindSongs();
          break;
        default:
          form.Create();
          break;
      }
    }
    return dice.Coin();
  }
  bool EditSongProperties(TCSongPropertiesForm& form) override {
    if (dice.Coin()) form.SetDir();
    if (dice.Coin()) form.songName = dice.Name();
    form.pathForAll = dice.Coin();
    form.extensionForAll = dice.Coin();
    return dice.Coin();
  }

 private:
  TCDice& dice;
};

class RandomEditsTest : public testing::TestWithParam<std::uint32_t> {
 protected:
  RandomEditsTest() {
    for (const std::u16string_view path : {u"C:\\a.mp3", u"C:\\b c.wav", u"\\home\\me\\d.mid"})
      files.Put(path);
    files.Put(u"C:\\a.lrc", "[00:01.0]Hello");
    document.OnNewDocument();
  }

  // A node that is there, mostly.
  TCTreeNode AnyNode() {
    if (tree.nodes.empty() || dice.Roll(20) == 0) return static_cast<TCTreeNode>(dice.Roll(1000));
    return std::next(tree.nodes.begin(), dice.Roll(static_cast<int>(tree.nodes.size())))->first;
  }

  int AnyRow() { return dice.Roll(static_cast<int>(view.rows.size()) + 3) - 1; }

  void SelectSomething() {
    if (dice.Coin()) tree.SelectNode(AnyNode());
    if (dice.Roll(10) == 0) tree.selected = TCTreeNode::None;
    tree.focused = dice.Coin();
    view.selected.clear();
    for (int i = dice.Roll(4); i > 0; --i) view.selected.push_back(AnyRow());
    std::sort(view.selected.begin(), view.selected.end());
    view.selected.erase(std::unique(view.selected.begin(), view.selected.end()), view.selected.end());
    std::erase_if(view.selected,
                  [this](int row) { return row < 0 || row >= static_cast<int>(view.rows.size()); });
  }

  void Command() {
    constexpr std::array kCommands = {Id::CreateGroupList,
                                      Id::NewGroupFolder,
                                      Id::CreatePlaylist,
                                      Id::NewPlaylistFolder,
                                      Id::AddSongs,
                                      Id::Rename,
                                      Id::Remove,
                                      Id::Remove,
                                      Id::SongProperties,
                                      Id::Copy,
                                      Id::Paste,
                                      Id::Duplicate,
                                      Id::SelectSongToMove,
                                      Id::MoveSongUp,
                                      Id::MoveSongDown,
                                      Id::Cancel,
                                      Id::NextSong,
                                      Id::PriorSong,
                                      Id::NextPlaylist,
                                      Id::PriorPlaylist,
                                      Id::LoadSong,
                                      Id::Play,
                                      Id::ShowTreeSelection,
                                      Id::ConfirmFileRemove,
                                      Id::DisableEditing};
    const int action = dice.Roll(static_cast<int>(kCommands.size()) + 14);
    if (action < static_cast<int>(kCommands.size())) {
      document.OnCommand(kCommands[static_cast<std::size_t>(action)]);
      return;
    }
    switch (action - static_cast<int>(kCommands.size())) {
      case 0:
        document.PickNode(AnyNode());
        break;
      case 1:
        document.EnterOnNode();
        break;
      case 2:
        document.RenameNode(AnyNode(), dice.Name());
        break;
      case 3:
        document.DropRowsOnTree();
        break;
      case 4:
        document.DropRowsOnPlaylist();
        break;
      case 5:
        document.MoveRow(AnyRow(), AnyRow());
        break;
      case 6:
        document.PickRow(AnyRow());
        break;
      case 7:
        document.DropFiles({dice.Path(), dice.Path(), dice.Path()});
        break;
      case 8:
      case 9:
        document.PlacePendingFiles();
        break;
      default:
        document.MoveNode(AnyNode(), AnyNode());
        break;
    }
  }

  // Keeps the set lists small enough to be looked through after every command.
  void PruneTree() {
    while (tree.nodes.size() > 150) {
      record.settings.confirmFileRemove = false;
      tree.focused = true;
      tree.selected = tree.roots[static_cast<std::size_t>(dice.Roll(static_cast<int>(tree.roots.size())))];
      document.OnCommand(Id::Remove);
    }
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
};

TEST_P(RandomEditsTest, TreeAndRowsAgreeWithTheSetListsAfterEveryCommand) {
  constexpr int kCommands = 10'000;
  std::cout << "seed " << GetParam() << ", " << kCommands << " commands\n";
  for (int i = 0; i < kCommands; ++i) {
    SelectSomething();
    Command();
    PruneTree();
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
