#include "site/density_endpoints.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/table/spreadsheet_edits.h"
#include "site/site_support.h"
#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Cells = std::vector<std::string>;
using Texts = std::vector<std::string>;

const std::string kFirstIsSurface =
    "It is Required That the First Density Point be at the Surface.  Do You Wish to Have BARVON "
    "Automatically Make the First Depth the Fluid Surface?";
const std::string kLastIsBottom =
    "It is Required That the Last Density Point be at the Bottom.  Do You Wish to Have BARVON "
    "Automatically Make the Last Depth the Bottom?";
const std::string kSurfaceRow =
    "It is Required That the First Density Point be at the Surface.  Do You Wish to Have BARVON "
    "Automatically Add a Row and Make the First Depth the Surface?";
const std::string kBottomRow =
    "It is Required That the Last Density Point be at the Bottom.  Do You Wish to Have BARVON "
    "Automatically Add a Row and Make the Last Depth the Bottom?";

/// A site with a constant depth of 30.6 ft, unless a test says otherwise.
class DensityEndpoints : public ::testing::Test {
 protected:
  DensityEndpoints() { entry_.texts("Text1", kConstantDepth) = "30.6"; }

  /// n rows: the first at the surface or at 2 ft, the last at the bottom or at 20 ft.
  void Make(int n, int result) {
    std::vector<std::pair<double, double>> rows;
    for (int i = 0; i < n; ++i) rows.push_back({3 + i, 1.01 + 0.001 * i});
    rows.front().first = result == 1 || result == 3 ? 0 : 2;
    rows.back().first = result == 2 || result == 3 ? 30.6 : 20;
    table_ = Typed_Profile(rows);
    entry_.texts("Text1", kDensityPoints) = std::to_string(n);
  }

  /// Runs it with these answers; the questions asked.
  Texts Ensure(const std::vector<Answer>& answers) {
    Scripted_Messages messages(answers);
    ready_to_close_ = EnsureDensityEndpoints(entry_, *table_, record_);
    Texts asked;
    for (const Message& message : messages.shown) {
      asked.push_back(message.text);
      last_ = message;
    }
    return asked;
  }

  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *owner_;
  Site_Entry entry_;
  std::unique_ptr<Spreadsheet_Table> table_;
  bool ready_to_close_ = false;
  Message last_;
};

struct Case {
  int n, result;
  Texts asked;
};

TEST_F(DensityEndpoints, Each_Count_And_Each_State_Ask_Their_Own_Questions) {
  std::vector<Case> cases = {{5, 3, {}},
                             {5, 2, {kFirstIsSurface}},
                             {5, 1, {kLastIsBottom}},
                             {5, 0, {kLastIsBottom, kFirstIsSurface}},
                             {4, 3, {}},
                             {4, 2, {kSurfaceRow}},
                             {4, 1, {kBottomRow}},
                             {4, 0, {kBottomRow}}};
  for (const int n : {2, 3}) {
    cases.push_back({n, 3, {}});
    cases.push_back({n, 2, {kSurfaceRow}});
    cases.push_back({n, 1, {kBottomRow}});
    cases.push_back({n, 0, {kBottomRow, kSurfaceRow}});
  }
  for (const Case& c : cases) {
    for (const Answer answer : {Answer::Yes, Answer::No}) {
      Make(c.n, c.result);
      EXPECT_EQ(Check_Depths(entry_, *table_, record_).result, c.result) << c.n;
      EXPECT_EQ(Ensure(std::vector<Answer>(c.asked.size(), answer)), c.asked)
          << c.n << " " << c.result;
      const bool adds = c.n < 5 && answer == Answer::Yes;
      const int rows = c.n + (adds ? static_cast<int>(c.asked.size()) : 0);
      EXPECT_EQ(table_->MaxRow(), rows) << c.n << " " << c.result;
      EXPECT_EQ(entry_.texts("Text1", kDensityPoints), std::to_string(rows));
      EXPECT_EQ(ready_to_close_, rows == c.n) << c.n << " " << c.result;
    }
  }
}

