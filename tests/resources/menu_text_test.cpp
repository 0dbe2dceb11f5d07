#include "resources/menu_text.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(MenuText, ComesApartAtTheTab) {
  EXPECT_EQ(MenuTextWithoutHint(u"&Play\tENTER, P, F5, 5"), u"&Play");
  EXPECT_EQ(KeyHint(u"&Play\tENTER, P, F5, 5"), u"ENTER, P, F5, 5");
}

TEST(MenuText, WithoutATabIsAllNameAndNoHint) {
  EXPECT_EQ(MenuTextWithoutHint(u"E&xit"), u"E&xit");
  EXPECT_EQ(KeyHint(u"E&xit"), u"");
}

TEST(MenuText, KeepsTheBlanksAroundTheTab) {
  EXPECT_EQ(MenuTextWithoutHint(u"Reduce Volume \tF8"), u"Reduce Volume ");
  EXPECT_EQ(KeyHint(u"Pause - Continue\t Spacebar"), u" Spacebar");
}

TEST(MenuText, LosesEveryMnemonicMarkWherever) {
  EXPECT_EQ(WithoutMnemonic(u"Create Play&list"), u"Create Playlist");
  EXPECT_EQ(WithoutMnemonic(u"&Down Arrow"), u"Down Arrow");
  EXPECT_EQ(WithoutMnemonic(u"Properties"), u"Properties");
}

}  // namespace
}  // namespace brevant
