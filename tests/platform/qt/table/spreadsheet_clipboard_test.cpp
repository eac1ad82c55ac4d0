#include "platform/qt/table/spreadsheet_screen.h"

namespace barvon::testing {
namespace {

// Clipboard

TEST_F(SpreadsheetView, A_Range_Is_Copied_As_Tab_Separated_Text) {
  table().TextRC(1, 1, "Silt");
  table().NumberFormat({1, 2, 1, 2}, "0.0");
  table().NumberRC(1, 2, 2.654321);
  table().TextRC(2, 2, "x");
  book->setFocus();
  ASSERT_TRUE(table().Selection("A1:B2"));
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), "Silt\t2.654321\n\tx\n");
  EXPECT_TRUE(edits.empty());
}

TEST_F(SpreadsheetView, The_Tables_Keys_Come_Before_The_Windows_Shortcuts) {
  QAction other;
  other.setShortcut(Qt::CTRL | Qt::Key_C);
  int triggered = 0;
  QObject::connect(&other, &QAction::triggered, &screen, [&] { ++triggered; });
  screen.addAction(&other);
  table().TextRC(1, 1, "a");
  Start_At(1, 1);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), "a");
  EXPECT_EQ(triggered, 0);
}

TEST_F(SpreadsheetView, A_Range_Is_Cut) {
  table().TextRC(2, 2, "a");
  table().TextRC(2, 3, "b");
  book->setFocus();
  ASSERT_TRUE(table().Selection("B2:C2"));
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), "a\tb\n");
  EXPECT_EQ(cells(), ",,/,,/,,/,,/");
  EXPECT_EQ(edits, std::vector<std::string>{"B2:C2"});
}

TEST_F(SpreadsheetView, A_Block_From_A_Spreadsheet_Is_Pasted_And_Selected) {
  Set_Clipboard("1\t2\r\n\"3\"\t4\xE2\x84\xA6\r\n");
  Start_At(2, 2);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(cells(), ",,/,1,2/,3,4/,,/") << "without what the files can't hold";
  EXPECT_EQ(table().Selection(), "B2:C3");
  EXPECT_EQ(edits, std::vector<std::string>{"B2:C3"});
}

TEST_F(SpreadsheetView, A_Pasted_Minus_Sign_Of_A_Document_Keeps_The_Number_Negative) {
  Set_Clipboard(
      "\xE2\x88\x92"
      "1.5");
  Start_At(2, 2);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(table().NumberRC(2, 2), -1.5);
}

TEST_F(SpreadsheetView, A_Paste_That_Does_Not_Fit_Is_Refused_In_Words) {
  Scripted_Messages messages({Answer::Ok});
  Set_Clipboard("1\t2\n3\t4\n");
  Start_At(4, 2);
  Key(Qt::Key_V, Qt::ControlModifier);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text,
            "What is to be pasted has 2 rows and 2 columns.  From the chosen cell on the table has "
            "1 row and 2 columns.  Nothing was pasted.");
  EXPECT_EQ(cells(), ",,/,,/,,/,,/");
  EXPECT_TRUE(edits.empty());
}

TEST_F(SpreadsheetView, Pasted_Decimal_Commas_Become_Points_On_Yes) {
  Scripted_Messages messages({Answer::Yes});
  Set_Clipboard("1,5\t2\n0,25\t3\n");
  Start_At(2, 2);
  Key(Qt::Key_V, Qt::ControlModifier);
  ASSERT_EQ(messages.shown.size(), 1U) << "once for the block";
  EXPECT_EQ(messages.shown[0].text,
            "There are commas in the numbers to be pasted: 1,5; 0,25\n\nAre they decimal points?  "
            "Yes pastes a point for each comma.  No pastes the numbers as they stand, and each is "
            "read up to its comma.");
  EXPECT_EQ(messages.shown[0].buttons, Buttons::YesNoCancel);
  EXPECT_EQ(cells(), ",,/,1.5,2/,0.25,3/,,/");
  EXPECT_EQ(edits, std::vector<std::string>{"B2:C3"});
}

TEST_F(SpreadsheetView, Pasted_Decimal_Commas_Stay_On_No_And_Cancel_Pastes_Nothing) {
  Scripted_Messages messages({Answer::Cancel, Answer::No});
  Set_Clipboard("1,5");
  Start_At(2, 2);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(table().TextRC(2, 2), "");
  EXPECT_TRUE(edits.empty());
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(table().TextRC(2, 2), "1,5");
}

