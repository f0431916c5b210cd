// The tests of the windows share one application, as windows do.
#include <gtest/gtest.h>

#include <QApplication>

#include "platform/qt/Theme.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const kontorwerk::Theme theme(application);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
