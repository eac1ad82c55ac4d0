#include "platform/table/spreadsheet_table.h"

#include <gtest/gtest.h>

#include "core/book_numbers.h"

namespace barvon::testing {
namespace {

class SpreadsheetTable : public ::testing::Test {
 protected:
  void Size(int rows, int cols) {
    table.MaxRow(rows);
    table.MaxCol(cols);
  }
  /// Row and column as a number, "23" in row 2, column 3, in that many cells.
  void Fill(int rows, int cols) {
    for (int row = 1; row <= rows; ++row) {
      for (int col = 1; col <= cols; ++col) table.NumberRC(row, col, 10 * row + col);
    }
  }
  std::string Line(int row, int cols) {
    std::string line;
    for (int col = 1; col <= cols; ++col) line += (col > 1 ? "|" : "") + table.TextRC(row, col);
    return line;
  }

  Spreadsheet_Table table{kBookNumbers};
};

TEST_F(SpreadsheetTable, A_Text_Stays_As_It_Was_Written_And_Reads_By_Its_Leading_Number) {
  Size(3, 3);
  for (const auto& [text, number] : std::vector<std::pair<std::string, double>>{{"1.50", 1.5},
                                                                                {" 62 ", 62},
                                                                                {"62,5", 62},
                                                                                {"0.02-0.03", 0.02},
                                                                                {"3-6", 3},
                                                                                {"Y or N", 0},
                                                                                {"-", 0},
                                                                                {"1D3", 1000},
                                                                                {"ft 5", 0}}) {
    table.TextRC(2, 2, text);
    EXPECT_EQ(table.TextRC(2, 2), text);
    EXPECT_EQ(table.NumberRC(2, 2), number) << text;
    EXPECT_EQ(table.EntryRC(2, 2), text);
  }
}

TEST_F(SpreadsheetTable, A_Number_Is_Shown_In_Its_Format_And_Kept_At_Full_Precision) {
  Size(3, 3);
  ASSERT_TRUE(table.Selection("B2"));
  table.NumberFormat("###0.0000");
  EXPECT_EQ(table.NumberFormat(), "###0.0000");
  table.NumberRC(2, 2, 1.02345678);
  EXPECT_EQ(table.TextRC(2, 2), "1.0235");
  EXPECT_EQ(table.ShownRC(2, 2), "1.0235");
  EXPECT_EQ(table.NumberRC(2, 2), 1.02345678);
  EXPECT_EQ(table.EntryRC(2, 2), "1.02345678");
  table.NumberRC(1, 1, 1.02345678);
  EXPECT_EQ(table.TextRC(1, 1), "1.02345678") << "no format";
}

// How a result is read back as it is shown.
TEST_F(SpreadsheetTable, A_Text_In_A_Pattern_Reads_With_The_Decimals_Of_The_Pattern) {
  table.NumberRC(1, 1, 1.02345678);
  table.NumberFormat({1, 1, 1, 1}, "###0.0000");
  table.TextRC(1, 1, table.TextRC(1, 1));
  EXPECT_EQ(table.NumberRC(1, 1), 1.0235);
}

TEST_F(SpreadsheetTable, A_Text_That_Is_Nothing_But_A_Number_Is_Shown_In_The_Format) {
  table.NumberFormat({1, 1, 1, 1}, "0.00000");
  table.TextRC(1, 1, "1.30");
  EXPECT_EQ(table.ShownRC(1, 1), "1.30000");
  EXPECT_EQ(table.TextRC(1, 1), "1.30");
  EXPECT_TRUE(table.IsNumberRC(1, 1));
  for (const char* text : {"3-6", "1,3", "none", "1 200"}) {
    table.TextRC(1, 1, text);
    EXPECT_EQ(table.ShownRC(1, 1), text);
    EXPECT_FALSE(table.IsNumberRC(1, 1)) << text;
  }
}

TEST_F(SpreadsheetTable, An_Empty_Cell_Reads_As_Nothing_And_0) {
  EXPECT_TRUE(table.IsEmptyRC(1, 1));
  EXPECT_EQ(table.TextRC(1, 1), "");
  EXPECT_EQ(table.NumberRC(1, 1), 0);
  EXPECT_FALSE(table.IsNumberRC(1, 1));
  table.NumberRC(1, 1, 0);
  EXPECT_FALSE(table.IsEmptyRC(1, 1)) << "a zero is something";
  EXPECT_EQ(table.TextRC(1, 1), "0");
  table.TextRC(1, 1, "");
  EXPECT_TRUE(table.IsEmptyRC(1, 1));
}

TEST_F(SpreadsheetTable, The_Cursor_Reads_And_Writes_Its_Cell) {
  Size(4, 4);
  EXPECT_EQ(table.Row(), 1);
  EXPECT_EQ(table.Col(), 1);
  table.Row(3);
  table.Col(2);
  table.Text("a");
  EXPECT_EQ(table.TextRC(3, 2), "a");
  table.Number(2.5);
  EXPECT_EQ(table.NumberRC(3, 2), 2.5);
  EXPECT_EQ(table.Number(), 2.5);
  EXPECT_EQ(table.Text(), "2.5");
  EXPECT_EQ(table.Selection(), "B3") << "the cursor takes the selection along";
  table.SetActiveCell(0, 5000);
  EXPECT_EQ(table.Row(), 1);
  EXPECT_EQ(table.Col(), Spreadsheet_Table::kSheetCols);
}

TEST_F(SpreadsheetTable, A_Selection_Is_A_Range_With_The_Cursor_In_It) {
  Size(12, 8);
  table.SetActiveCell(2, 2);
  EXPECT_TRUE(table.Selection("A1:H12"));
  EXPECT_EQ(table.Selection(), "A1:H12");
  EXPECT_EQ(table.Row(), 2) << "it is inside";
  EXPECT_TRUE(table.Selection("C5:D6"));
  EXPECT_EQ(table.Row(), 5);
  EXPECT_EQ(table.Col(), 3);
  EXPECT_FALSE(table.Selection("all"));
  EXPECT_FALSE(table.Selection("A5000:B6000")) << "outside the sheet";
  EXPECT_EQ(table.Selection(), "C5:D6");
  EXPECT_TRUE(table.Selection("A1:G5000"));
  EXPECT_EQ(table.Selection(), "A1:G1024") << "cut to the sheet";
  table.SelectAll();
  EXPECT_EQ(table.Selection(), "A1:H12");
}

TEST_F(SpreadsheetTable, A_Table_That_Shrinks_And_Grows_Keeps_Its_Cells) {
  Size(3, 3);
  Fill(3, 3);
  table.SetActiveCell(3, 3);
  Size(1, 2);
  EXPECT_EQ(table.Row(), 1);
  EXPECT_EQ(table.Col(), 2);
  EXPECT_EQ(table.Selection(), "B1");
  EXPECT_EQ(table.NumberRC(3, 3), 33) << "it is there, though not shown";
  Size(3, 3);
  EXPECT_EQ(Line(3, 3), "31|32|33");
}

TEST_F(SpreadsheetTable, A_Size_Outside_The_Sheet_Is_Brought_In) {
  Size(-1, 0);
  EXPECT_EQ(table.MaxRow(), 0);
  EXPECT_EQ(table.MaxCol(), 0);
  EXPECT_EQ(table.TableRange(), (Cell_Range{1, 1, 1, 1}));
  Size(100000, 100000);
  EXPECT_EQ(table.MaxRow(), 1024);
  EXPECT_EQ(table.MaxCol(), 256);
}

TEST_F(SpreadsheetTable, Outside_The_Sheet_There_Is_Nothing_To_Read_Or_Write) {
  for (const auto& [row, col] : std::vector<std::pair<int, int>>{
           {0, 1}, {1, 0}, {-5, -5}, {1025, 1}, {1, 257}, {2000000000, 2000000000}}) {
    table.NumberRC(row, col, 7);
    table.TextRC(row, col, "7");
    EXPECT_EQ(table.NumberRC(row, col), 0);
    EXPECT_EQ(table.TextRC(row, col), "");
    EXPECT_TRUE(table.IsEmptyRC(row, col));
    EXPECT_EQ(table.StyleRC(row, col), Cell_Style());
  }
  table.ClearRange({-5, -5, 0, 0});
  table.DeleteShiftUp({2000, 1, 2001, 1});
  table.NumberFormat({-1, -1, 5000, 5000}, "0.0");
  EXPECT_EQ(table.StyleRC(1024, 256).format, "0.0");
}

TEST_F(SpreadsheetTable, Headings_Are_Numbers_And_Letters_Until_They_Get_A_Text) {
  EXPECT_EQ(table.RowText(3), "3");
  EXPECT_EQ(table.ColText(28), "AB");
  table.RowText(3, "Point 3");
  table.ColText(28, "Volumetric\nFraction");
  EXPECT_EQ(table.RowText(3), "Point 3");
  EXPECT_EQ(table.ColText(28), "Volumetric\nFraction");
  table.RowText(3, "");
  EXPECT_EQ(table.RowText(3), "") << "a heading may be empty";
}

TEST_F(SpreadsheetTable, Columns_Have_Widths_Of_Their_Own_Or_All_The_Same) {
  EXPECT_EQ(table.ColWidth(2), 0);
  table.ColWidth(2, 3650);
  EXPECT_EQ(table.ColWidth(2), 3650);
  EXPECT_EQ(table.ColWidth(3), 0);
  table.AutoColWidth();
  EXPECT_EQ(table.ColWidth(2), Spreadsheet_Table::kAutoWidth);
  EXPECT_EQ(table.ColWidth(200), Spreadsheet_Table::kAutoWidth);
  table.RowHeadingWidth(2800);
  table.ColHeadingHeight(550);
  EXPECT_EQ(table.RowHeadingWidth(), 2800);
  EXPECT_EQ(table.ColHeadingHeight(), 550);
}

TEST_F(SpreadsheetTable, Formats_Centring_And_Fonts_Do_Not_Disturb_Each_Other) {
  Size(12, 8);
  ASSERT_TRUE(table.Selection("A1:H8"));
  table.Centred(true);
  ASSERT_TRUE(table.Selection("A1:H12"));
  table.Font("ariel", 10);
  ASSERT_TRUE(table.Selection("A9:H9"));
  table.NumberFormat("####0.000");
  EXPECT_EQ(table.StyleRC(8, 8), (Cell_Style{"", true, "ariel", 10}));
  EXPECT_EQ(table.StyleRC(9, 1), (Cell_Style{"####0.000", false, "ariel", 10}));
  EXPECT_EQ(table.StyleRC(12, 1), (Cell_Style{"", false, "ariel", 10}));
  EXPECT_EQ(table.StyleRC(13, 1), Cell_Style());
  EXPECT_FALSE(table.Centred()) << "the cursor stands in row 9";
  EXPECT_EQ(table.LargestFont(), 10);
}

TEST_F(SpreadsheetTable, Clearing_Leaves_Formats) {
  Size(2, 2);
  Fill(2, 2);
  table.NumberFormat({1, 1, 2, 2}, "0.0");
  table.ClearRange({1, 1, 1, 2});
  EXPECT_EQ(Line(1, 2), "|");
  EXPECT_EQ(Line(2, 2), "21.0|22.0");
  table.ClearAll();
  EXPECT_EQ(Line(2, 2), "|");
  table.NumberRC(2, 2, 5);
  EXPECT_EQ(table.TextRC(2, 2), "5.0");
}

// A row of the four fractions goes, and those under it move up; the rows above are left alone.
TEST_F(SpreadsheetTable, A_Deleted_Row_Lets_The_Rows_Below_Move_Up) {
  Size(4, 2);
  Fill(5, 3);
  table.RowText(4, "fourth");
  table.DeleteShiftUp({2, 1, 2, 2});
  EXPECT_EQ(Line(1, 3), "11|12|13");
  EXPECT_EQ(Line(2, 3), "31|32|23") << "column 3 is not in the range";
  EXPECT_EQ(Line(4, 3), "51|52|43") << "what stood below the table comes in";
  EXPECT_EQ(Line(5, 3), "||53");
  EXPECT_EQ(table.RowText(3), "fourth") << "all columns of the table: headings move too";
  table.DeleteShiftUp({1, 1, 2, 1});
  EXPECT_EQ(Line(1, 2), "41|12");
  EXPECT_EQ(table.RowText(3), "fourth") << "one column of two: headings stay";
}

// The eighth column lies outside the table of 7 when the third is deleted, and comes in.
TEST_F(SpreadsheetTable, A_Deleted_Column_Lets_The_Columns_Behind_It_Move_Left) {
  Size(2, 8);
  Fill(2, 8);
  table.ColText(3, "Volumetric");
  table.ColText(4, "Fall");
  table.ColWidth(4, 3400);
  table.NumberFormat({1, 4, 2, 4}, "0.0");
  table.MaxCol(7);
  table.DeleteShiftLeft({1, 3, 2, 3});
  EXPECT_EQ(Line(1, 8), "11|12|14.0|15|16|17|18|");
  EXPECT_EQ(Line(2, 8), "21|22|24.0|25|26|27|28|");
  EXPECT_EQ(table.ColText(2), "B");
  EXPECT_EQ(table.ColText(3), "Fall") << "the deleted column's heading is gone with it";
  EXPECT_EQ(table.ColText(4), "D");
  EXPECT_EQ(table.ColWidth(3), 3400);
  table.MaxCol(8);
  table.InsertShiftRight({1, 3, 2, 3});
  EXPECT_EQ(Line(2, 8), "21|22||24.0|25|26|27|28");
  EXPECT_EQ(table.ColText(3), "C");
  EXPECT_EQ(table.ColText(4), "Fall");
}

TEST_F(SpreadsheetTable, A_Shift_Of_Some_Rows_Leaves_The_Others_And_The_Headings) {
  Size(3, 3);
  Fill(3, 3);
  table.ColText(2, "two");
  table.InsertShiftRight({2, 1, 2, 2});
  EXPECT_EQ(Line(1, 5), "11|12|13||");
  EXPECT_EQ(Line(2, 5), "||21|22|23");
  EXPECT_EQ(table.ColText(2), "two");
  table.DeleteShiftLeft({2, 2, 2, 9});
  EXPECT_EQ(Line(2, 5), "||||") << "a range wider than what is there";
}

TEST_F(SpreadsheetTable, An_Inserted_Row_Pushes_The_Rows_Down) {
  Size(2, 2);
  Fill(2, 2);
  table.InsertShiftDown({1, 1, 1, 2});
  EXPECT_EQ(Line(1, 2), "|");
  EXPECT_EQ(Line(2, 2), "11|12");
  EXPECT_EQ(Line(3, 2), "21|22");
  table.NumberRC(1024, 1, 9);
  table.InsertShiftDown({1, 1, 1, 2});
  EXPECT_EQ(table.NumberRC(1024, 1), 0) << "pushed off the sheet";
}

class Recorder {
 public:
  explicit Recorder(Spreadsheet_Table& table) {
    table.Watch({[this](const Cell_Range& range) { Add(Range_Text(range)); },
                 [this] { Add("shape"); }, [this] { Add("headings"); }, [this] { Add("cursor"); }});
  }
  std::string Told() { return std::exchange(told_, ""); }

