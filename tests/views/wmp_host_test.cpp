#include "views/wmp_host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QSignalSpy>
#include <QTest>

#include "support/fake_player.h"
#include "support/timer_tick.h"
#include "views/player_notice_text.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A monitor that says what the test tells it.
class TCScriptedMonitor final : public TCPlayerMonitor {
 public:
  [[nodiscard]] TCPlayerSnapshot Snapshot() const override { return snapshot; }
  TCPlayerSnapshot snapshot;
};

class PlayerHost : public testing::Test {
 protected:
  void SetUp() override {
    host.resize(400, 200);
    host.show();
    monitor.snapshot.phase = TCPlayerPhase::Playing;
    monitor.snapshot.url = u"C:\\music\\Open Road.mp3";
    monitor.snapshot.positionSeconds = 75.9;
    monitor.snapshot.durationSeconds = 200.4;
    monitor.snapshot.volume = 65;
    host.Refresh();
  }
  // The text of the label that says what `description` tells.
  [[nodiscard]] static QString Text(const QWidget& pane, const char* description) {
    for (const QLabel* label : pane.findChildren<QLabel*>()) {
      if (label->accessibleDescription() == QLatin1String(description)) return label->text();
    }
    ADD_FAILURE() << "no label: " << description;
    return {};
  }
  template <typename TCControl>
  [[nodiscard]] static TCControl* Control(const QWidget& pane, const char* name) {
    for (TCControl* control : pane.findChildren<TCControl*>()) {
      if (control->accessibleName() == QLatin1String(name)) return control;
    }
    ADD_FAILURE() << "no control: " << name;
    return nullptr;
  }
  [[nodiscard]] QString Text(const char* description) const { return Text(host, description); }
  [[nodiscard]] TCJumpSlider* Seek() const { return Control<TCJumpSlider>(host, "Song position"); }
  [[nodiscard]] TCJumpSlider* Volume() const { return Control<TCJumpSlider>(host, "Volume"); }

  TCFakePlayer player;
  TCScriptedMonitor monitor;
  CWMPHost host{&player, &monitor};
};

TEST_F(PlayerHost, ShowsSongTimesPhaseAndVolume) {
  EXPECT_EQ(Text("Song"), QStringLiteral("Open Road.mp3"));
  EXPECT_EQ(Text("Elapsed time"), QStringLiteral("01:15"));
  EXPECT_EQ(Text("Total time"), QStringLiteral("03:20"));
  EXPECT_EQ(Text("What the player does"), QStringLiteral("Playing"));
  EXPECT_EQ(Text("Volume"), QStringLiteral("65"));
  EXPECT_EQ(Seek()->value(), 759);
  EXPECT_EQ(Seek()->maximum(), 2004);
  EXPECT_EQ(Volume()->value(), 65);
}

TEST_F(PlayerHost, AnUnknownLengthIsNotShownAsZero) {
  monitor.snapshot.durationSeconds = 0.0;
  host.Refresh();
  EXPECT_EQ(Text("Total time"), QStringLiteral("--:--"));
  EXPECT_FALSE(Seek()->isEnabled());
}

