#include "app/desktop/termination_signals.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <csignal>

namespace brevant {
namespace {

TEST(TerminationSignals, BecomeAnEventOfTheMainLoop) {
  TCTerminationSignals signalsToUs;
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    QSignalSpy ends(&signalsToUs, &TCTerminationSignals::endWanted);
    ASSERT_EQ(raise(signal), 0);
    EXPECT_EQ(ends.count(), 0) << "not inside the handler";
    EXPECT_TRUE(ends.wait()) << signal;
  }
}

TEST(TerminationSignals, GiveTheSignalsBack) {
  { const TCTerminationSignals signalsToUs; }
  struct sigaction now = {};
  ASSERT_EQ(sigaction(SIGTERM, nullptr, &now), 0);
  EXPECT_EQ(now.sa_handler, SIG_DFL);
}

}  // namespace
}  // namespace brevant
