#include "app/dialogs/about_box.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>

namespace brevant {
namespace {

const QStringList kLibraries{QStringLiteral("Qt 6.4.2"), QStringLiteral("mpg123")};

QList<TCAboutBox*> BoxesOf(const QWidget& parent) {
  QList<TCAboutBox*> boxes;
  for (QObject* child : parent.children()) {
    if (auto* box = dynamic_cast<TCAboutBox*>(child)) boxes.append(box);
  }
  return boxes;
}

TEST(AboutBox, TellsNameVersionLicenceAndLibraries) {
  const TCAboutBox box(kLibraries, nullptr);
  QString all;
  for (const QLabel* label : box.findChildren<QLabel*>()) {
    all += label->text() + QLatin1Char('\n');
    EXPECT_EQ(label->accessibleName(), label->text());
  }
  for (const char* part : {"Brevant 1.2.3", "MIT licence", "Qt 6.4.2, mpg123", "set lists"}) {
    EXPECT_TRUE(all.contains(QLatin1String(part))) << part;
  }
}

TEST(AboutBox, ClosesOnEnterEscapeAndSpace) {
  QWidget parent;
  parent.show();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space}) {
    TCAboutBox::Open(kLibraries, parent);
    ASSERT_EQ(BoxesOf(parent).size(), 1);
    TCAboutBox* box = BoxesOf(parent).constFirst();
    EXPECT_TRUE(box->isModal());
    box->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor(
        [box] { return QApplication::focusWidget() && QApplication::focusWidget()->window() == box; }));
    QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_FALSE(box->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(BoxesOf(parent).isEmpty());
  }
}

TEST(AboutBox, OpensOnce) {
  QWidget parent;
  parent.show();
  TCAboutBox::Open(kLibraries, parent);
  TCAboutBox::Open(kLibraries, parent);
  EXPECT_EQ(BoxesOf(parent).size(), 1);
}

}  // namespace
}  // namespace brevant
