#include "params/operation_data.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/book_numbers.h"
#include "core/keys.h"
#include "core/project_defaults.h"
#include "core/wizard_answers.h"
#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

/// A hopper with two openings of 1, -1 and 2, -2 ft/s; the rows behind them go on like that.
class OperationData : public ::testing::Test {
 protected:
  OperationData() {
    Set_Project_Defaults(record_);
    record_.DataSaved = kTrue;
    record_.DisposalMethod = kHopper;
    record_.XBARGE = 1200.126;
    record_.ZBARGE = 800;
    record_.BINL = 30;
    record_.BINW = 20;
    record_.DBINS = 5;
    record_.NBINS = 3;
    record_.NOPENS = 2;
    record_.TDIS = 60;
    record_.DREL1 = 20;
    record_.DREL2 = 10;
    for (int i = 1; i <= kMaxLayers; ++i) {
      record_.LayerVelX[i] = i;
      record_.LayerVelZ[i] = -i;
    }
    Fill();
  }

  /// As the screen fills itself.
  void Fill() {
    Hold_Openings(record_);
    copy_ = {};
    entry_ = {};
    const Field_Texts filled = Fill_Fields(Operation_Fields(), record_);
    entry_.texts = filled;
    for (const Field_Row& row : Operation_Fields()) {
      const std::string* text = filled.Find(row.control);
      if (text != nullptr) entry_.texts.Set_Filled(row.control, *text);
    }
    entry_.Check3D1 = Has_Depression(record_);
    Fill_Velocities(record_, table_);
    *before_ = record_;
  }
  Operation_Result Save(const std::vector<Answer>& answers = {}) {
    Scripted_Messages messages(answers);
    const Operation_Result result = Save_Operation(entry_, copy_, table_, record_);
    shown_ = messages.shown;
    return result;
  }
  Names Changed() const { return Differing_Fields(*before_, record_); }
  std::string Rows() const {
    std::string rows;
    for (int row = 1; row <= table_.MaxRow(); ++row) {
      rows += table_.RowText(row) + ": " + table_.ShownRC(row, 1) + " " + table_.ShownRC(row, 2) +
              (row < table_.MaxRow() ? ", " : "");
    }
    return rows;
  }

  std::unique_ptr<ProjectRecord> own_ = std::make_unique<ProjectRecord>();
  std::unique_ptr<ProjectRecord> before_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *own_;
  Spreadsheet_Table table_{kBookNumbers};
  Operation_Entry entry_;
  Operation_Copy copy_;
  std::vector<Message> shown_;
};

/// The references of the fields that a method has, in the order of the table.
std::string Fields_Of(std::int16_t method) {
  const auto record = std::make_unique<ProjectRecord>();
  record->DisposalMethod = method;
  std::string fields;
  for (const Field_Face& face : Faces_Of(Operation_Fields(), *record)) {
    if (face.shown) fields += face.control.Reference() + " ";
  }
  if (!fields.empty()) fields.pop_back();
  return fields;
}

TEST_F(OperationData, Each_Method_Has_Fields_Of_Its_Own) {
  EXPECT_EQ(Fields_Of(kHopper),
            "Text1(0) Text1(1) Text1(2) Text1(3) Text1(4) Text1(5) Text1(6) Text1(7) Text1(8) "
            "Text2 Text3(0) Text3(1) Text3(2)");
  EXPECT_EQ(Fields_Of(kBarge),
            "Text1(0) Text1(1) Text1(2) Text1(3) Text1(5) Text1(6) Text1(7) "
            "Text3(0) Text3(1) Text3(2)");
  EXPECT_EQ(Fields_Of(kContinuous),
            "Text1(0) Text1(1) Text4(0) Text4(1) Text4(2) Text4(3) Text4(4) Text4(5) Text4(6)");
  EXPECT_EQ(Fields_Of(0), "Text1(0) Text1(1)");
}

