#include "site/drawn_cells.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/book_numbers.h"

namespace barvon {
namespace {

class DrawnCells : public ::testing::Test {
 protected:
  DrawnCells() : table(kBookNumbers) {
    table.MaxRow(2);
    table.MaxCol(3);
    table.NumberRC(1, 2, 1.5);
    table.TextRC(2, 3, "4 ft");
  }
  Spreadsheet_Table table;
};

TEST_F(DrawnCells, Are_Row_By_Row_And_No_Number_Where_A_Cell_Is_Empty) {
  const std::vector<double> cells = Drawn_Cells(table);
  ASSERT_EQ(cells.size(), 6U);
  EXPECT_EQ(cells[1], 1.5);
  EXPECT_EQ(cells[5], 4) << "the leading number";
  for (const std::size_t empty : {0U, 2U, 3U, 4U}) EXPECT_TRUE(std::isnan(cells[empty]));
}

TEST_F(DrawnCells, Follow_A_Range_And_Nothing_Beside_It) {
  std::vector<double> cells(6, 9);
  table.NumberRC(2, 1, -2);
  Follow_Cells(table, {2, 1, 2, 2}, cells);
  EXPECT_EQ(cells[3], -2);
  EXPECT_TRUE(std::isnan(cells[4]));
  for (const std::size_t other : {0U, 1U, 2U, 5U}) EXPECT_EQ(cells[other], 9);
}

TEST_F(DrawnCells, Follow_What_Of_A_Range_Is_In_The_Table) {
  std::vector<double> cells(6, 9);
  Follow_Cells(table, {2, 3, 5, 7}, cells);
  EXPECT_EQ(cells, (std::vector<double>{9, 9, 9, 9, 9, 4}));
  Follow_Cells(table, {3, 1, 3, 3}, cells);
  EXPECT_EQ(cells, (std::vector<double>{9, 9, 9, 9, 9, 4}));
}

}  // namespace
}  // namespace barvon
