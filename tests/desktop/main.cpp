#include <gtest/gtest.h>

#include "desktop/application.h"

int main(int argumentCount, char** arguments) {
  testing::InitGoogleTest(&argumentCount, arguments);
  // A screen in memory; that of the machine, if it has one, is left alone.
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" PROJECT_FOLDER "/tests/desktop/screen.json");
  quintara::desktop::Application application(argumentCount, arguments);
  return RUN_ALL_TESTS();
}
