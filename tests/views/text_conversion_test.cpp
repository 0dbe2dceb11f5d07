#include "views/text_conversion.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(TextConversion, KeepsAByteOrderMark) {
  EXPECT_EQ(ToQString(u"\uFEFFtext").size(), 5);
  EXPECT_EQ(FromQString(ToQString(u"\uFEFFtext")), u"\uFEFFtext");
}

TEST(TextConversion, KeepsNulsLoneSurrogatesAndTheEmptyText) {
  const std::u16string odd{u'a', u'\0', char16_t{0xD800}, u'b'};
  EXPECT_EQ(FromQString(ToQString(odd)), odd);
  EXPECT_EQ(FromQString(ToQString({})), u"");
}

}  // namespace
}  // namespace brevant
