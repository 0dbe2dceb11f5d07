// Starts, closes and starts the whole program again: what comes back, in which order, and what does not.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDockWidget>
#include <QFile>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/dialog_answer.h"
#include "app/whole_program.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr std::array kPanes = {TCCommandId::PlaylistManagerPane, TCCommandId::PropertiesPane,
                               TCCommandId::PlayerPane, TCCommandId::MessagePane};

class StartAndClose : public TCWholeProgram {
 protected:
  void Close() {
    ASSERT_TRUE(Frame().close());
    app.reset();
  }

  [[nodiscard]] QDockWidget& Pane(TCCommandId id) {
    return *Frame().findChild<QDockWidget*>(QStringLiteral("Pane%1").arg(static_cast<int>(id)));
  }

  [[nodiscard]] bool AnyPaneSeen() {
    return std::ranges::any_of(kPanes, [this](TCCommandId id) { return Pane(id).isVisible(); });
  }

  // Where each pane lies, and what is closed.
  [[nodiscard]] std::string Places() {
    QCoreApplication::processEvents();
    std::string places;
    for (const TCCommandId id : kPanes) {
      const QRect rect = Pane(id).geometry();
      places += std::to_string(static_cast<int>(id)) + (Pane(id).isHidden() ? " closed" : "") + " " +
                std::to_string(rect.x()) + "," + std::to_string(rect.y()) + " " +
                std::to_string(rect.width()) + "x" + std::to_string(rect.height()) + "\n";
    }
    return places;
  }

  [[nodiscard]] QVariant Kept(const char* key) {
    return QSettings(layoutFolder.filePath(QStringLiteral("Layout.ini")), QSettings::IniFormat)
        .value(QLatin1String(key));
  }
};

// Notes what happens to a program's window, in order.
class TCStartLog : public QObject {
 public:
  TCStartLog(TCMainFrame& mainFrame, const TCBrevantDoc& openDocument)
      : frame(mainFrame), document(openDocument) {
    qApp->installEventFilter(this);
  }

  [[nodiscard]] const std::vector<std::string>& Steps() const { return steps; }

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (receiver == &frame) {
      if (event->type() == QEvent::Show) Add(frame.isMaximized() ? "shown maximised" : "shown normally");
      if (event->type() == QEvent::WindowTitleChange && document.GetPathName() == kShow) Add("document");
      if (event->type() == QEvent::WindowStateChange && frame.isMaximized()) Add("placement");
      if (event->type() == QEvent::AcceptDropsChange && frame.acceptDrops()) Add("drops");
    }
    if (event->type() == QEvent::Hide && dynamic_cast<QDockWidget*>(receiver) != nullptr) Add("live view");
    if (event->type() == QEvent::Show && dynamic_cast<TCAboutBox*>(receiver) != nullptr) Add("About box");
    return false;
  }

 private:
  void Add(const char* step) {
    if (steps.empty() || steps.back() != step) steps.emplace_back(step);
  }

  TCMainFrame& frame;
  const TCBrevantDoc& document;
  std::vector<std::string> steps;
};

TEST_F(StartAndClose, AStartThatIsBrokenOffLeavesWhatTheLastRunLeft) {
  Start(kShow);
  Close();
  const std::optional<std::string> left = files.BytesOf(kIniPath);
  Make();
  app->InitInstance({});
  ASSERT_TRUE(Frame().close()) << "before it was painted";
  app.reset();
  EXPECT_EQ(files.BytesOf(kIniPath), left);
  EXPECT_EQ(Written(u"LastLoadedFileName"), kShow);
}

TEST_F(StartAndClose, AStartTakesItsStepsInTheirOrder) {
  Start(kShow);
  Frame().showMaximized();
  Press(Qt::Key_Home);
  Close();

  Make();
  const TCStartLog log(Frame(), app->Document());
  EXPECT_FALSE(Frame().acceptDrops());
  app->InitInstance({});
  ASSERT_TRUE(QTest::qWaitFor([this] { return !AboutBoxes().isEmpty(); }));
  EXPECT_EQ(log.Steps(), (std::vector<std::string>{"shown normally", "document", "placement", "live view",
                                                   "drops", "About box"}));
  CloseAboutBox();
}

