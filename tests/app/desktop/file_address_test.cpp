#include "app/desktop/file_address.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(FileAddress, KeepsEveryByteOfAName) {
  for (const std::string name : {"/a b/100% #1?.brv",
                                 "/\xC3\x9C"
                                 "ber.brv",
                                 "/\xFF\xFE.brv", "/a\nb.brv"}) {
    const QString address = FileAddress(name);
    EXPECT_TRUE(address.startsWith(QStringLiteral("file:///"))) << address.toStdString();
    EXPECT_EQ(FileNameOf(address), name);
  }
  EXPECT_EQ(FileAddress("/a b.brv"), QStringLiteral("file:///a%20b.brv"));
  EXPECT_EQ(FileNameOf(QStringLiteral("file://localhost/a.brv")), "/a.brv");
  EXPECT_EQ(FileNameOf(QStringLiteral("/a.brv")), "");
}

}  // namespace
}  // namespace brevant
