#include "params/simulation_data.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/book_numbers.h"
#include "core/keys.h"
#include "core/project_defaults.h"
#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

class SimulationData : public ::testing::Test {
 protected:
  SimulationData() {
    Set_Project_Defaults(record_);
    for (int i = 1; i <= kMaxPrintTimes; ++i) record_.PrintTimes[i] = 100.5 * i;
    *before_ = record_;
  }

  static Simulation_Entry Entry(const std::string& count, bool own_print_times = true) {
    Simulation_Entry entry;
    entry.texts("Text1", kDuration) = "3600";
    entry.texts("Text1", kTimeStep) = "100";
    entry.texts("Text2") = count;
    entry.SSCheck2[kOwnPrintTimes] = own_print_times;
    return entry;
  }
  void Fill(std::int16_t count) {
    record_.NumPrintTimes = count;
    Fill_Print_Times(record_, table_);
    *before_ = record_;
  }
  void Take(const std::string& typed) { Take_Print_Count(typed, copy_, table_, record_); }
  Names Changed() const { return Differing_Fields(*before_, record_); }

  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  std::unique_ptr<ProjectRecord> before_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *owner_;
  Spreadsheet_Table table_{kBookNumbers};
  Simulation_Copy copy_;
};

TEST_F(SimulationData, Times_Are_Shown_In_Whole_Seconds) {
  record_.SimulationDuration = 3600.4;
  record_.LongTermTimeStep = 0;
  const Field_Texts texts = Fill_Fields(Simulation_Fields(), record_);
  EXPECT_EQ(texts("Text1", kDuration), "3600.");
  EXPECT_EQ(texts("Text1", kTimeStep), "0.");
}

TEST_F(SimulationData, Advice_Follows_The_Type_Of_Analysis) {
  EXPECT_EQ(Time_Hint(kDuration, 1), "(Note: Duration of 2400 Sec is Generally Sufficient.)");
  EXPECT_EQ(Time_Hint(kDuration, 2),
            "(Note: Duration of 14400 Sec should be specified for water column evaluations.)");
  EXPECT_EQ(Time_Hint(kDuration, 3),
            "(Note: Duration of 3600 Sec should be specified for water column evaluations.)");
  EXPECT_EQ(Time_Hint(kTimeStep, 1),
            "Time Step Must Be Greater than Time to End of Collapse Phase. Recommendation for "
            "Diffusion Evaluations: Use 100, 200, 300 sec.  Use 300 sec if Grid Spacing is Large "
            "for Given Velocity, Use 100 sec if Grid Spacing Small");
  EXPECT_EQ(Time_Hint(kTimeStep, 2),
            "Time Step Must Be Greater than Time to End of Collapse Phase. Recommendation for "
            "Water Column Evaluations: Use 600,900, or 1800 sec.  Use 1800 sec if Grid Spacing is "
            "Large for Given Velocity, Use 300 sec if Grid Spacing Small");
  EXPECT_EQ(Time_Hint(kTimeStep, 3),
            "Time Step Must Be Greater than Time to End of Collapse Phase. Recommendation for "
            "Water Column Evaluations: Use 100, 300, or 600 sec.  Use 600 sec if Grid Spacing is "
            "Large for Given Velocity, Use 100 sec if Grid Spacing Small");
  for (const std::int16_t other : {-1, 0, 4}) {
    EXPECT_EQ(Time_Hint(kDuration, other), std::nullopt);
    EXPECT_EQ(Time_Hint(kTimeStep, other), std::nullopt);
  }
}

TEST_F(SimulationData, A_Number_Of_Print_Times_From_A_File_Is_Brought_In_Without_A_Message) {
  const Scripted_Messages none;
  for (const auto& [stored, held] :
       std::vector<std::pair<int, int>>{{-3, 0}, {0, 0}, {12, 12}, {13, 12}, {32767, 12}}) {
    record_.NumPrintTimes = static_cast<std::int16_t>(stored);
    Hold_Print_Count(record_);
    EXPECT_EQ(record_.NumPrintTimes, held) << stored;
  }
}

