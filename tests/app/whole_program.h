// The whole program for tests: on a disk in memory, with a player without sound.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <optional>
#include <string>

#include "app/brevant_app.h"
#include "app/dialogs/about_box.h"
#include "support/fake_length_probe.h"
#include "support/fake_player.h"
#include "support/memory_files.h"
#include "text/ini_text.h"

namespace brevant {

inline constexpr std::u16string_view kIniPath = u"\\conf\\Brevant.ini";
inline constexpr std::u16string_view kShow = u"\\shows\\show.brv";

class TCWholeProgram : public testing::Test {
 public:
  void SetUp() override {
    ASSERT_TRUE(layoutFolder.isValid());
    files.PutUtf16(kShow,
                   u"\"Band\" \"Set 1\" \"\\m\\one.mp3\" 03:00\r\n"
                   u"\"Band\" \"Set 1\" \"\\m\\two.mp3\" 02:00\r\n"
                   u"\"Band\" \"Set 2\" \"\\m\\three.mp3\" 01:00\r\n");
    for (const std::u16string_view song : {u"\\m\\one.mp3", u"\\m\\two.mp3", u"\\m\\three.mp3"})
      files.Put(song);
  }

  // Starts the program as main() does; the About box is closed unless a test is about it.
  void Start(std::optional<std::u16string_view> file = {}) {
    TCStartFile startFile;
    if (file) startFile = {true, "typed", std::u16string(*file)};
    StartWith(startFile);
    CloseAboutBox();
  }

  // Makes the program, which shows nothing yet.
  void Make() { MakeOn(files); }
  void MakeOn(TCFileSystem& disk) {
    app.emplace(TCAppParts{disk,
                           player,
                           player,
                           TCNativePaths(),
                           {u"\\opt\\", u"\\conf\\", u"\\state\\"},
                           layoutFolder.filePath(QStringLiteral("Layout.ini")),
                           {},
                           &probe});
  }

  void StartWith(const TCStartFile& startFile) {
    Make();
    Run(startFile);
  }

  // Shows the program that was made, up to the About box.
  void Run(const TCStartFile& startFile) {
    app->InitInstance(startFile);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !AboutBoxes().isEmpty(); }));
  }

  void CloseAboutBox() {
    for (TCAboutBox* box : AboutBoxes()) box->accept();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Frame().activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Frame(); }));
  }

  [[nodiscard]] QList<TCAboutBox*> AboutBoxes() {
    QList<TCAboutBox*> boxes;
    for (QObject* child : Frame().children()) {
      if (auto* box = dynamic_cast<TCAboutBox*>(child)) boxes.append(box);
    }
    return boxes;
  }

  [[nodiscard]] TCMainFrame& Frame() { return app->Frame(); }
  [[nodiscard]] TCSettings& Settings() { return app->Record().settings; }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    QCoreApplication::sendPostedEvents();
  }

  [[nodiscard]] QString CellText(int row, int column) {
    return Frame().PlaylistView().model()->index(row, column).data().toString();
  }

  [[nodiscard]] std::u16string Written(std::u16string_view key) const {
    const std::optional<std::string> bytes = files.BytesOf(kIniPath);
    return bytes ? TCIniText::Parse(*bytes).GetString(u"Brevant", key, u"(missing)") : u"(no file)";
  }

  QTemporaryDir layoutFolder;
  TCMemoryFiles files;
  TCFakePlayer player;
  TCFakeLengthProbe probe;
  std::optional<TCBrevantApp> app;
};

}  // namespace brevant
