#include "app/desktop/running_program.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QTest>
#include <vector>

#include "app/desktop/session_bus.h"

namespace brevant {
namespace {

using Standing = TCRunningProgram::TCStanding;
using Outcome = TCRunningProgram::TCHandOver;

class TCFakeDoor final : public TCProgramDoor {
 public:
  void ComeForward() override { knocks.emplace_back("come forward"); }
  bool OpenFromOutside(const std::string& nativeName) override {
    knocks.push_back("open " + nativeName);
    token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    return opens;
  }

  bool opens = true;
  std::vector<std::string> knocks;
  QString token;
};

class RunningProgram : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(bus.ComesUp()); }

  [[nodiscard]] QString Address() const { return QString::fromStdString(bus.Address()); }

  // The second waits for an answer that this thread has to give.
  Outcome HandOver(TCRunningProgram& second, const std::optional<std::string>& name,
                   const QVariantMap& platformData = {}) {
    auto outcome = std::async(std::launch::async, [&] { return second.HandOver(name, platformData); });
    while (outcome.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready) QTest::qWait(1);
    return outcome.get();
  }

  const TCSessionBus bus;
  TCFakeDoor door;
};

TEST(RunningProgramWithoutABus, StandsAlone) {
  TCRunningProgram program(QStringLiteral("disabled:"));
  EXPECT_EQ(program.Standing(), Standing::Alone);
  TCRunningProgram nobody(QStringLiteral("unix:path=/nowhere/bus"));
  EXPECT_EQ(nobody.Standing(), Standing::Alone);
}

TEST_F(RunningProgram, TheSecondStartFindsTheFirstAndHandsItsFileOver) {
  TCRunningProgram first(Address());
  ASSERT_EQ(first.Standing(), Standing::First);
  first.Serve(door);
  TCRunningProgram second(Address());
  ASSERT_EQ(second.Standing(), Standing::Second);
  EXPECT_EQ(HandOver(second, "/shows/Show.brv"), Outcome::Done);
  EXPECT_EQ(door.knocks, std::vector<std::string>{"open /shows/Show.brv"});
}

TEST_F(RunningProgram, WithoutAFileItIsOnlyBroughtForward) {
  TCRunningProgram first(Address());
  ASSERT_EQ(first.Standing(), Standing::First);
  first.Serve(door);
  TCRunningProgram second(Address());
  ASSERT_EQ(second.Standing(), Standing::Second);
  EXPECT_EQ(HandOver(second, {}), Outcome::Done);
  EXPECT_EQ(door.knocks, std::vector<std::string>{"come forward"});
}

TEST_F(RunningProgram, TheSecondHearsThatADialogIsOpen) {
  TCRunningProgram first(Address());
  ASSERT_EQ(first.Standing(), Standing::First);
  first.Serve(door);
  door.opens = false;
  TCRunningProgram second(Address());
  ASSERT_EQ(second.Standing(), Standing::Second);
  EXPECT_EQ(HandOver(second, "/a.brv"), Outcome::DialogOpen);
}

TEST_F(RunningProgram, AFirstThatDoesNotAnswerIsNotWaitedForForEver) {
  TCRunningProgram first(Address());
  ASSERT_EQ(first.Standing(), Standing::First);
  TCRunningProgram second(Address());
  ASSERT_EQ(second.Standing(), Standing::Second);
  // This thread is the first one's, and it waits here.
  EXPECT_EQ(second.HandOver("/a.brv", {}, std::chrono::milliseconds(50)), Outcome::NoAnswer);
}

TEST_F(RunningProgram, AFirstThatEndsInsteadOfAnsweringHandsItsPlaceOver) {
  std::optional<TCRunningProgram> first(Address());
  ASSERT_EQ(first->Standing(), Standing::First);
  TCRunningProgram second(Address());
  ASSERT_EQ(second.Standing(), Standing::Second);
  auto outcome = std::async(std::launch::async, [&] { return second.HandOver("/shows/Show.brv", {}); });
  EXPECT_EQ(outcome.wait_for(std::chrono::milliseconds(100)), std::future_status::timeout);
  first.reset();
  EXPECT_EQ(outcome.get(), Outcome::Gone);
  EXPECT_EQ(second.Standing(), Standing::First);
  TCRunningProgram third(Address());
  EXPECT_EQ(third.Standing(), Standing::Second);
}

