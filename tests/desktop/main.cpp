#include <gtest/gtest.h>

#include <QtCore/QProcessEnvironment>

#include "desktop/application.h"

namespace {

// Windows look the same whoever runs the tests: with the same fonts, and without that user's own scale, style
// or theme. Only where Qt lies stays as it is.
void LeaveOutUsersSettings() {
  for (const QString& name : QProcessEnvironment::systemEnvironment().keys()) {
    if (name.startsWith("QT_") && !name.endsWith("PLUGIN_PATH")) qunsetenv(name.toLocal8Bit());
  }
  qputenv("FONTCONFIG_FILE", FONTS);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  testing::InitGoogleTest(&argumentCount, arguments);
  LeaveOutUsersSettings();
  // A screen in memory; that of the machine, if it has one, is left alone.
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" PROJECT_FOLDER "/tests/desktop/screen.json");
  quintara::desktop::Application application(argumentCount, arguments);
  return RUN_ALL_TESTS();
}
