// A user who does to a document whatever comes to mind, for tests that compare afterwards what is shown with
// what is there.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "document/add_play_items.h"
#include "document/brevant_doc.h"
#include "document/song_properties.h"

namespace brevant {

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
  std::optional<std::u16string> ChooseDocumentToSave(std::u16string_view) override {
    return u"D:\\random.brv";
  }
  std::optional<std::vector<std::u16string>> ChooseMediaFiles(const TCMediaFileQuestion&) override {
    if (dice.Coin()) return std::nullopt;
    return std::vector{dice.Path(), dice.Path()};
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

// What a command may do beside what it was given for.
struct TCDeed {
  bool selectsARow = false;       // of the playlist
  bool mayCountAsChange = false;  // also when all stays as it was: a name typed anew, a dialog closed with OK
  bool endsModified = false;      // the document is saved, or another one
};

class TCRandomUser {
 public:
  // What the user has beside the tree's node, in the view and tree at hand.
  struct TCHands {
    std::function<void(const std::vector<std::int32_t>& rows)> selectRows;
    std::function<std::int32_t()> rowCount;
    std::function<void(bool treeHasIt)> giveFocus;
    std::function<void()> selectNoNode;
    std::function<void(double seconds)> wait;  // lets the music play
    std::function<void()> wakeTheDisk;         // an open waits for a save that hangs
  };

  TCRandomUser(TCDice& randomDice, TCAppRecord& appRecord, TCBrevantDoc& doc, TCTreeDisplay& treeDisplay,
               TCHands userHands)
      : dice(randomDice), record(appRecord), document(doc), tree(treeDisplay), hands(std::move(userHands)) {}

  void SelectSomething() {
    if (dice.Coin()) tree.SelectNode(AnyNode());
    if (dice.Roll(10) == 0) hands.selectNoNode();
    hands.giveFocus(dice.Coin());
    std::vector<std::int32_t> rows;
    for (int i = dice.Roll(4); i > 0; --i) rows.push_back(AnyRow());
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    std::erase_if(rows, [this](std::int32_t row) { return row < 0 || row >= hands.rowCount(); });
    hands.selectRows(rows);
  }

  // Runs one command, or does with the mouse what it can do.
  TCDeed Act() { return dice.Roll(3) == 0 ? UseTheMouse(dice.Roll(14)) : Command(); }
  // For the message of a test that fails: a command's number, or a small one for what the mouse did.
  [[nodiscard]] int LastAct() const { return lastAct; }

  // Keeps the set lists small enough to be looked through after every command.
  void Prune() {
    while (Nodes().size() > 150) {
      const std::vector<TCPlayGroups>& groups = record.setLists.groups;
      record.settings.confirmFileRemove = false;
      hands.giveFocus(true);
      tree.SelectNode(groups[static_cast<std::size_t>(dice.Roll(static_cast<int>(groups.size())))].treeNode);
      document.OnCommand(Id::Remove);
    }
  }

 private:
  using Id = TCCommandId;

  [[nodiscard]] std::vector<TCTreeNode> Nodes() const {
    std::vector<TCTreeNode> nodes;
    for (const TCPlayGroups& group : record.setLists.groups) {
      nodes.push_back(group.treeNode);
      for (const TCPlayList& playlist : group.playlists) {
        nodes.push_back(playlist.treeNode);
        for (const TCPlayListItem& song : playlist.items) nodes.push_back(song.treeNode);
      }
    }
    return nodes;
  }

  // A node that is there, mostly.
  TCTreeNode AnyNode() {
    const std::vector<TCTreeNode> nodes = Nodes();
    if (nodes.empty() || dice.Roll(20) == 0) return static_cast<TCTreeNode>(dice.Roll(1000));
    return nodes[static_cast<std::size_t>(dice.Roll(static_cast<int>(nodes.size())))];
  }

  // Or one too few or too many.
  std::int32_t AnyRow() { return dice.Roll(hands.rowCount() + 3) - 1; }

  TCDeed Command() {
    struct TCChoice {
      Id command;
      TCDeed deed{};
    };
    constexpr TCDeed kSelects{.selectsARow = true};
    constexpr TCDeed kMayCount{.mayCountAsChange = true};
    constexpr TCDeed kEnds{.endsModified = true};
    constexpr std::array kChoices = {
        // Editing.
        TCChoice{Id::CreateGroupList}, TCChoice{Id::NewGroupFolder}, TCChoice{Id::CreatePlaylist},
        TCChoice{Id::NewPlaylistFolder}, TCChoice{Id::AddSongs, kMayCount}, TCChoice{Id::Rename, kMayCount},
        TCChoice{Id::Remove}, TCChoice{Id::Remove}, TCChoice{Id::SongProperties, kMayCount},
        TCChoice{Id::Copy}, TCChoice{Id::Paste}, TCChoice{Id::Duplicate},
        TCChoice{Id::SelectSongToMove, kSelects}, TCChoice{Id::MoveSongUp, kSelects},
        TCChoice{Id::MoveSongDown, kSelects}, TCChoice{Id::Cancel}, TCChoice{Id::ConfirmFileRemove},
        TCChoice{Id::DisableEditing},
        // The show.
        TCChoice{Id::NextSong}, TCChoice{Id::PriorSong}, TCChoice{Id::NextPlaylist},
        TCChoice{Id::PriorPlaylist}, TCChoice{Id::LoadSong}, TCChoice{Id::Play}, TCChoice{Id::Stop},
        TCChoice{Id::PauseContinue}, TCChoice{Id::ShowTreeSelection}, TCChoice{Id::RefreshSongTime},
        TCChoice{Id::RefreshAllTimes}, TCChoice{Id::RefreshPlaylistTimes}, TCChoice{Id::AutoPlayPlayList},
        TCChoice{Id::AutoRecycle}, TCChoice{Id::WhiteOnBlack}, TCChoice{Id::DynamicPlayColours},
        // The document; saved often, since only then a change can be told.
        TCChoice{Id::FileSave, kEnds}, TCChoice{Id::FileSave, kEnds}, TCChoice{Id::FileSave, kEnds},
        TCChoice{Id::FileSave, kEnds}};
    if (dice.Roll(100) == 0) {
      lastAct = static_cast<int>(Id::FileOpen);
      hands.wakeTheDisk();
      document.OnOpenDocument(document.GetPathName());
      return kEnds;
    }
    if (dice.Roll(5) == 0) return LetTheMusicPlay();
    const TCChoice& choice = kChoices[static_cast<std::size_t>(dice.Roll(static_cast<int>(kChoices.size())))];
    lastAct = static_cast<int>(choice.command);
    document.OnCommand(choice.command);
    return choice.deed;
  }

  // Some times that were measured may be stored meanwhile.
  TCDeed LetTheMusicPlay() {
    lastAct = -1;
    for (int i = dice.Roll(10); i >= 0; --i) {
      hands.wait(0.3);
      document.OnPlayTimerTick();
    }
    return {.mayCountAsChange = true};
  }

  TCDeed UseTheMouse(int act) {
    lastAct = act;
    switch (act) {
      case 0:
        document.PickNode(AnyNode());
        return {};
      case 1:
        document.EnterOnNode();
        return {};
      case 2:
        document.RenameNode(AnyNode(), dice.Name());
        return {.mayCountAsChange = true};
      case 3:
        document.DropRowsOnTree();
        return {};
      case 4:
        document.DropRowsOnPlaylist();
        return {};
      case 5:
        document.MoveRow(AnyRow(), AnyRow());
        return {.selectsARow = true};
      case 6:
        document.PickRow(AnyRow());
        return {};
      case 7:
        document.DropFiles({dice.Path(), dice.Path(), dice.Path()});
        return {};
      case 8:
      case 9:
        document.PlacePendingFiles();
        return {};
      case 10:
        document.PressNode(AnyNode());
        return {};
      default:
        document.MoveNode(AnyNode(), AnyNode());
        return {};
    }
  }

  TCDice& dice;
  TCAppRecord& record;
  TCBrevantDoc& document;
  TCTreeDisplay& tree;
  TCHands hands;
  int lastAct = 0;
};

}  // namespace brevant