TEST_F(OperationData, Length_Width_And_Time_Mean_The_Method_S_Own) {
  const auto label = [&](int field) {
    return std::string(Find_Row(Operation_Fields(), {"Text1", field}, record_)->label);
  };
  EXPECT_EQ(label(7), "Time Required to Empty All the Hopper Bins (sec)");
  record_.DisposalMethod = kBarge;
  record_.BargeLength = 200;
  record_.BargeEmptyTime = 30;
  Fill();
  EXPECT_EQ(label(7), "Time Needed to Empty the Disposal Vessel (sec)");
  EXPECT_EQ(entry_.texts("Text1", 2), "200.0");
  EXPECT_EQ(entry_.texts("Text1", 7), "30.0");
}

TEST_F(OperationData, Patterns_Are_Those_Of_The_Fields) {
  EXPECT_EQ(entry_.texts("Text1", 0), "1200.13");
  EXPECT_EQ(entry_.texts("Text1", 2), "30.0");
  EXPECT_EQ(entry_.texts("Text1", 7), "60.0");
  EXPECT_EQ(entry_.texts("Text1", 8), "3");
  EXPECT_EQ(entry_.texts("Text2"), "2");
  EXPECT_EQ(entry_.texts("Text3", 0), "0");
  EXPECT_EQ(entry_.texts("Text3", 2), "0.0");
  record_.DisposalMethod = kContinuous;
  record_.DischargeDuration = 5400;
  Fill();
  EXPECT_EQ(entry_.texts("Text4", 0), "0.00");
  EXPECT_EQ(entry_.texts("Text4", 1), "0.0");
  EXPECT_EQ(entry_.texts("Text4", 2), "5400.");
}

TEST_F(OperationData, The_Caption_Names_The_Vessel) {
  EXPECT_EQ(Operation_Caption(record_), "Disposal Operation Data - Hopper Dredge");
  record_.DisposalMethod = kBarge;
  EXPECT_EQ(Operation_Caption(record_), "Disposal Operation Data - Barge or Scow");
  record_.DisposalMethod = kContinuous;
  EXPECT_EQ(Operation_Caption(record_), "Disposal Operation Data");
}

TEST_F(OperationData, The_Open_Wizard_Chooses_The_Method) {
  const auto method = [&](int option, Flag active) {
    record_.DisposalMethod = kContinuous;
    record_.WizardActive = active;
    Answers_Of_Wizard().method_option = option;
    Store_Wizard_Method(record_);
    Answers_Of_Wizard() = {};
    return record_.DisposalMethod;
  };
  EXPECT_EQ(method(0, kTrue), kHopper);
  EXPECT_EQ(method(1, kTrue), kBarge);
  EXPECT_EQ(method(-1, kTrue), kContinuous);
  EXPECT_EQ(method(0, kFalse), kContinuous);
}

TEST_F(OperationData, A_Count_From_A_File_Is_Brought_In) {
  for (const auto& [count, held] : {std::pair{40, 6}, {7, 6}, {6, 6}, {0, 0}, {-3, 0}}) {
    record_.NOPENS = static_cast<std::int16_t>(count);
    Hold_Openings(record_);
    EXPECT_EQ(record_.NOPENS, held);
  }
}

TEST_F(OperationData, The_Table_Shows_A_Row_For_Each_Opening_And_One_At_Least) {
  EXPECT_EQ(Rows(), "Set 1: 1 -1, Set 2: 2 -2");
  EXPECT_EQ(table_.ColText(1), "X-Direction");
  EXPECT_EQ(table_.ColText(2), "Z-Direction");
  EXPECT_EQ(table_.Selection(), "A1:B2");
  record_.NOPENS = 0;
  Fill();
  EXPECT_EQ(Rows(), "Set 1: 1 -1");
  record_.NOPENS = 6;
  Fill();
  EXPECT_EQ(table_.MaxRow(), 6);
  EXPECT_EQ(table_.RowText(6), "Set 6");
}

