#include "app/recent_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QLockFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include "views/text_conversion.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class RecentFiles : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(folder.isValid()); }

  [[nodiscard]] QString File() const { return folder.filePath(QStringLiteral("Layout.ini")); }

  void Put(int place, const QVariant& value) {
    layout.setValue(QStringLiteral("Recent File List/File%1").arg(place), value);
  }

  QTemporaryDir folder;
  QSettings layout{File(), QSettings::IniFormat};
  TCRecentFiles files{layout};
};

TEST_F(RecentFiles, TheNewestIsTheFirst) {
  EXPECT_THAT(files.Paths(), IsEmpty());
  const QSignalSpy changes(&files, &TCRecentFiles::changed);
  files.AddToRecentFileList(u"\\a\\one.brv");
  files.AddToRecentFileList(u"\\a\\two.brv");
  EXPECT_THAT(files.Paths(), ElementsAre(u"\\a\\two.brv", u"\\a\\one.brv"));
  EXPECT_EQ(changes.count(), 2);
}

TEST_F(RecentFiles, AFileThatIsUsedAgainMovesToTheTopAndIsThereOnce) {
  for (const char16_t* path : {u"\\a\\one.brv", u"\\a\\two.brv", u"\\a\\One.BRV"})
    files.AddToRecentFileList(path);
  EXPECT_THAT(files.Paths(), ElementsAre(u"\\a\\One.BRV", u"\\a\\two.brv"));
}

TEST_F(RecentFiles, EightAreKept) {
  for (char16_t name = u'a'; name <= u'j'; ++name)
    files.AddToRecentFileList(std::u16string(u"\\") + name + u".brv");
  EXPECT_THAT(files.Paths(), ElementsAre(u"\\j.brv", u"\\i.brv", u"\\h.brv", u"\\g.brv", u"\\f.brv",
                                         u"\\e.brv", u"\\d.brv", u"\\c.brv"));
}

TEST_F(RecentFiles, OnlyDocumentsAreEntered) {
  const QSignalSpy changes(&files, &TCRecentFiles::changed);
  for (const char16_t* path : {u"\\a\\set.brvpl", u"\\a\\group.brvgl", u"\\a\\song.mp3", u"\\a\\brv", u"",
                               u"\\a\\show.brv.txt", u"\\a\\show.brv "}) {
    files.AddToRecentFileList(path);
  }
  EXPECT_THAT(files.Paths(), IsEmpty());
  EXPECT_EQ(changes.count(), 0);
  for (const char16_t* path : {u"\\a\\one.Brv", u"\\a\\two.BRV"}) files.AddToRecentFileList(path);
  EXPECT_THAT(files.Paths(), SizeIs(2));
}

TEST_F(RecentFiles, TheListIsOnTheDiskAsSoonAsItChanges) {
  files.AddToRecentFileList(u"\\a\\one.brv");
  files.AddToRecentFileList(u"C:\\D\u00E4nce, 100%;\\\u6B4C \"=@.brv");
  files.WaitUntilWritten();
  // Another name: the toolkit knows what is about to be written under the file's own.
  const QString copy = folder.filePath(QStringLiteral("Copy.ini"));
  ASSERT_TRUE(QFile::copy(File(), copy));
  QSettings read(copy, QSettings::IniFormat);
  EXPECT_EQ(read.value(QStringLiteral("Recent File List/File2")).toString(), QStringLiteral("\\a\\one.brv"));
  EXPECT_FALSE(read.contains(QStringLiteral("Recent File List/File3")));
  EXPECT_EQ(TCRecentFiles(read).Paths(), files.Paths());
}

TEST_F(RecentFiles, NobodyWaitsForTheDisk) {
  layout.sync();
  QLockFile held(File() + QStringLiteral(".lock"));  // as somebody who is writing the file has it
  ASSERT_TRUE(held.tryLock());
  files.AddToRecentFileList(u"\\a\\one.brv");
  files.AddToRecentFileList(u"\\a\\two.brv");
  EXPECT_FALSE(QFile::exists(File()));
  held.unlock();
  files.WaitUntilWritten();
  EXPECT_THAT(TCRecentFiles(layout).Paths(), ElementsAre(u"\\a\\two.brv", u"\\a\\one.brv"));
}

TEST_F(RecentFiles, WhatCannotBeInTheListIsLeftOut) {
  Put(1, QStringLiteral("\\a\\one.brv"));
  Put(2, QString());
  Put(3, QStringLiteral("\\a\\song.mp3"));
  Put(4, QStringLiteral("\\A\\ONE.brv"));
  Put(5, QStringList{QStringLiteral("x"), QStringLiteral("y.brv")});
  Put(7, QStringLiteral("\\a\\seven.brv"));
  Put(9, QStringLiteral("\\a\\nine.brv"));
  TCRecentFiles read(layout);
  EXPECT_THAT(read.Paths(), ElementsAre(u"\\a\\one.brv", u"\\a\\seven.brv"));
  read.AddToRecentFileList(u"\\a\\new.brv");
  read.WaitUntilWritten();
  for (int place = 4; place <= 8; ++place)
    EXPECT_FALSE(layout.contains(QStringLiteral("Recent File List/File%1").arg(place))) << place;
}

}  // namespace
}  // namespace brevant
