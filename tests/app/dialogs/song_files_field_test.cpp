#include "app/dialogs/song_files_field.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <QUrl>

namespace brevant {
namespace {

class SongFilesField : public testing::Test {
 protected:
  void Paste(QMimeData* data) {
    QApplication::clipboard()->setMimeData(data);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
  }
  void PasteText(const QString& text) {
    auto* data = new QMimeData;
    data->setText(text);
    Paste(data);
  }

  TCSongFilesField field{nullptr};
};

TEST_F(SongFilesField, KeepsATextToTheLetter) {
  const std::u16string text = u"\"C:\\caf\u00E9\u00A0noir\\\u5F9E\u524D  two.mp3\" \"D:\\\U0001F3B5.wav\"";
  field.SetText(text);
  EXPECT_EQ(field.Text(), text);
}

TEST_F(SongFilesField, EachNameInQuotesStandsOnALineOfItsOwn) {
  const std::u16string text = u"\"C:\\a one.mp3\" \"C:\\b.mp3\" C:\\c.mp3 \"C:\\d.mp3\"";
  field.SetText(text);
  EXPECT_EQ(field.toPlainText(), QStringLiteral("\"C:\\a one.mp3\"\n\"C:\\b.mp3\" C:\\c.mp3 \"C:\\d.mp3\""));
  EXPECT_EQ(field.Text(), text);
}

TEST_F(SongFilesField, ALineBreakThatIsPastedIsABlank) {
  PasteText(QStringLiteral("\"C:\\a.mp3\"\r\n\"C:\\b.mp3\"\n\"C:\\c.mp3\""));
  EXPECT_EQ(field.Text(), u"\"C:\\a.mp3\" \"C:\\b.mp3\" \"C:\\c.mp3\"");
}

TEST_F(SongFilesField, AddressesOfFilesAreNotPasted) {
  auto* data = new QMimeData;
  data->setUrls({QUrl::fromLocalFile(QStringLiteral("/music/a.mp3"))});
  Paste(data);
  EXPECT_EQ(field.Text(), u"");
}

TEST_F(SongFilesField, TextThatWasPutInCanBeTakenBack) {
  QTest::keyClicks(&field, QStringLiteral("typed"));
  field.SetText(u"\"C:\\found.mp3\"");
  QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(field.Text(), u"typed");
}

TEST_F(SongFilesField, ALongTextIsShownFromItsBeginning) {
  std::u16string text;
  for (int i = 0; i < 400; ++i) text += u"\"C:\\a folder with songs\\and a song.mp3\" ";
  field.SetText(text);
  EXPECT_EQ(field.textCursor().position(), 0);
}

}  // namespace
}  // namespace brevant
