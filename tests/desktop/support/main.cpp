// All desktop tests share one application on a screen in memory.
#include <gtest/gtest.h>

#include <QApplication>

#include "platform/qt/desktop.h"

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  morlan::PrepareToolkit();
  QApplication application(count, arguments);
  morlan::SetUpToolkit();
  return RUN_ALL_TESTS();
}