 private:
  void Add(const std::string& what) { told_ += (told_.empty() ? "" : " ") + what; }
  std::string told_;
};

TEST_F(SpreadsheetTable, Tells_Its_Watcher_What_Changed_And_Nothing_When_Nothing_Did) {
  Recorder recorder(table);
  Size(5, 5);
  EXPECT_EQ(recorder.Told(), "shape shape");
  table.NumberRC(2, 3, 1);
  table.NumberRC(2, 3, 1);
  EXPECT_EQ(recorder.Told(), "C2");
  table.SetActiveCell(2, 2);
  table.SetActiveCell(2, 2);
  EXPECT_EQ(recorder.Told(), "cursor");
  table.ColText(1, "Depth (ft)");
  EXPECT_EQ(recorder.Told(), "headings");
  table.MaxRow(5);
  EXPECT_EQ(recorder.Told(), "");
  {
    const Edit_Step step(table);
    table.TextRC(1, 1, "a");
    table.TextRC(3, 2, "b");
    EXPECT_EQ(recorder.Told(), "");
  }
  EXPECT_EQ(recorder.Told(), "A1:B3") << "a step is told at its end, as one range";
}

TEST_F(SpreadsheetTable, A_Fill_Is_Told_As_One_Change) {
  Recorder recorder(table);
  {
    const Table_Fill fill(table);
    Size(96, 96);
    {
      const Table_Fill inner(table);
      Fill(96, 96);
    }
    table.SetActiveCell(1, 1);
    EXPECT_EQ(recorder.Told(), "");
  }
  EXPECT_EQ(recorder.Told(), "shape");
}

}  // namespace
}  // namespace barvon::testing
