#include "resources/string_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace brevant {
namespace {

constexpr int kFixedNumbers[] = {102, 103, 108, 112, 113, 117, 119, 124, 128, 136,
                                 139, 140, 150, 151, 171, 182, 195, 196, 197, 209};
constexpr int kFirstFreeNumber = 1000;
constexpr int kLastNumber = static_cast<int>(TCTextId::OptionsToolbar);

bool IsText(int number) {
  return std::ranges::find(kFixedNumbers, number) != std::end(kFixedNumbers) ||
         (number >= kFirstFreeNumber && number <= kLastNumber);
}

TEST(StringTable, HasATextForEveryNumberAndForNoOther) {
  for (int number = 0; number <= kLastNumber + 1000; ++number) {
    EXPECT_EQ(TextOf(static_cast<TCTextId>(number)).empty(), !IsText(number)) << number;
  }
}

TEST(StringTable, HoldsOnlyPlainCharactersSoThatEveryFontAndFileCanShowThem) {
  for (int number = 0; number <= kLastNumber; ++number) {
    for (const char16_t unit : TextOf(static_cast<TCTextId>(number))) {
      EXPECT_TRUE(unit == u'\n' || (unit >= u' ' && unit <= u'~')) << number;
    }
  }
}

TEST(StringTable, SaysEachThingOnceApartFromTheWordsThatTwoPlacesShare) {
  std::multiset<std::u16string_view> texts;
  for (int number = 0; number <= kLastNumber; ++number) {
    if (IsText(number)) texts.insert(TextOf(static_cast<TCTextId>(number)));
  }
  std::set<std::u16string_view> shared;
  for (const std::u16string_view text : texts) {
    if (texts.count(text) > 1) shared.insert(text);
  }
  EXPECT_EQ(shared, (std::set<std::u16string_view>{u"Create"}));  // a button and a tool bar
}

TEST(StringTable, KeepsTheNumbersThatAreFixed) {
  EXPECT_EQ(TextOf(static_cast<TCTextId>(102)), u"Bad file type, unable to load the play list file named:");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(103)), u"Play lists must be text files not binary data files");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(108)), u"Yes");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(112)), u"Unable to load play list lists file:");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(113)), u"Unable to load play list file");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(117)), u"Pending");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(119)), u"Not found");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(124)), u"Found");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(139)), u"brvpl");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(140)), u"brvgl");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(150)), u"Brevant Information & Lyrics");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(151)), u"brv");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(171)), u"Unable to play song as unable to find file:");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(195)), u"Invalid media file type (.xxx) for file:");
  EXPECT_EQ(TextOf(static_cast<TCTextId>(209)), u"Command canceled");
}

TEST(StringTable, KeepsTheSystemsOwnSpellings) {
  EXPECT_EQ(TextOf(TCTextId::SongLatencyExplanation),
            u"Song latency is the nominal time between stoping and starting songs");
  EXPECT_EQ(TextOf(TCTextId::SeekStepPrompt), u"Enter the Fast Foward/Fast Reverse time step");
  EXPECT_EQ(TextOf(TCTextId::SeekStepCaption), u"Fast Foward/Fast Rewind time step");
  EXPECT_EQ(TextOf(TCTextId::VolumeStepPrompt),
            u"Enter the value for the volume step size e.g. 5 (max= 100)");
  EXPECT_EQ(TextOf(TCTextId::ExtensionForAllBox),
            u"Use this files's extention type for all songs in this playlist");
  EXPECT_EQ(TextOf(TCTextId::SetDirHint), u"To change the song's (s) file path, use the \"Set Dir\" button");
  EXPECT_EQ(TextOf(TCTextId::SongCreatorCaption), u"Song Creater");
  EXPECT_EQ(TextOf(TCTextId::AddSongsHint),
            u"or use the Find Songs button. Enclose each song in quotes there is a space in the name");
}

TEST(StringTable, KeepsBlanksAtAnEndAndDoubledBlanks) {
  EXPECT_EQ(TextOf(TCTextId::MediaTypesPrompt), u"Set the list of valid media file types (.xxx) ");
  EXPECT_EQ(TextOf(TCTextId::CreateGroupTitle), u"Create A Group Of Playlists ");
  EXPECT_EQ(TextOf(TCTextId::PictureColumn), u" ");
  EXPECT_EQ(TextOf(TCTextId::MediaFilterEnd), u") || ");
  EXPECT_EQ(TextOf(TCTextId::DefaultMediaFilter),
            u"Media Files  (*.mp3, *.wav, *.mid, *.wma) | *.mp3; *.wav; *.mid;*.wma||");
}

TEST(StringTable, KeepsTheSpacingOfTheKeyHelpExactly) {
  EXPECT_EQ(
      TextOf(TCTextId::KeyHelp),
      u"Play=ENTER, P, F5| Stop=S, F6, 6 | Pause Cont.=Spacebar | Playlist Prior=<- | Playlist Next=-> | "
      u"Song Prior=^ | Song Next=v | Select=RETURN | Properties=Q | Focus Manager=F2/2 | "
      u"Focus Playlist=F3/3");
}

TEST(StringTable, QuotesTheExamplesOfThePrompts) {
  EXPECT_EQ(TextOf(TCTextId::GroupNameExample), u"e.g. \"Mariner Sets\"");
  EXPECT_EQ(TextOf(TCTextId::PlayListNameExample), u"e.g. \"Mariner Set 1\"");
}

TEST(StringTable, CutsTheDocumentTemplateIntoItsSevenFields) {
  using Field = TCDocumentTemplateField;
  EXPECT_EQ(DocumentTemplateText(Field::WindowTitle), u"Brevant");
  EXPECT_EQ(DocumentTemplateText(Field::DocumentName), u"");
  EXPECT_EQ(DocumentTemplateText(Field::NewFileName), u"Brevant");
  EXPECT_EQ(DocumentTemplateText(Field::FilterName), u"Brevant Files (*.brv)");
  EXPECT_EQ(DocumentTemplateText(Field::FilterExtension), u".brv");
  EXPECT_EQ(DocumentTemplateText(Field::FileTypeId), u"Brevant.Document");
  EXPECT_EQ(DocumentTemplateText(Field::FileTypeName), u"Brevant.Document");
}

}  // namespace
}  // namespace brevant
