#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  // Listing the tests needs no display either: the platform is chosen before Qt looks for one.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
