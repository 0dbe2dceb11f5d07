#include "app/dialogs/refused_name.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(RefusedName, IsNamedOnOneLine) {
  const std::u16string text = RefusedNameText("/home/me/two\nlines.brv");
  EXPECT_TRUE(text.ends_with(u": /home/me/two?lines.brv"));
  EXPECT_EQ(text.find(u'\n'), std::u16string::npos);
}

TEST(RefusedName, ComesWithTheReason) {
  EXPECT_EQ(RefusedNameText("12\" mix.mp3"),
            u"A name with a backslash, double quote or line break in it cannot be used: 12\" mix.mp3");
  EXPECT_EQ(RefusedNameText("caf\xE9.brv"),
            u"A name with bytes in it that are not UTF-8 cannot be used: caf\u00E9.brv");
}

}  // namespace
}  // namespace brevant
