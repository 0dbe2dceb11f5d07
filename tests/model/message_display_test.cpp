#include "model/message_display.h"

#include <gtest/gtest.h>

#include "support/message_log.h"

namespace brevant {
namespace {

TEST(MessageDisplay, ADetailStandsOneBlankBehindTheMessagesOwnColon) {
  TCMessageLog messages;
  messages.AppendMessage(TCTextId::UnableToPlayMissingFile, u"C:\\a.mp3");
  messages.AppendMessage(TCTextId::Banner);
  EXPECT_EQ(messages.lines[0], u"Unable to play song as unable to find file: C:\\a.mp3");
  EXPECT_EQ(messages.lines[1], u"...Brevant...");
}

}  // namespace
}  // namespace brevant