TEST_F(OperationData, Another_Number_Of_Openings_Wipes_The_Velocities) {
  EXPECT_EQ(Take_Openings("3", table_), "3");
  EXPECT_EQ(Rows(), "Set 1: 0 0, Set 2: 0 0, Set 3: 0 0");
  EXPECT_TRUE(table_.CanUndo());
  table_.Undo();
  EXPECT_EQ(Rows(), "Set 1: 1 -1, Set 2: 2 -2, Set 3: 3 -3");
}

TEST_F(OperationData, Rows_That_Are_Not_Shown_Are_Wiped_Too_And_Come_Back_With_One_Undo) {
  record_.NOPENS = 6;
  Fill();
  Take_Openings("1", table_);
  table_.MaxRow(6);
  EXPECT_EQ(Rows(), "Set 1: 0 0, Set 2: 0 0, Set 3: 0 0, Set 4: 0 0, Set 5: 0 0, Set 6: 0 0");
  table_.Undo();
  EXPECT_EQ(Rows(), "Set 1: 1 -1, Set 2: 2 -2, Set 3: 3 -3, Set 4: 4 -4, Set 5: 5 -5, Set 6: 6 -6");
}

TEST_F(OperationData, Velocities_That_Were_Not_Shown_Are_Stored_As_0) {
  // 10 typed over 6: the 1 on the way leaves one row.
  record_.NOPENS = 6;
  Fill();
  Take_Openings("1", table_);
  {
    const Scripted_Messages messages({Answer::Ok});
    Take_Openings("10", table_);
  }
  entry_.texts("Text2") = "10";
  EXPECT_TRUE(Save().CanClose);
  EXPECT_EQ(record_.NOPENS, 6);
  for (int i = 1; i <= kMaxLayers; ++i) EXPECT_EQ(record_.LayerVelX[i], 0) << i;
  // 7 typed over 2: the two rows that show stay.
  record_.NOPENS = 2;
  for (int i = 1; i <= kMaxLayers; ++i) record_.LayerVelZ[i] = -i;
  Fill();
  {
    const Scripted_Messages messages({Answer::Ok});
    Take_Openings("7", table_);
  }
  entry_.texts("Text2") = "7";
  EXPECT_TRUE(Save().CanClose);
  for (int i = 1; i <= kMaxLayers; ++i) EXPECT_EQ(record_.LayerVelZ[i], i <= 2 ? -i : 0) << i;
}

TEST_F(OperationData, The_Number_Of_The_Rows_Shown_Wipes_Nothing) {
  EXPECT_EQ(Take_Openings("", table_), "");
  EXPECT_EQ(Take_Openings("2", table_), "2");
  EXPECT_EQ(Rows(), "Set 1: 1 -1, Set 2: 2 -2");
}

TEST_F(OperationData, The_Number_Is_Written_In_Its_Pattern) {
  EXPECT_EQ(Take_Openings(" 3", table_), "3");
  EXPECT_EQ(Take_Openings("4x", table_), "4");
  EXPECT_EQ(Take_Openings("2.5", table_), "2");  // half to even
  EXPECT_EQ(Take_Openings("3.5", table_), "4");
}

TEST_F(OperationData, Nothing_And_0_Are_Accepted_Without_A_Word) {
  for (const char* typed : {"", "0", "x", "0.4", "-"}) {
    EXPECT_EQ(Take_Openings(typed, table_), typed);
    EXPECT_EQ(Openings_Remark(typed), "With 0 openings the model input holds no material.");
  }
  EXPECT_EQ(Rows(), "Set 1: 1 -1, Set 2: 2 -2");
  EXPECT_EQ(Openings_Remark("1"), "");
  EXPECT_EQ(Openings_Remark("9"), "");  // OK stores 6
}

TEST_F(OperationData, Any_Other_Number_Is_Told_And_The_Text_Stays) {
  for (const char* typed : {"7", "-1", "1e300", "70000"}) {
    Scripted_Messages messages({Answer::Ok});
    EXPECT_EQ(Take_Openings(typed, table_), typed);
    ASSERT_EQ(messages.shown.size(), 1u) << typed;
    EXPECT_EQ(messages.shown[0].text, "Number of Openings Must Be Between 1 and 6");
    EXPECT_EQ(messages.shown[0].icon, Icon::None);
    EXPECT_EQ(messages.shown[0].title, "BARVON");
  }
  EXPECT_EQ(Rows(), "Set 1: 1 -1, Set 2: 2 -2");
}

