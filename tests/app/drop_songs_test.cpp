// Two hundred song files dropped on the window of the whole program, and the click into the tree that places
// them.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTest>
#include <QUrl>

#include "app/whole_program.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

class DropSongs : public TCWholeProgram {
 protected:
  void Drop(const QStringList& nativeNames) {
    QList<QUrl> urls;
    for (const QString& name : nativeNames) urls.append(QUrl::fromLocalFile(name));
    DropUrls(urls);
  }
  void DropUrls(const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Frame(), &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Frame(), &drop);
    QCoreApplication::sendPostedEvents();
  }

  void ClickPlaylist(int playlist) {
    TCPlayListManagerTreeView& tree = Frame().Tree();
    tree.expandAll();
    const QModelIndex node = tree.model()->index(playlist, 0, tree.model()->index(0, 0));
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(node).center());
    QCoreApplication::sendPostedEvents();
  }

  [[nodiscard]] QString Status() { return Frame().StatusLine().ShownMessage(); }
  [[nodiscard]] const std::vector<TCPlayListItem>& Songs(std::size_t playlist) {
    return app->Record().setLists.groups[0].playlists[playlist].items;
  }
};

TEST_F(DropSongs, TwoHundredFilesOfAllNamesArePlacedInTheirOrder) {
  Start(kShow);
  QStringList names;
  for (int i = 0; i < 50; ++i) {
    names.append(QStringLiteral("/m/Open Road %1.mp3").arg(i));
    names.append(QStringLiteral("/m/a > b %1.WAV").arg(i));
    names.append(QStringLiteral("/m/\u6B4C\u66F2 %1.wma").arg(i));
    names.append(QStringLiteral("/gone/it's 100% \u00FCber #%1.mid").arg(i));
  }
  for (const QString& name : names) {
    if (name.startsWith(QStringLiteral("/m/"))) files.Put(FromQString(QString(name).replace(u'/', u'\\')));
  }
  Drop(names);
  EXPECT_EQ(Status(),
            QStringLiteral("Click a playlist in the Play List Manager to place 200 files, Esc to cancel"));
  ClickPlaylist(1);
  ASSERT_EQ(Songs(1).size(), 201u);
  for (int i = 0; i < 200; ++i) {
    const TCPlayListItem& song = Songs(1)[static_cast<std::size_t>(i) + 1];
    EXPECT_EQ(ToQString(song.FullPath()).replace(u'\\', u'/'), names[i]);
    EXPECT_EQ(song.status, i % 4 == 3 ? TCSongStatus::NotFound : TCSongStatus::Found);
  }
  EXPECT_TRUE(app->Document().IsModified());
  EXPECT_NE(Status().left(5), QStringLiteral("Click"));
}

TEST_F(DropSongs, TheSongThatWasClickedSaysWhereThoughTheMouseGoesOn) {
  Start(kShow);
  ASSERT_GE(Songs(0).size(), 2u);
  Drop({QStringLiteral("/m/x.mp3")});
  TCPlayListManagerTreeView& tree = Frame().Tree();
  tree.expandAll();
  const QModelIndex group = tree.model()->index(0, 0);
  const QModelIndex song = tree.model()->index(0, 0, tree.model()->index(0, 0, group));
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(song).center());
  // The placing waits for the end of the click; a busy window has moves of the mouse in between.
  const QPoint elsewhere = tree.visualRect(tree.model()->index(1, 0, group)).center();
  QMouseEvent move(QEvent::MouseMove, elsewhere, tree.viewport()->mapToGlobal(elsewhere), Qt::NoButton,
                   Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(tree.viewport(), &move);
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(Songs(0)[1].fileName, u"x.mp3");
}

TEST_F(DropSongs, TheFirstFileOfAWrongTypeIsNamedAndEndsTheRun) {
  Start(kShow);
  Drop({QStringLiteral("/m/x.mp3"), QStringLiteral("/m/set list.txt"), QStringLiteral("/m/y.mp3")});
  ClickPlaylist(1);
  EXPECT_EQ(Songs(1).size(), 2u);
  EXPECT_TRUE(Frame().MessageDisplay().toPlainText().contains(
      QStringLiteral("Invalid media file type (.xxx) for file: \\m\\set list.txt")));
}

TEST_F(DropSongs, ANameThatNoDocumentCanHoldIsRefusedInTheStatusBar) {
  Start(kShow);
  Drop({QStringLiteral("/m/12\" mix.mp3")});
  EXPECT_TRUE(Status().startsWith(QStringLiteral("A name with a backslash, double quote or line break")));
  Drop({QStringLiteral("/m/12\" mix.mp3"), QStringLiteral("/m/x.mp3")});
  EXPECT_TRUE(Status().startsWith(QStringLiteral("A name with a backslash, double quote or line break")));
  EXPECT_TRUE(app->Document().Placement().Pending());  // the other file is placed all the same
}

TEST_F(DropSongs, ANameWithForeignBytesIsRefusedToo) {
  Start(kShow);
  DropUrls({QUrl::fromEncoded("file:///m/a%FF.mp3")});
  EXPECT_EQ(Status(),
            QStringLiteral("A name with bytes in it that are not UTF-8 cannot be used: /m/a\u00FF.mp3"));
  EXPECT_FALSE(app->Document().Placement().Pending());
}

TEST_F(DropSongs, EscCallsThePlacingOffWhereverTheKeysGo) {
  Start(kShow);
  Frame().Tree().TakeFocus();
  Drop({QStringLiteral("/m/x.mp3")});
  Press(Qt::Key_Escape);
  EXPECT_FALSE(app->Document().Placement().Pending());
  ClickPlaylist(1);
  EXPECT_EQ(Songs(1).size(), 1u);
}

TEST_F(DropSongs, ADroppedDocumentIsOpenedAtOnce) {
  files.PutUtf16(u"\\m\\other.brv", u"\"Duo\" \"Late\" \"\\m\\one.mp3\" 01:00\r\n");
  Start(kShow);
  Drop({QStringLiteral("/m/x.mp3"), QStringLiteral("/m/other.brv")});
  EXPECT_EQ(app->Document().GetPathName(), u"\\m\\other.brv");
  EXPECT_FALSE(app->Document().Placement().Pending());
}

}  // namespace
}  // namespace brevant
