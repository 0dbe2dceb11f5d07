#include "views/set_list_tree_model.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QPixmap>
#include <QSignalSpy>
#include <algorithm>
#include <random>

#include "text/numbers.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::size_t kLast = 1000000;

class TreeModel : public testing::Test {
 protected:
  TCTreeNode Add(TCTreeNode parent, std::u16string_view text, std::size_t index = kLast) {
    const std::vector<TCTreeNode> added = model.AddNodes(parent, index, {std::u16string(text)});
    EXPECT_THAT(added, SizeIs(1));
    return added.empty() ? TCTreeNode::None : added.front();
  }
  [[nodiscard]] std::vector<std::string> TextsUnder(const QModelIndex& parent) const {
    std::vector<std::string> texts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
      texts.push_back(model.index(row, 0, parent).data().toString().toStdString());
    }
    return texts;
  }
  [[nodiscard]] std::vector<std::string> TextsUnder(TCTreeNode node) const {
    return TextsUnder(model.IndexOf(node));
  }

  TCSetListTreeModel model;
  QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(TreeModel, BeginsWithoutNodes) {
  EXPECT_EQ(model.rowCount(), 0);
  EXPECT_FALSE(model.hasChildren());
  EXPECT_FALSE(model.HasNode(TCTreeNode::None));
  EXPECT_FALSE(model.HasNode(static_cast<TCTreeNode>(1)));
  EXPECT_FALSE(model.IndexOf(TCTreeNode::None).isValid());
}

TEST_F(TreeModel, NodesComeInTheirOrderEachWithAHandleOfItsOwn) {
  const std::vector<TCTreeNode> groups = model.AddNodes(TCTreeNode::None, 0, {u"A", u"B", u"C"});
  ASSERT_THAT(groups, SizeIs(3));
  EXPECT_THAT(TextsUnder(QModelIndex()), ElementsAre("A", "B", "C"));
  for (int row = 0; row < 3; ++row) {
    const TCTreeNode node = groups[static_cast<std::size_t>(row)];
    EXPECT_NE(node, TCTreeNode::None);
    EXPECT_EQ(model.IndexOf(node).row(), row);
    EXPECT_EQ(model.NodeAt(model.index(row, 0)), node);
    EXPECT_EQ(model.ParentOf(node), TCTreeNode::None);
    EXPECT_EQ(model.PlaceOf(node), static_cast<std::size_t>(row));
    EXPECT_EQ(model.LevelOf(node), 1);
  }
}

TEST_F(TreeModel, NodesAreAddedAtAPlaceAndPastTheEndLast) {
  const TCTreeNode a = Add(TCTreeNode::None, u"A");
  const TCTreeNode c = Add(TCTreeNode::None, u"C", 77);
  Add(TCTreeNode::None, u"B", 1);
  Add(TCTreeNode::None, u"0", 0);
  EXPECT_THAT(TextsUnder(QModelIndex()), ElementsAre("0", "A", "B", "C"));
  EXPECT_EQ(model.IndexOf(a).row(), 1);
  EXPECT_EQ(model.IndexOf(c).row(), 3);
}

TEST_F(TreeModel, NothingIsAddedBelowTheThirdLevelOrUnderANodeThatIsNotThere) {
  const TCTreeNode group = Add(TCTreeNode::None, u"G");
  const TCTreeNode playlist = Add(group, u"P");
  const TCTreeNode song = Add(playlist, u"S");
  EXPECT_EQ(model.LevelOf(playlist), 2);
  EXPECT_EQ(model.LevelOf(song), 3);
  const QSignalSpy inserts(&model, &QAbstractItemModel::rowsInserted);
  EXPECT_THAT(model.AddNodes(song, 0, {u"X"}), IsEmpty());
  EXPECT_THAT(model.AddNodes(static_cast<TCTreeNode>(99), 0, {u"X"}), IsEmpty());
  EXPECT_THAT(model.AddNodes(group, 0, {}), IsEmpty());
  model.DeleteNodes(playlist, 1);
  EXPECT_THAT(model.AddNodes(playlist, 0, {u"X"}), IsEmpty());
  EXPECT_EQ(inserts.count(), 0);
}