TEST_F(OperationData, What_Nobody_Touched_Keeps_All_Its_Digits) {
  EXPECT_TRUE(Save().CanClose);
  EXPECT_EQ(Changed(), Names{"DataSaved"});
  EXPECT_EQ(record_.XBARGE, 1200.126);
}

TEST_F(OperationData, A_Hopper_Stores_Its_Fields_And_The_Rows_Of_Its_Openings) {
  entry_.texts("Text1", 0) = "1500 ft";
  entry_.texts("Text1", 1) = "";
  entry_.texts("Text1", 8) = "4.5";  // half to even
  Take_Openings("3", table_);
  entry_.texts("Text2") = "3";
  table_.NumberRC(3, 2, 0.75);
  EXPECT_TRUE(Save().CanClose);
  EXPECT_EQ(Changed(),
            (Names{"DataSaved", "LayerVelX", "LayerVelZ", "XBARGE", "ZBARGE", "NBINS", "NOPENS"}));
  EXPECT_EQ(record_.XBARGE, 1500);
  EXPECT_EQ(record_.ZBARGE, 0);
  EXPECT_EQ(record_.NBINS, 4);
  EXPECT_EQ(record_.NOPENS, 3);
  EXPECT_EQ(record_.LayerVelX[1], 0);
  EXPECT_EQ(record_.LayerVelZ[3], 0.75);
  EXPECT_EQ(record_.LayerVelX[4], 4);
}

TEST_F(OperationData, Counts_Out_Of_Range_Never_Reach_The_Record) {
  for (const auto& [typed, stored] :
       {std::pair{"7", 6}, {"70000", 6}, {"-2", 0}, {"", 0}, {"0", 0}, {"6", 6}}) {
    Fill();
    entry_.texts("Text2") = typed;
    EXPECT_TRUE(Save().CanClose);
    EXPECT_EQ(record_.NOPENS, stored) << typed;
  }
}

TEST_F(OperationData, A_Barge_Leaves_Hopper_And_Velocities_Alone) {
  record_.DisposalMethod = kBarge;
  Fill();
  entry_.texts("Text1", 2) = "210";
  entry_.texts("Text1", 3) = "52";
  entry_.texts("Text1", 5) = "14";
  entry_.texts("Text1", 6) = "4";
  entry_.texts("Text1", 7) = "25";
  table_.NumberRC(1, 1, 99);
  EXPECT_TRUE(Save().CanClose);
  EXPECT_EQ(Changed(),
            (Names{"DataSaved", "DREL1", "DREL2", "BargeLength", "BargeWidth", "BargeEmptyTime"}));
}

TEST_F(OperationData, A_Pipeline_Leaves_Vessel_And_Depression_Alone) {
  record_.DisposalMethod = kContinuous;
  record_.XHOLE = 500;
  Fill();
  int number = 1;
  for (int i = 0; i < kPipelineFields; ++i) entry_.texts("Text4", i) = std::to_string(number++);
  entry_.texts("Text4", kPipeDuration) = "5400.5";
  EXPECT_TRUE(Save().CanClose);
  EXPECT_EQ(Changed(), (Names{"DataSaved", "VesselSpeed", "VesselCourse", "DischargeDuration",
                              "DischargeRate", "PipeRadius", "DischargeDepth", "DischargeAngle"}));
  EXPECT_EQ(record_.DischargeDuration, 5400);
  EXPECT_EQ(record_.DischargeAngle, 7);
}