// The program's disk, which tells what is about to be written.
class TCWatchedFiles final : public TCFileSystem {
 public:
  TCWatchedFiles(TCFileSystem& disk, std::function<void(std::u16string_view path)> whenWritten)
      : files(disk), callback(std::move(whenWritten)) {}

  bool FileExists(std::u16string_view path) override { return files.FileExists(path); }
  std::optional<std::string> ReadFile(std::u16string_view path, std::size_t maxBytes) override {
    return files.ReadFile(path, maxBytes);
  }
  bool ReplaceFile(std::u16string_view path, std::string_view bytes) override {
    callback(path);
    return files.ReplaceFile(path, bytes);
  }
  bool CopyFile(std::u16string_view from, std::u16string_view to) override {
    return files.CopyFile(from, to);
  }
  bool MakeFolder(std::u16string_view path) override { return files.MakeFolder(path); }
  bool DeleteFile(std::u16string_view path) override { return files.DeleteFile(path); }

 private:
  TCFileSystem& files;
  std::function<void(std::u16string_view path)> callback;
};

// Notes what a close does, in order, each time with what of the layout is kept by then.
class TCCloseLog : public QObject {
 public:
  TCCloseLog(const TCMainFrame& mainFrame, QString layoutFile)
      : frame(mainFrame), layout(std::move(layoutFile)) {
    qApp->installEventFilter(this);
  }

  void Add(const std::string& step, const QString& file) {
    const QSettings kept(file, QSettings::IniFormat);
    std::string line = step + ":";
    for (const char* key : {"CommandBars", "NormalLayout", "MainWindowFrameLayout/WindowLeft1"}) {
      if (kept.contains(QLatin1String(key))) line += std::string(" ") + key;
    }
    if (std::ranges::find(steps, line) == steps.end()) steps.push_back(line);
  }
  // With what is on the disk, and not only about to be written there.
  void AddWithDisk(const std::string& step) {
    const QString copy = layout + QStringLiteral(".%1").arg(++copies);
    QFile::copy(layout, copy);
    Add(step, copy);
  }

  [[nodiscard]] const std::vector<std::string>& Steps() const { return steps; }

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (dynamic_cast<QDockWidget*>(receiver) == nullptr) return false;
    const std::string seen = frame.updatesEnabled() ? " and painted" : "";
    // On their way back they are shown and closed once more; nothing of it is painted.
    if (event->type() == QEvent::Show && steps.empty()) Add("panes shown" + seen, layout);
    if (event->type() == QEvent::Hide) Add("panes closed" + seen, layout);
    return false;
  }

 private:
  const TCMainFrame& frame;
  QString layout;
  int copies = 0;
  std::vector<std::string> steps;
};

TEST_F(StartAndClose, ACloseTakesItsStepsInTheirOrder) {
  TCCloseLog* log = nullptr;
  TCWatchedFiles disk(files, [&log](std::u16string_view path) {
    if (log != nullptr && path == kIniPath) log->AddWithDisk("settings");
  });
  MakeOn(disk);
  Run({true, "typed", std::u16string(kShow)});
  CloseAboutBox();
  Press(Qt::Key_Home);
  app->Document().SetModified();

  TCCloseLog steps(Frame(), layoutFolder.filePath(QStringLiteral("Layout.ini")));
  log = &steps;
  const TCDialogAnswer<QMessageBox> answer([&steps](QMessageBox& box) {
    steps.AddWithDisk("question");
    box.button(QMessageBox::Cancel)->click();
  });
  EXPECT_FALSE(Frame().close());
  EXPECT_EQ(steps.Steps(), (std::vector<std::string>{
                               "panes shown:", "panes closed: CommandBars NormalLayout",
                               "settings: CommandBars NormalLayout MainWindowFrameLayout/WindowLeft1",
                               "question: CommandBars NormalLayout MainWindowFrameLayout/WindowLeft1"}));
  log = nullptr;
}