TEST_F(TreeModel, ManyNodesAreOneInsertion) {
  const QSignalSpy inserts(&model, &QAbstractItemModel::rowsInserted);
  model.AddNodes(TCTreeNode::None, 0, std::vector<std::u16string>(500, u"G"));
  EXPECT_EQ(inserts.count(), 1);
}

TEST_F(TreeModel, ADeletedNodeTakesAllUnderItAlongAndItsHandleIsNobodys) {
  const TCTreeNode group = Add(TCTreeNode::None, u"G");
  const TCTreeNode playlist = Add(group, u"P");
  const TCTreeNode song = Add(playlist, u"S");
  const TCTreeNode other = Add(TCTreeNode::None, u"H");
  model.DeleteNodes(group, 1);
  EXPECT_THAT(TextsUnder(QModelIndex()), ElementsAre("H"));
  EXPECT_EQ(model.IndexOf(other).row(), 0);
  // New nodes take the places in memory of those that went.
  for (int i = 0; i < 5; ++i) Add(other, u"new");
  for (const TCTreeNode gone : {group, playlist, song}) {
    EXPECT_FALSE(model.HasNode(gone));
    EXPECT_FALSE(model.IndexOf(gone).isValid());
    EXPECT_EQ(model.ParentOf(gone), TCTreeNode::None);
    EXPECT_EQ(model.PlaceOf(gone), 0u);
    EXPECT_EQ(model.TextOf(gone), QString());
    model.SetText(gone, QStringLiteral("X"));
    model.DeleteNodes(gone, 1);
    model.MoveNode(gone, TCTreeNode::None, 0);
  }
  EXPECT_THAT(TextsUnder(other), ElementsAre("new", "new", "new", "new", "new"));
}

TEST_F(TreeModel, NeighboursGoInOneRemoval) {
  const std::vector<TCTreeNode> groups =
      model.AddNodes(TCTreeNode::None, 0, {u"0", u"1", u"2", u"3", u"4", u"5"});
  Add(groups[2], u"P");
  const QSignalSpy removals(&model, &QAbstractItemModel::rowsRemoved);
  model.DeleteNodes(groups[1], 3);
  EXPECT_THAT(TextsUnder(QModelIndex()), ElementsAre("0", "4", "5"));
  EXPECT_EQ(model.IndexOf(groups[4]).row(), 1);
  EXPECT_FALSE(model.HasNode(groups[2]));
  model.DeleteNodes(groups[4], 0);
  model.DeleteNodes(groups[4], 9);
  EXPECT_THAT(TextsUnder(QModelIndex()), ElementsAre("0"));
  EXPECT_EQ(removals.count(), 2);
}

TEST_F(TreeModel, AfterAClearEveryHandleIsNobodys) {
  const TCTreeNode group = Add(TCTreeNode::None, u"G");
  const TCTreeNode playlist = Add(group, u"P");
  model.ClearNodes();
  EXPECT_EQ(model.rowCount(), 0);
  Add(TCTreeNode::None, u"1");
  Add(TCTreeNode::None, u"2");
  EXPECT_FALSE(model.HasNode(group));
  EXPECT_FALSE(model.HasNode(playlist));
}

TEST_F(TreeModel, ANodeMovesAmongItsSiblingsCountedWithoutItself) {
  const std::vector<TCTreeNode> groups = model.AddNodes(TCTreeNode::None, 0, {u"A", u"B", u"C", u"D"});
  model.MoveNode(groups[0], TCTreeNode::None, 2);
  EXPECT_THAT(TextsUnder(QModelIndex()), ElementsAre("B", "C", "A", "D"));
  model.MoveNode(groups[3], TCTreeNode::None, 0);
  EXPECT_THAT(TextsUnder(QModelIndex()), ElementsAre("D", "B", "C", "A"));
  model.MoveNode(groups[3], TCTreeNode::None, 99);
  EXPECT_THAT(TextsUnder(QModelIndex()), ElementsAre("B", "C", "A", "D"));
  for (int row = 0; row < 4; ++row) EXPECT_EQ(model.IndexOf(model.NodeAt(model.index(row, 0))).row(), row);
}

TEST_F(TreeModel, ANodeMovedToWhereItStandsMovesNothing) {
  const std::vector<TCTreeNode> groups = model.AddNodes(TCTreeNode::None, 0, {u"A", u"B"});
  const QSignalSpy moves(&model, &QAbstractItemModel::rowsMoved);
  model.MoveNode(groups[0], TCTreeNode::None, 0);
  model.MoveNode(groups[1], TCTreeNode::None, 1);
  model.MoveNode(groups[1], TCTreeNode::None, 50);
  EXPECT_EQ(moves.count(), 0);
}