TEST_F(DensityEndpoints, Each_Question_Has_An_Answer_Of_Its_Own) {
  for (const int n : {2, 3}) {
    Make(n, 0);
    Ensure({Answer::Yes, Answer::No});
    EXPECT_EQ(table_->ShownRC(1, 1), "2.0");
    EXPECT_EQ(table_->ShownRC(n + 1, 1), "30.6");
    EXPECT_EQ(entry_.texts("Text1", kDensityPoints), std::to_string(n + 1));
    EXPECT_FALSE(ready_to_close_) << "the row that was added is not filled yet";
    Make(n, 0);
    Ensure({Answer::No, Answer::Yes});
    EXPECT_EQ(table_->ShownRC(1, 1), "0.0");
    EXPECT_EQ(table_->ShownRC(n + 1, 1), "20.0");
    EXPECT_EQ(entry_.texts("Text1", kDensityPoints), std::to_string(n + 1));
    EXPECT_FALSE(ready_to_close_);
  }
  Make(5, 0);
  Ensure({Answer::Yes, Answer::No});
  EXPECT_EQ(Shown_Column(*table_, 1), (Cells{"2.0", "4.0", "5.0", "6.0", "31.0"}));
  Make(5, 0);
  Ensure({Answer::No, Answer::Yes});
  EXPECT_EQ(Shown_Column(*table_, 1), (Cells{"0.0", "4.0", "5.0", "6.0", "20.0"}));
}

TEST_F(DensityEndpoints, A_Bottom_Beyond_32_Bits_Is_Refused_In_Words_And_Adds_No_Row) {
  for (const int n : {2, 4}) {
    Make(n, 1);
    entry_.texts("Text1", kConstantDepth) = "1e300";
    EXPECT_EQ(Ensure({Answer::Yes, Answer::Ok}),
              (Texts{kBottomRow, "The Bottom Depth Is Too Large.  Please Correct It."}));
    EXPECT_EQ(table_->MaxRow(), n);
    EXPECT_EQ(entry_.texts("Text1", kDensityPoints), std::to_string(n));
    EXPECT_TRUE(ready_to_close_);
  }
}

TEST_F(DensityEndpoints, A_Count_Outside_2_To_5_Asks_Nothing) {
  for (const char* count : {"1", "0", "-3", "6", "97", "", "many", "1e300", "-1e300"}) {
    Make(3, 0);
    entry_.texts("Text1", kDensityPoints) = count;
    EXPECT_EQ(Ensure({}), Texts{}) << count;
    EXPECT_TRUE(ready_to_close_);
    EXPECT_EQ(table_->MaxRow(), 3);
    EXPECT_EQ(entry_.texts("Text1", kDensityPoints), count);
  }
}

TEST_F(DensityEndpoints, The_Count_Is_Rounded_Half_To_Even) {
  Make(4, 0);
  entry_.texts("Text1", kDensityPoints) = "4.5";  // 4: one row is free
  EXPECT_EQ(Ensure({Answer::No}), Texts{kBottomRow});
  Make(4, 0);
  entry_.texts("Text1", kDensityPoints) = "3.5";  // 4
  EXPECT_EQ(Ensure({Answer::No}), Texts{kBottomRow});
  Make(3, 0);
  entry_.texts("Text1", kDensityPoints) = "1.5";  // 2
  EXPECT_EQ(Ensure({Answer::No, Answer::No}), (Texts{kBottomRow, kSurfaceRow}));
  Make(5, 0);
  entry_.texts("Text1", kDensityPoints) = "5.5";  // 6
  EXPECT_EQ(Ensure({}), Texts{});
}

TEST_F(DensityEndpoints, The_Questions_Are_Yes_Or_No_With_The_Information_Icon) {
  for (const int n : {5, 4}) {
    for (const int result : {1, 2}) {
      Make(n, result);
      Ensure({Answer::No});
      EXPECT_EQ(last_.title, "BARVON Information");
      EXPECT_EQ(last_.buttons, Buttons::YesNo);
      EXPECT_EQ(last_.icon, Icon::Information);
    }
  }
}

TEST_F(DensityEndpoints, Two_Rows_With_Neither_End_Right_And_Yes_Twice_End_With_Four) {
  Make(2, 0);
  Ensure({Answer::Yes, Answer::Yes});
  EXPECT_EQ(Shown_Column(*table_, 1), (Cells{"0.0", "2.0", "20.0", "30.6"}));
  EXPECT_EQ(Shown_Column(*table_, 2), (Cells{"", "1.0100", "1.0110", ""}));
  EXPECT_FALSE(ready_to_close_);
}

TEST_F(DensityEndpoints, A_Row_More_At_The_Bottom_Is_Not_Rounded) {
  entry_.texts("Text1", kConstantDepth) = "30.64";
  Make(4, 1);
  Ensure({Answer::Yes});
  EXPECT_EQ(table_->NumberRC(5, 1), 30.64);
  EXPECT_EQ(table_->ShownRC(5, 1), "30.6");
  EXPECT_EQ(table_->ShownRC(5, 2), "");
  // The next OK finds the bottom.
  EXPECT_EQ(Check_Depths(entry_, *table_, record_).result, 3);
}

