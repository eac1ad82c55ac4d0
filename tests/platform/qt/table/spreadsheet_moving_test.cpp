#include <QHeaderView>

#include "platform/qt/table/spreadsheet_screen.h"

namespace barvon::testing {
namespace {

// Moving

TEST_F(SpreadsheetView, Return_Goes_Down_And_Stays_In_The_Last_Row) {
  Start_At(3, 2);
  Key(Qt::Key_Return);
  EXPECT_EQ(cursor(), "B4");
  Key(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(cursor(), "B4");
  Key(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(cursor(), "B3");
  EXPECT_EQ(pressed, 0) << "the screen's OK is not pressed";
}

TEST_F(SpreadsheetView, Tab_Goes_Through_The_Rows_And_Out_At_The_Last_Cell) {
  Start_At(3, 2);
  std::string way;
  for (int i = 0; i < 5; ++i) {
    Key(Qt::Key_Tab);
    way += cursor() + " ";
  }
  EXPECT_EQ(way, "C3 A4 B4 C4 C4 ");
  EXPECT_TRUE(ok->hasFocus());
}

TEST_F(SpreadsheetView, Backtab_Goes_Back_And_Out_At_The_First_Cell) {
  Start_At(2, 1);
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(cursor(), "C1");
  Start_At(1, 1);
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(before->hasFocus());
}

TEST_F(SpreadsheetView, Control_Tab_Leaves_From_Anywhere) {
  Start_At(2, 2);
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_TRUE(ok->hasFocus());
  Start_At(2, 2);
  Key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(before->hasFocus());
  Start_At(2, 2);
  Type_In("4");
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_TRUE(ok->hasFocus());
  EXPECT_EQ(table().TextRC(2, 2), "4");
}

TEST_F(SpreadsheetView, Tab_Ends_Typing_In_The_Last_Cell_And_Leaves) {
  Start_At(4, 3);
  Type_In("4");
  Key(Qt::Key_Tab);
  EXPECT_EQ(table().TextRC(4, 3), "4");
  EXPECT_TRUE(ok->hasFocus());
  EXPECT_EQ(edits, std::vector<std::string>{"C4"});
}

TEST_F(SpreadsheetView, Arrows_Move_And_Shift_Selects) {
  Start_At(2, 2);
  Key(Qt::Key_Right);
  Key(Qt::Key_Down);
  EXPECT_EQ(cursor(), "C3");
  Key(Qt::Key_Left, Qt::ShiftModifier);
  Key(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(table().Selection(), "B2:C3");
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(table().Selection(), "A1:C4");
}

TEST_F(SpreadsheetView, Shift_Selects_From_Where_Typing_Left_The_Cursor) {
  Click(1, 1);
  Type_In("4");
  Key(Qt::Key_Tab);
  Key(Qt::Key_Return);
  Key(Qt::Key_Right, Qt::ShiftModifier);
  Key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(table().Selection(), "B2:C3");
}

TEST_F(SpreadsheetView, Control_And_Shift_Select_To_The_Corners) {
  Start_At(2, 2);
  Key(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(table().Selection(), "B2:C4");
  Start_At(2, 2);
  Key(Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(table().Selection(), "A1:B2");
}

TEST_F(SpreadsheetView, Control_And_An_Arrow_Go_To_The_Edge_Of_The_Filled_Block) {
  for (const int row : {1, 2, 4}) table().NumberRC(row, 2, row);
  Start_At(1, 2);
  std::string way;
  for (const auto key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Left, Qt::Key_Right,
                         Qt::Key_Right, Qt::Key_Up}) {
    Key(key, Qt::ControlModifier);
    way += table().Selection() + " ";
  }
  EXPECT_EQ(way, "B2 B4 B2 A2 B2 C2 C1 ");
  EXPECT_EQ(book->selectionModel()->selectedIndexes().size(), 1);
  EXPECT_EQ(edits, std::vector<std::string>{});
}

TEST_F(SpreadsheetView, Control_Shift_And_An_Arrow_Select_As_Far) {
  for (const int row : {1, 2, 3}) table().NumberRC(row, 2, row);
  Start_At(1, 2);
  Key(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(table().Selection(), "B1:B3");
  Key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(table().Selection(), "B1:C3");
  Key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(table().Selection(), "C1") << "from the end that moved";
}

TEST_F(SpreadsheetView, A_Click_Beside_The_Cells_Leaves_The_Cursor_In_Sight) {
  Start_At(2, 2);
  QTest::mouseClick(book->viewport(), Qt::LeftButton, {}, Place(4, 3) + QPoint(0, 60));
  EXPECT_EQ(cursor(), "B2");
  EXPECT_TRUE(book->selectionModel()->isSelected(book->currentIndex()));
}

TEST_F(SpreadsheetView, A_Drag_A_Shift_Click_And_A_Heading_Select_A_Range) {
  QTest::mousePress(book->viewport(), Qt::LeftButton, {}, Place(1, 1));
  QTest::mouseMove(book->viewport(), Place(2, 2));
  QTest::mouseMove(book->viewport(), Place(3, 2));
  QTest::mouseRelease(book->viewport(), Qt::LeftButton, {}, Place(3, 2));
  EXPECT_EQ(table().Selection(), "A1:B3");
  Click(2, 2);
  Click(4, 3, Qt::ShiftModifier);
  EXPECT_EQ(table().Selection(), "B2:C4");
  QHeaderView* columns = book->horizontalHeader();
  QTest::mouseClick(columns->viewport(), Qt::LeftButton, {},
                    {columns->sectionViewportPosition(1) + 5, 5});
  EXPECT_EQ(table().Selection(), "B1:B4");
}

TEST_F(SpreadsheetView, A_Right_Click_Goes_To_Its_Cell_But_Keeps_A_Selection_Around_It) {
  Click(1, 1);
  QTest::mouseClick(book->viewport(), Qt::RightButton, {}, Place(3, 2));
  EXPECT_EQ(table().Selection(), "B3");
  ASSERT_TRUE(table().Selection("A1:B3"));
  QTest::mouseClick(book->viewport(), Qt::RightButton, {}, Place(2, 2));
  EXPECT_EQ(table().Selection(), "A1:B3");
}

TEST_F(SpreadsheetView, The_Selection_Follows_Code_And_Is_Told) {
  std::vector<std::string> told;
  QObject::connect(book, &F1Book::Cursor_Moved, &screen, [&](int row, int col) {
    told.push_back(Range_Text({row, col, row, col}) + " in " + table().Selection());
  });
  ASSERT_TRUE(table().Selection("B2:C3"));
  EXPECT_EQ(book->selectionModel()->selectedIndexes().size(), 4);
  EXPECT_EQ(book->currentIndex(), book->model()->index(1, 1));
  ASSERT_TRUE(table().Selection("A1:G500"));
  EXPECT_EQ(book->selectionModel()->selectedIndexes().size(), 12) << "as far as the table goes";
  EXPECT_EQ(told, (std::vector<std::string>{"B2 in B2:C3", "B2 in A1:G500"}));
  Click(3, 1);
  EXPECT_EQ(told.back(), "A3 in A3");
}

}  // namespace
}  // namespace barvon::testing
