#include "app/commands/command_categories.h"

#include <gtest/gtest.h>

#include <QWidget>
#include <set>
#include <string>
#include <utility>

#include "app/fake_target.h"

namespace brevant {
namespace {

using Id = TCCommandId;

class CommandCategory : public testing::Test {
 protected:
  // A line for each category: its name and its commands.
  [[nodiscard]] std::string Listed(std::set<Id> handled) {
    target.handled = std::move(handled);
    const TCCommandActions actions(target, window);
    QString lines;
    for (const TCCommandCategory& category : CommandCategories(actions)) {
      QStringList names;
      for (const Id command : category.commands) names.append(CommandName(command));
      lines += category.name + QStringLiteral(": ") + names.join(QStringLiteral(", ")) + u'\n';
    }
    return lines.toStdString();
  }

  TCFakeTarget target;
  QWidget window;
};

TEST_F(CommandCategory, AMenuOfWhichNobodyCarriesAnythingOutIsLeftOut) {
  EXPECT_EQ(Listed({Id::Stop, Id::Play}), "Play: Play, Stop\nAll Commands: Play, Stop\n");
  EXPECT_EQ(Listed({}), "All Commands: \n");
}

TEST_F(CommandCategory, TheMenuInsideViewIsListedWithIt) {
  EXPECT_EQ(Listed({Id::StatusBarVisible, Id::Customize}),
            "View: Customize..., Status Bar\nAll Commands: Customize..., Status Bar\n");
}

TEST_F(CommandCategory, AllCommandsStandByTheirNameAndThoseWithoutOneNowhere) {
  EXPECT_EQ(Listed({Id::VolumeUp, Id::MediaVolumeUp, Id::AutoRecycle, Id::SelectAll, Id::SwallowF4, Id::Cut}),
            "Play: Increase Volume\nOptions: Auto Recycle\n"
            "All Commands: Auto Recycle, Increase Volume, Increase Volume (volume key)\n");
}

}  // namespace
}  // namespace brevant