TEST_F(OperationData, A_Number_Beyond_16_Bits_Is_Named_And_Nothing_Is_Stored) {
  entry_.texts("Text1", 0) = "5";
  entry_.texts("Text1", 8) = "32768";
  const Operation_Result result = Save({Answer::Ok});
  EXPECT_FALSE(result.CanClose);
  ASSERT_TRUE(result.refused);
  EXPECT_EQ(result.refused->Reference(), "Text1(8)");
  ASSERT_EQ(shown_.size(), 1u);
  EXPECT_EQ(shown_[0].text,
            "Number of Bins That Open Simultaneously Must Be Between -32768 and 32767.  Please "
            "Correct.");
  EXPECT_EQ(Changed(), Names{});

  record_.DisposalMethod = kContinuous;
  Fill();
  entry_.texts("Text4", kPipeDuration) = "-40000";
  EXPECT_EQ(Save({Answer::Ok}).refused->Reference(), "Text4(2)");
  EXPECT_EQ(shown_[0].text,
            "Duration of Disposal Operation (sec) Must Be Between -32768 and 32767.  Please "
            "Correct.");
  EXPECT_EQ(Changed(), Names{});
}

/// The same hopper over a depression of 500 ft by 400 ft.
class OverADepression : public OperationData {
 protected:
  OverADepression() {
    entry_.Check3D1 = true;
    entry_.texts("Text3", 0) = "500";
    entry_.texts("Text3", 1) = "400";
    entry_.texts("Text3", 2) = "12.5";
  }
};

TEST_F(OverADepression, A_Hopper_Is_Asked_Whether_It_May_Lie_Still) {
  EXPECT_TRUE(Save({Answer::Yes}).CanClose);
  ASSERT_EQ(shown_.size(), 1u);
  EXPECT_EQ(shown_[0].text,
            "Depression Dumping is Restricted to Stationary Vessels. Vessel Velocity Will be Set "
            "to Zero.  Do you Wish to Continue?");
  EXPECT_EQ(shown_[0].title, "BARVON");
  EXPECT_EQ(shown_[0].buttons, Buttons::YesNoCancel);
}

TEST_F(OverADepression, Yes_Stops_The_Vessel_At_Each_Opening) {
  const Operation_Result result = Save({Answer::Yes});
  EXPECT_TRUE(result.CanClose);
  EXPECT_TRUE(result.Check3D1);
  EXPECT_EQ(Changed(), (Names{"DataSaved", "LayerVelX", "LayerVelZ", "XHOLE", "ZHOLE", "DHOLE"}));
  EXPECT_EQ(record_.LayerVelX[1], 0);
  EXPECT_EQ(record_.LayerVelZ[2], 0);
  EXPECT_EQ(record_.LayerVelX[3], 3);  // no opening
  EXPECT_EQ(record_.XHOLE, 500);
  EXPECT_EQ(record_.ZHOLE, 400);
  EXPECT_EQ(record_.DHOLE, 12.5);
  EXPECT_EQ(Rows(), "Set 1: 0 0, Set 2: 0 0");
}

TEST_F(OverADepression, No_Drops_The_Depression_And_Stays) {
  record_.DHOLE = 3;
  *before_ = record_;
  const Operation_Result result = Save({Answer::No});
  EXPECT_FALSE(result.CanClose);
  EXPECT_FALSE(result.Check3D1);
  EXPECT_EQ(Changed(), (Names{"DataSaved", "DHOLE"}));
  EXPECT_EQ(record_.DHOLE, 0);
  EXPECT_EQ(Rows(), "Set 1: 1 -1, Set 2: 2 -2");
}

TEST_F(OverADepression, Cancel_Keeps_It_And_Stays) {
  entry_.texts("Text2") = "1";
  const Operation_Result result = Save({Answer::Cancel});
  EXPECT_FALSE(result.CanClose);
  EXPECT_TRUE(result.Check3D1);
  EXPECT_EQ(record_.XHOLE, 500);
  EXPECT_EQ(record_.NOPENS, 1);
  EXPECT_EQ(record_.LayerVelX[1], 1);
}

TEST_F(OverADepression, A_Barge_Is_Not_Asked) {
  record_.DisposalMethod = kBarge;
  Fill();
  entry_.Check3D1 = true;
  entry_.texts("Text3", 0) = "500";
  EXPECT_TRUE(Save().CanClose);
  EXPECT_EQ(Changed(), (Names{"DataSaved", "XHOLE"}));
}

