#include "platform/table/spreadsheet_edits.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "core/book_numbers.h"

namespace barvon::testing {
namespace {

constexpr Cell_Range kSheetCorner{1, 1, 8, 8};

class SpreadsheetEdits : public ::testing::Test {
 protected:
  SpreadsheetEdits() {
    table.MaxRow(4);
    table.MaxCol(3);
  }
  void Type(int row, int col, const std::string& text) {
    const Edit_Outcome outcome = Type_Cell(table, row, col, text);
    EXPECT_EQ(outcome.refusal, "");
    EXPECT_EQ(outcome.changed, (Cell_Range{row, col, row, col}));
  }

  Spreadsheet_Table table{kBookNumbers};
};

TEST_F(SpreadsheetEdits, Typing_Is_A_Step_That_Can_Be_Undone_And_Redone) {
  table.NumberRC(2, 2, 1.23456789);
  EXPECT_FALSE(table.CanUndo()) << "what code writes is no step";
  Type(2, 2, "7");
  Type(2, 2, "8");
  EXPECT_EQ(table.Undo(), (Cell_Range{2, 2, 2, 2}));
  EXPECT_EQ(table.TextRC(2, 2), "7");
  table.Undo();
  EXPECT_EQ(table.NumberRC(2, 2), 1.23456789) << "with all its digits";
  EXPECT_FALSE(table.CanUndo());
  EXPECT_EQ(table.Undo(), std::nullopt);
  table.Redo();
  table.Redo();
  EXPECT_EQ(table.TextRC(2, 2), "8");
  EXPECT_EQ(table.Redo(), std::nullopt);
}

TEST_F(SpreadsheetEdits, A_New_Step_Ends_What_Can_Be_Redone) {
  Type(1, 1, "1");
  table.Undo();
  EXPECT_TRUE(table.CanRedo());
  Type(1, 2, "2");
  EXPECT_FALSE(table.CanRedo());
}

TEST_F(SpreadsheetEdits, The_Same_Text_Again_Is_No_Edit) {
  table.NumberRC(1, 1, 0.5);
  table.NumberFormat({1, 1, 1, 1}, "0.000");
  EXPECT_EQ(Type_Cell(table, 1, 1, "0.5").changed, std::nullopt);
  EXPECT_FALSE(table.CanUndo());
  EXPECT_EQ(Clear_Cells(table, {3, 1, 4, 3}).changed, std::nullopt) << "nothing to clear";
  EXPECT_FALSE(table.CanUndo());
}

TEST_F(SpreadsheetEdits, Fixed_Columns_Refuse_Every_Edit_And_Keep_Everything) {
  table.FixedCols(2);
  table.TextRC(1, 3, "mine");
  const std::string words = "The first 2 columns of the table can't be changed.";
  EXPECT_EQ(Type_Cell(table, 1, 2, "x").refusal, words);
  EXPECT_EQ(Clear_Cells(table, {1, 2, 1, 3}).refusal, words);
  EXPECT_EQ(Paste_Cells(table, {1, 2, 1, 2}, {{"x", "y"}}).refusal, words);
  EXPECT_EQ(table.TextRC(1, 3), "mine") << "all or nothing";
  EXPECT_FALSE(Can_Edit(table, 1, 2));
  EXPECT_TRUE(Can_Edit(table, 1, 3));
  table.FixedCols(1);
  EXPECT_EQ(Type_Cell(table, 1, 1, "x").refusal, "The first column of the table can't be changed.");
}

TEST_F(SpreadsheetEdits, A_Locked_Column_Keeps_What_It_Holds_And_Its_Neighbours_Are_Edited) {
  table.LockCol(2);
  table.TextRC(1, 2, "result");
  EXPECT_FALSE(Can_Edit(table, 1, 2));
  EXPECT_TRUE(Can_Edit(table, 1, 3));
  EXPECT_EQ(Paste_Cells(table, {1, 1, 1, 1}, {{"a", "b", "c"}}).refusal, "");
  EXPECT_EQ(table.TextRC(1, 1) + table.TextRC(1, 2) + table.TextRC(1, 3), "aresultc");
  EXPECT_EQ(Clear_Cells(table, {1, 1, 4, 3}).refusal, "");
  EXPECT_EQ(table.TextRC(1, 1) + table.TextRC(1, 2) + table.TextRC(1, 3), "result");
  const std::string words = "This column of the table can't be changed.";
  EXPECT_EQ(Type_Cell(table, 1, 2, "x").refusal, words);
  EXPECT_EQ(Paste_Cells(table, {1, 2, 1, 2}, {{"x"}}).refusal, words);
  EXPECT_EQ(Clear_Cells(table, {1, 2, 4, 2}).refusal, words);
}

TEST_F(SpreadsheetEdits, Fixed_Rows_Refuse_Every_Edit_And_Keep_Everything) {
  table.FixedRows(2);
  table.TextRC(2, 1, "Gravel");
  table.TextRC(3, 1, "mine");
  const std::string words = "The first 2 rows of the table can't be changed.";
  EXPECT_EQ(Type_Cell(table, 2, 1, "x").refusal, words);
  EXPECT_EQ(Clear_Cells(table, {2, 1, 3, 1}).refusal, words);
  EXPECT_EQ(Paste_Cells(table, {1, 1, 4, 3}, {{"x"}}).refusal, words);
  EXPECT_EQ(Paste_Cells(table, {2, 1, 2, 1}, {{"x"}, {"y"}}).refusal, words);
  EXPECT_EQ(table.TextRC(2, 1), "Gravel");
  EXPECT_EQ(table.TextRC(3, 1), "mine") << "all or nothing";
  EXPECT_FALSE(table.CanUndo());
  table.FixedRows(1);
  EXPECT_EQ(Type_Cell(table, 1, 1, "x").refusal, "The first row of the table can't be changed.");
  EXPECT_FALSE(Can_Edit(table, 1, 1));
  EXPECT_TRUE(Can_Edit(table, 2, 1));
  EXPECT_FALSE(Can_Edit(table, 5, 1)) << "below the table";
  EXPECT_FALSE(Can_Edit(table, 2, 4));
}

TEST_F(SpreadsheetEdits, Outside_The_Table_Nothing_Is_Typed) {
  EXPECT_EQ(Type_Cell(table, 5, 1, "x").changed, std::nullopt);
  EXPECT_TRUE(table.IsEmptyRC(5, 1));
}

TEST_F(SpreadsheetEdits, A_Paste_Starts_At_The_First_Cell_Of_The_Selection) {
  const Edit_Outcome outcome = Paste_Cells(table, {2, 2, 4, 3}, {{"1", "2"}, {"3", "4"}});
  EXPECT_EQ(outcome.changed, (Cell_Range{2, 2, 3, 3}));
  EXPECT_EQ(table.TextRC(2, 2) + table.TextRC(2, 3) + table.TextRC(3, 2) + table.TextRC(3, 3),
            "1234");
  EXPECT_TRUE(table.IsEmptyRC(4, 2));
  table.Undo();
  EXPECT_TRUE(table.IsEmptyRC(2, 2));
  EXPECT_TRUE(table.IsEmptyRC(3, 3));
  EXPECT_FALSE(table.CanUndo()) << "one step";
}

TEST_F(SpreadsheetEdits, A_Single_Cell_Fills_The_Whole_Selection) {
  EXPECT_EQ(Paste_Cells(table, {1, 1, 4, 2}, {{"5"}}).changed, (Cell_Range{1, 1, 4, 2}));
  EXPECT_EQ(table.TextRC(1, 1) + table.TextRC(4, 2), "55");
  EXPECT_TRUE(table.IsEmptyRC(1, 3));
}

std::string Row_Of(const Spreadsheet_Table& table, int row) {
  std::string all;
  for (int col = 1; col <= table.MaxCol(); ++col) all += table.TextRC(row, col) + ",";
  return all;
}

TEST_F(SpreadsheetEdits, A_Block_Fills_A_Selection_That_Takes_It_Some_Times_Over) {
  table.MaxCol(4);
  EXPECT_EQ(Paste_Cells(table, {1, 1, 4, 4}, {{"1", "2"}, {"3"}}).changed,
            (Cell_Range{1, 1, 4, 4}));
  EXPECT_EQ(Row_Of(table, 1), "1,2,1,2,");
  EXPECT_EQ(Row_Of(table, 2), "3,,3,,") << "what a short row lacks is empty each time";
  EXPECT_EQ(Row_Of(table, 3) + Row_Of(table, 4), "1,2,1,2,3,,3,,");
  table.Undo();
  EXPECT_FALSE(table.CanUndo()) << "one step";
  EXPECT_EQ(Paste_Cells(table, {2, 1, 4, 2}, {{"5", "6"}}).changed, (Cell_Range{2, 1, 4, 2}));
  EXPECT_EQ(Row_Of(table, 1) + Row_Of(table, 4), ",,,,5,6,,,");
}

TEST_F(SpreadsheetEdits, A_Block_That_Fits_One_Side_Of_The_Selection_Only_Is_Written_Once) {
  EXPECT_EQ(Paste_Cells(table, {1, 1, 4, 3}, {{"1", "2"}, {"3", "4"}}).changed,
            (Cell_Range{1, 1, 2, 2}));
  EXPECT_EQ(Row_Of(table, 3) + Row_Of(table, 4), ",,,,,,");
}

TEST_F(SpreadsheetEdits, A_Paste_Empties_What_Its_Short_Rows_Lack) {
  for (int row = 1; row <= 3; ++row) Type(row, 2, "old");
  EXPECT_EQ(Paste_Cells(table, {1, 1, 1, 1}, {{"1"}, {"2", "3"}}).changed,
            (Cell_Range{1, 1, 2, 2}));
  EXPECT_TRUE(table.IsEmptyRC(1, 2));
  EXPECT_EQ(table.TextRC(2, 2) + table.TextRC(3, 2), "3old");
  EXPECT_NE(Paste_Cells(table, {1, 1, 1, 1}, {{"1"}, {"2", "3", "4", "5"}}).refusal, "")
      << "the widest row must fit";
}

TEST_F(SpreadsheetEdits, A_Paste_Beyond_The_Table_Is_Refused_As_A_Whole) {
  Type(4, 3, "old");
  const Edit_Outcome outcome = Paste_Cells(table, {4, 3, 4, 3}, {{"1", "2"}, {"3", "4"}});
  EXPECT_EQ(outcome.refusal,
            "What is to be pasted has 2 rows and 2 columns.  From the chosen cell on the table has "
            "1 row and 1 column.  Nothing was pasted.");
  EXPECT_EQ(outcome.changed, std::nullopt);
  EXPECT_EQ(table.TextRC(4, 3), "old");
  EXPECT_NE(Paste_Cells(table, {2, 1, 2, 1}, {{"1"}, {"2"}, {"3"}, {"4"}}).refusal, "");
  EXPECT_TRUE(table.IsEmptyRC(2, 1));
  EXPECT_EQ(
      Paste_Cells(table, {1, 1, 1, 1}, Text_Block(4, std::vector<std::string>(3, "x"))).refusal, "")
      << "just the table";
}

TEST_F(SpreadsheetEdits, Copied_Cells_Carry_More_Digits_Than_Are_Shown) {
  table.NumberFormat({1, 1, 1, 1}, "0.0");
  table.NumberRC(1, 1, 1.02345678);
  table.TextRC(1, 2, "1.50");
  EXPECT_EQ(Copied_Cells(table, {1, 1, 2, 2}), (Text_Block{{"1.02345678", "1.50"}, {"", ""}}));
  EXPECT_EQ(Copied_Cells(table, {4, 3, 9, 9}), (Text_Block{{""}})) << "what is in the table";
  EXPECT_TRUE(Copied_Cells(table, {5, 1, 9, 9}).empty());
}

// The cells that code writes after each edit, a computed column, are no part of the edit.
TEST_F(SpreadsheetEdits, An_Undo_Puts_Back_Its_Own_Cells_Only) {
  Type(1, 1, "10");
  table.NumberRC(1, 3, 1.5);
  Type(1, 2, "20");
  table.NumberRC(1, 3, 2.5);
  table.Undo();
  EXPECT_TRUE(table.IsEmptyRC(1, 2));
  EXPECT_EQ(table.NumberRC(1, 3), 2.5);
}

TEST_F(SpreadsheetEdits, A_Redo_Brings_Back_What_Code_Had_Put_Into_The_Cells) {
  Type(1, 1, "10");
  table.NumberRC(1, 1, 11);
  table.Undo();
  EXPECT_TRUE(table.IsEmptyRC(1, 1));
  table.Redo();
  EXPECT_EQ(table.NumberRC(1, 1), 11);
}

TEST_F(SpreadsheetEdits, A_Command_Can_Be_One_Step) {
  Type(1, 1, "1");
  {
    const Edit_Step step(table);
    table.NumberRC(1, 1, 5);
    table.NumberRC(1, 1, 6);
    {
      const Edit_Step inner(table);
      table.NumberRC(4, 3, 7);
    }
  }
  EXPECT_EQ(table.Undo(), (Cell_Range{1, 1, 4, 3}));
  EXPECT_EQ(table.TextRC(1, 1), "1");
  EXPECT_TRUE(table.IsEmptyRC(4, 3));
  table.Redo();
  EXPECT_EQ(table.NumberRC(1, 1), 6);
}

TEST_F(SpreadsheetEdits, Steps_Are_Forgotten_When_Their_Cells_May_Be_Elsewhere) {
  const auto typed_and = [&](auto change) {
    Type(1, 1, table.TextRC(1, 1) == "a" ? "b" : "a");
    change();
    return table.CanUndo();
  };
  EXPECT_FALSE(typed_and([&] { table.MaxRow(3); })) << "a row went";
  EXPECT_TRUE(typed_and([&] { table.MaxRow(9); })) << "rows came";
  EXPECT_TRUE(typed_and([&] { table.MaxCol(3); })) << "as many columns as there were";
  EXPECT_FALSE(typed_and([&] { table.MaxCol(4); })) << "a column came";
  EXPECT_FALSE(typed_and([&] { table.MaxCol(3); })) << "a column went";
  EXPECT_FALSE(typed_and([&] { table.DeleteShiftUp({1, 2, 1, 2}); }));
  EXPECT_FALSE(typed_and([&] { table.InsertShiftRight({1, 2, 1, 2}); }));
  EXPECT_FALSE(typed_and([&] { table.ClearAll(); }));
  EXPECT_FALSE(typed_and([&] { table.ForgetEdits(); }));
}

TEST_F(SpreadsheetEdits, Nothing_Is_Undone_Or_Redone_Across_Another_Number_Of_Columns) {
  Type(1, 2, "1.02");
  Type(2, 2, "1.03");
  table.Undo();
  table.MaxCol(5);
  table.NumberRC(1, 2, 30);
  EXPECT_EQ(table.Undo(), std::nullopt);
  EXPECT_EQ(table.Redo(), std::nullopt);
  EXPECT_EQ(table.NumberRC(1, 2), 30);
  EXPECT_TRUE(table.IsEmptyRC(2, 2));
}

TEST_F(SpreadsheetEdits, The_Last_Hundred_Steps_Are_Kept) {
  for (int i = 1; i <= 130; ++i) Type(1, 1, std::to_string(i));
  while (table.CanUndo()) table.Undo();
  EXPECT_EQ(table.TextRC(1, 1), "30");
  EXPECT_EQ(table.NumberRC(1, 1), 30);
}

std::vector<Cell_Value> State(const Spreadsheet_Table& table) {
  std::vector<Cell_Value> state;
  for (int row = kSheetCorner.row1; row <= kSheetCorner.row2; ++row) {
    for (int col = kSheetCorner.col1; col <= kSheetCorner.col2; ++col) {
      state.push_back(table.ValueRC(row, col));
    }
  }
  return state;
}

Cell_Range Any_Range() {
  const int row = *rc::gen::inRange(1, 7), col = *rc::gen::inRange(1, 7);
  return {row, col, row + *rc::gen::inRange(0, 3), col + *rc::gen::inRange(0, 3)};
}

std::string Any_Text() {
  return *rc::gen::element<std::string>("", "1", "2.50", "x", "1e3", "\"q\"", " 7");
}

void Any_Edit(Spreadsheet_Table& table) {
  const Cell_Range range = Any_Range();
  switch (*rc::gen::inRange(0, 4)) {
    case 0:
      Type_Cell(table, range.row1, range.col1, Any_Text());
      break;
    case 1:
      Clear_Cells(table, range);
      break;
    case 2:
      Paste_Cells(table, range, Text_Block(2, {Any_Text(), Any_Text()}));
      break;
    default: {
      const Edit_Step step(table);
      for (int i = 0; i < 3; ++i) table.NumberRC(range.row1, range.col1, *rc::gen::inRange(0, 3));
    }
  }
}

TEST(SpreadsheetEditsProperty, Undo_After_Any_Edits_Gives_Back_Every_State_And_Redo_Too) {
  EXPECT_TRUE(rc::check([] {
    Spreadsheet_Table table(kBookNumbers);
    table.MaxRow(6);
    table.MaxCol(5);
    table.FixedRows(*rc::gen::inRange(0, 2));
    table.NumberRC(2, 2, 0.1);
    std::vector<std::vector<Cell_Value>> states{State(table)};
    const int edits = *rc::gen::inRange(1, 20);
    for (int i = 0; i < edits; ++i) {
      Any_Edit(table);
      if (State(table) != states.back()) states.push_back(State(table));
    }
    const auto last = states.back();
    std::vector<std::vector<Cell_Value>> back{State(table)};
    while (table.CanUndo()) {
      table.Undo();
      if (State(table) != back.back()) back.push_back(State(table));
    }
    std::reverse(back.begin(), back.end());
    RC_ASSERT(back == states);
    while (table.CanRedo()) table.Redo();
    RC_ASSERT(State(table) == last);
  }));
}

TEST(SpreadsheetEditsProperty, What_Is_Copied_And_Pasted_Elsewhere_Reads_The_Same) {
  EXPECT_TRUE(rc::check([] {
    Spreadsheet_Table from(kBookNumbers), to(kBookNumbers);
    for (Spreadsheet_Table* table : {&from, &to}) {
      table->MaxRow(10);
      table->MaxCol(10);
    }
    for (int i = 0; i < 10; ++i) Any_Edit(from);
    const Cell_Range range = Any_Range();
    const Text_Block cells = Read_Tab_Text(Write_Tab_Text(Copied_Cells(from, range)));
    RC_ASSERT(Paste_Cells(to, {1, 1, 1, 1}, cells).refusal.empty());
    for (int row = 0; row < range.rows(); ++row) {
      for (int col = 0; col < range.cols(); ++col) {
        RC_ASSERT(to.NumberRC(row + 1, col + 1) ==
                  from.NumberRC(range.row1 + row, range.col1 + col));
        RC_ASSERT(to.EntryRC(row + 1, col + 1) == from.EntryRC(range.row1 + row, range.col1 + col));
      }
    }
  }));
}

}  // namespace
}  // namespace barvon::testing