TEST_F(TreeModel, ANodeMovesToAnotherParentWithAllUnderItAndKeepsItsHandle) {
  const std::vector<TCTreeNode> groups = model.AddNodes(TCTreeNode::None, 0, {u"A", u"B"});
  const std::vector<TCTreeNode> inA = model.AddNodes(groups[0], 0, {u"A1", u"A2"});
  const std::vector<TCTreeNode> inB = model.AddNodes(groups[1], 0, {u"B1", u"B2"});
  const TCTreeNode song = Add(inA[0], u"S");
  const QPersistentModelIndex kept = model.IndexOf(inA[0]);
  const QSignalSpy moves(&model, &QAbstractItemModel::rowsMoved);
  model.MoveNode(inA[0], groups[1], 1);
  EXPECT_EQ(moves.count(), 1);
  EXPECT_THAT(TextsUnder(groups[0]), ElementsAre("A2"));
  EXPECT_THAT(TextsUnder(groups[1]), ElementsAre("B1", "A1", "B2"));
  EXPECT_EQ(model.ParentOf(inA[0]), groups[1]);
  EXPECT_EQ(model.ParentOf(song), inA[0]);
  EXPECT_EQ(model.PlaceOf(inA[0]), 1u);
  EXPECT_EQ(model.IndexOf(inA[1]).row(), 0);
  EXPECT_EQ(model.IndexOf(inB[1]).row(), 2);
  EXPECT_EQ(model.NodeAt(kept), inA[0]);
}

TEST_F(TreeModel, NothingMovesBetweenLevelsOrToANodeThatIsNotThere) {
  const TCTreeNode group = Add(TCTreeNode::None, u"G");
  const TCTreeNode playlist = Add(group, u"P");
  const TCTreeNode song = Add(playlist, u"S");
  const QSignalSpy moves(&model, &QAbstractItemModel::rowsMoved);
  model.MoveNode(group, group, 0);
  model.MoveNode(group, playlist, 0);
  model.MoveNode(playlist, TCTreeNode::None, 0);
  model.MoveNode(playlist, playlist, 0);
  model.MoveNode(song, group, 0);
  model.MoveNode(song, song, 0);
  model.MoveNode(song, static_cast<TCTreeNode>(12345), 0);
  model.MoveNode(group, static_cast<TCTreeNode>(12345), 0);
  model.MoveNode(TCTreeNode::None, TCTreeNode::None, 0);
  EXPECT_EQ(moves.count(), 0);
}

TEST_F(TreeModel, ATextIsShownInOneLineAndEditedWhole) {
  const TCTreeNode node = Add(TCTreeNode::None, u"one\ntwo");
  EXPECT_EQ(model.IndexOf(node).data().toString(), QStringLiteral("one two"));
  EXPECT_EQ(model.IndexOf(node).data(Qt::EditRole).toString(), QStringLiteral("one\ntwo"));
  const QString endless(100000, QLatin1Char('x'));
  model.SetText(node, endless);
  EXPECT_LE(model.IndexOf(node).data().toString().size(), 1000);
  EXPECT_EQ(model.TextOf(node), endless);
}

TEST_F(TreeModel, ANewTextIsToldOfOnce) {
  const TCTreeNode node = Add(TCTreeNode::None, u"A");
  const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
  model.SetText(node, QStringLiteral("B"));
  model.SetText(node, QStringLiteral("B"));
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(changes.at(0).at(0).toModelIndex(), model.IndexOf(node));
}

TEST_F(TreeModel, EveryLevelHasAPictureAndAnotherForTheSelectedNode) {
  TCSetListTreeModel::TCPictures pictures;
  for (int i = 0; i < 6; ++i) {
    QPixmap picture(23, 19);
    picture.fill(QColor(i * 10, 0, 0));
    pictures[static_cast<std::size_t>(i)] = picture;
  }
  model.SetPictures(pictures);
  TCTreeNode node = TCTreeNode::None;
  for (int level = 0; level < 3; ++level) {
    node = Add(node, u"N");
    const auto red = [this, node](int role) {
      return model.IndexOf(node).data(role).value<QIcon>().pixmap(23, 19).toImage().pixelColor(5, 5).red();
    };
    EXPECT_EQ(red(Qt::DecorationRole), level * 20);
    EXPECT_EQ(red(TCSetListTreeModel::kSelectedPictureRole), level * 20 + 10);
  }
}