TEST_F(OverADepression, A_Cleared_Box_Takes_The_Depression_Away) {
  record_.XHOLE = record_.ZHOLE = record_.DHOLE = 9;
  Fill();
  EXPECT_TRUE(entry_.Check3D1);
  entry_.Check3D1 = false;
  EXPECT_TRUE(Save().CanClose);
  EXPECT_EQ(Changed(), (Names{"DataSaved", "XHOLE", "ZHOLE", "DHOLE"}));
}

TEST_F(OverADepression, The_Record_Declares_It_By_Either_Length) {
  EXPECT_FALSE(Has_Depression(record_));
  record_.DHOLE = 5;
  EXPECT_FALSE(Has_Depression(record_));
  record_.ZHOLE = -1;
  EXPECT_TRUE(Has_Depression(record_));
  record_.ZHOLE = 0;
  record_.XHOLE = 1;
  EXPECT_TRUE(Has_Depression(record_));
}

TEST_F(OverADepression, Cancel_Of_The_Screen_Brings_Back_What_A_Refused_OK_Stored) {
  for (const Answer answer : {Answer::No, Answer::Cancel}) {
    Fill();
    entry_.Check3D1 = true;
    entry_.texts("Text1", 0) = "77";
    entry_.texts("Text1", 8) = "5";
    entry_.texts("Text2") = "1";
    entry_.texts("Text3", 0) = "500";
    table_.NumberRC(1, 1, 44);
    EXPECT_FALSE(Save({answer}).CanClose);
    EXPECT_EQ(record_.XBARGE, 77);
    Reset_Vars(copy_, record_);
    EXPECT_EQ(Changed(), Names{"DataSaved"});
    record_.DataSaved = kTrue;
  }
}

TEST_F(OverADepression, Dropped_And_Declared_Again_It_Has_All_Its_Digits) {
  record_.XHOLE = 200.4, record_.ZHOLE = 150.3, record_.DHOLE = 12.34;
  Fill();
  EXPECT_FALSE(Save({Answer::No}).CanClose);
  EXPECT_EQ(record_.XHOLE, 0);
  EXPECT_EQ(record_.DHOLE, 0);
  // The screen's fields are filled anew, with the 0 that the record has; their texts stand.
  for (int i = 0; i < kDepressionFields; ++i) entry_.texts.Set_Filled({"Text3", i}, "0");
  entry_.texts("Text3", 1) = "160";
  EXPECT_TRUE(Save({Answer::Yes}).CanClose);
  EXPECT_EQ(record_.XHOLE, 200.4);
  EXPECT_EQ(record_.ZHOLE, 160);
  EXPECT_EQ(record_.DHOLE, 12.34);
}

TEST_F(OverADepression, Cancel_After_A_Save_Leaves_Something_To_Save) {
  entry_.Check3D1 = true;
  entry_.texts("Text1", 0) = "77";
  Save({Answer::Cancel});
  record_.DataSaved = record_.SavedUnderScreens = kTrue;
  Reset_Vars(copy_, record_);
  EXPECT_EQ(record_.XBARGE, 1200.126);
  EXPECT_EQ(record_.DataSaved, kFalse);
}

TEST_F(OverADepression, Cancel_After_Two_Refused_OKs_Goes_Back_To_The_Opening) {
  Save({Answer::Cancel});
  entry_.texts("Text3", 0) = "600";
  entry_.texts("Text1", 1) = "11";
  Save({Answer::No});
  Reset_Vars(copy_, record_);
  EXPECT_EQ(Changed(), Names{"DataSaved"});
}