TEST_F(StartAndClose, TheWindowComesBackWhereItWas) {
  Start();
  Frame().setGeometry(20, 60, 700, 650);
  ASSERT_EQ(Frame().geometry(), QRect(20, 60, 700, 650)) << "the window does not get smaller than that";
  Close();
  Make();
  EXPECT_EQ(Frame().geometry(), QRect(20, 60, 700, 650)) << "nobody sees it jump";
  Start();
  EXPECT_EQ(Frame().geometry(), QRect(20, 60, 700, 650));
  EXPECT_FALSE(Frame().isMaximized());
}

TEST_F(StartAndClose, AMaximisedWindowComesBackMaximisedAndKnowsItsNormalPlace) {
  Start();
  const QRect normal(20, 60, 700, 650);
  Frame().setGeometry(normal);
  Frame().showMaximized();
  QCoreApplication::processEvents();
  Close();
  EXPECT_EQ(Kept("MainWindowFrameLayout/WindowShowCmd1").toInt(), 3);
  for (int start = 0; start < 2; ++start) {
    Start();
    ASSERT_TRUE(Frame().isMaximized());
    if (start == 0) Close();
  }
  Frame().showNormal();
  QCoreApplication::processEvents();
  EXPECT_EQ(Frame().geometry(), normal);
}

TEST_F(StartAndClose, ThePanesOfAMaximisedWindowComeBackToThePixel) {
  Start();
  Frame().setGeometry(20, 60, 700, 650);
  Frame().showMaximized();
  QCoreApplication::processEvents();
  Frame().Panes().resizeDocks({&Pane(TCCommandId::PlaylistManagerPane)}, {311}, Qt::Horizontal);
  const std::string before = Places();
  Close();
  Start();
  EXPECT_EQ(Places(), before);
}

TEST_F(StartAndClose, AFirstStartBringsNeitherPlaceNorPanesNorLiveViewBack) {
  Start();
  const QRect standard = Frame().geometry();
  const std::string before = Places();
  Frame().setGeometry(20, 60, 700, 650);
  Pane(TCCommandId::PlayerPane).close();
  Press(Qt::Key_Home);
  ASSERT_TRUE(Frame().close());
  app.reset();
  ASSERT_TRUE(Kept("MainWindowFrameLayout/WindowTop1").isValid());
  files.Remove(kIniPath);
  Start();
  EXPECT_EQ(Frame().size(), standard.size());
  EXPECT_EQ(Places(), before);
  EXPECT_FALSE(Settings().liveViewMode);
}

TEST_F(StartAndClose, WithoutTheOptionNothingComesBackButLiveViewStaysOn) {
  Start();
  const QSize standard = Frame().size();
  Frame().setGeometry(20, 60, 700, 650);
  Press(Qt::Key_Home);
  Close();
  files.Put(kIniPath, "[Brevant]\r\nLoadLastWindowState=No\r\nLiveViewMode=Yes\r\n");
  Start();
  EXPECT_EQ(Frame().size(), standard);
  EXPECT_TRUE(AnyPaneSeen());
}

TEST_F(StartAndClose, APlaceThatIsGarbageLeavesTheWindowWhereItIsAtAFirstStart) {
  Start();
  const QSize standard = Frame().size();
  Frame().setGeometry(20, 60, 700, 650);
  Close();
  QSettings(layoutFolder.filePath(QStringLiteral("Layout.ini")), QSettings::IniFormat)
      .remove(QStringLiteral("MainWindowFrameLayout/WindowXMaximised1"));
  Start();
  EXPECT_EQ(Frame().size(), standard);
}

TEST_F(StartAndClose, LiveViewAtCloseKeepsTheFullLayoutWithAllFourPanes) {
  Start();
  const std::string before = Places();
  for (const bool oneIsClosed : {false, true}) {
    if (oneIsClosed) Frame().OnCommand(TCCommandId::PlayerPane);
    Press(Qt::Key_Home);
    ASSERT_FALSE(AnyPaneSeen());
    Close();
    EXPECT_EQ(Written(u"LiveViewMode"), u"Yes");

    Start();
    EXPECT_FALSE(AnyPaneSeen());
    EXPECT_TRUE(Settings().liveViewMode);
    Close();
    files.Put(kIniPath, "[Brevant]\r\nLiveViewMode=No\r\n");
    Start();
    for (const TCCommandId id : kPanes) EXPECT_TRUE(Pane(id).isVisible()) << oneIsClosed;
    if (!oneIsClosed) {
      EXPECT_EQ(Places(), before);
    }
  }
}

