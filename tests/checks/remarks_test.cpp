#include "checks/remarks.h"

#include <gtest/gtest.h>

#include <limits>

#include "checks/check_data.h"
#include "checks/sound_project.h"
#include "core/desk/workspace_port.h"
#include "core/model_input/model_input.h"

namespace barvon::testing {
namespace {

using Lines = std::vector<std::string>;
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// A remark on a value of the model input that is wider than its columns.
std::string Wide(int line, const std::string& field, const std::string& value, int columns) {
  return "Line " + std::to_string(line) + " of the model input: " + field + " is " + value +
         ", wider than its " + std::to_string(columns) + " columns, and moves the rest of the line";
}

ProjectRecord Barge_Of_Two_Layers() {
  ProjectRecord r = Sound_Project();
  r.DisposalMethod = 3;
  r.SeparationFlag = 1;
  r.LAYERS = 2;
  r.NumSolids = 2;
  r.SolidVolFraction = {0, 0.9, 0.9};  // not looked at while the layers have their own
  r.LayerSolidFraction[1] = {0, 0.1, 0.1};
  r.LayerSolidFraction[2] = {0, 0.2, 0.2};
  return r;
}

TEST(Remarks, A_Sound_Project_Has_None) {
  EXPECT_EQ(Remarks_On(Sound_Project()), Lines{});
  EXPECT_EQ(Remark_Count({}), "");
  EXPECT_EQ(Remark_Lines({}), "");
}

TEST(Remarks, A_Wide_Number_Is_Told_With_Line_Field_And_Value) {
  ProjectRecord r = Sound_Project();
  r.TotalVolume = 4000;
  r.NOPENS = 3;
  // Each opening has a line of its own, one for its solid and one for the fluid.
  EXPECT_EQ(Remarks_On(r), (Lines{Wide(24, "TotalVolume / NOPENS", "1333.33333333333", 10),
                                  Wide(27, "TotalVolume / NOPENS", "1333.33333333333", 10),
                                  Wide(30, "TotalVolume / NOPENS", "1333.33333333333", 10)}));
}

TEST(Remarks, A_Number_That_Just_Fills_Its_Columns_Is_None) {
  ProjectRecord r = Sound_Project();
  r.SLOPEX0 = 12345.6789;
  EXPECT_EQ(Remarks_On(r), Lines{});
  r.SLOPEX0 = 12345.67891;
  EXPECT_EQ(Remarks_On(r), Lines{Wide(12, "SLOPEX0", "12345.67891", 10)});
}

TEST(Remarks, A_Name_That_Moves_The_Numbers_Behind_It_Is_Told_Too) {
  ProjectRecord r = Sound_Project();
  r.SolidNames[1] = "Coarse sand";
  EXPECT_EQ(Remarks_On(r), Lines{Wide(25, "SolidNames(1)", "Coarse sand", 10)});
}

TEST(Remarks, Wide_Cells_Of_A_Grid_Are_Told_Once_With_Their_Count) {
  ProjectRecord r = Sound_Project();
  r.ConstantDepthFlag = 0;
  for (auto& row : r.DepthGrid) row.fill(60);
  r.DepthGrid[1][12] = r.DepthGrid[3][1] = r.DepthGrid[3][2] = 60.123456;
  // Three lines to a row of 30 points, from line 12 on.
  EXPECT_EQ(Remarks_On(r), Lines{Wide(13, "DepthGrid(1,12)", "60.123456", 7) +
                                 ", and so for 2 more of DepthGrid"});
}

TEST(Remarks, A_Value_That_Is_No_Number_Or_Infinite_Is_Told_By_Its_Field) {
  ProjectRecord r = Sound_Project();
  r.SLOPEX0 = kNan;
  r.LayerVolume[2] = r.LayerVolume[4] = -kInfinity;
  r.LayerSolidFraction[2][3] = kInfinity;
  r.TidalVelX[1] = std::numeric_limits<float>::infinity();
  r.RealSlots[106] = kNan;  // the image of SLOPEX0
  EXPECT_EQ(Remarks_On(r),
            (Lines{"SLOPEX0 is no number (nan)", "TidalVelX(1) is infinite (inf)",
                   "LayerVolume(2) is infinite (-inf), and so for 1 more of LayerVolume",
                   "LayerSolidFraction(2,3) is infinite (inf)"}));
}

TEST(Remarks, Solids_That_Take_Up_More_Than_The_Load_Are_Told) {
  ProjectRecord r = Sound_Project();
  r.NumSolids = 3;
  r.SolidVolFraction = {0, 0.1, 0.2, 0.7, 5};  // 1.0000000000000002 as a computer adds it up
  EXPECT_EQ(Remarks_On(r), Lines{});
  r.SolidVolFraction[3] = 0.75;
  for (const std::int16_t method : {1, 2, 3}) {
    r.DisposalMethod = method;
    EXPECT_EQ(Remarks_On(r),
              Lines{"The volumetric fractions of the solids add up to 1.05, more than 1"});
  }
}

TEST(Remarks, Separated_Layers_Are_Added_Up_One_By_One) {
  ProjectRecord r = Barge_Of_Two_Layers();
  EXPECT_EQ(Remarks_On(r), Lines{});
  r.LayerSolidFraction[2] = {0, 0.2, 0.95, 9};
  r.LayerSolidFraction[3] = {0, 9, 9};
  EXPECT_EQ(Remarks_On(r),
            Lines{"The volumetric fractions of layer 2 add up to 1.05, more than 1"});
  r.DisposalMethod = 1;  // a hopper's openings share one composition
  EXPECT_EQ(Remarks_On(r),
            Lines{"The volumetric fractions of the solids add up to 1.8, more than 1"});
}

TEST(Remarks, Counts_Beyond_The_Record_Are_No_Trouble) {
  ProjectRecord r = Barge_Of_Two_Layers();
  r.NumSolids = r.LAYERS = 32767;
  r.LayerSolidFraction[4] = {0, 1, 0, 0, 0, 0, 1};
  EXPECT_EQ(Remarks_On(r), Lines{"The volumetric fractions of layer 1 add up to 1.3, more than 1"});
  r.NumSolids = r.LAYERS = -1;
  EXPECT_EQ(Remarks_On(r), Lines{});
}

TEST(Remarks, The_Record_Stays_As_It_Was) {
  ProjectRecord r = Sound_Project();
  r.VelocityProfileType = 5;
  r.DZ0 = 0;
  r.KEY2 = 1;
  r.TracerName() = "COPPER";
  r.FileTypeTag = "   DUMP";
  Remarks_On(r);
  EXPECT_EQ(r.VelocityProfileType, 5);
  EXPECT_EQ(r.DZ0, 0);
  EXPECT_EQ(r.KEY2, 1);
  EXPECT_EQ(r.TracerName(), "COPPER");
  EXPECT_EQ(r.FileTypeTag, "   DUMP");
}

TEST(Remarks, Are_Counted_In_Words) {
  EXPECT_EQ(Remark_Count({"a"}), "1 remark");
  EXPECT_EQ(Remark_Count({"a", "b"}), "2 remarks");
  EXPECT_EQ(Remark_Lines({"a", "b"}), "a\nb\n");
}

/// The notes of the status area while a test lives.
class RemarksInTheStatusArea : public ::testing::Test {
 protected:
  RemarksInTheStatusArea() {
    Reset_Port();
    Check_Project(Sound_Project());  // no remarks of another test
    Port().board.show_note = [this](const Status_Note& note) { notes_.push_back(note); };
  }
  ~RemarksInTheStatusArea() override {
    Reset_Port();
    Check_Project(Sound_Project());
  }
  std::vector<Status_Note> notes_;
};

TEST_F(RemarksInTheStatusArea, A_Check_Shows_Their_Count_With_The_Lines_As_Details) {
  ProjectRecord r = Sound_Project();
  r.SLOPEX0 = kNan;
  r.SLOPEZ0 = kInfinity;
  EXPECT_EQ(Check_Project(r), kFalse);
  ASSERT_EQ(notes_.size(), 1u);
  EXPECT_EQ(notes_[0].text, "2 remarks");
  EXPECT_EQ(notes_[0].details, "SLOPEX0 is no number (nan)\nSLOPEZ0 is infinite (inf)\n");
  EXPECT_TRUE(Current_Errors().entries.empty());
}

TEST_F(RemarksInTheStatusArea, The_First_Check_Without_Them_Takes_Them_Back) {
  ProjectRecord r = Sound_Project();
  r.SLOPEX0 = kNan;
  Check_Project(r);
  Check_Project(Sound_Project());
  ASSERT_EQ(notes_.size(), 2u);
  EXPECT_EQ(notes_[1].text, "");
  EXPECT_EQ(notes_[1].details, "");
}

TEST_F(RemarksInTheStatusArea, A_Check_Without_Any_Leaves_What_Else_Is_Shown_There) {
  Check_Project(Sound_Project());
  EXPECT_TRUE(notes_.empty());
}

}  // namespace
}  // namespace barvon::testing
