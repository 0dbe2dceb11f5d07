#include "app/dialogs/refused_name.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(RefusedName, IsNamedOnOneLine) {
  const std::u16string text = RefusedNameText("/home/me/two\nlines.brv");
  EXPECT_TRUE(text.ends_with(u": /home/me/two?lines.brv"));
  EXPECT_EQ(text.find(u'\n'), std::u16string::npos);
}

TEST(RefusedName, IsShownWhateverItsBytesAre) {
  EXPECT_TRUE(RefusedNameText("caf\xE9.brv").ends_with(u": caf\u00E9.brv"));
}

}  // namespace
}  // namespace brevant
