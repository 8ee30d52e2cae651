#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include "services/desktop/system/Appearance.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // The file dialog remembers its looks: not in the home of whoever runs this.
  const QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
  QApplication application(argc, argv);
  tagsmith::SetUpAppearance(application);
  return RUN_ALL_TESTS();
}
