#include "site/depth_grid.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <memory>
#include <string>

#include "core/book_numbers.h"
#include "platform/ask/busy_cursor.h"
#include "site/open_site_boxes.h"
#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

class DepthGrid : public ::testing::Test {
 protected:
  ~DepthGrid() override { Set_Open_Site_Boxes({}); }

  void Show(int columns, int rows, bool Check3D2 = false) {
    ShowDepthGrid({columns, rows}, Check3D2, record_, table_);
  }

  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *owner_;
  Spreadsheet_Table table_{kBookNumbers};
};

TEST_F(DepthGrid, The_Size_Is_What_Stands_On_The_Open_Site_Screen) {
  record_.NMAX0 = record_.MMAX0 = 32;
  Set_Open_Site_Boxes(Site_Boxes{"12", "20"});
  const auto size = Ask_Depth_Grid_Size(record_);
  EXPECT_EQ(size->columns, 12);
  EXPECT_EQ(size->rows, 20);
}

TEST_F(DepthGrid, Without_An_Open_Site_Screen_The_Size_Is_The_Records) {
  record_.NMAX0 = 12;
  record_.MMAX0 = 20;
  const auto size = Ask_Depth_Grid_Size(record_);
  EXPECT_EQ(size->columns, 12);
  EXPECT_EQ(size->rows, 20);
}

TEST_F(DepthGrid, The_Size_Is_The_Whole_Part_Of_What_Is_Typed_And_Held_To_No_Lower_Limit_But_1) {
  const std::pair<const char*, int> counts[] = {{"12.9", 12}, {"96.5", 96},  {"1", 1},
                                                {"5", 5},     {" 20 x", 20}, {"9.6E1", 96}};
  for (const auto& [typed, count] : counts) {
    Set_Open_Site_Boxes(Site_Boxes{typed, typed});
    const auto size = Ask_Depth_Grid_Size(record_);
    ASSERT_TRUE(size) << typed;
    EXPECT_EQ(size->columns, count);
    EXPECT_EQ(size->rows, count);
  }
}

TEST_F(DepthGrid, A_Size_That_The_Grid_Does_Not_Hold_Is_Refused_In_Words) {
  for (const char* typed : {"97", "1e9", "1e300", "0", "0.9", "-5", "", "many", "-1e300"}) {
    for (const bool z_is_wrong : {true, false}) {
      Set_Open_Site_Boxes(z_is_wrong ? Site_Boxes{typed, "20"} : Site_Boxes{"20", typed});
      Scripted_Messages messages({Answer::Ok});
      EXPECT_FALSE(Ask_Depth_Grid_Size(record_)) << typed;
      ASSERT_EQ(messages.shown.size(), 1u);
      EXPECT_EQ(messages.shown[0].text,
                std::string("A Depth Grid Has 1 to 96 Points in the ") + (z_is_wrong ? "Z" : "X") +
                    "-Direction.  Please Correct the Number of Grid Points First.");
    }
  }
}

TEST_F(DepthGrid, Cells_Stand_By_Column_And_Row_Under_Their_Headings) {
  record_.DepthGrid[12][20] = 45.678;
  record_.DepthGrid[3][2] = 7;
  Show(12, 20);
  EXPECT_EQ(table_.MaxCol(), 12);
  EXPECT_EQ(table_.MaxRow(), 20);
  EXPECT_EQ(table_.ColText(12), "Col 12");
  EXPECT_EQ(table_.RowText(20), "Row 20");
  EXPECT_EQ(table_.RowHeadingWidth(), 2000);
  EXPECT_EQ(table_.ShownRC(20, 12), "45.68");
  EXPECT_EQ(table_.ShownRC(2, 3), "7.00");
  EXPECT_EQ(table_.ShownRC(3, 2), "0.00");
}

TEST_F(DepthGrid, The_One_Depth_Shows_Everywhere_While_The_Box_Is_Checked) {
  record_.DEPTHI = 30.5;
  record_.DepthGrid[2][2] = 7;
  Show(3, 2, true);
  for (int row = 1; row <= 2; ++row) {
    for (int column = 1; column <= 3; ++column) EXPECT_EQ(table_.ShownRC(row, column), "30.50");
  }
  Show(3, 2, false);
  EXPECT_EQ(table_.ShownRC(2, 2), "7.00");
  EXPECT_EQ(table_.ShownRC(1, 1), "0.00");
  record_.DEPTHI = 0;
  Show(3, 2, true);
  EXPECT_EQ(table_.ShownRC(2, 2), "7.00");
}

