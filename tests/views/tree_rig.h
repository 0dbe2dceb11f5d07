// A playlist manager tree in a window, with two groups, for the tests of what mouse and keys do in it.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPixmap>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <utility>
#include <vector>

#include "views/play_list_manager_tree_view.h"
#include "views/stage_mouse.h"

namespace brevant {

class TCTreeRig : public testing::Test {
 protected:
  // Counts the keys that the tree leaves to it.
  class TCWindow : public QWidget {
   public:
    int keys = 0;

   protected:
    void keyPressEvent(QKeyEvent* event) override { keys += event->key() == Qt::Key_Shift ? 0 : 1; }
  };
  using TCMove = std::pair<TCTreeNode, TCTreeNode>;

  void SetUp() override {
    tree.SetCursors(TestCursors());
    QPixmap picture(23, 19);
    picture.fill(Qt::red);
    TCSetListTreeModel::TCPictures pictures;
    pictures.fill(QIcon(picture));
    tree.SetPictures(pictures);
    const std::vector<TCTreeNode> groups = tree.AddNodes(TCTreeNode::None, 0, {u"Gigs", u"Rehearsals"});
    ASSERT_EQ(groups.size(), 2U);
    gigs = groups[0];
    rehearsals = groups[1];
    const std::vector<TCTreeNode> playlists = tree.AddNodes(gigs, 0, {u"Set 1", u"Set 2"});
    ASSERT_EQ(playlists.size(), 2U);
    setOne = playlists[0];
    setTwo = playlists[1];
    first = tree.AddNodes(setOne, 0, {u"A.mp3", u"B.mp3", u"C.mp3"});
    ASSERT_EQ(first.size(), 3U);
    other.setFocusPolicy(Qt::StrongFocus);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(&tree);
    layout->addWidget(&other);
    window.resize(300, 500);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    other.setFocus();
  }
  void TearDown() override {
    tree.setParent(nullptr);
    other.setParent(nullptr);
  }

  void OpenAll() {
    tree.expandAll();
    QCoreApplication::sendPostedEvents();
  }
  [[nodiscard]] QModelIndex IndexOf(TCTreeNode node) const {
    return static_cast<const TCSetListTreeModel*>(tree.model())->IndexOf(node);
  }
  [[nodiscard]] QString Text(TCTreeNode node) const { return tree.NodeText(node); }
  [[nodiscard]] QRect RowOf(TCTreeNode node) const { return tree.visualRect(IndexOf(node)); }
  [[nodiscard]] QPoint Picture(TCTreeNode node) const {
    return {RowOf(node).left() + 12, RowOf(node).center().y()};
  }
  [[nodiscard]] QPoint Label(TCTreeNode node) const {
    return {RowOf(node).left() + 32, RowOf(node).center().y()};
  }
  [[nodiscard]] QPoint BesideLabel(TCTreeNode node) const {
    return {RowOf(node).right() - 5, RowOf(node).center().y()};
  }
  [[nodiscard]] QPoint BelowAllNodes() const { return {60, tree.viewport()->height() - 5}; }
  [[nodiscard]] QPoint OutsideOfTheTree() const { return {60, -40}; }
  [[nodiscard]] QPoint Global(TCTreeNode node) const { return tree.viewport()->mapToGlobal(Label(node)); }
  [[nodiscard]] Qt::CursorShape Pointer() const { return tree.viewport()->cursor().shape(); }

  // The field that a label is edited in; null when none is.
  [[nodiscard]] QLineEdit* Editor() const { return tree.viewport()->findChild<QLineEdit*>(); }
  // The second click on a label has been one for as long as a double-click may take.
  void WaitForEditor() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return Editor() != nullptr; })) << "no label is edited";
  }
  void EndEditing() {
    QTest::qWait(0);
    if (Editor() != nullptr) QTest::keyClick(Editor(), Qt::Key_Escape);
  }

  [[nodiscard]] std::vector<TCMove> Moves() const {
    std::vector<TCMove> list;
    for (const QList<QVariant>& move : moves) {
      list.emplace_back(move.at(0).value<TCTreeNode>(), move.at(1).value<TCTreeNode>());
    }
    return list;
  }
  [[nodiscard]] static std::vector<TCTreeNode> NodesOf(const QSignalSpy& spy) {
    std::vector<TCTreeNode> list;
    for (const QList<QVariant>& signal : spy) list.push_back(signal.at(0).value<TCTreeNode>());
    return list;
  }
  // Moves of songs within one playlist, as the document carries them out.
  void LetTheDocumentMove() {
    QObject::connect(&tree, &TCPlayListManagerTreeView::nodeMoved, &tree,
                     [this](TCTreeNode source, TCTreeNode target) {
                       const auto place = static_cast<std::size_t>(IndexOf(target).row());
                       tree.MoveNode(source, tree.ParentOf(target), place);
                       tree.SelectNode(source);
                     });
  }

  TCWindow window;
  TCPlayListManagerTreeView tree;
  QWidget other;
  TCTreeNode gigs = TCTreeNode::None;
  TCTreeNode rehearsals = TCTreeNode::None;
  TCTreeNode setOne = TCTreeNode::None;
  TCTreeNode setTwo = TCTreeNode::None;
  std::vector<TCTreeNode> first;  // the songs of "Set 1"

  TCStageMouse mouse{*tree.viewport()};
  QSignalSpy moves{&tree, &TCPlayListManagerTreeView::nodeMoved};
  QSignalSpy presses{&tree, &TCPlayListManagerTreeView::nodePressed};
  QSignalSpy picks{&tree, &TCPlayListManagerTreeView::nodePicked};
  QSignalSpy enters{&tree, &TCPlayListManagerTreeView::enterPressed};
  QSignalSpy places{&tree, &TCPlayListManagerTreeView::placeWanted};
  QSignalSpy menus{&tree, &TCPlayListManagerTreeView::contextMenuWanted};
};

}  // namespace brevant