TEST_F(DensityEndpoints, Without_A_Free_Row_The_Last_Depth_Is_Taken_In_Whole_Feet) {
  const std::pair<const char*, const char*> depths[] = {
      {"30.6", "31.0"}, {"30.4", "30.0"}, {"30.5", "30.0"}, {"31.5", "32.0"}};
  for (const auto& [typed, shown] : depths) {
    Make(5, 1);
    entry_.texts("Text1", kConstantDepth) = typed;
    Ensure({Answer::Yes});
    EXPECT_EQ(table_->ShownRC(5, 1), shown);
    EXPECT_EQ(table_->MaxRow(), 5);
    EXPECT_TRUE(ready_to_close_);
  }
}

TEST_F(DensityEndpoints, A_Bottom_That_Rounds_To_0_Asks_For_Its_Depth) {
  Make(5, 1);
  table_->NumberRC(5, 1, 0.1);
  entry_.texts("Text1", kConstantDepth) = "0.4";
  EXPECT_EQ(Ensure({Answer::Yes, Answer::Ok}),
            (Texts{kLastIsBottom, "Please Provide Value for Bottom Depth."}));
  EXPECT_EQ(last_.title, "BARVON");
  EXPECT_EQ(last_.icon, Icon::None);
  EXPECT_EQ(last_.buttons, Buttons::Ok);
  EXPECT_EQ(table_->NumberRC(5, 1), 0.1);
}

TEST_F(DensityEndpoints, A_Bottom_Beyond_16_Bits_Is_Refused_In_Words) {
  Make(5, 1);
  entry_.texts("Text1", kConstantDepth) = "32768";
  EXPECT_EQ(Ensure({Answer::Yes, Answer::Ok}),
            (Texts{kLastIsBottom,
                   "The Bottom Depth Is Too Large to be Taken in Whole Feet.  "
                   "Please Correct It."}));
  EXPECT_EQ(table_->NumberRC(5, 1), 20);
  Make(5, 1);
  entry_.texts("Text1", kConstantDepth) = "32767";
  Ensure({Answer::Yes});
  EXPECT_EQ(table_->NumberRC(5, 1), 32767);
}

TEST_F(DensityEndpoints, Yes_To_The_Surface_Without_A_Free_Row_Sets_The_First_Depth) {
  Make(5, 2);
  Ensure({Answer::Yes});
  EXPECT_EQ(Shown_Column(*table_, 1), (Cells{"0.0", "4.0", "5.0", "6.0", "30.6"}));
  EXPECT_EQ(table_->ShownRC(1, 2), "1.0100");
  EXPECT_TRUE(ready_to_close_);
}

TEST_F(DensityEndpoints, No_Leaves_The_Table_As_It_Is) {
  for (const int n : {2, 3, 4, 5}) {
    Make(n, 0);
    const Cells depths = Shown_Column(*table_, 1), densities = Shown_Column(*table_, 2);
    Ensure(std::vector<Answer>(n == 4 ? 1 : 2, Answer::No));
    EXPECT_EQ(Shown_Column(*table_, 1), depths);
    EXPECT_EQ(Shown_Column(*table_, 2), densities);
  }
}

TEST_F(DensityEndpoints, A_New_First_Row_Leaves_Columns_3_And_4_Where_They_Are) {
  table_ = Computed_Profile({{2, 31, 11}, {30.6, 32, 12}});
  table_->TextRC(1, 4, "1.0200");
  table_->TextRC(2, 4, "1.0300");
  entry_.texts("Text1", kDensityPoints) = "2";
  Ensure({Answer::Yes});
  EXPECT_EQ(Shown_Column(*table_, 1), (Cells{"0.0", "2.0", "30.6"}));
  EXPECT_EQ(Shown_Column(*table_, 2), (Cells{"", "31.0", "32.0"}));
  EXPECT_EQ(Shown_Column(*table_, 3), (Cells{"11.0", "12.0", ""}));
  EXPECT_EQ(Shown_Column(*table_, 4), (Cells{"1.0200", "1.0300", ""}));
}

TEST_F(DensityEndpoints, A_New_First_Row_Ends_The_History_And_One_At_The_Bottom_Keeps_It) {
  Make(2, 2);
  Type_Cell(*table_, 1, 2, "1.05");
  Ensure({Answer::Yes});
  EXPECT_EQ(table_->Undo(), std::nullopt);
  EXPECT_EQ(Shown_Column(*table_, 2), (Cells{"", "1.0500", "1.0110"}));
  Make(2, 1);
  Type_Cell(*table_, 1, 2, "1.05");
  Ensure({Answer::Yes});
  EXPECT_EQ(table_->Undo(), (Cell_Range{1, 2, 1, 2}));
  EXPECT_EQ(Shown_Column(*table_, 2), (Cells{"1.0100", "1.0110", ""}));
}