TEST_F(SpreadsheetView, The_Question_On_Commas_Shows_The_First_Three_Numbers) {
  Scripted_Messages messages({Answer::No, Answer::No});
  Start_At(1, 1);
  for (const char* copied : {"1,1\t2,2\nx\t3,3\n", "1,1\t2,2\n3,3\t4,4\n"}) {
    Set_Clipboard(copied);
    Key(Qt::Key_V, Qt::ControlModifier);
  }
  ASSERT_EQ(messages.shown.size(), 2U);
  EXPECT_NE(messages.shown[0].text.find(": 1,1; 2,2; 3,3\n"), std::string::npos);
  EXPECT_NE(messages.shown[1].text.find(": 1,1; 2,2; 3,3; ...\n"), std::string::npos);
}

TEST_F(SpreadsheetView, A_Paste_That_Does_Not_Fit_Is_Not_Asked_About) {
  Scripted_Messages messages({Answer::Ok});
  Set_Clipboard("1,5\n2,5\n");
  Start_At(4, 2);
  Key(Qt::Key_V, Qt::ControlModifier);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
}

TEST_F(SpreadsheetView, A_Clipboard_Without_Text_Pastes_Nothing) {
  table().TextRC(1, 1, "a");
  Start_At(1, 1);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(table().TextRC(1, 1), "a");
  EXPECT_TRUE(edits.empty());
}

TEST_F(SpreadsheetView, Delete_Clears_The_Selection) {
  for (int row = 1; row <= 4; ++row) table().NumberRC(row, 2, row);
  book->setFocus();
  ASSERT_TRUE(table().Selection("B2:B3"));
  Key(Qt::Key_Delete);
  EXPECT_EQ(cells(), ",1,/,,/,,/,4,/");
  EXPECT_EQ(edits, std::vector<std::string>{"B2:B3"});
  Key(Qt::Key_Delete);
  EXPECT_EQ(edits.size(), 1U) << "nothing left to clear";
  ASSERT_TRUE(table().Selection("B1"));
  Key(Qt::Key_Delete, Qt::KeypadModifier);
  EXPECT_EQ(cells(), ",,/,,/,,/,4,/");
  EXPECT_FALSE(Is_Editing());
}

// Undo

TEST_F(SpreadsheetView, Edits_Pastes_And_Cuts_Are_Undone_And_Redone) {
  Start_At(1, 1);
  Type_In("5");
  Key(Qt::Key_Return);
  Set_Clipboard("1\t2\n3\t4\n");
  Start_At(2, 2);
  Key(Qt::Key_V, Qt::ControlModifier);
  Key(Qt::Key_X, Qt::ControlModifier);
  ASSERT_EQ(cells(), "5,,/,,/,,/,,/");
  edits.clear();
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(cells(), "5,,/,1,2/,3,4/,,/");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(cells(), "5,,/,,/,,/,,/");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(cells(), ",,/,,/,,/,,/");
  EXPECT_EQ(cursor(), "A1");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(edits, (std::vector<std::string>{"B2:C3", "B2:C3", "A1"})) << "each is an edit";
  Key(Qt::Key_Y, Qt::ControlModifier);
  Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(cells(), "5,,/,1,2/,3,4/,,/");
  EXPECT_EQ(table().Selection(), "B2:C3");
}

TEST_F(SpreadsheetView, Undo_Inside_A_Cell_Is_The_Cells_Own) {
  Start_At(1, 1);
  Type_In("5");
  Key(Qt::Key_Return);
  Type_In("67");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(Is_Editing());
  EXPECT_EQ(table().TextRC(1, 1), "5");
}

// Fixed rows

TEST_F(SpreadsheetView, Fixed_Rows_Can_Be_Copied_But_Not_Changed) {
  table().FixedRows(2);
  table().TextRC(2, 1, "Gravel");
  table().TextRC(4, 1, "xenolith");
  Start_At(2, 1);
  Type_In("x");
  Key(Qt::Key_F2);
  EXPECT_FALSE(Is_Editing());
  EXPECT_EQ(cursor(), "A2") << "a key does not search";
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), "Gravel");
  Set_Clipboard("new");
  Scripted_Messages messages({Answer::Ok, Answer::Ok, Answer::Ok});
  Key(Qt::Key_Delete);
  Key(Qt::Key_V, Qt::ControlModifier);
  Key(Qt::Key_X, Qt::ControlModifier);
  ASSERT_EQ(messages.shown.size(), 3U);
  EXPECT_EQ(messages.shown[0].text, "The first 2 rows of the table can't be changed.");
  EXPECT_EQ(Clipboard(), "new") << "what was not cut is not on the clipboard";
  EXPECT_EQ(table().TextRC(2, 1), "Gravel");
  EXPECT_TRUE(edits.empty());
  EXPECT_TRUE(Data(2, 1, Qt::BackgroundRole).isValid());
  EXPECT_FALSE(Data(3, 1, Qt::BackgroundRole).isValid());
}

}  // namespace
}  // namespace barvon::testing
