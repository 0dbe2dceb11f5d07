#include "app/bars/control_label.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <memory>

namespace brevant {
namespace {

TEST(ControlLabel, LeadsToItsControlWhichGoesByItsWords) {
  QLineEdit control;
  const std::unique_ptr<QLabel> label(MakeLabel(QStringLiteral("Ca&tegory:"), control));
  EXPECT_EQ(label->text(), QStringLiteral("Ca&tegory:"));
  EXPECT_EQ(label->buddy(), &control);
  EXPECT_EQ(control.accessibleName(), QStringLiteral("Category"));
}

}  // namespace
}  // namespace brevant