TEST_F(DensityEndpoints, A_Depth_That_The_Program_Sets_Is_A_Step_Of_Its_Own) {
  Make(5, 0);
  Type_Cell(*table_, 1, 1, "7");
  Ensure({Answer::Yes, Answer::Yes});
  EXPECT_EQ(table_->Undo(), (Cell_Range{1, 1, 1, 1}));
  EXPECT_EQ(Shown_Column(*table_, 1), (Cells{"7.0", "4.0", "5.0", "6.0", "31.0"}));
  EXPECT_EQ(table_->Undo(), (Cell_Range{5, 1, 5, 1}));
  EXPECT_EQ(Shown_Column(*table_, 1), (Cells{"7.0", "4.0", "5.0", "6.0", "20.0"}));
  table_->Undo();
  EXPECT_EQ(table_->NumberRC(1, 1), 2);
}

TEST_F(DensityEndpoints, Cells_That_A_New_Row_Leaves_Open_Are_Empty_Whatever_Stood_There_Once) {
  table_ = Computed_Profile({{0, 31, 11}, {20, 32, 12}, {30, 33, 13}});
  table_->TextRC(3, 4, "1.0300");
  table_->MaxRow(2);  // the third row is kept below the table
  entry_.texts("Text1", kDensityPoints) = "2";
  Ensure({Answer::Yes});
  EXPECT_EQ(table_->ShownRC(3, 1), "30.6");
  for (int column = 2; column <= 4; ++column) EXPECT_TRUE(table_->IsEmptyRC(3, column)) << column;
}

TEST_F(DensityEndpoints, The_Record_Is_Not_Touched) {
  const auto before = std::make_unique<ProjectRecord>(record_);
  Make(2, 0);
  Ensure({Answer::Yes, Answer::Yes});
  EXPECT_EQ(Differing_Fields(*before, record_), Texts{});
}

TEST_F(DensityEndpoints, Depths_Are_Compared_As_32_Bit_Numbers) {
  Make(2, 1);
  table_->NumberRC(2, 1, 30.5999999);  // the same 32-bit number as 30.6
  EXPECT_EQ(Check_Depths(entry_, *table_, record_).result, 3);
  table_->NumberRC(2, 1, 30.59);
  EXPECT_EQ(Check_Depths(entry_, *table_, record_).result, 1);
  table_->NumberRC(1, 1, 1e-60);  // 0 as a 32-bit number
  EXPECT_EQ(Check_Depths(entry_, *table_, record_).result, 1);
}

TEST_F(DensityEndpoints, With_A_Variable_Depth_The_Bottom_Is_The_Grids_Greatest_Depth) {
  record_.NMAX0 = record_.MMAX0 = 8;
  record_.DepthGrid[8][8] = 44.5;
  Make(2, 1);
  entry_.variable_depth = true;
  EXPECT_EQ(Bottom_Depth(entry_, record_), 44.5);
  EXPECT_EQ(Check_Depths(entry_, *table_, record_).BottomDepth, 44.5F);
  Ensure({Answer::Yes});
  EXPECT_EQ(table_->NumberRC(3, 1), 44.5);
}

TEST_F(DensityEndpoints, A_Last_Depth_Below_The_Bottom_Is_Right) {
  Make(2, 1);
  table_->NumberRC(2, 1, 99);
  EXPECT_EQ(Check_Depths(entry_, *table_, record_).result, 3);
}

RC_GTEST_PROP(DensityEndpointsProperty, Yes_To_Everything_Asks_Nothing_A_Second_Time_Where_Rows_Are,
              ()) {
  // Up to three points leave room for both ends.
  const auto record = std::make_unique<ProjectRecord>();
  const int n = *rc::gen::inRange(2, 4);
  std::vector<std::pair<double, double>> rows;
  for (int i = 0; i < n; ++i) rows.push_back({*rc::gen::inRange(0, 900) / 10.0, 1.0});
  const auto table = Typed_Profile(rows);
  Site_Entry entry;
  entry.texts("Text1", kDensityPoints) = std::to_string(n);
  entry.texts("Text1", kConstantDepth) = std::to_string(*rc::gen::inRange(1, 900)) + ".5";
  {
    const Scripted_Messages messages(std::vector<Answer>(2, Answer::Yes));
    EnsureDensityEndpoints(entry, *table, *record);
  }
  RC_ASSERT(Check_Depths(entry, *table, *record).result == 3);
  const Scripted_Messages none;
  RC_ASSERT(EnsureDensityEndpoints(entry, *table, *record));
}

}  // namespace
}  // namespace barvon::testing