TEST_F(DepthGrid, What_Is_Shown_And_Stored_Untouched_Is_Not_Rounded) {
  record_.DepthGrid[2][1] = 12.3456789;
  Show(2, 2);
  const auto before = std::make_unique<ProjectRecord>(record_);
  SaveDepthGrid({false, ""}, table_, record_);
  EXPECT_EQ(Differing_Fields(*before, record_), Names{});
}

TEST_F(DepthGrid, Initialize_Fills_Every_Cell_And_Can_Be_Undone) {
  record_.DepthGrid[2][1] = 7;
  Show(3, 2);
  Initialize_Depth_Grid(25.5, true, table_);
  for (int row = 1; row <= 2; ++row) {
    for (int column = 1; column <= 3; ++column) EXPECT_EQ(table_.ShownRC(row, column), "25.50");
  }
  EXPECT_TRUE(table_.Undo());
  EXPECT_EQ(table_.ShownRC(1, 2), "7.00");
}

TEST_F(DepthGrid, Initialize_Does_Nothing_Without_The_Box_Or_Without_A_Depth_Above_0) {
  Show(3, 2);
  const Scripted_Messages none;
  Initialize_Depth_Grid(25, false, table_);
  Initialize_Depth_Grid(0, true, table_);
  Initialize_Depth_Grid(-3, true, table_);
  EXPECT_EQ(table_.ShownRC(1, 1), "0.00");
  EXPECT_FALSE(table_.CanUndo());
}

TEST_F(DepthGrid, A_Save_Stores_The_Table_And_Nothing_Beside_It) {
  record_.DepthGrid[4][1] = 9;  // beside the table
  Show(3, 2);
  table_.TextRC(2, 3, "41.5 ft");
  table_.TextRC(1, 2, "deep");
  record_.DataSaved = kTrue;
  record_.DEPTHI = 5;
  SaveDepthGrid({false, "30"}, table_, record_);
  EXPECT_EQ(record_.DepthGrid[3][2], 41.5);
  EXPECT_EQ(record_.DepthGrid[2][1], 0);
  EXPECT_EQ(record_.DepthGrid[4][1], 9);
  EXPECT_EQ(record_.DataSaved, kFalse);
  EXPECT_EQ(record_.DEPTHI, 0) << "the box is not checked";
}

TEST_F(DepthGrid, With_The_Box_A_Depth_Above_0_Is_Kept) {
  Show(3, 2);
  const Scripted_Messages none;
  SaveDepthGrid({true, "30.25"}, table_, record_);
  EXPECT_EQ(record_.DEPTHI, 30.25);
}

TEST_F(DepthGrid, With_The_Box_A_Depth_Of_0_Is_Told_And_The_Table_Stored_All_The_Same) {
  for (const char* typed : {"0", "", "shallow"}) {
    Show(3, 2);
    table_.NumberRC(1, 1, 44);
    record_.DEPTHI = 12;
    Scripted_Messages messages({Answer::Ok});
    SaveDepthGrid({true, typed}, table_, record_);
    ASSERT_EQ(messages.shown.size(), 1u) << typed;
    EXPECT_EQ(messages.shown[0].text, "Depth Cannot Be Initialized to Zero");
    EXPECT_EQ(messages.shown[0].title, "BARVON");
    EXPECT_EQ(messages.shown[0].icon, Icon::Critical);
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(record_.DEPTHI, 12);
    EXPECT_EQ(record_.DepthGrid[1][1], 44);
  }
}

TEST_F(DepthGrid, With_The_Box_A_Negative_Depth_Is_Passed_Over_Without_A_Word) {
  Show(3, 2);
  record_.DEPTHI = 12;
  const Scripted_Messages none;
  SaveDepthGrid({true, "-3"}, table_, record_);
  EXPECT_EQ(record_.DEPTHI, 12);
}

