#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>
#include <string>

#include "core/project_record.h"
#include "platform/ask/file_dialog.h"
#include "run/create_process.h"
#include "support/screen_support.h"

namespace barvon {
namespace {

namespace fs = std::filesystem;
using namespace barvon::testing;

/// The window with the input echo in its folder and the sample projects in a folder beside.
class SampleJourney : public ::testing::TestWithParam<const char*> {
 protected:
  SampleJourney() {
    fs::copy_file(BARVON_ECHO_SOLVER, bench.folder / "merak32");
    fs::create_directory(bench.folder / "projects");
    fs::copy_file(std::string(BARVON_SAMPLES) + "/" + GetParam() + ".DUI", base + ".DUI");
    File_Dialog_Presenter dialogs;
    dialogs.open = [this](const File_Request&) { return base + ".DUI"; };
    dialogs.save = [this](const File_Request&) { return base + "_copy.DUI"; };
    former_ = Set_File_Dialog_Presenter(dialogs);
  }
  ~SampleJourney() override { Set_File_Dialog_Presenter(former_); }

  Main_Bench bench;
  const std::string base = bench.folder / ("projects/" + std::string(GetParam()));

 private:
  File_Dialog_Presenter former_;
};

TEST_P(SampleJourney, Opens_Runs_Keeps_Its_Outputs_And_Saves_The_Same_Bytes) {
  bench.Action("mnuFileItem(1)")->trigger();
  ASSERT_EQ(Project().ProjectFileName, base + ".DUI");
  EXPECT_EQ(bench.main().windowTitle().toStdString(), "BARVON - " + base + ".DUI");
  EXPECT_TRUE(bench.Action("mnuRun")->isEnabled());

  const std::string as_opened = Read_Text(base + ".DUI");
  bench.Action("mnuFileItem(5)")->trigger();
  ASSERT_EQ(Project().ProjectFileName, base + "_copy.DUI");
  EXPECT_EQ(Read_Text(base + "_copy.DUI"), as_opened);
  EXPECT_TRUE(Exists(base + "_copy.DUE"));

  QTest::mouseClick(bench.controls().SSPanel3(1), Qt::LeftButton);
  ASSERT_FALSE(Run_Is_Under_Way());
  for (const char* extension : {".duo", ".dup", ".dut", ".duc"}) {
    const std::string kept = Read_Text(base + "_copy" + extension);
    EXPECT_NE(kept.find("simulates nothing"), std::string::npos) << extension;
  }
}

TEST_P(SampleJourney, Turns_Its_Categories_Blue_And_A_New_Project_Black) {
  const auto expect = [this](const char* text, const char* colour) {
    for (int i = 0; i < 5; ++i) {
      const QLabel* state = bench.controls().Text2(i);
      EXPECT_EQ(state->text(), text) << i;
      EXPECT_EQ(state->palette().color(QPalette::Active, QPalette::WindowText), QColor(colour))
          << i;
    }
    EXPECT_EQ(bench.controls().Text2(5)->text(), "Default Coefficients Used");
  };
  bench.Action("mnuFileItem(1)")->trigger();
  expect("Data Supplied", "#0000ff");
  bench.Action("mnuFileItem(0)")->trigger();
  expect("Data Not Entered", "#000000");
  EXPECT_TRUE(bench.controls().SSOption2(0)->isChecked());
  EXPECT_EQ(Project().ProjectFileName, "");
}

// No solver takes it, so that it has a road of its own.
class ContinuousJourney : public SampleJourney {};

TEST_P(ContinuousJourney, Opens_Is_Told_To_Have_No_Model_And_Saves_The_Same_Bytes) {
  bench.Action("mnuFileItem(1)")->trigger();
  EXPECT_EQ(Project().DisposalMethod, 2);
  const std::string as_opened = Read_Text(base + ".DUI");
  QTest::mouseClick(bench.controls().SSPanel3(0), Qt::LeftButton);
  bench.Action("mnuEditItem(8)")->trigger();
  {
    Modal_Replies no_boxes({});
    bench.Action("mnuFileItem(5)")->trigger();
  }
  EXPECT_EQ(Read_Text(base + "_copy.DUI"), as_opened);
  Modal_Replies replies({Press(QMessageBox::Ok)});
  QTest::mouseClick(bench.controls().SSPanel3(1), Qt::LeftButton);
  EXPECT_EQ(replies.seen.at(0).text, "No Model is currently available for this discharge case.");
  EXPECT_FALSE(Exists(base + "_copy.duo"));
}

INSTANTIATE_TEST_SUITE_P(Samples, ContinuousJourney, ::testing::Values("Pipeline_Continuous"));

INSTANTIATE_TEST_SUITE_P(Samples, SampleJourney,
                         ::testing::Values("Barge_Four_Layers", "Hopper_Six_Openings",
                                           "Section_103_Water_Quality", "Section_404_Sediment",
                                           "Section_404_Zid", "Tidal_Estuary",
                                           "Variable_96_By_96"));

}  // namespace
}  // namespace barvon