TEST_F(SimulationData, The_Table_Has_One_Column_And_A_Row_For_Each_Print_Time) {
  Fill(3);
  EXPECT_EQ(table_.MaxCol(), 1);
  EXPECT_EQ(table_.ColText(1), "Time (sec)");
  EXPECT_EQ(table_.MaxRow(), 3);
  EXPECT_EQ(table_.RowText(1), "Time 1");
  EXPECT_EQ(table_.RowText(3), "Time 3");
  EXPECT_EQ(table_.NumberRC(3, 1), 301.5);
  EXPECT_EQ(table_.Selection(), "A1:A3");
}

TEST_F(SimulationData, Without_Print_Times_The_Table_Has_One_Row) {
  Fill(0);
  EXPECT_EQ(table_.MaxRow(), 1);
  EXPECT_EQ(table_.RowText(1), "Time 1");
  EXPECT_EQ(Print_Count_Text(record_), "0");
}

TEST_F(SimulationData, A_Number_On_Its_Way_To_A_Larger_One_Loses_No_Cell) {
  Fill(10);
  table_.TextRC(7, 1, "777");
  Take("1");
  EXPECT_EQ(table_.MaxRow(), 1);
  EXPECT_EQ(record_.NumPrintTimes, 1);
  Take("12");
  EXPECT_EQ(table_.MaxRow(), 12);
  EXPECT_EQ(table_.RowText(12), "Time 12");
  EXPECT_EQ(table_.TextRC(7, 1), "777");
  EXPECT_EQ(table_.NumberRC(12, 1), 1206);
}

TEST_F(SimulationData, No_Number_Leaves_The_Rows_And_Means_No_Print_Times) {
  Fill(4);
  for (const char* typed : {"", "0", "x"}) {
    Take("4");
    Take(typed);
    EXPECT_EQ(record_.NumPrintTimes, 0) << typed;
    EXPECT_EQ(table_.MaxRow(), 4) << typed;
  }
}

TEST_F(SimulationData, Thirteen_Print_Times_Are_Refused_And_Nothing_Changes) {
  Fill(4);
  for (const char* typed : {"13", "12.6", "40000", "1e300"}) {
    const Scripted_Messages boxes({Answer::Ok});
    Take(typed);
    ASSERT_EQ(boxes.shown.size(), 1u) << typed;
    EXPECT_EQ(boxes.shown[0].text, "Maximum Number of Print Time is 12.  Please Correct Entry");
    EXPECT_EQ(boxes.shown[0].icon, Icon::None);
    EXPECT_EQ(Changed(), Names{}) << typed;
    EXPECT_EQ(table_.MaxRow(), 4) << typed;
  }
}

TEST_F(SimulationData, A_Negative_Number_Of_Print_Times_Does_Not_Reach_The_Record) {
  Fill(4);
  const Scripted_Messages none;
  Take("-2");
  EXPECT_EQ(Changed(), Names{});
  EXPECT_EQ(table_.MaxRow(), 4);
}

TEST_F(SimulationData, A_Save_Takes_Times_Boxes_And_The_Rows_Shown) {
  Fill(2);
  record_.DataSaved = before_->DataSaved = kTrue;
  table_.TextRC(2, 1, "900.25");
  Simulation_Entry entry = Entry("2");
  entry.SSCheck2[kPrintsDescent] = entry.SSCheck2[kPrintsCollapse] = true;
  Save_Simulation(entry, table_, record_);
  EXPECT_EQ(record_.SimulationDuration, 3600);
  EXPECT_EQ(record_.LongTermTimeStep, 100);
  EXPECT_EQ(record_.PrintConvectiveDescent, 1);
  EXPECT_EQ(record_.PrintCollapse, 1);
  EXPECT_EQ(record_.NumPrintTimes, 2);
  EXPECT_EQ(record_.PrintTimes[2], 900.25);
  EXPECT_EQ(record_.DataSaved, kFalse);
}

TEST_F(SimulationData, Fewer_Print_Times_Leave_The_Older_Ones_In_The_Record) {
  Fill(5);
  table_.TextRC(1, 1, "10");
  table_.TextRC(4, 1, "40");
  Take("2");
  Save_Simulation(Entry("2"), table_, record_);
  EXPECT_EQ(record_.PrintTimes[1], 10);
  EXPECT_EQ(record_.PrintTimes[4], 402);
}