// The same tree kept the simple way.
struct TCPlainNode {
  TCTreeNode handle = TCTreeNode::None;
  std::u16string text;
  std::vector<TCPlainNode> children;
};

void ExpectSame(const TCSetListTreeModel& model, const QModelIndex& index, const TCPlainNode& plain) {
  ASSERT_EQ(model.rowCount(index), static_cast<int>(plain.children.size()));
  for (int row = 0; row < model.rowCount(index); ++row) {
    const TCPlainNode& child = plain.children[static_cast<std::size_t>(row)];
    const QModelIndex childIndex = model.index(row, 0, index);
    ASSERT_EQ(model.NodeAt(childIndex), child.handle);
    ASSERT_EQ(model.IndexOf(child.handle), childIndex);
    ASSERT_EQ(childIndex.parent(), index);
    ASSERT_EQ(childIndex.data(Qt::EditRole).toString().toStdU16String(), child.text);
    ExpectSame(model, childIndex, child);
  }
}

TEST_F(TreeModel, StaysTheTreeItShouldBeThroughThousandsOfRandomChanges) {
  for (const unsigned seed : {1U, 2U, 3U}) {
    SCOPED_TRACE(seed);
    model.ClearNodes();
    std::mt19937 random(seed);
    const auto below = [&random](std::size_t limit) { return limit == 0 ? 0 : random() % limit; };
    TCPlainNode root;
    const auto anyAbove = [&](std::size_t level) -> TCPlainNode* {  // a node of that level, 0 the root
      TCPlainNode* node = &root;
      for (std::size_t i = 0; i < level && node != nullptr; ++i) {
        node = node->children.empty() ? nullptr : &node->children[below(node->children.size())];
      }
      return node;
    };
    for (int step = 0; step < 3000; ++step) {
      const std::size_t level = below(3);
      TCPlainNode* parent = anyAbove(level);
      TCPlainNode* other = anyAbove(level);
      if (parent == nullptr || other == nullptr) continue;
      const std::size_t place = below(parent->children.size() + 2);
      const std::size_t count = parent->children.size();
      switch (below(4)) {
        case 0: {
          if (count > 12) break;
          std::vector<std::u16string> texts(1 + below(3));
          for (std::u16string& text : texts) text = FormatDecimal(step);
          const std::vector<TCTreeNode> added = model.AddNodes(parent->handle, place, texts);
          ASSERT_EQ(added.size(), texts.size());
          for (std::size_t i = 0; i < added.size(); ++i) {
            const std::size_t at = std::min(place, count) + i;
            parent->children.insert(parent->children.begin() + static_cast<std::ptrdiff_t>(at),
                                    {added[i], texts[i], {}});
          }
          break;
        }
        case 1: {
          if (place >= count || below(2) == 0) break;
          const std::size_t several = below(4);
          model.DeleteNodes(parent->children[place].handle, several);
          const auto first = parent->children.begin() + static_cast<std::ptrdiff_t>(place);
          parent->children.erase(
              first, first + static_cast<std::ptrdiff_t>(std::min(several, parent->children.size() - place)));
          break;
        }
        case 2: {
          if (place >= count) break;
          const TCPlainNode moved = parent->children[place];
          const std::size_t to = below(other->children.size() + 2);
          model.MoveNode(moved.handle, other->handle, to);
          parent->children.erase(parent->children.begin() + static_cast<std::ptrdiff_t>(place));
          const std::size_t at = std::min(to, other->children.size());
          other->children.insert(other->children.begin() + static_cast<std::ptrdiff_t>(at), moved);
          break;
        }
        default:
          if (place >= count) break;
          parent->children[place].text = u"renamed " + FormatDecimal(step);
          model.SetText(parent->children[place].handle,
                        QString::fromStdU16String(parent->children[place].text));
      }
      ExpectSame(model, QModelIndex(), root);
      if (HasFatalFailure()) return;
    }
  }
}

}  // namespace
}  // namespace brevant
