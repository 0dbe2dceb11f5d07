#include "app/desktop/file_drops.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDialog>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QUrl>

namespace brevant {
namespace {

class FileDrops : public testing::Test {
 protected:
  FileDrops() {
    QObject::connect(&drops, &TCFileDrops::filesDropped,
                     [this](const QList<QByteArray>& names) { dropped.append(names); });
    drops.Accept();
  }

  // True when the window takes it.
  bool Drop(const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    // The toolkit leads a drop to the widget that the drag entered.
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &enter);
    QDropEvent event(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(&window, &event);
    return event.isAccepted();
  }

  QWidget window;
  TCFileDrops drops{window};
  QList<QByteArray> dropped;
};

TEST(FileDropsAtTheStart, NothingIsTakenBeforeTheProgramIsReadyForIt) {
  QWidget window;
  TCFileDrops drops(window);
  EXPECT_FALSE(window.acceptDrops());
  drops.Accept();
  EXPECT_TRUE(window.acceptDrops());
}

TEST_F(FileDrops, FilesComeInTheirOrderOnceTheDropIsOver) {
  EXPECT_TRUE(window.acceptDrops());
  EXPECT_TRUE(Drop({QUrl::fromLocalFile(QStringLiteral("/m/b c.mp3")),
                    QUrl::fromLocalFile(QStringLiteral("/m/a>\u4E00.wav"))}));
  EXPECT_TRUE(dropped.isEmpty());
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(dropped, (QList<QByteArray>{"/m/b c.mp3", "/m/a>\xE4\xB8\x80.wav"}));
}

TEST_F(FileDrops, ANameKeepsEveryByte) {
  // As file managers write them; the last one is the old form.
  EXPECT_TRUE(Drop({QUrl::fromEncoded("file:///m/a%FF.mp3"), QUrl::fromEncoded("file:///m/100%25%231%3F.mp3"),
                    QUrl::fromEncoded("file:/m/%E4%B8%80.mp3")}));
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(dropped, (QList<QByteArray>{"/m/a\xFF.mp3", "/m/100%#1?.mp3", "/m/\xE4\xB8\x80.mp3"}));
}

TEST_F(FileDrops, WhatIsNoFileOfThisMachineIsLeftOut) {
  EXPECT_FALSE(Drop({QUrl(QStringLiteral("https://example.org/a.mp3"))}));
  EXPECT_FALSE(Drop({QUrl(QStringLiteral("file://elsewhere/a.mp3"))}));
  EXPECT_TRUE(Drop(
      {QUrl(QStringLiteral("https://example.org/a.mp3")), QUrl::fromLocalFile(QStringLiteral("/m/a.mp3"))}));
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(dropped, QList<QByteArray>{"/m/a.mp3"});
}

TEST_F(FileDrops, ADragOfFilesIsWelcomeAndOneOfTextIsNot) {
  QMimeData data;
  data.setText(QStringLiteral("words"));
  QDragEnterEvent text(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &text);
  EXPECT_FALSE(text.isAccepted());
  data.setUrls({QUrl::fromLocalFile(QStringLiteral("/m/a.mp3"))});
  QDragEnterEvent files(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &files);
  EXPECT_TRUE(files.isAccepted());
}

// What another program carries is fetched from it at each question.
class TCFetchedFiles : public QMimeData {
 public:
  mutable int fetched = 0;

  [[nodiscard]] QStringList formats() const override { return {QStringLiteral("text/uri-list")}; }
  [[nodiscard]] bool hasFormat(const QString& format) const override { return formats().contains(format); }

 protected:
  [[nodiscard]] QVariant retrieveData(const QString& /*format*/, QMetaType /*type*/) const override {
    ++fetched;
    return QVariantList{QUrl(QStringLiteral("file:///m/a.mp3"))};
  }
};

TEST_F(FileDrops, WhatIsDraggedIsFetchedOnceHoweverFarTheMouseGoes) {
  const TCFetchedFiles data;
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &enter);
  const int fetched = data.fetched;
  ASSERT_GT(fetched, 0);
  for (int x = 6; x < 20; ++x) {
    QDragMoveEvent move(QPoint(x, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    move.ignore();
    QCoreApplication::sendEvent(&window, &move);
    EXPECT_TRUE(move.isAccepted());
  }
  EXPECT_EQ(data.fetched, fetched);
}

TEST_F(FileDrops, ADropBringsTheWindowForward) {
  window.show();
  QWidget fileManager;
  fileManager.show();
  fileManager.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&fileManager));
  EXPECT_TRUE(Drop({QUrl::fromLocalFile(QStringLiteral("/m/a.mp3"))}));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

// A file manager that offers to move a file deletes it when it is told that it was moved.
TEST_F(FileDrops, AFileThatIsDroppedStaysWhereItIs) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QStringLiteral("/m/a.mp3"))});
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &enter);
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  drop.setDropAction(Qt::MoveAction);
  QCoreApplication::sendEvent(&window, &drop);
  EXPECT_TRUE(drop.isAccepted());
  EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
}

TEST_F(FileDrops, NothingIsDroppedBehindADialog) {
  window.show();
  QDialog dialog(&window);
  dialog.setModal(true);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  EXPECT_FALSE(Drop({QUrl::fromLocalFile(QStringLiteral("/m/a.mp3"))}));
}

TEST_F(FileDrops, ADialogThatOpensBeforeTheDropIsOverEndsIt) {
  window.show();
  EXPECT_TRUE(Drop({QUrl::fromLocalFile(QStringLiteral("/m/a.mp3"))}));
  QDialog dialog(&window);
  dialog.setModal(true);
  dialog.show();
  QCoreApplication::sendPostedEvents();
  EXPECT_TRUE(dropped.isEmpty());
}

}  // namespace
}  // namespace brevant