TEST_F(OverADepression, What_Somebody_Else_Has_Stored_Meanwhile_Stays) {
  record_.ZBARGE = 1;  // before there was an OK
  Reset_Vars(copy_, record_);
  EXPECT_EQ(record_.ZBARGE, 1);
  Fill();
  entry_.Check3D1 = true;
  entry_.texts("Text1", 0) = "77";
  entry_.texts("Text1", 1) = "88";
  entry_.texts("Text1", 5) = "99";
  Save({Answer::Cancel});
  record_.XBARGE = 55;
  record_.ZBARGE = 66;
  entry_.texts("Text1", 0) = "78";  // and is overwritten by another OK
  entry_.texts("Text1", 1) = "66";
  Save({Answer::Cancel});
  Reset_Vars(copy_, record_);
  EXPECT_EQ(record_.XBARGE, 55);
  EXPECT_EQ(record_.ZBARGE, 66);
  EXPECT_EQ(record_.DREL1, 20);
}

TEST_F(OperationData, The_Plan_Shows_What_Is_Typed) {
  record_.MMAX0 = record_.NMAX0 = 11;
  record_.DX0 = record_.DZ0 = 100;
  entry_.texts("Text1", 0) = "300";
  entry_.texts("Text1", 8) = "1";
  entry_.texts("Text1", 2) = "44";
  entry_.texts("Text1", 7) = "100";
  table_.NumberRC(1, 1, 9);
  Site_Plan site = Entered_Site(entry_, table_, record_);
  EXPECT_EQ(site.length_x, 1000);
  EXPECT_EQ(site.disposal_point, (Feet_Point{300, 800}));
  EXPECT_EQ(site.vessel_length, 44);
  EXPECT_EQ(site.vessel_width, 20);
  ASSERT_EQ(site.course.size(), 2u);
  EXPECT_EQ(site.course[0].x, 9);
  EXPECT_EQ(site.course[0].seconds, 50);
  EXPECT_EQ(site.hole_x, 0);

  entry_.Check3D1 = true;
  entry_.texts("Text3", 0) = "250";
  entry_.texts("Text3", 1) = "150";
  site = Entered_Site(entry_, table_, record_);
  EXPECT_TRUE(site.course.empty());
  EXPECT_EQ(site.hole_x, 250);
  EXPECT_EQ(site.hole_z, 150);
}

TEST_F(OperationData, The_Plan_Of_A_Barge_And_Of_A_Pipeline_Shows_Theirs) {
  record_.DisposalMethod = kBarge;
  record_.LAYERS = 2;
  Fill();
  entry_.texts("Text1", 2) = "200";
  entry_.texts("Text1", 7) = "30";
  Site_Plan site = Entered_Site(entry_, table_, record_);
  EXPECT_EQ(site.vessel_length, 200);
  ASSERT_EQ(site.course.size(), 2u);
  EXPECT_EQ(site.course[1].x, 2);
  EXPECT_EQ(site.course[1].seconds, 15);

  record_.DisposalMethod = kContinuous;
  Fill();
  entry_.texts("Text4", 0) = "3";
  entry_.texts("Text4", 1) = "180";
  entry_.texts("Text4", 2) = "70000";  // refused at OK, but to be seen
  entry_.Check3D1 = true;
  site = Entered_Site(entry_, table_, record_);
  ASSERT_EQ(site.course.size(), 1u);
  EXPECT_EQ(site.course[0].x, -3);
  EXPECT_EQ(site.course[0].seconds, 70000);
  EXPECT_EQ(site.hole_x, 0);
}

TEST_F(OperationData, Wild_Numbers_Make_A_Plan_All_The_Same) {
  for (const char* typed : {"1e300", "-1e300", "", "x"}) {
    for (int i = 0; i < kOperationFields; ++i) entry_.texts("Text1", i) = typed;
    entry_.texts("Text2") = typed;
    table_.TextRC(1, 1, typed);
    Draw_Site(Entered_Site(entry_, table_, record_));
  }
}

TEST_F(OperationData, A_Place_From_The_Plan_Is_Shown_As_The_Field_Shows_It) {
  EXPECT_EQ(Place_Text(1200), "1200.00");
  EXPECT_EQ(Place_Text(0.5), "0.50");
}

}  // namespace
}  // namespace barvon::testing