TEST_F(SimulationData, At_OK_A_Number_Of_Print_Times_Is_Brought_In) {
  const Scripted_Messages none;
  for (const auto& [typed, count] : std::vector<std::pair<std::string, int>>{
           {"13", 12}, {"1e300", 12}, {"-1", 1}, {"-1e300", 1}, {"", 0}, {"2.5", 2}, {"3.5", 4}}) {
    Fill(1);
    Save_Simulation(Entry(typed), table_, record_);
    EXPECT_EQ(record_.NumPrintTimes, count) << typed;
  }
}

TEST_F(SimulationData, A_Number_That_Is_Brought_In_Takes_Rows_That_Were_Hidden) {
  Fill(8);
  table_.TextRC(8, 1, "888");
  Take("1");
  Save_Simulation(Entry("15"), table_, record_);
  EXPECT_EQ(record_.NumPrintTimes, 12);
  EXPECT_EQ(record_.PrintTimes[8], 888);
  EXPECT_EQ(record_.PrintTimes[12], 1206);
}

TEST_F(SimulationData, Quarterly_Printing_Stores_No_Print_Time) {
  Fill(3);
  table_.TextRC(1, 1, "10");
  Save_Simulation(Entry("3", false), table_, record_);
  EXPECT_EQ(record_.NumPrintTimes, 0);
  EXPECT_EQ(record_.PrintTimes[1], 100.5);
}

TEST_F(SimulationData, A_Text_As_It_Was_Filled_Keeps_The_Value_Behind_It) {
  record_.SimulationDuration = 3600.4;
  Simulation_Entry entry = Entry("0", false);
  entry.texts("Text1", kDuration) = "3600.";
  entry.texts.Set_Filled({"Text1", kDuration}, "3600.");
  Save_Simulation(entry, table_, record_);
  EXPECT_EQ(record_.SimulationDuration, 3600.4);
}

TEST_F(SimulationData, Cancel_Restores_What_The_Screen_Wrote_And_Nothing_Else) {
  Fill(4);
  Take("7");
  Take("9");
  Choose_Printing(kPrintsDescent, true, copy_, record_);
  record_.PrintCollapse = before_->PrintCollapse = 1;               // by another screen
  record_.SimulationDuration = before_->SimulationDuration = 7200;  // likewise
  Reset_Vars(copy_, record_);
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(SimulationData, Cancel_After_A_Save_Leaves_Something_To_Save) {
  record_.SavedUnderScreens = kTrue;
  Fill(4);
  Choose_Printing(kPrintsDescent, record_.PrintConvectiveDescent == 0, copy_, record_);
  record_.DataSaved = kTrue;
  Reset_Vars(copy_, record_);
  EXPECT_EQ(record_.DataSaved, kFalse);
}

TEST_F(SimulationData, Each_Box_Is_In_The_Record_At_Once_And_Cancel_Takes_It_Back) {
  Fill(4);
  Choose_Printing(kPrintsDescent, true, copy_, record_);
  EXPECT_EQ(record_.PrintConvectiveDescent, 1);
  Choose_Printing(kPrintsDescent, false, copy_, record_);
  EXPECT_EQ(record_.PrintConvectiveDescent, 0);
  Choose_Printing(kPrintsCollapse, true, copy_, record_);
  EXPECT_EQ(record_.PrintCollapse, 1);
  Print_Quarterly(copy_, record_);
  EXPECT_EQ(record_.NumPrintTimes, 0);
  Reset_Vars(copy_, record_);
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(SimulationData, The_Picture_Gets_What_Is_Typed) {
  Fill(2);
  table_.TextRC(1, 1, "600");
  table_.TextRC(2, 1, "");
  const Run_Times own = Entered_Times(Entry("2"), table_, record_);
  EXPECT_EQ(own.duration, 3600);
  EXPECT_EQ(own.time_step, 100);
  EXPECT_TRUE(own.own_prints);
  ASSERT_EQ(own.prints.size(), 2u);
  EXPECT_EQ(own.prints[0], 600);
  EXPECT_NE(own.prints[1], own.prints[1]);  // an empty cell
  EXPECT_FALSE(Entered_Times(Entry("2", false), table_, record_).own_prints);
  EXPECT_FALSE(Entered_Times(Entry("0"), table_, record_).own_prints);
}

}  // namespace
}  // namespace barvon::testing
