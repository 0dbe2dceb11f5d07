#include "rehearsal/loop_watch.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace brevant {
namespace {

using namespace std::chrono_literals;

// Lets a real event loop turn under the watch for a while, and reads what the watch noted.
class LoopWatch : public ::testing::Test {
 protected:
  template <typename Work>
  void TurnWith(Work work) {
    std::FILE* const file = std::fopen(Log().c_str(), "we");
    ASSERT_NE(file, nullptr);
    {
      TCLoopWatch watch(file);
      Turn(50ms);  // the first answer ends the start
      QTimer::singleShot(0, work);
      Turn(50ms);
      Turn(50ms);  // the work may have outlasted the first of these
    }
    std::fclose(file);
  }

  static void Turn(std::chrono::milliseconds time) {
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
  }

  [[nodiscard]] std::vector<std::string> Noted(const std::string& part) const {
    std::ifstream file(Log());
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
      if (line.find(part) != std::string::npos) lines.push_back(line);
    }
    return lines;
  }

  // A busy machine may add stalls that are its own.
  [[nodiscard]] std::vector<std::string> Stalls() const {
    return Noted(R"("kind":"stall","judged":"program")");
  }

  [[nodiscard]] std::string Log() const { return folder.Native("watch.log"); }

 private:
  int argc = 1;
  std::string name = "rehearsal_test";
  std::vector<char*> argv{name.data(), nullptr};
  QCoreApplication application{argc, argv.data()};
  TCTempFolder folder;
};

TEST_F(LoopWatch, ALoopThatWorksTooLongAtOneThingIsNotedWithWhereItStood) {
  TurnWith([] {
    const auto end = std::chrono::steady_clock::now() + 400ms;
    while (std::chrono::steady_clock::now() < end) {
    }
  });
  const std::vector<std::string> stalls = Stalls();
  ASSERT_EQ(stalls.size(), 1U);
  EXPECT_NE(stalls[0].find("rehearsal_test+0x"), std::string::npos) << stalls[0];
  EXPECT_NE(stalls[0].find("QEventLoop::exec("), std::string::npos) << stalls[0];
}

TEST_F(LoopWatch, AThreadThatSleepsIsNoLessAStallOfTheProgram) {
  TurnWith([] { std::this_thread::sleep_for(300ms); });
  const std::vector<std::string> stalls = Stalls();
  EXPECT_EQ(stalls.size(), 1U);
}

TEST_F(LoopWatch, ALoopWithinTheLoopAnswersAsWell) {
  TurnWith([] { Turn(400ms); });
  EXPECT_TRUE(Stalls().empty()) << Stalls()[0];
  EXPECT_EQ(Noted(R"("kind":"start")").size(), 1U);
  EXPECT_EQ(Noted(R"("kind":"spread")").size(), 1U);
}

}  // namespace
}  // namespace brevant
