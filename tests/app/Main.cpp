#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  // Also where the tests are only listed, at build time: no display is needed.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
