#include "site/grid_rows.h"

#include <gtest/gtest.h>

#include "core/book_numbers.h"

namespace barvon {
namespace {

TEST(GridRows, A_Table_Gives_Its_Cells_Row_By_Row_And_0_For_An_Empty_One) {
  Spreadsheet_Table table(kBookNumbers);
  table.MaxRow(2);
  table.MaxCol(3);
  table.NumberRC(1, 3, 1.5);
  table.NumberRC(2, 1, -2);
  EXPECT_EQ(Rows_Of_Table(table), (Grid_Rows{{0, 0, 1.5}, {-2, 0, 0}}));
}

TEST(GridRows, Rows_Are_Put_In_As_One_Edit) {
  Spreadsheet_Table table(kBookNumbers);
  table.MaxRow(2);
  table.MaxCol(3);
  Put_Rows({{1, 2, 3}, {4, 5, 6}}, table);
  EXPECT_EQ(table.NumberRC(1, 3), 3);
  EXPECT_EQ(table.NumberRC(2, 1), 4);
  table.Undo();
  EXPECT_TRUE(table.IsEmptyRC(1, 3));
  EXPECT_TRUE(table.IsEmptyRC(2, 1));
}

}  // namespace
}  // namespace barvon
