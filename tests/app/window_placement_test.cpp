#include "app/window_placement.h"

#include <gtest/gtest.h>

#include <QMainWindow>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <limits>
#include <vector>

namespace brevant {
namespace {

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

const QRect kMain(0, 0, 1920, 1050);      // a panel has the rest
const QRect kBeside(1920, 0, 1280, 800);  // right of the main one

TEST(WindowPlacement, NineNumbersSayWhereTheWindowStoodAndHow) {
  const TCWindowPlacement normal{QRect(120, 90, 1600, 900), false};
  EXPECT_EQ(ToNumbers(normal), (TCPlacementNumbers{1, 90, 120, 990, 1720, -1, -1, -1, -1}));
  const TCWindowPlacement maximised{QRect(-1300, 40, 800, 600), true};
  EXPECT_EQ(ToNumbers(maximised), (TCPlacementNumbers{3, 40, -1300, 640, -500, -1, -1, -1, -1}));
  for (const TCWindowPlacement& placement : {normal, maximised})
    EXPECT_EQ(FromNumbers(ToNumbers(placement)), placement);
}

TEST(WindowPlacement, AWindowClosedWhileMinimisedComesBackToBeSeen) {
  EXPECT_EQ(FromNumbers({2, 90, 120, 990, 1720, 3, 4, 5, 6}),
            (TCWindowPlacement{QRect(120, 90, 1600, 900), false}));
}

TEST(WindowPlacement, NumbersThatMakeNoWindowMakeNoPlacement) {
  const std::vector<TCPlacementNumbers> none{
      {0, 90, 120, 990, 1720, -1, -1, -1, -1},      {4, 90, 120, 990, 1720, -1, -1, -1, -1},
      {-1, 90, 120, 990, 1720, -1, -1, -1, -1},     {1, 0, 0, 0, 0, -1, -1, -1, -1},
      {1, 990, 120, 90, 1720, -1, -1, -1, -1},      {1, 90, 1720, 990, 120, -1, -1, -1, -1},
      {1, kLowest, 120, 990, 1720, -1, -1, -1, -1}, {1, 90, kLowest, 990, kHighest, -1, -1, -1, -1},
      {1, 90, 120, kHighest, 1720, -1, -1, -1, -1},
  };
  for (const TCPlacementNumbers& numbers : none) EXPECT_EQ(FromNumbers(numbers), std::nullopt);
}

TEST(WindowPlacement, AWindowThatCanBeSeenStaysWhereItWas) {
  for (const QRect& normal : {QRect(0, 0, 1920, 1050), QRect(300, 19, 800, 600), QRect(2000, 100, 900, 700),
                              QRect(1500, 100, 1000, 700)}) {
    EXPECT_EQ(OnScreens(normal, {kMain, kBeside}), normal) << normal.x();
  }
}

TEST(WindowPlacement, AWindowOfALostScreenComesBackOnOneThatIsThere) {
  const QRect lost(2100, 100, 900, 700);
  EXPECT_EQ(OnScreens(lost, {kMain, kBeside}), lost);
  const QRect back = OnScreens(lost, {kMain});
  EXPECT_TRUE(kMain.contains(back));
  EXPECT_EQ(back.size(), lost.size());
  EXPECT_GE(back.top(), 40) << "its title bar is seen";
  EXPECT_EQ(OnScreens(QRect(-5000, -5000, 900, 700), {kMain, kBeside}).topLeft(), QPoint(8, 40));
}

TEST(WindowPlacement, AWindowThatHangsOverGoesToTheScreenThatHasTheMostOfIt) {
  const QRect hanging(2700, 400, 700, 500);  // right of and below the second screen
  const QRect back = OnScreens(hanging, {kMain, kBeside});
  EXPECT_TRUE(kBeside.contains(back));
  EXPECT_EQ(back.size(), hanging.size());
  EXPECT_EQ(back.bottomRight(), QPoint(3191, 791));
}

TEST(WindowPlacement, AWindowThatIsTooLargeIsMadeToFit) {
  const QRect back = OnScreens(QRect(-50, 100, 3000, 2000), {kMain});
  EXPECT_EQ(back, QRect(8, 40, 1904, 1002));
}

TEST(WindowPlacement, WithoutAScreenNothingIsMoved) {
  EXPECT_EQ(OnScreens(QRect(9000, 9000, 10, 10), {}), QRect(9000, 9000, 10, 10));
}

// A window and the file that keeps its place.
class SavedWindowPlacement : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(folder.isValid()); }

  void Put(const char* name, const QVariant& value) {
    layout.setValue(QStringLiteral("MainWindowFrameLayout/") + QLatin1String(name), value);
  }

