#include "platform/table/filled_block.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "core/book_numbers.h"

namespace barvon::testing {
namespace {

constexpr Cell_Way kUp{-1, 0}, kDown{1, 0}, kLeft{0, -1}, kRight{0, 1};

/// Nine rows, of which 2 to 4 and 7 are filled in the first column; a cell lies below the table.
class FilledBlock : public ::testing::Test {
 protected:
  FilledBlock() {
    table.MaxRow(9);
    table.MaxCol(6);
    for (const int row : {2, 3, 4, 7, 12}) table.NumberRC(row, 1, row);
    for (const int col : {1, 2, 3, 6, 9}) table.TextRC(7, col, "x");
  }
  int Row(int row, Cell_Way way) const { return Block_Edge(table, {row, 1}, way).row; }
  int Col(int col, Cell_Way way) const { return Block_Edge(table, {7, col}, way).col; }

  Spreadsheet_Table table{kBookNumbers};
};

TEST_F(FilledBlock, Inside_It_The_Way_Leads_To_Its_Last_Cell) {
  EXPECT_EQ(Row(2, kDown), 4);
  EXPECT_EQ(Row(3, kDown), 4);
  EXPECT_EQ(Row(4, kUp), 2);
  EXPECT_EQ(Col(1, kRight), 3);
  EXPECT_EQ(Col(3, kLeft), 1);
}

TEST_F(FilledBlock, From_Its_End_And_From_An_Empty_Cell_To_The_Next_Filled_One) {
  EXPECT_EQ(Row(4, kDown), 7);
  EXPECT_EQ(Row(7, kUp), 4);
  EXPECT_EQ(Row(1, kDown), 2) << "the first cell of a block, not its last";
  EXPECT_EQ(Row(6, kUp), 4);
  EXPECT_EQ(Col(3, kRight), 6);
  EXPECT_EQ(Col(5, kLeft), 3);
}

TEST_F(FilledBlock, To_The_Edge_Of_The_Table_Where_Nothing_Follows) {
  EXPECT_EQ(Row(7, kDown), 9) << "cells below the table are not looked at";
  EXPECT_EQ(Row(8, kDown), 9);
  EXPECT_EQ(Row(2, kUp), 1);
  EXPECT_EQ(Row(9, kDown), 9);
  EXPECT_EQ(Row(1, kUp), 1);
  EXPECT_EQ(Col(6, kRight), 6);
  EXPECT_EQ(Block_Edge(table, {9, 6}, kLeft), (Cell_Place{9, 1}));
}

TEST_F(FilledBlock, A_Table_Without_Cells_Goes_Nowhere) {
  table.MaxRow(0);
  for (const Cell_Way way : {kUp, kDown, kLeft, kRight}) {
    EXPECT_EQ(Block_Edge(table, {1, 1}, way), (Cell_Place{1, 1}));
  }
}

TEST(FilledBlockProperty, Again_And_Again_It_Ends_At_The_Edge_And_Stops_At_Filled_Cells_Only) {
  EXPECT_TRUE(rc::check([] {
    Spreadsheet_Table table(kBookNumbers);
    table.MaxRow(12);
    for (int row = 1; row <= 12; ++row) {
      if (*rc::gen::arbitrary<bool>()) table.NumberRC(row, 1, 0);
    }
    Cell_Place at{*rc::gen::inRange(1, 13), 1};
    while (at.row < 12) {
      const Cell_Place on = Block_Edge(table, at, kDown);
      RC_ASSERT(on.row > at.row);
      RC_ASSERT(on.col == 1);
      RC_ASSERT(on.row == 12 || !table.IsEmptyRC(on.row, 1));
      at = on;
    }
    RC_ASSERT(at.row == 12);
  }));
}

}  // namespace
}  // namespace barvon::testing
