#include "app/part_of.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(PartOf, AWidgetIsAPartAcrossTheBorderOfAWindow) {
  QWidget root;
  QWidget floating(&root, Qt::Tool);
  const QWidget inside(&floating);
  ASSERT_FALSE(root.isAncestorOf(&inside)) << "the toolkit's own question";
  EXPECT_TRUE(IsPartOf(root, &inside));
  EXPECT_TRUE(IsPartOf(root, &root));
  EXPECT_FALSE(IsPartOf(floating, &root));
  EXPECT_FALSE(IsPartOf(root, nullptr));
}

}  // namespace
}  // namespace brevant
