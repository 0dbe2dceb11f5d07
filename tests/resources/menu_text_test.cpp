#include "resources/menu_text.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(MenuText, IsANameUpToTheTab) {
  EXPECT_EQ(MenuTextWithoutHint(u"&Play\tENTER, P, F5, 5"), u"&Play");
  EXPECT_EQ(MenuTextWithoutHint(u"Reduce Volume \tF8"), u"Reduce Volume ") << "blanks are the name's";
  EXPECT_EQ(MenuTextWithoutHint(u"E&xit"), u"E&xit");
}

TEST(MenuText, LosesEveryMnemonicMarkWherever) {
  EXPECT_EQ(WithoutMnemonic(u"Create Play&list"), u"Create Playlist");
  EXPECT_EQ(WithoutMnemonic(u"&Down Arrow"), u"Down Arrow");
  EXPECT_EQ(WithoutMnemonic(u"Properties"), u"Properties");
}

}  // namespace
}  // namespace brevant
