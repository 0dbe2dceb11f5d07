#include "views/tree_lines.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QStandardItemModel>

namespace brevant {
namespace {

constexpr int kCell = 20;  // pixels, wide and high

class TreeLines : public testing::Test {
 protected:
  // Two groups; the first has two playlists, the first of which has two songs; the second has one playlist.
  TreeLines() {
    QStandardItem* first = Add(*model.invisibleRootItem());
    Add(*model.invisibleRootItem());
    QStandardItem* playlist = Add(*first);
    Add(*first);
    Add(*playlist);
    Add(*playlist);
    Add(*model.item(1));
  }
  static QStandardItem* Add(QStandardItem& parent) {
    auto* item = new QStandardItem;
    parent.appendRow(item);
    return item;
  }
  [[nodiscard]] QModelIndex Group(int row) const { return model.index(row, 0); }
  [[nodiscard]] QModelIndex Playlist(int group, int row) const { return model.index(row, 0, Group(group)); }
  [[nodiscard]] QModelIndex Song(int row) const { return model.index(row, 0, Playlist(0, 0)); }

  // What leaves the middle of the cell of each level before the node, outermost first: "ud" a line from above
  // to below, "r" one to the node, "o" an open middle.
  [[nodiscard]] static std::string Drawn(const QModelIndex& node) {
    int levels = 1;
    for (QModelIndex above = node.parent(); above.isValid(); above = above.parent()) ++levels;
    QImage image(levels * kCell, kCell, QImage::Format_RGB32);
    image.fill(Qt::black);
    {
      QPainter painter(&image);
      painter.setPen(Qt::white);
      DrawTreeLines(painter, image.rect(), node, kCell);
    }
    std::string cells;
    for (int level = 0; level < levels; ++level) {
      const QPoint middle = QRect(level * kCell, 0, kCell, kCell).center();
      const auto isDrawn = [&image](int x, int y) { return image.pixelColor(x, y) == Qt::white; };
      if (level > 0) cells += ' ';
      if (isDrawn(middle.x(), 0)) cells += 'u';
      if (isDrawn(middle.x(), kCell - 1)) cells += 'd';
      if (isDrawn(level * kCell + kCell - 1, middle.y())) cells += 'r';
      if (!isDrawn(middle.x(), middle.y())) cells += 'o';
    }
    return cells;
  }

  QStandardItemModel model;
};

TEST_F(TreeLines, LeadFromEachNodeToTheNextAndToTheOneItLiesIn) {
  EXPECT_EQ(Drawn(Group(0)), "dro") << "nothing above the first";
  EXPECT_EQ(Drawn(Group(1)), "uro") << "nothing below the last";
  EXPECT_EQ(Drawn(Playlist(0, 0)), "ud udro");
  EXPECT_EQ(Drawn(Playlist(0, 1)), "ud ur");
  EXPECT_EQ(Drawn(Song(0)), "ud ud udr");
  EXPECT_EQ(Drawn(Song(1)), "ud ud ur");
  EXPECT_EQ(Drawn(Playlist(1, 0)), "o ur") << "no line goes by where no node follows";
}

}  // namespace
}  // namespace brevant
