#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // Also where nobody has set a platform, as when the build lists the tests.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  // The forms of the tests fit the small screen of a desktop that is not there.
  QFont font = QApplication::font();
  font.setPixelSize(10);
  QApplication::setFont(font);
  return RUN_ALL_TESTS();
}
