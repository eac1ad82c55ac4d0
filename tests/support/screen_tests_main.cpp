#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>
#include <memory>

#include "core/project_record.h"
#include "platform/qt/light_palette.h"
#include "platform/qt/toolkit_files.h"

namespace {

/// Each test begins with the record of a program that has just started. A new project and an opened
/// file leave some values of the project before, which must not hang on the tests before.
class Record_Of_Its_Own : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo& /*test*/) override {
    barvon::Project() = *std::make_unique<barvon::ProjectRecord>();
  }
};

}  // namespace

int main(int argc, char** argv) {
  // Listing the tests needs no display either: the platform is chosen before Qt looks for one.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  barvon::Apply_Light_Palette(application);
  barvon::Keep_No_Toolkit_Settings();
  testing::UnitTest::GetInstance()->listeners().Append(new Record_Of_Its_Own);
  return RUN_ALL_TESTS();
}
