// A few thousand editing commands in a random order on the real tree and the real playlist. After each they
// show what the set lists hold.

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QCoreApplication>
#include <QItemSelectionModel>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>
#include <iostream>

#include "support/edit_watch.h"
#include "support/fake_frame.h"
#include "support/fake_length_probe.h"
#include "support/fake_player.h"
#include "support/memory_files.h"
#include "support/message_log.h"
#include "support/random_user.h"
#include "views/brevant_view.h"
#include "views/play_list_manager_tree_view.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

class RandomEditsOnWidgets : public testing::TestWithParam<std::uint32_t> {
 protected:
  void SetUp() override {
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(view);
    layout->addWidget(tree);
    window.resize(800, 600);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    files.Put(u"C:\\a.mp3");
    player.SetDefaultSong({.length = 1.0});
    probe.defaultLength = 1;
    probe.looksUntilKnown = 1;
    document.OnNewDocument();
  }

  void SelectRows(const std::vector<std::int32_t>& rows) {
    view->clearSelection();
    for (const std::int32_t row : rows) {
      view->selectionModel()->select(view->model()->index(row, 0),
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
  }

  template <typename Entry, typename TextOf, typename CheckChildren>
  void CheckNodes(const QModelIndex& parent, const std::vector<Entry>& entries, const TextOf& textOf,
                  const CheckChildren& checkChildren) {
    ASSERT_EQ(tree->model()->rowCount(parent), static_cast<int>(entries.size()));
    for (std::size_t i = 0; i < entries.size(); ++i) {
      const QModelIndex index = tree->model()->index(static_cast<int>(i), 0, parent);
      ASSERT_EQ(index.data().toString(), ToQString(textOf(entries[i])));
      ASSERT_EQ(tree->NodeText(entries[i].treeNode), index.data().toString());
      checkChildren(index, entries[i]);
    }
  }

  void CheckTree() {
    const auto name = [](const auto& entry) -> const std::u16string& { return entry.name; };
    const auto fileName = [](const TCPlayListItem& song) -> const std::u16string& { return song.fileName; };
    const auto nothing = [](const QModelIndex&, const TCPlayListItem&) {};
    CheckNodes({}, record.setLists.groups, name, [&](const QModelIndex& at, const TCPlayGroups& group) {
      CheckNodes(at, group.playlists, name, [&](const QModelIndex& below, const TCPlayList& playlist) {
        CheckNodes(below, playlist.items, fileName, nothing);
      });
    });
  }

  [[nodiscard]] TCPlaylistRow Row(std::int32_t row) const {
    const auto text = [this, row](int column) {
      return FromQString(view->model()->index(row, column).data().toString());
    };
    const auto colour = [this, row](Qt::ItemDataRole role) {
      return view->model()->index(row, 1).data(role).value<QBrush>().color().rgb() & 0xFFFFFF;
    };
    return {{text(1), text(2), text(3), text(4)}, {colour(Qt::BackgroundRole), colour(Qt::ForegroundRole)}};
  }

  QWidget window;
  TCBrevantView* view = new TCBrevantView(&window);
  TCPlayListManagerTreeView* tree = new TCPlayListManagerTreeView(&window);
  QAbstractItemModelTester modelTester{tree->model(), QAbstractItemModelTester::FailureReportingMode::Fatal};
  TCDice dice{GetParam()};
  TCMemoryFiles files;
  TCAppRecord record;
  TCFakePlayer player;
  TCFakeLengthProbe probe;
  TCMessageLog messages;
  TCFakeFrame frame;
  TCRandomPrompts prompts{dice};
  TCBrevantDoc document{{record, files, &player, *view, *tree, messages, frame, prompts, {}, &probe}};
  TCRandomUser user{
      dice,
      record,
      document,
      *tree,
      {[this](const std::vector<std::int32_t>& rows) { SelectRows(rows); },
       [this] { return view->model()->rowCount(); },
       [this](bool treeHasIt) { (treeHasIt ? static_cast<QWidget*>(tree) : view)->setFocus(); },
       [this] { tree->setCurrentIndex({}); }, [this](double seconds) { player.Advance(seconds); }, [] {}}};
  TCEditWatch watch{record,
                    document,
                    *tree,
                    frame,
                    {[this] { return view->model()->rowCount(); },
                     [this](std::int32_t row) { return Row(row); }, [this] { return view->SelectedRows(); }}};
};

TEST_P(RandomEditsOnWidgets, TreeAndRowsShowTheSetListsAfterEveryCommand) {
  constexpr int kCommands = 1'000;
  std::cout << "seed " << GetParam() << ", " << kCommands << " commands\n";
  for (int i = 0; i < kCommands; ++i) {
    user.SelectSomething();
    watch.BeforeCommand();
    const TCDeed deed = user.Act();
    QCoreApplication::processEvents();
    watch.AfterCommand(deed);
    CheckTree();
    ASSERT_FALSE(HasFatalFailure()) << "at act " << i << " of seed " << GetParam() << ": " << user.LastAct();
    messages.lines.clear();
    files.ForgetRequests();
    player.ForgetCalls();
    user.Prune();
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEditsOnWidgets, testing::Range<std::uint32_t>(1, 5));

}  // namespace
}  // namespace brevant
