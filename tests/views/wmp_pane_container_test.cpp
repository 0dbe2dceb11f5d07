#include "views/wmp_pane_container.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "support/fake_player.h"

namespace brevant {
namespace {

TEST(PlayerPaneContainer, TheHostFillsThePaneExactly) {
  TCFakePlayer player;
  TCWMPPaneContainer pane(&player, &player);
  const CWMPHost* host = pane.findChild<CWMPHost*>();
  ASSERT_NE(host, nullptr);
  pane.show();
  for (const QSize size : {QSize(400, 200), QSize(900, 90), QSize(250, 400)}) {
    pane.resize(size);
    EXPECT_EQ(host->geometry(), pane.rect());
  }
}

TEST(PlayerPaneContainer, PassesTheButtonsOn) {
  TCFakePlayer player;
  TCWMPPaneContainer pane(&player, &player);
  CWMPHost* host = pane.findChild<CWMPHost*>();
  const QSignalSpy plays(&pane, &TCWMPPaneContainer::playWanted);
  const QSignalSpy pauses(&pane, &TCWMPPaneContainer::pauseWanted);
  const QSignalSpy stops(&pane, &TCWMPPaneContainer::stopWanted);
  Q_EMIT host->playWanted();
  Q_EMIT host->pauseWanted();
  Q_EMIT host->stopWanted();
  EXPECT_EQ(plays.count(), 1);
  EXPECT_EQ(pauses.count(), 1);
  EXPECT_EQ(stops.count(), 1);
}

TEST(PlayerPaneContainer, IsNoHigherThanAHundredPixelsAtLeast) {
  TCFakePlayer player;
  const TCWMPPaneContainer pane(&player, &player);
  EXPECT_LE(pane.minimumSizeHint().height(), 110);
  EXPECT_LE(pane.minimumSizeHint().width(), 300);
}

}  // namespace
}  // namespace brevant
