#include "core/record_columns.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <span>

#include "core/book_numbers.h"
#include "platform/table/spreadsheet_edits.h"
#include "platform/table/table_width.h"

namespace barvon {
namespace {

/// A load of a depth, a count and a name, over an array of each kind; [0] is unused.
struct Load {
  std::array<double, 4> depths{0, 10.25, 20.123456, 30};
  std::array<float, 4> speeds{0, 0.1F, -2.5F, 0};
  std::array<std::int16_t, 3> counts{0, 7, -3};
  std::array<std::string, 4> names{"", "Sand", "", "Silt"};
  std::array<std::array<double, 3>, 4> shares{{{}, {0, 1, 2}, {0, 3, 4}, {0, 5, 6}}};
  bool sticky = false;
};

constexpr Column_Cells<Load> kSticky = {
    1, [](const Load& load, int) { return Cell_Of(std::string(load.sticky ? "Y" : "N")); },
    [](const Table_Cell& cell, int, Load& load) {
      load.sticky = cell.table.TextRC(cell.row, cell.col) == "Y";
    }};

enum Layout : unsigned { kShort = 1, kLong = 2 };
constexpr Table_Column<Load> kColumns[] = {
    {"Name", Spreadsheet_Table::kAutoWidth, "", kCells<&Load::names>, kEveryLayout, true},
    {"Depth\n(ft)", Width_Of_Twips(2100), "##0.0", kCells<&Load::depths>},
    {"Speed", 700, "0.00", kCells<&Load::speeds>, kLong},
    {"Count", 0, "", kCells<&Load::counts>, kLong},
    {"Share", 0, "", kCells<&Load::shares, 2>, kLong},
    {"Keyword", 0, "", {}, kLong},
    {"Sticky?", 0, "", kSticky, kLong},
};

class RecordColumns : public ::testing::Test {
 protected:
  RecordColumns() { table.MaxRow(3); }

