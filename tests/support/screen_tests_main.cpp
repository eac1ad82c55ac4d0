#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>

#include "platform/qt/light_palette.h"

int main(int argc, char** argv) {
  // Listing the tests needs no display either: the platform is chosen before Qt looks for one.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  barvon::Apply_Light_Palette(application);
  return RUN_ALL_TESTS();
}
