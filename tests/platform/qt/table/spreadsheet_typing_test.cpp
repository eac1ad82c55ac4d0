#include <QTabWidget>
#include <QToolButton>

#include "platform/qt/table/spreadsheet_screen.h"

namespace barvon::testing {
namespace {

// Typing

TEST_F(SpreadsheetView, Typing_Replaces_The_Cell) {
  table().TextRC(2, 2, "old");
  Start_At(2, 2);
  Type_In("12.5");
  EXPECT_TRUE(Is_Editing());
  EXPECT_TRUE(edits.empty()) << "the edit is not finished";
  Key(Qt::Key_Return);
  EXPECT_FALSE(Is_Editing());
  EXPECT_EQ(table().TextRC(2, 2), "12.5");
  EXPECT_EQ(edits, std::vector<std::string>{"B2"});
  EXPECT_EQ(cursor(), "B3");
  EXPECT_EQ(cursor_at_edit, "B3") << "told when the cursor stands where it goes";
}

TEST_F(SpreadsheetView, F2_And_A_Double_Click_Edit_What_Is_There) {
  table().TextRC(2, 2, "12");
  Start_At(2, 2);
  Key(Qt::Key_F2);
  ASSERT_TRUE(Is_Editing());
  Type_In(".5");
  Key(Qt::Key_Return);
  EXPECT_EQ(table().TextRC(2, 2), "12.5");

  Double_Click(2, 2);
  ASSERT_TRUE(Is_Editing());
  Key(Qt::Key_Left);
  EXPECT_TRUE(Is_Editing()) << "Left moves in the text";
  Type_In("0");
  Key(Qt::Key_Tab);
  EXPECT_EQ(table().TextRC(2, 2), "12.05");
  EXPECT_EQ(cursor(), "C2");
}

TEST_F(SpreadsheetView, F2_Shows_All_Digits_Of_A_Number_And_Leaving_It_Changes_Nothing) {
  table().NumberFormat({2, 2, 2, 2}, "0.0");
  table().NumberRC(2, 2, 1.23456);
  Start_At(2, 2);
  Key(Qt::Key_F2);
  ASSERT_TRUE(Is_Editing());
  EXPECT_EQ(Editor()->text(), "1.23456");
  Key(Qt::Key_Return);
  EXPECT_EQ(table().NumberRC(2, 2), 1.23456);
  EXPECT_TRUE(edits.empty());
  EXPECT_FALSE(table().CanUndo());
}

TEST_F(SpreadsheetView, Escape_Leaves_The_Cell_As_It_Was_And_The_Screen_Open) {
  table().TextRC(2, 2, "old");
  Start_At(2, 2);
  Type_In("7");
  Key(Qt::Key_Escape);
  EXPECT_FALSE(Is_Editing());
  EXPECT_EQ(table().TextRC(2, 2), "old");
  EXPECT_TRUE(edits.empty());
  EXPECT_EQ(cursor(), "B2");
  EXPECT_TRUE(screen.isVisible());
  EXPECT_TRUE(book->hasFocus());
}

TEST_F(SpreadsheetView, An_Arrow_Ends_Typing_And_Moves) {
  for (const auto& [key, expected] : std::vector<std::pair<Qt::Key, std::string>>{
           {Qt::Key_Up, "B1"}, {Qt::Key_Down, "B3"}, {Qt::Key_Left, "A2"}, {Qt::Key_Right, "C2"}}) {
    table().TextRC(2, 2, "");
    Start_At(2, 2);
    Type_In("4");
    Key(key);
    EXPECT_FALSE(Is_Editing());
    EXPECT_EQ(table().TextRC(2, 2), "4");
    EXPECT_EQ(cursor(), expected);
  }
}

TEST_F(SpreadsheetView, A_Click_Elsewhere_Ends_Typing) {
  Start_At(2, 2);
  Type_In("4");
  Click(4, 1);
  EXPECT_EQ(table().TextRC(2, 2), "4");
  EXPECT_EQ(cursor(), "A4");
  Type_In("5");
  before->setFocus();
  EXPECT_EQ(table().TextRC(4, 1), "5");
  EXPECT_EQ(edits, (std::vector<std::string>{"B2", "A4"}));
}

// The button acts while the focus is still in the cell: what is typed must not be lost.
TEST_F(SpreadsheetView, A_Mnemonic_Ends_Typing_Before_The_Button_Acts) {
  Start_At(2, 2);
  Type_In("4");
  Key(Qt::Key_O, Qt::AltModifier);
  EXPECT_TRUE(Wait_Until([this] { return pressed == 1; }));
  EXPECT_EQ(read_on_ok, ",,/,4,/,,/,,/");
  EXPECT_EQ(edits, std::vector<std::string>{"B2"});
}

TEST_F(SpreadsheetView, A_Button_That_Takes_No_Focus_Finds_What_Is_Typed) {
  auto* picture = new QToolButton;
  screen.layout()->addWidget(picture);
  QCoreApplication::processEvents();
  QObject::connect(picture, &QToolButton::clicked, &screen, [this] { read_on_ok = cells(); });
  Start_At(2, 2);
  Type_In("4");
  QTest::mouseClick(picture, Qt::LeftButton);
  EXPECT_EQ(read_on_ok, ",,/,4,/,,/,,/");
  EXPECT_TRUE(book->hasFocus());
}

TEST_F(SpreadsheetView, A_Press_In_The_Open_Cell_Goes_On_With_The_Typing) {
  Start_At(2, 2);
  Type_In("45");
  QTest::mouseClick(Editor(), Qt::LeftButton, {}, {1, Editor()->height() / 2});
  ASSERT_TRUE(Is_Editing());
  EXPECT_EQ(Editor()->cursorPosition(), 0);
  EXPECT_TRUE(edits.empty());
}

TEST_F(SpreadsheetView, A_Change_Of_Tab_Finds_What_Is_Typed) {
  QDialog two_tabs;
  auto* tabs = new QTabWidget(&two_tabs);
  tabs->addTab(book, QStringLiteral("&One"));
  tabs->addTab(new QLineEdit, QStringLiteral("&Two"));
  two_tabs.resize(500, 400);
  tabs->resize(two_tabs.size());
  two_tabs.show();
  two_tabs.activateWindow();
  ASSERT_TRUE(Has_Keyboard(&two_tabs));
  QObject::connect(tabs, &QTabWidget::currentChanged, &screen, [this] { read_on_ok = cells(); });
  for (const int way : {0, 1, 2}) {
    tabs->setCurrentIndex(0);
    table().ClearAll();
    Start_At(2, 2);
    Type_In("4");
    QTabBar* bar = tabs->tabBar();
    if (way == 0) QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    if (way == 1) Key(Qt::Key_T, Qt::AltModifier);
    if (way == 2) tabs->setCurrentIndex(1);
    ASSERT_TRUE(Wait_Until([&] { return tabs->currentIndex() == 1; }));
    EXPECT_EQ(read_on_ok, ",,/,4,/,,/,,/") << way;
    EXPECT_EQ(cursor(), "B2") << way;
  }
}

TEST_F(SpreadsheetView, A_Hidden_Or_Disabled_Table_Passes_The_Focus_On_And_Keeps_Its_Cursor) {
  for (const bool typing : {false, true}) {
    for (void (*put_away)(QWidget*, bool) :
         {+[](QWidget*table, bool away) { table->setHidden(away); },
          +[](QWidget*table, bool away) { table->setDisabled(away); }}) {
      table().ClearAll();
      Start_At(2, 2);
      if (typing) Type_In("4");
      put_away(book, true);
      EXPECT_FALSE(book->hasFocus());
      EXPECT_FALSE(Is_Editing());
      EXPECT_EQ(cursor(), "B2");
      EXPECT_EQ(table().TextRC(2, 2), typing ? "4" : "");
      put_away(book, false);
    }
  }
}

TEST_F(SpreadsheetView, What_The_Files_Can_Not_Hold_Stays_Out_Of_A_Cell) {
  Start_At(1, 1);
  Type_In("1");
  Type(Editor(), QString::fromUtf8("\xCE\xA9"
                                   "2\xC3\xA4\t"));
  Key(Qt::Key_Return);
  EXPECT_EQ(table().TextRC(1, 1), "12\xC3\xA4");
}

TEST_F(SpreadsheetView, Writing_From_Code_Is_No_Edit) {
  table().TextRC(1, 1, "a");
  table().NumberRC(1, 2, 5);
  {
    const Table_Fill fill(table());
    table().NumberRC(2, 2, 5);
  }
  table().ClearAll();
  EXPECT_TRUE(edits.empty());
}

TEST_F(SpreadsheetView, A_Cell_That_Code_Writes_While_It_Is_Edited_Keeps_What_Is_Typed) {
  Start_At(1, 1);
  Type_In("4");
  table().TextRC(1, 1, "code");
  EXPECT_EQ(Editor()->text(), "4");
  Key(Qt::Key_Return);
  EXPECT_EQ(table().TextRC(1, 1), "4");
}

TEST_F(SpreadsheetView, A_Table_Built_Anew_While_A_Cell_Is_Edited_Keeps_The_Focus) {
  Start_At(2, 2);
  Type_In("4");
  {
    const Table_Fill fill(table());
    table().MaxRow(3);
  }
  EXPECT_TRUE(book->hasFocus());
  EXPECT_FALSE(Is_Editing());
  EXPECT_EQ(cursor(), "B2");
  Type_In("6");
  EXPECT_TRUE(Is_Editing());
  Key(Qt::Key_Return);
  EXPECT_EQ(table().TextRC(2, 2), "6");
}

TEST_F(SpreadsheetView, An_Edit_May_Be_Answered_By_Building_The_Table_Anew) {
  QObject::connect(book, &F1Book::Edited, &screen, [this] {
    const Table_Fill fill(table());
    table().MaxRow(9);
    table().NumberRC(9, 3, 1);
  });
  Start_At(2, 2);
  Type_In("4");
  Key(Qt::Key_Tab);
  EXPECT_EQ(cursor(), "C2");
  EXPECT_TRUE(book->hasFocus());
  EXPECT_EQ(table().TextRC(2, 2), "4");
}

TEST_F(SpreadsheetView, A_Cursor_That_Code_Moves_Ends_Typing_And_May_Be_Moved_Again) {
  QObject::connect(book, &F1Book::Edited, &screen, [this] {
    EXPECT_EQ(cursor(), "C4");
    table().SetActiveCell(1, 1);
  });
  Start_At(2, 2);
  Type_In("4");
  table().SetActiveCell(4, 3);
  EXPECT_EQ(edits, std::vector<std::string>{"B2"});
  EXPECT_EQ(table().TextRC(2, 2), "4");
  EXPECT_EQ(cursor(), "A1");
  EXPECT_EQ(book->currentIndex(), book->model()->index(0, 0));
}

TEST_F(SpreadsheetView, A_Page_Key_Ends_Typing_And_Moves_Though_The_Table_Is_Built_Anew) {
  QObject::connect(book, &F1Book::Edited, &screen, [this] { table().MaxRow(3); });
  Start_At(2, 2);
  Type_In("4");
  Key(Qt::Key_PageDown);
  EXPECT_EQ(table().TextRC(2, 2), "4");
  EXPECT_EQ(cursor(), "B3");
  EXPECT_EQ(book->currentIndex(), book->model()->index(2, 1));
}

TEST_F(SpreadsheetView, An_Edit_May_Be_Answered_By_A_Message_Box) {
  Qt_Services services;
  QObject::connect(book, &F1Book::Edited, &screen, [] { Show_Message({"Is that so?"}); });
  book->SetFocusCell(1, 1);
  Start_At(2, 2);
  Type_In("4");
  {
    Modal_Replies replies({Press(QMessageBox::Ok)});
    Key(Qt::Key_Return);
  }
  screen.activateWindow();
  ASSERT_TRUE(Has_Keyboard(&screen));
  EXPECT_TRUE(book->hasFocus());
  EXPECT_EQ(cursor(), "B3") << "coming back is no new focus";
  EXPECT_EQ(edits.size(), 1U);
}

}  // namespace
}  // namespace barvon::testing
