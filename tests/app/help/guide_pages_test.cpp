#include "app/help/guide_pages.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLineEdit>

#include "app/help/guide_pages_of.h"
#include "resources/command_table.h"

namespace brevant {
namespace {

TEST(GuidePages, EveryPlaceAndEveryCommandHasAPageThatIsThere) {
  ASSERT_TRUE(LeadsSomewhere(QString::fromLatin1(kContentsPage)));
  for (const TCGuidePlace& place : GuidePlaces()) {
    EXPECT_TRUE(
        LeadsSomewhere(QString::fromUtf8(place.page.data(), static_cast<qsizetype>(place.page.size()))))
        << place.objectName << ": " << place.page;
  }
  for (const TCCommand& command : Commands()) {
    const QString page = GuidePageOf(command.id);
    EXPECT_TRUE(LeadsSomewhere(page)) << static_cast<int>(command.id) << ": " << page.toStdString();
  }
}

TEST(GuidePages, TheInnermostPartThatHasAPageDecides) {
  QWidget window;
  window.setObjectName(QStringLiteral("playlistView"));
  QWidget pane(&window);
  pane.setObjectName(QStringLiteral("properties"));
  const QLineEdit editor(&pane);
  EXPECT_EQ(GuidePageOf(&editor), QStringLiteral("panes.md#the-properties"));
  EXPECT_EQ(GuidePageOf(&window), QStringLiteral("performing.md"));
}

TEST(GuidePages, ADialogIsNotWhatItStandsInFrontOf) {
  QWidget window;
  window.setObjectName(QStringLiteral("playlistView"));
  QDialog dialog(&window);
  EXPECT_EQ(GuidePageOf(&dialog), QString::fromLatin1(kContentsPage));
  dialog.setObjectName(QStringLiteral("SaveChanges"));
  EXPECT_EQ(GuidePageOf(&dialog), QStringLiteral("documents.md#saving"));
}

TEST(GuidePages, NowhereIsTheContents) {
  EXPECT_EQ(GuidePageOf(nullptr), QString::fromLatin1(kContentsPage));
}

TEST(GuidePages, ACommandWithoutAPageOfItsOwnHasThatOfItsMenu) {
  EXPECT_EQ(GuidePageOf(TCCommandId::FileSave), QStringLiteral("documents.md"));
  EXPECT_EQ(GuidePageOf(TCCommandId::WhiteOnBlack), QStringLiteral("options.md"));
  EXPECT_EQ(GuidePageOf(TCCommandId::RefreshAllTimes), QStringLiteral("performing.md#song-times"));
}

}  // namespace
}  // namespace brevant