// Everything is kept by the time the question is asked, and a cancelled close leaves no trace on the screen.
TEST_F(StartAndClose, ACancelledCloseLeavesTheWindowAsItWasInLiveViewToo) {
  Start(kShow);
  Frame().setGeometry(20, 60, 700, 650);
  app->Document().SetModified();
  for (const bool live : {false, true}) {
    if (live) Press(Qt::Key_Home);
    const std::string before = Places();
    QWidget* keyboard = Frame().focusWidget();
    int asked = 0;
    {
      const TCDialogAnswer<QMessageBox> answer([&](QMessageBox& box) {
        ++asked;
        EXPECT_EQ(Kept("MainWindowFrameLayout/WindowLeft1").toInt(), 20);
        EXPECT_FALSE(Kept("CommandBars").toByteArray().isEmpty());
        EXPECT_FALSE(Kept("NormalLayout").toByteArray().isEmpty());
        EXPECT_EQ(Written(u"LiveViewMode"), live ? u"Yes" : u"No");
        EXPECT_EQ(AnyPaneSeen(), !live) << "behind the question";
        box.button(QMessageBox::Cancel)->click();
      });
      EXPECT_FALSE(Frame().close());
    }
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(Frame().isVisible());
    EXPECT_TRUE(Frame().updatesEnabled());
    EXPECT_EQ(Places(), before);
    EXPECT_EQ(Settings().liveViewMode, live);
    EXPECT_EQ(Frame().focusWidget(), keyboard);
    Frame().activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Frame(); }));
    EXPECT_EQ(app->Actions().ActionOf(TCCommandId::PlayerPane)->isChecked(), !live);
  }
  Press(Qt::Key_Home);
  EXPECT_TRUE(Frame().Tree().isVisible());
}

// Nothing of the panes is painted while the full layout is taken out of live view.
TEST_F(StartAndClose, ClosingInLiveViewShowsNoPane) {
  class TCPaneShows : public QObject {
   public:
    bool eventFilter(QObject* receiver, QEvent* event) override {
      if (event->type() == QEvent::Paint && dynamic_cast<QDockWidget*>(receiver) != nullptr) ++paints;
      return false;
    }
    int paints = 0;
  };
  Start(kShow);
  Press(Qt::Key_Home);
  app->Document().SetModified();
  QCoreApplication::processEvents();
  TCPaneShows shows;
  qApp->installEventFilter(&shows);
  const TCDialogAnswer<QMessageBox> answer([](QMessageBox& box) {
    QCoreApplication::processEvents();
    box.button(QMessageBox::Cancel)->click();
  });
  EXPECT_FALSE(Frame().close());
  Frame().activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Frame(); }));
  EXPECT_EQ(shows.paints, 0);
  Press(Qt::Key_Home);
  QCoreApplication::processEvents();
  EXPECT_GT(shows.paints, 0) << "this is how a pane that is shown is seen";
}

TEST_F(StartAndClose, TheEndOfTheSessionKeepsPlaceAndFullLayoutToo) {
  Start();
  const QRect normal(20, 60, 700, 650);
  Frame().setGeometry(normal);
  const std::string before = Places();
  Press(Qt::Key_Home);
  QTimer::singleShot(0, &*app, &TCBrevantApp::EndSession);
  ASSERT_EQ(QApplication::exec(), 0);
  app.reset();
  Start();
  EXPECT_EQ(Frame().geometry(), normal);
  EXPECT_FALSE(AnyPaneSeen());
  Press(Qt::Key_Home);
  EXPECT_EQ(Places(), before);
}

TEST_F(StartAndClose, AResetForgetsTheWindowAlthoughItsPlaceWasKept) {
  Start();
  const QSize standard = Frame().size();
  Frame().setGeometry(20, 60, 700, 650);
  Settings().ToggleReset();
  Close();
  EXPECT_EQ(Kept("MainWindowFrameLayout/WindowLeft1").toInt(), 20);
  Start();
  EXPECT_EQ(Frame().size(), standard);
}

}  // namespace
}  // namespace brevant
