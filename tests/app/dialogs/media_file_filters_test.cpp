#include "app/dialogs/media_file_filters.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(MediaFileFilters, OfferTheTypesInOrderAndThenEverything) {
  EXPECT_EQ(MediaFileFilters({u"mid", u"mp3", u"wav", u"wma"}),
            (QStringList{QStringLiteral("Media Files (*.mid *.mp3 *.wav *.wma)"),
                         QStringLiteral("All Files (*)")}));
}

TEST(MediaFileFilters, WithoutATypeThereIsOnlyEverything) {
  EXPECT_EQ(MediaFileFilters({}), QStringList{QStringLiteral("All Files (*)")});
  EXPECT_EQ(MediaFileFilters({u"", u""}), QStringList{QStringLiteral("All Files (*)")});
}

TEST(MediaFileFilters, ACharacterThatNoPatternMayHoldIsAnyCharacter) {
  EXPECT_EQ(MediaFileFilters({u"a b", u"x)(*", u"\u00F6gg", u"\U0001F3B5"}).constFirst(),
            QStringLiteral("Media Files (*.a?b *.x??? *.?gg *.?)"));
}

}  // namespace
}  // namespace brevant