  void PutAll() {
    const std::vector<std::pair<const char*, int>> values{
        {"WindowShowCmd1", 1},     {"WindowTop1", 90},        {"WindowLeft1", 120},
        {"WindowBottom1", 490},    {"WindowRight1", 620},     {"WindowXMinimised1", -1},
        {"WindowYMinimised1", -1}, {"WindowXMaximised1", -1}, {"WindowYMaximised1", -1}};
    for (const auto& [name, value] : values) Put(name, value);
  }

  QTemporaryDir folder;
  QSettings layout{folder.filePath(QStringLiteral("Layout.ini")), QSettings::IniFormat};
  QMainWindow window;
};

TEST_F(SavedWindowPlacement, IsReadFromNineKeysOfItsSection) {
  PutAll();
  layout.sync();
  const QSettings read(layout.fileName(), QSettings::IniFormat);
  EXPECT_EQ(SavedPlacement(read), (TCWindowPlacement{QRect(120, 90, 500, 400), false}));
}

TEST_F(SavedWindowPlacement, IsNoneWhenOneNumberIsMissingOrIsNone) {
  EXPECT_EQ(SavedPlacement(layout), std::nullopt);
  PutAll();
  const QStringList keys = layout.allKeys();
  ASSERT_EQ(keys.size(), 9);
  for (const QString& key : keys) {
    PutAll();
    layout.remove(key);
    EXPECT_EQ(SavedPlacement(layout), std::nullopt) << key.toStdString();
    for (const QVariant& garbage : {QVariant(QStringLiteral("wide")), QVariant(QStringLiteral("")),
                                    QVariant(QStringLiteral("12.5")), QVariant(QStringLiteral("99999999999")),
                                    QVariant(QStringList{QStringLiteral("1"), QStringLiteral("2")})}) {
      layout.setValue(key, garbage);
      EXPECT_EQ(SavedPlacement(layout), std::nullopt) << key.toStdString();
    }
  }
}

TEST_F(SavedWindowPlacement, BringsAWindowBackAsItWas) {
  window.setGeometry(70, 60, 400, 300);
  window.show();
  SavePlacement(window, layout);
  QMainWindow next;
  PlaceWindow(next, SavedPlacement(layout).value());
  EXPECT_EQ(next.geometry(), QRect(70, 60, 400, 300));
  EXPECT_FALSE(next.isMaximized());
}

TEST_F(SavedWindowPlacement, BringsAMaximisedWindowBackMaximisedWithItsNormalPlaceBehind) {
  const QRect normal(70, 60, 400, 300);
  window.setGeometry(normal);
  window.show();
  for (const Qt::WindowStates state :
       {Qt::WindowStates(Qt::WindowMaximized), Qt::WindowMaximized | Qt::WindowMinimized}) {
    window.setWindowState(state);
    QCoreApplication::processEvents();
    SavePlacement(window, layout);
    ASSERT_EQ(SavedPlacement(layout), (TCWindowPlacement{normal, true}));
    QMainWindow next;
    PlaceWindow(next, *SavedPlacement(layout));
    EXPECT_FALSE(next.isMaximized()) << "it is shown normally first";
    next.show();
    PlaceWindow(next, *SavedPlacement(layout));
    QCoreApplication::processEvents();
    EXPECT_TRUE(next.isMaximized());
    EXPECT_EQ(next.normalGeometry(), normal);
    next.showNormal();
    QCoreApplication::processEvents();
    EXPECT_EQ(next.geometry(), normal);
  }
}

TEST_F(SavedWindowPlacement, OfAScreenThatIsGoneIsOneThatCanBeSeen) {
  const QRect lost(20000, 20000, 400, 300);
  PlaceWindow(window, {lost, false});
  EXPECT_TRUE(window.screen()->availableGeometry().contains(window.geometry()));
  EXPECT_EQ(window.size(), lost.size());
}

TEST(SizeOnScreen, LeavesRoomForTheBordersOfAWindow) {
  const QWidget window;
  const QSize screen = window.screen()->availableSize();
  EXPECT_EQ(SizeOnScreen(window, QSize(100, 90)), QSize(100, 90));
  EXPECT_EQ(SizeOnScreen(window, screen), screen - QSize(16, 48));
}

TEST_F(SavedWindowPlacement, OfAMinimisedWindowIsItsNormalPlace) {
  window.setGeometry(70, 60, 400, 300);
  window.show();
  window.showMinimized();
  QCoreApplication::processEvents();
  SavePlacement(window, layout);
  EXPECT_EQ(SavedPlacement(layout), (TCWindowPlacement{QRect(70, 60, 400, 300), false}));
}

}  // namespace
}  // namespace brevant
