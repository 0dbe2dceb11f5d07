#include "text/shared_text.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(SharedText, CopiesHoldTheSameText) {
  const TCSharedText folder = u"C:\\Music\\";
  const TCSharedText copy =
      folder;  // NOLINT(performance-unnecessary-copy-initialization): the copy is the test
  EXPECT_EQ(&copy.str(), &folder.str());
}

TEST(SharedText, OutlivesTheCopiesAndTheOriginal) {
  TCSharedText kept;
  {
    TCSharedText folder = u"C:\\A folder with a long name\\";
    kept = folder;
    folder = TCSharedText(u"D:\\");
    const TCSharedText moved = std::move(kept);
    kept = moved;
    kept = *&kept;
  }
  EXPECT_EQ(kept.str(), u"C:\\A folder with a long name\\");
  kept = {};
  EXPECT_TRUE(kept.empty());
}

TEST(SharedText, IsOnePointer) {
  EXPECT_EQ(sizeof(TCSharedText), sizeof(void*));
}

TEST(SharedText, IsEmptyByDefaultAndFromAnEmptyText) {
  EXPECT_TRUE(TCSharedText().empty());
  EXPECT_TRUE(TCSharedText(u"").empty());
  EXPECT_EQ(TCSharedText().str(), u"");
  EXPECT_EQ(TCSharedText(), TCSharedText(u""));
}

TEST(SharedText, EqualTextsOfOnePoolAreHeldOnce) {
  TCSharedTexts texts;
  const TCSharedText folder = texts.Share(u"C:\\Music\\");
  EXPECT_EQ(&texts.Share(std::u16string(u"C:\\Music\\")).str(), &folder.str());
  EXPECT_EQ(texts.Share(u"c:\\music\\").str(), u"c:\\music\\");
  EXPECT_TRUE(texts.Share(u"").empty());
  EXPECT_TRUE(texts.Share(u"").empty());
}

TEST(SharedText, IsComparedByItsText) {
  EXPECT_EQ(TCSharedText(u"a"), TCSharedText(u"a"));
  EXPECT_FALSE(TCSharedText(u"a") == TCSharedText(u"A"));
  EXPECT_FALSE(TCSharedText(u"a") == TCSharedText());
}

}  // namespace
}  // namespace brevant
