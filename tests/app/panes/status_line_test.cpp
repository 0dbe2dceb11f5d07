#include "app/panes/status_line.h"

#include <gtest/gtest.h>

#include <QTest>

#include "resources/string_table.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

const QString kMessage = QStringLiteral("Something to say");
const QString kHint = QStringLiteral("What an entry does");

TEST(StatusLine, ShowsTheKeyHelpToTheLetter) {
  EXPECT_EQ(TCStatusLine(nullptr).KeyHelp(), ToQString(TextOf(TCTextId::KeyHelp)));
}

TEST(StatusLine, AHintGoesBeforeTheMessageAndGivesItBack) {
  TCStatusLine line(nullptr);
  line.ShowMessage(kMessage);
  line.ShowHint(kHint);
  EXPECT_EQ(line.ShownMessage(), kHint);
  line.ShowHint({});
  EXPECT_EQ(line.ShownMessage(), kMessage);
}

TEST(StatusLine, WhatStandsIsThereAgainBehindALaterMessageAndAHint) {
  TCStatusLine line(nullptr, std::chrono::milliseconds(1));
  line.ShowMessage(kMessage);
  line.ShowStanding(QStringLiteral("Waiting"));
  EXPECT_EQ(line.ShownMessage(), QStringLiteral("Waiting"));  // the message was about something before
  line.ShowMessage(kMessage);
  EXPECT_EQ(line.ShownMessage(), kMessage);
  line.ShowHint(kHint);
  EXPECT_EQ(line.ShownMessage(), kHint);
  line.ShowHint({});
  EXPECT_TRUE(QTest::qWaitFor([&line] { return line.ShownMessage() == QStringLiteral("Waiting"); }));
  line.ShowStanding({});
  EXPECT_EQ(line.ShownMessage(), QString());
}

TEST(StatusLine, AMessageGoesAwayByItself) {
  TCStatusLine line(nullptr, std::chrono::milliseconds(1));
  line.ShowMessage(kMessage);
  EXPECT_EQ(line.ShownMessage(), kMessage);
  EXPECT_TRUE(QTest::qWaitFor([&line] { return line.ShownMessage().isEmpty(); }));
}

TEST(StatusLine, AScreenReaderReadsBothPanes) {
  TCStatusLine line(nullptr);
  line.resize(200, 24);
  line.ShowMessage(kMessage);
  EXPECT_EQ(line.findChild<QWidget*>(QStringLiteral("StatusMessage"))->accessibleName(), kMessage);
  EXPECT_EQ(line.findChild<QWidget*>(QStringLiteral("KeyHelp"))->accessibleName(), line.KeyHelp());
}

TEST(StatusLine, InANarrowBarAMessageIsSeenAndTheKeysShareTheRest) {
  TCStatusLine line(nullptr);
  line.resize(600, 24);
  line.show();
  auto* message = line.findChild<QWidget*>(QStringLiteral("StatusMessage"));
  auto* keys = line.findChild<QWidget*>(QStringLiteral("KeyHelp"));
  EXPECT_GT(keys->width(), 450) << "without a message the keys have it all";

  line.ShowMessage(kMessage);
  EXPECT_TRUE(QTest::qWaitFor([&] { return message->width() >= message->sizeHint().width(); }));
  EXPECT_GT(keys->width(), 200);
}

}  // namespace
}  // namespace brevant