TEST_F(RunningProgram, OfTwoThatWaitOneTakesThePlaceAndTheOtherHandsItsFileOverToIt) {
  std::optional<TCRunningProgram> first(Address());
  ASSERT_EQ(first->Standing(), Standing::First);
  TCRunningProgram second(Address());
  TCRunningProgram third(Address());
  ASSERT_EQ(second.Standing(), Standing::Second);
  ASSERT_EQ(third.Standing(), Standing::Second);
  auto of2 = std::async(std::launch::async, [&] { return second.HandOver("/two.brv", {}); });
  auto of3 = std::async(std::launch::async, [&] { return third.HandOver("/three.brv", {}); });
  EXPECT_EQ(of2.wait_for(std::chrono::milliseconds(100)), std::future_status::timeout);
  first.reset();
  const auto has = [](const std::future<Outcome>& outcome) {
    return outcome.wait_for(std::chrono::milliseconds(1)) == std::future_status::ready;
  };
  while (!has(of2) && !has(of3)) {
  }
  const bool secondIsFirstNow = has(of2);
  (secondIsFirstNow ? second : third).Serve(door);
  while (!has(of2) || !has(of3)) QTest::qWait(1);
  EXPECT_EQ(of2.get(), secondIsFirstNow ? Outcome::Gone : Outcome::Done);
  EXPECT_EQ(of3.get(), secondIsFirstNow ? Outcome::Done : Outcome::Gone);
  EXPECT_EQ(door.knocks, std::vector<std::string>{secondIsFirstNow ? "open /three.brv" : "open /two.brv"});
}

TEST_F(RunningProgram, WhatTheFirstRefusesIsNotAskedForAgain) {
  TCRunningProgram first(Address());
  ASSERT_EQ(first.Standing(), Standing::First);
  first.Serve(door);
  TCRunningProgram second(Address());
  ASSERT_EQ(second.Standing(), Standing::Second);
  const auto begun = std::chrono::steady_clock::now();
  EXPECT_EQ(HandOver(second, "no absolute name"), Outcome::NoAnswer);
  EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(9)) << "its patience is ten";
}

TEST_F(RunningProgram, TheNameIsFreeWhenTheFirstHasGone) {
  {
    TCRunningProgram first(Address());
    ASSERT_EQ(first.Standing(), Standing::First);
  }
  TCRunningProgram next(Address());
  EXPECT_EQ(next.Standing(), Standing::First);
}

TEST_F(RunningProgram, TheLeaveToComeForwardIsPassedOnForTheLengthOfTheCall) {
  TCRunningProgram first(Address());
  ASSERT_EQ(first.Standing(), Standing::First);
  first.Serve(door);
  TCRunningProgram second(Address());
  ASSERT_EQ(second.Standing(), Standing::Second);
  HandOver(second, "/a.brv", {{QStringLiteral("activation-token"), QStringLiteral("leave-1")}});
  EXPECT_EQ(door.token, QStringLiteral("leave-1"));
  EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

TEST_F(RunningProgram, RefusesWhatIsNoFileOfThisMachineAndActionsThatItDoesNotHave) {
  TCRunningProgram first(Address());
  ASSERT_EQ(first.Standing(), Standing::First);
  first.Serve(door);
  const QString name = QStringLiteral("RunningProgramTest");
  const QDBusConnection desktop = QDBusConnection::connectToBus(Address(), name);
  const auto call = [&](const QString& method, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.korvel.Brevant"), QStringLiteral("/org/korvel/Brevant"),
        QStringLiteral("org.freedesktop.Application"), method);
    message.setArguments(arguments);
    auto reply = std::async(std::launch::async, [&] { return desktop.call(message); });
    while (reply.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready) QTest::qWait(1);
    return reply.get().errorName();
  };
  const QString invalid = QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs");
  for (const QStringList& uris : {QStringList(), QStringList(QStringLiteral("https://example.org/a.brv")),
                                  QStringList(QStringLiteral("file://elsewhere/a.brv"))}) {
    EXPECT_EQ(call(QStringLiteral("Open"), {uris, QVariantMap()}), invalid);
  }
  EXPECT_EQ(call(QStringLiteral("ActivateAction"),
                 {QStringLiteral("fly"), QVariant(QVariantList()), QVariantMap()}),
            invalid);
  EXPECT_TRUE(door.knocks.empty());
  EXPECT_EQ(call(QStringLiteral("Activate"), {QVariantMap()}), QString());
  EXPECT_EQ(door.knocks.size(), 1U);
  QDBusConnection::disconnectFromBus(name);
}

}  // namespace
}  // namespace brevant
