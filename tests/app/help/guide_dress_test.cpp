#include "app/help/guide_dress.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTextTable>

#include "app/help/guide_pages_of.h"
#include "app/look/stage_palette.h"

namespace brevant {
namespace {

// Every span of text with its format.
template <typename Visit>
void ForEachSpan(const QTextDocument& page, const Visit& visit) {
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) visit(part.fragment());
  }
}

const QPalette kDark = StagePalette(0xFFFFFF, 0x000000);
const QPalette kLight = StagePalette(0x000000, 0xFFFFFF);

TEST(GuideDress, AHeadingsAnchorIsWrittenAsLinksWriteIt) {
  EXPECT_EQ(HeadingAnchor(QStringLiteral("Volume, to and fro")), QStringLiteral("volume-to-and-fro"));
  EXPECT_EQ(HeadingAnchor(QStringLiteral("NAME.brv~")), QStringLiteral("namebrv"));
  EXPECT_EQ(HeadingAnchor(QStringLiteral("From a Windows machine: drive letters")),
            QStringLiteral("from-a-windows-machine-drive-letters"));
}

TEST(GuideDress, TheProgramHasEveryPageOfTheGuideAsItStandsThere) {
  const QDir folder(QStringLiteral(BREVANT_GUIDE));
  const QStringList files = folder.entryList({QStringLiteral("*.md")});
  ASSERT_GT(files.size(), 10);
  EXPECT_EQ(GuideFiles(), files);
  for (const QString& file : files) {
    QFile page(folder.filePath(file));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_EQ(GuideText(file), QString::fromUtf8(page.readAll())) << file.toStdString();
  }
}

TEST(GuideDress, EveryLinkOfTheGuideLeadsSomewhereAndEveryPictureIsThere) {
  int links = 0;
  int pictures = 0;
  for (const QString& file : GuideFiles()) {
    QTextDocument page;
    page.setMarkdown(GuideText(file));
    ForEachSpan(page, [&](const QTextFragment& span) {
      const QString target = span.charFormat().anchorHref();
      if (!target.isEmpty()) {
        ++links;
        EXPECT_TRUE(LeadsSomewhere(target.startsWith(u'#') ? QString(file + target) : target))
            << file.toStdString() << ": " << target.toStdString();
      }
      if (span.charFormat().isImageFormat()) {
        ++pictures;
        const QString picture = span.charFormat().toImageFormat().name();
        EXPECT_FALSE(QImage(QDir::cleanPath(QStringLiteral(":/guide/user/") + picture)).isNull())
            << file.toStdString() << ": " << picture.toStdString();
      }
    });
  }
  EXPECT_GT(links, 50);
  EXPECT_GT(pictures, 0);
}

TEST(GuideDress, NoTwoHeadingsOfAPageHaveOneAnchor) {
  for (const QString& file : GuideFiles()) {
    QTextDocument page;
    page.setMarkdown(GuideText(file));
    QStringList anchors;
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
      if (block.blockFormat().headingLevel() > 0) anchors.append(HeadingAnchor(block.text()));
    }
    EXPECT_EQ(anchors.removeDuplicates(), 0) << file.toStdString();
  }
}

TEST(GuideDress, LinksTablesAndCodeFollowThePaletteWheneverItChanges) {
  QTextDocument page;
  page.setMarkdown(
      QStringLiteral("A [link](x.md) and `code`.\n\n| a | b |\n|---|---|\n| 1 | 2 |\n\n```\nline\n```\n"));
  for (const QPalette& palette : {kDark, kLight, kDark}) {
    DressGuidePage(page, palette);
    bool linkSeen = false;
    bool codeSeen = false;
    ForEachSpan(page, [&](const QTextFragment& span) {
      if (span.text() == QStringLiteral("link")) {
        linkSeen = true;
        EXPECT_EQ(span.charFormat().foreground().color(), palette.color(QPalette::Link));
      }
      if (span.text() == QStringLiteral("code")) {
        codeSeen = true;
        EXPECT_EQ(span.charFormat().background().color(), palette.color(QPalette::AlternateBase));
      }
    });
    EXPECT_TRUE(linkSeen && codeSeen);
    ASSERT_EQ(page.rootFrame()->childFrames().size(), 1);
    const auto* table = qobject_cast<QTextTable*>(page.rootFrame()->childFrames().constFirst());
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->format().borderBrush().color(), palette.color(QPalette::Mid));
  }
}

TEST(GuideDress, WhatTheWriterNotedForOthersIsNotShown) {
  QTextDocument page;
  page.setMarkdown(GuideText(QStringLiteral("keys.md")));
  ASSERT_TRUE(GuideText(QStringLiteral("keys.md")).contains(QStringLiteral("<!--")));
  EXPECT_FALSE(page.toPlainText().contains(QStringLiteral("brevant_key_table")));
}

}  // namespace
}  // namespace brevant