TEST_F(DepthGrid, The_Wait_Cursor_Stands_During_Each_Step_And_No_Longer_Than_Its_Message) {
  std::vector<bool> seen;
  bool up = false;
  const auto former = Set_Cursor_Presenter([&](bool now) {
    up = now;
    seen.push_back(now);
  });
  Show(3, 2);
  Initialize_Depth_Grid(3, true, table_);
  EXPECT_EQ(seen, (std::vector<bool>{true, false, true, false}));
  const auto former_box = Set_Message_Presenter([&](const Message&) {
    EXPECT_FALSE(up);
    return Answer::Ok;
  });
  SaveDepthGrid({true, "0"}, table_, record_);
  EXPECT_FALSE(up);
  EXPECT_EQ(seen.size(), 6u);
  Set_Message_Presenter(former_box);
  Set_Cursor_Presenter(former);
}

TEST_F(DepthGrid, The_Greatest_Depth_Is_Looked_For_With_Rows_And_Columns_Exchanged) {
  // A table of 12 columns and 20 rows is stored in [1..12][1..20]; [1..20][1..12] is looked at.
  record_.NMAX0 = 12;
  record_.MMAX0 = 20;
  record_.DepthGrid[5][13] = 80;   // in the table, in row 13, but not looked at
  record_.DepthGrid[20][12] = 60;  // beside the table, but looked at
  record_.DepthGrid[12][12] = 50;
  EXPECT_EQ(MaxGridDepth(record_), 60);
  record_.DepthGrid[20][12] = 0;
  EXPECT_EQ(MaxGridDepth(record_), 50);
}

TEST_F(DepthGrid, The_Greatest_Depth_Starts_From_0) {
  record_.NMAX0 = record_.MMAX0 = 8;
  for (auto& column : record_.DepthGrid) column.fill(-5);
  EXPECT_EQ(MaxGridDepth(record_), 0);
}

TEST_F(DepthGrid, Counts_Of_The_Record_Beyond_The_Grid_Read_Nothing_Behind_It) {
  record_.NMAX0 = 200;
  record_.MMAX0 = -4;
  EXPECT_EQ(MaxGridDepth(record_), 0);
  record_.MMAX0 = 32767;
  record_.DepthGrid[96][96] = 3;
  EXPECT_EQ(MaxGridDepth(record_), 3);
}

TEST_F(DepthGrid, Only_A_Grid_That_Is_Not_Square_Says_That_Depths_Do_Not_Reach_The_Solver) {
  Show(32, 32);
  EXPECT_EQ(Depth_Grid_Remark({}, table_), "");
  Show(12, 20);
  EXPECT_EQ(Depth_Grid_Remark({}, table_),
            "The solver takes \"Col a\", \"Row b\" as X point a and Z point b. This grid is not "
            "square, so some of these depths never reach it.");
}

TEST_F(DepthGrid, A_Table_Says_When_The_Next_Opening_Shows_One_Depth_Instead) {
  const std::string other =
      "While the box is checked, the next opening shows 30.25 ft in every cell, not these depths.";
  Show(2, 2);
  EXPECT_EQ(Depth_Grid_Remark({true, "30.25"}, table_), other);
  EXPECT_EQ(Depth_Grid_Remark({false, "30.25"}, table_), "");
  for (const char* no_depth : {"0", "", "-3"}) {
    EXPECT_EQ(Depth_Grid_Remark({true, no_depth}, table_), "") << no_depth;
  }
  Initialize_Depth_Grid(30.25, true, table_);
  EXPECT_EQ(Depth_Grid_Remark({true, "30.25"}, table_), "");
  table_.NumberRC(2, 2, 31);
  EXPECT_EQ(Depth_Grid_Remark({true, "30.25"}, table_), other);
}

RC_GTEST_PROP(DepthGridProperty, Stored_Depths_Are_Shown_Again_In_Any_Size, ()) {
  const auto record = std::make_unique<ProjectRecord>();
  const Depth_Grid_Size size{*rc::gen::inRange(1, 97), *rc::gen::inRange(1, 97)};
  Spreadsheet_Table table(kBookNumbers);
  ShowDepthGrid(size, false, *record, table);
  const int row = *rc::gen::inRange(1, size.rows + 1);
  const int column = *rc::gen::inRange(1, size.columns + 1);
  const double depth = *rc::gen::inRange(-100000, 100000) / 64.0;
  table.NumberRC(row, column, depth);
  SaveDepthGrid({false, ""}, table, *record);
  RC_ASSERT(record->DepthGrid[column][row] == depth);
  Spreadsheet_Table again(kBookNumbers);
  ShowDepthGrid(size, false, *record, again);
  RC_ASSERT(again.NumberRC(row, column) == depth);
}

}  // namespace
}  // namespace barvon::testing