  Spreadsheet_Table table{kBookNumbers};
  Load load;
  const Shown_Columns<Load> all{kColumns};
};

TEST_F(RecordColumns, A_Layout_Ends_The_History_Of_Edits_Also_With_As_Many_Columns) {
  const std::span<const Table_Column<Load>> columns(kColumns);
  const Shown_Columns first(columns.first(2)), second(columns.subspan(2, 2));
  first.Lay_Out(1, 3, table);
  Type_Cell(table, 1, 2, "7");
  ASSERT_TRUE(table.CanUndo());
  second.Lay_Out(1, 3, table);
  EXPECT_FALSE(table.CanUndo());
}

TEST_F(RecordColumns, A_Layout_Has_Its_Own_Columns_In_Their_Order) {
  Shown_Columns(kColumns, kShort).Lay_Out(1, 3, table);
  EXPECT_EQ(table.MaxCol(), 2);
  EXPECT_EQ(table.ColText(1), "Name");
  EXPECT_EQ(table.ColText(2), "Depth\n(ft)");
  EXPECT_EQ(table.ColWidth(1), Spreadsheet_Table::kAutoWidth);
  EXPECT_EQ(table.ColWidth(2), 5120) << "2100 twips are 20 digits";
  all.Lay_Out(1, 3, table);
  EXPECT_EQ(table.MaxCol(), 7);
  EXPECT_EQ(table.ColText(3), "Speed");
  EXPECT_EQ(table.ColWidth(3), 700);
}

TEST_F(RecordColumns, The_Rows_That_Are_Laid_Out_Get_Pattern_And_Place) {
  all.Lay_Out(2, 3, table);
  EXPECT_EQ(table.StyleRC(1, 2).format, "");
  EXPECT_EQ(table.StyleRC(2, 2).format, "##0.0");
  EXPECT_EQ(table.StyleRC(3, 2).format, "##0.0");
  EXPECT_FALSE(table.StyleRC(1, 1).centred);
  EXPECT_TRUE(table.StyleRC(2, 1).centred);
  EXPECT_FALSE(table.StyleRC(2, 2).centred);
}

TEST_F(RecordColumns, Cells_Show_The_Pattern_And_Keep_Every_Digit) {
  all.Lay_Out(1, 3, table);
  all.Fill(load, 3, table);
  EXPECT_EQ(table.ShownRC(2, 2), "20.1");
  EXPECT_EQ(table.NumberRC(2, 2), 20.123456);
  EXPECT_EQ(table.NumberRC(1, 3), 0.1) << "not 0.100000001490116";
  EXPECT_EQ(table.NumberRC(2, 4), -3);
  EXPECT_EQ(table.NumberRC(3, 5), 6);
  EXPECT_EQ(table.TextRC(1, 1), "Sand");
  EXPECT_TRUE(table.IsEmptyRC(2, 1));
  EXPECT_EQ(table.TextRC(1, 7), "N");
}

TEST_F(RecordColumns, A_Short_Column_Ends_And_A_Shown_One_Belongs_To_Code) {
  table.TextRC(1, 6, "BETA");
  all.Fill(load, 1000, table);
  EXPECT_TRUE(table.IsEmptyRC(3, 4));
  EXPECT_TRUE(table.IsEmptyRC(2, 7));
  EXPECT_TRUE(table.IsEmptyRC(4, 2));
  EXPECT_EQ(table.TextRC(1, 6), "BETA");
  all.Fill(load, -3, table);
}

TEST_F(RecordColumns, Entries_Lie_Behind_The_Rows_Above_Them) {
  table.MaxRow(12);
  all.Fill(load, 3, table, 8);
  EXPECT_TRUE(table.IsEmptyRC(8, 1));
  EXPECT_EQ(table.TextRC(9, 1), "Sand");
  EXPECT_EQ(table.NumberRC(11, 2), 30);
  table.NumberRC(11, 2, 31);
  all.Store(table, 3, load, 8);
  EXPECT_EQ(load.depths[3], 31);
}

TEST_F(RecordColumns, Every_Kind_Of_Cell_Is_Read_Back) {
  all.Lay_Out(1, 3, table);
  all.Fill(load, 3, table);
  table.TextRC(1, 1, "Clay");
  table.TextRC(1, 2, "12.5 ft");
  table.TextRC(1, 3, "0.75");
  table.TextRC(1, 4, "8.5");
  table.NumberRC(2, 5, 0.25);
  table.TextRC(1, 7, "Y");
  all.Store(table, 3, load);
  EXPECT_EQ(load.names[1], "Clay");
  EXPECT_EQ(load.depths[1], 12.5);
  EXPECT_EQ(load.speeds[1], 0.75F);
  EXPECT_EQ(load.counts[1], 8);
  EXPECT_EQ(load.shares[2][2], 0.25);
  EXPECT_EQ(load.shares[2][1], 3);
  EXPECT_TRUE(load.sticky);
}

TEST_F(RecordColumns, What_Nobody_Touched_Comes_Back_Bit_By_Bit) {
  load.depths[1] = 1.0 / 3;
  load.depths[2] = std::numeric_limits<double>::infinity();
  load.speeds[1] = std::numeric_limits<float>::infinity();
  load.speeds[2] = 1.0F / 3;
  const Load before = load;
  all.Lay_Out(1, 3, table);
  all.Fill(load, 3, table);
  all.Store(table, 3, load);
  EXPECT_EQ(load.depths, before.depths);
  EXPECT_EQ(load.speeds, before.speeds);
  EXPECT_EQ(load.counts, before.counts);
  EXPECT_EQ(load.names, before.names);
}

TEST_F(RecordColumns, Numbers_Beyond_An_Entrys_Range_Become_Its_End) {
  all.Lay_Out(1, 3, table);
  table.TextRC(1, 3, "-1E+300");
  table.TextRC(1, 4, "40000");
  table.NumberRC(2, 4, std::numeric_limits<double>::quiet_NaN());
  all.Store(table, 2, load);
  EXPECT_EQ(load.speeds[1], std::numeric_limits<float>::lowest());
  EXPECT_EQ(load.counts[1], 32767);
  EXPECT_EQ(load.counts[2], 0);
}

TEST_F(RecordColumns, Only_Rows_Of_The_Table_Are_Read) {
  all.Lay_Out(1, 3, table);
  table.MaxRow(1);
  table.NumberRC(1, 2, 1);
  table.NumberRC(2, 2, 2);
  all.Store(table, 3, load);
  EXPECT_EQ(load.depths[1], 1);
  EXPECT_EQ(load.depths[2], 20.123456);
}

TEST_F(RecordColumns, Rows_And_Columns_Are_Numbered) {
  Number_Rows("Set ", 2, table);
  Number_Columns("Layer ", 6, table);
  EXPECT_EQ(table.RowText(1), "Set 1");
  EXPECT_EQ(table.RowText(2), "Set 2");
  EXPECT_EQ(table.ColText(6), "Layer 6");
}

}  // namespace
}  // namespace barvon
