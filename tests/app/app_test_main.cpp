// Runs this room's tests inside a toolkit application without a screen of its own.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include "app/look/stage_style.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // The toolkit's file chooser remembers folders; not in the home of whoever runs the tests.
  const QTemporaryDir home;
  if (!home.isValid()) return 1;
  qputenv("HOME", home.path().toLocal8Bit());
  qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QCoreApplication::setApplicationName(QStringLiteral("Brevant"));
  QCoreApplication::setApplicationVersion(QStringLiteral("1.2.3"));
  const QApplication toolkit(argc, argv);
  QApplication::setStyle(new brevant::TCStageStyle);
  return RUN_ALL_TESTS();
}