TEST_F(PlayerHost, TimesOutOfReasonAreSurvived) {
  for (const double odd :
       {-5.0, 1e300, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    monitor.snapshot.positionSeconds = odd;
    monitor.snapshot.durationSeconds = odd;
    host.Refresh();
    EXPECT_GE(Seek()->value(), 0);
    EXPECT_FALSE(Text("Elapsed time").startsWith(QLatin1Char('-')));
  }
}

TEST_F(PlayerHost, AsksTenTimesASecondWhileItCanBeSeenAndNotOtherwise) {
  QTimer* timer = TimerOf(host, "pollTimer");
  ASSERT_NE(timer, nullptr);
  EXPECT_TRUE(timer->isActive());
  EXPECT_EQ(timer->interval(), 100);
  monitor.snapshot.positionSeconds = 80.0;
  Tick(*timer);
  EXPECT_EQ(Text("Elapsed time"), QStringLiteral("01:20"));
  host.hide();
  EXPECT_FALSE(timer->isActive());
  monitor.snapshot.positionSeconds = 90.0;
  host.show();
  EXPECT_TRUE(timer->isActive());
  EXPECT_EQ(Text("Elapsed time"), QStringLiteral("01:30"));
}

TEST_F(PlayerHost, TheButtonsAskAndTouchThePlayerNot) {
  const QSignalSpy plays(&host, &CWMPHost::playWanted);
  const QSignalSpy pauses(&host, &CWMPHost::pauseWanted);
  const QSignalSpy stops(&host, &CWMPHost::stopWanted);
  Control<QAbstractButton>(host, "Play")->click();
  EXPECT_EQ(plays.count(), 1);
  Control<QAbstractButton>(host, "Pause")->click();
  EXPECT_EQ(pauses.count(), 1);
  Control<QAbstractButton>(host, "Stop")->click();
  EXPECT_EQ(stops.count(), 1);
  EXPECT_THAT(player.Calls(), IsEmpty());
}

TEST_F(PlayerHost, NoControlTakesTheKeyboardFocus) {
  for (const QWidget* control : host.findChildren<QWidget*>()) {
    EXPECT_EQ(control->focusPolicy(), Qt::NoFocus) << control->accessibleName().toStdString();
  }
}

TEST_F(PlayerHost, APressOnTheSeekSliderJumpsThere) {
  TCJumpSlider* seek = Seek();
  QTest::mouseClick(seek, Qt::LeftButton, {}, QPoint(seek->width() / 2, seek->height() / 2));
  ASSERT_EQ(player.Calls().size(), 1U);
  EXPECT_TRUE(player.Calls()[0].starts_with("SetPosition 100.")) << player.Calls()[0];
}

TEST_F(PlayerHost, WhileDraggedTheElapsedTimeFollowsAndThePlayerIsMovedOnRelease) {
  TCJumpSlider* seek = Seek();
  const int middle = seek->height() / 2;
  QTest::mousePress(seek, Qt::LeftButton, {}, QPoint(seek->width() / 4, middle));
  QTest::mouseMove(seek, QPoint(seek->width(), middle));
  EXPECT_EQ(Text("Elapsed time"), QStringLiteral("03:20"));
  host.Refresh();
  EXPECT_EQ(Text("Elapsed time"), QStringLiteral("03:20")) << "the poll must not pull the handle away";
  EXPECT_THAT(player.Calls(), IsEmpty());
  QTest::mouseRelease(seek, Qt::LeftButton, {}, QPoint(seek->width(), middle));
  EXPECT_THAT(player.Calls(), ElementsAre("SetPosition 200.4"));
}

TEST_F(PlayerHost, AfterASeekTheHandleWaitsForThePlayerInsteadOfJumpingBack) {
  TCJumpSlider* seek = Seek();
  QTest::mouseClick(seek, Qt::LeftButton, {}, QPoint(seek->width() / 2, seek->height() / 2));
  const int picked = seek->value();
  host.Refresh();
  EXPECT_EQ(seek->value(), picked);
  monitor.snapshot.positionSeconds = picked / 10.0 + 0.3;
  host.Refresh();
  EXPECT_EQ(seek->value(), picked + 3);
}

TEST_F(PlayerHost, ASongThatEndsUnderTheHandleIsNotMoved) {
  TCJumpSlider* seek = Seek();
  const QPoint place(seek->width() / 2, seek->height() / 2);
  QTest::mousePress(seek, Qt::LeftButton, {}, place);
  monitor.snapshot.phase = TCPlayerPhase::Stopped;
  monitor.snapshot.positionSeconds = 0.0;
  host.Refresh();
  QTest::mouseRelease(seek, Qt::LeftButton, {}, place);
  EXPECT_THAT(player.Calls(), IsEmpty());
  EXPECT_EQ(Text("Elapsed time"), QStringLiteral("00:00"));
}

TEST_F(PlayerHost, TheNextSongIsNotMovedByADragThatBeganInTheLast) {
  TCJumpSlider* seek = Seek();
  const QPoint place(seek->width() / 2, seek->height() / 2);
  QTest::mousePress(seek, Qt::LeftButton, {}, place);
  monitor.snapshot.url = u"C:\\music\\Night Ferry.mid";
  monitor.snapshot.positionSeconds = 2.0;
  host.Refresh();
  QTest::mouseRelease(seek, Qt::LeftButton, {}, place);
  EXPECT_THAT(player.Calls(), IsEmpty());
  EXPECT_EQ(seek->value(), 20);
}

TEST_F(PlayerHost, OnlyASongThatSoundsOrIsPausedCanBeMoved) {
  for (const auto& [phase, movable] :
       {std::pair{TCPlayerPhase::Empty, false}, std::pair{TCPlayerPhase::Loading, false},
        std::pair{TCPlayerPhase::Stopped, false}, std::pair{TCPlayerPhase::Playing, true},
        std::pair{TCPlayerPhase::Paused, true}, std::pair{TCPlayerPhase::Failed, false}}) {
    monitor.snapshot.phase = phase;
    host.Refresh();
    EXPECT_EQ(Seek()->isEnabled(), movable) << static_cast<int>(phase);
  }
}

TEST_F(PlayerHost, TheVolumeSliderSetsTheVolumeWhileItIsDragged) {
  TCJumpSlider* volume = Volume();
  QTest::mousePress(volume, Qt::LeftButton, {}, QPoint(0, volume->height() / 2));
  EXPECT_THAT(player.Calls(), ElementsAre("SetVolume 0"));
  EXPECT_EQ(Text("Volume"), QStringLiteral("0"));
  QTest::mouseMove(volume, QPoint(volume->width(), volume->height() / 2));
  EXPECT_THAT(player.Calls(), ElementsAre("SetVolume 0", "SetVolume 100"));
  host.Refresh();
  EXPECT_EQ(Text("Volume"), QStringLiteral("100"));
  QTest::mouseRelease(volume, Qt::LeftButton, {}, QPoint(volume->width(), volume->height() / 2));
  host.Refresh();
  EXPECT_EQ(volume->value(), 100) << "the player takes the volume up a moment later";
}

TEST_F(PlayerHost, AVolumeChangedElsewhereIsShownAndSetsNothing) {
  monitor.snapshot.volume = 40;
  host.Refresh();
  EXPECT_EQ(Volume()->value(), 40);
  EXPECT_EQ(Text("Volume"), QStringLiteral("40"));
  EXPECT_THAT(player.Calls(), IsEmpty());
}

TEST_F(PlayerHost, ANoticeIsShownInClearWordsWithThePlayersOwnInTheToolTip) {
  monitor.snapshot.notice = TCPlayerNotice::NoSoundDevice;
  monitor.snapshot.detail = "connection <refused>";
  host.Refresh();
  EXPECT_EQ(Text("Notice of the player"), NoticeText(TCPlayerNotice::NoSoundDevice));
  QString tips;
  for (const QLabel* label : host.findChildren<QLabel*>()) tips += label->toolTip();
  EXPECT_TRUE(tips.contains(QStringLiteral("connection &lt;refused&gt;")));
  monitor.snapshot.notice = TCPlayerNotice::None;
  host.Refresh();
  EXPECT_EQ(Text("Notice of the player"), QString());
}

TEST_F(PlayerHost, ANoticeThatComesMovesNothingElse) {
  const QPoint before = Seek()->pos();
  monitor.snapshot.notice = TCPlayerNotice::CannotPlay;
  host.Refresh();
  host.grab();
  EXPECT_EQ(Seek()->pos(), before);
}

TEST_F(PlayerHost, WithoutAPlayerOrItsMonitorTheControlsAreOffAndNothingFails) {
  for (const auto& [given, read] :
       {std::pair<TCPlayer*, TCPlayerMonitor*>{nullptr, nullptr}, {&player, nullptr}, {nullptr, &monitor}}) {
    CWMPHost pane(given, read);
    pane.resize(400, 200);
    pane.show();
    for (const char* name : {"Play", "Pause", "Stop"}) {
      EXPECT_FALSE(Control<QAbstractButton>(pane, name)->isEnabled()) << name;
    }
    TCJumpSlider* seek = Control<TCJumpSlider>(pane, "Song position");
    TCJumpSlider* volume = Control<TCJumpSlider>(pane, "Volume");
    EXPECT_FALSE(seek->isEnabled());
    EXPECT_FALSE(volume->isEnabled());
    Q_EMIT seek->picked(5);
    Q_EMIT volume->dragged(5);
    Tick(*TimerOf(pane, "pollTimer"));
  }
}

TEST_F(PlayerHost, EveryControlHasThePictureThatIsGivenForIt) {
  const auto filled = [](Qt::GlobalColor colour) {
    QPixmap picture(16, 16);
    picture.fill(colour);
    return QIcon(picture);
  };
  host.SetIcons({filled(Qt::red), filled(Qt::green), filled(Qt::blue), filled(Qt::yellow)});
  const auto colourOf = [](const QIcon& icon) { return icon.pixmap(16, 16).toImage().pixelColor(8, 8); };
  EXPECT_EQ(colourOf(Control<QToolButton>(host, "Play")->icon()), QColor(Qt::red));
  EXPECT_EQ(colourOf(Control<QToolButton>(host, "Pause")->icon()), QColor(Qt::green));
  EXPECT_EQ(colourOf(Control<QToolButton>(host, "Stop")->icon()), QColor(Qt::blue));
  int pictures = 0;
  for (const QLabel* label : host.findChildren<QLabel*>()) {
    if (label->pixmap().isNull()) continue;
    ++pictures;
    EXPECT_EQ(label->pixmap().toImage().pixelColor(8, 8), QColor(Qt::yellow));
  }
  EXPECT_EQ(pictures, 1);
}

TEST_F(PlayerHost, FollowsARealRunOfThePlayer) {
  CWMPHost pane(&player, &player);
  player.SetDefaultSong({.length = 100.0});
  player.LoadUrl(u"\\music\\Salt & Iron.wma");
  player.Advance(1.0);
  player.Play();
  player.Advance(30.0);
  pane.Refresh();
  EXPECT_EQ(Text(pane, "Song"), QStringLiteral("Salt & Iron.wma"));
  EXPECT_EQ(Text(pane, "Total time"), QStringLiteral("01:40"));
  EXPECT_EQ(Text(pane, "What the player does"), QStringLiteral("Playing"));
  player.Stop();
  pane.Refresh();
  EXPECT_EQ(Text(pane, "Elapsed time"), QStringLiteral("00:00"));
  EXPECT_EQ(Text(pane, "What the player does"), QStringLiteral("Stopped"));
}

}  // namespace
}  // namespace brevant
