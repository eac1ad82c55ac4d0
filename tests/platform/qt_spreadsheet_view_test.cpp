#include "platform/qt/spreadsheet_view.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include "core/book_numbers.h"
#include "core/number_reading.h"
#include "platform/qt/book_model.h"
#include "platform/qt/control_array.h"
#include "platform/qt/number_field.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

/// A screen with a field, a table of 4 rows and 3 columns, and a button.
class SpreadsheetView : public ::testing::Test {
 protected:
  SpreadsheetView() {
    auto* layout = new QVBoxLayout(&screen);
    layout->addWidget(before = new QLineEdit);
    layout->addWidget(book = new F1Book(kBookNumbers));
    layout->addWidget(ok = new QPushButton(QStringLiteral("&OK")));
    book->setObjectName(QStringLiteral("F1Book1"));
    book->table().MaxRow(4);
    book->table().MaxCol(3);
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, &screen, [this] {
      ++pressed;
      read_on_ok = cells();
    });
    QObject::connect(book, &F1Book::Edited, &screen,
                     [this](int row, int col, int last_row, int last_col) {
                       edits.push_back(Range_Text({row, col, last_row, last_col}));
                       cursor_at_edit = cursor();
                     });
    screen.resize(500, 400);
    screen.show();
    screen.activateWindow();
    EXPECT_TRUE(Has_Keyboard(&screen));
    before->setFocus();
    QApplication::clipboard()->clear();
  }
  ~SpreadsheetView() override { QApplication::clipboard()->clear(); }

  Spreadsheet_Table& table() { return book->table(); }
  std::string cursor() {
    return Range_Text({table().Row(), table().Col(), table().Row(), table().Col()});
  }
  std::string cells() {
    std::string all;
    for (int row = 1; row <= table().MaxRow(); ++row) {
      for (int col = 1; col <= table().MaxCol(); ++col) {
        all += table().TextRC(row, col) + (col < table().MaxCol() ? "," : "/");
      }
    }
    return all;
  }
  /// The editor of a cell; nothing unless the user is typing in it.
  QLineEdit* Editor() {
    auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    return line != nullptr && line->parent() == book->viewport() ? line : nullptr;
  }
  bool Is_Editing() { return Editor() != nullptr; }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  void Type_In(const QString& text) {
    for (const QChar character : text) {
      QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
    }
  }
  QPoint Place(int row, int col) {
    return book->visualRect(book->model()->index(row - 1, col - 1)).center();
  }
  void Click(int row, int col, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(book->viewport(), Qt::LeftButton, modifiers, Place(row, col));
  }
  void Double_Click(int row, int col) {
    Click(row, col);
    QTest::mouseDClick(book->viewport(), Qt::LeftButton, {}, Place(row, col));
  }
  void Start_At(int row, int col) {
    book->setFocus();
    table().SetActiveCell(row, col);
  }
  void Set_Clipboard(const char* text) {
    QApplication::clipboard()->setText(QString::fromUtf8(text));
  }
  std::string Clipboard() { return QApplication::clipboard()->text().toStdString(); }
  QVariant Data(int row, int col, int role) {
    return book->model()->index(row - 1, col - 1).data(role);
  }

  QDialog screen;
  QLineEdit* before;
  F1Book* book;
  QPushButton* ok;
  int pressed = 0;
  std::string read_on_ok;
  std::vector<std::string> edits;
  std::string cursor_at_edit;
};

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

// Focus

TEST_F(SpreadsheetView, A_New_Focus_Goes_To_The_Focus_Cell) {
  int got = 0;
  QObject::connect(book, &F1Book::Got_Focus, &screen, [&] {
    ++got;
    EXPECT_EQ(cursor(), "A3");
  });
  book->SetFocusCell(3, 1);
  table().SetActiveCell(2, 2);
  Key(Qt::Key_Tab);
  ASSERT_TRUE(book->hasFocus());
  EXPECT_EQ(cursor(), "A3");
  Start_At(2, 2);
  Key(Qt::Key_Tab, Qt::ControlModifier);
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  ASSERT_TRUE(book->hasFocus());
  EXPECT_EQ(cursor(), "A3");
  before->setFocus();
  table().SetActiveCell(2, 2);
  book->setFocus();
  EXPECT_EQ(cursor(), "A3") << "from code";
  EXPECT_EQ(got, 3);
}

TEST_F(SpreadsheetView, Without_A_Focus_Cell_The_Cursor_Stays) {
  table().SetActiveCell(2, 2);
  Key(Qt::Key_Tab);
  ASSERT_TRUE(book->hasFocus());
  EXPECT_EQ(cursor(), "B2");
}

TEST_F(SpreadsheetView, A_Click_Ends_On_Its_Cell_Whatever_The_Focus_Cell) {
  int got = 0;
  QObject::connect(book, &F1Book::Got_Focus, &screen, [&] { ++got; });
  book->SetFocusCell(1, 1);
  table().SetActiveCell(2, 2);
  std::string way;
  QObject::connect(book, &F1Book::Cursor_Moved, &screen, [&] { way += cursor() + " "; });
  Click(3, 2);
  EXPECT_TRUE(book->hasFocus());
  EXPECT_EQ(cursor(), "B3");
  EXPECT_EQ(way.find("A1"), way.npos) << "no way round: " << way;
  EXPECT_EQ(got, 1);
  Click(4, 3);
  EXPECT_EQ(cursor(), "C4");
  EXPECT_EQ(got, 1);
}

TEST_F(SpreadsheetView, The_End_Of_Typing_Is_No_New_Focus) {
  int got = 0;
  book->SetFocusCell(1, 1);
  Start_At(2, 2);
  QObject::connect(book, &F1Book::Got_Focus, &screen, [&] { ++got; });
  Type_In("4");
  Key(Qt::Key_Return);
  EXPECT_EQ(cursor(), "B3");
  Type_In("4");
  Key(Qt::Key_Escape);
  EXPECT_EQ(cursor(), "B3");
  Double_Click(3, 3);
  ASSERT_TRUE(Is_Editing());
  Click(4, 1);
  EXPECT_EQ(cursor(), "A4");
  EXPECT_EQ(got, 0);
}

TEST_F(SpreadsheetView, A_Return_From_Another_Window_Is_No_New_Focus) {
  book->SetFocusCell(1, 1);
  Start_At(3, 3);
  QDialog other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(Has_Keyboard(&other));
  other.close();
  screen.activateWindow();
  ASSERT_TRUE(Has_Keyboard(&screen));
  EXPECT_TRUE(book->hasFocus());
  EXPECT_EQ(cursor(), "C3");
}

TEST_F(SpreadsheetView, The_Context_Menu_Holds_The_Commands_And_Keeps_The_Cursor) {
  book->SetFocusCell(1, 1);
  Click(1, 1);
  Type_In("4");
  Key(Qt::Key_Return);
  Click(3, 2);
  QContextMenuEvent wish(QContextMenuEvent::Mouse, Place(3, 2),
                         book->viewport()->mapToGlobal(Place(3, 2)));
  QApplication::sendEvent(book->viewport(), &wish);
  auto* menu = book->findChild<QMenu*>();
  ASSERT_NE(menu, nullptr);
  ASSERT_TRUE(Wait_Until([&] { return menu->isVisible(); }));
  std::string items;
  for (QAction* action : menu->actions()) {
    if (action->isSeparator()) continue;
    items += action->objectName().toStdString() + (action->isEnabled() ? " " : "(off) ");
  }
  EXPECT_EQ(items, "Undo Redo(off) Cut Copy Paste Clear Select_All ");
  menu->findChild<QAction*>(QStringLiteral("Undo"))->trigger();
  menu->close();
  EXPECT_EQ(cells(), ",,/,,/,,/,,/");
  EXPECT_EQ(cursor(), "A1") << "where the undone cell is";
  Click(3, 2);
  QContextMenuEvent by_key(QContextMenuEvent::Keyboard, Place(3, 2),
                           book->viewport()->mapToGlobal(Place(3, 2)));
  QApplication::sendEvent(book, &by_key);
  QWidget* popup = QApplication::activePopupWidget();
  ASSERT_NE(popup, nullptr);
  QTest::keyClick(popup, Qt::Key_Escape);
  EXPECT_TRUE(Wait_Until([] { return QApplication::activePopupWidget() == nullptr; }));
  EXPECT_EQ(cursor(), "B3");
  EXPECT_TRUE(book->hasFocus());
}

// What is shown

TEST_F(SpreadsheetView, Numbers_Stand_Right_Texts_Left_And_Centred_Cells_In_The_Middle) {
  table().NumberRC(1, 1, 5);
  table().TextRC(1, 2, "5.0");
  table().TextRC(1, 3, "3-6");
  table().TextRC(2, 1, "5");
  table().Centred({2, 1, 2, 1}, true);
  EXPECT_EQ(Data(1, 1, Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignVCenter));
  EXPECT_EQ(Data(1, 2, Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignVCenter));
  EXPECT_EQ(Data(1, 3, Qt::TextAlignmentRole).toInt(), int(Qt::AlignLeft | Qt::AlignVCenter));
  EXPECT_EQ(Data(2, 1, Qt::TextAlignmentRole).toInt(), int(Qt::AlignCenter));
}

TEST_F(SpreadsheetView, A_Cell_That_Reads_As_Another_Number_Is_Marked) {
  book->SetNumberNote(Real_Note);
  book->SetNumberNote(1, {});
  book->SetNumberNote(3, Whole_Note);
  table().TextRC(2, 1, "Silt");
  table().TextRC(2, 2, "62,5");
  table().TextRC(2, 3, "2.4");
  table().NumberRC(3, 3, 2.4);
  EXPECT_EQ(book->NumberNoteOf(2, 1), "") << "a column of names";
  EXPECT_EQ(book->NumberNoteOf(2, 2), "reads as 62");
  EXPECT_EQ(book->NumberNoteOf(2, 3), "reads as 2");
  EXPECT_EQ(book->NumberNoteOf(3, 3), "") << "code knows what it writes";
  EXPECT_EQ(book->NumberNoteOf(3, 2), "") << "an empty cell";
  EXPECT_EQ(Data(2, 2, Qt::ToolTipRole), "reads as 62");
  EXPECT_EQ(Data(2, 2, Qt::AccessibleDescriptionRole), "2, B; reads as 62");
  table().FixedRows(2);
  EXPECT_EQ(book->NumberNoteOf(2, 2), "");
}

TEST_F(SpreadsheetView, The_Mark_Is_Seen_In_The_Cell_And_While_It_Is_Typed) {
  table().TextRC(2, 2, "62,5");
  QCoreApplication::processEvents();
  const QRect cell = book->visualRect(book->model()->index(1, 1));
  const QImage plain = book->viewport()->grab(cell).toImage();
  book->SetNumberNote(Real_Note);
  QCoreApplication::processEvents();
  EXPECT_NE(book->viewport()->grab(cell).toImage(), plain);
  Start_At(2, 2);
  Type_In("1,");
  EXPECT_EQ(Number_Note_Of(Editor()), "reads as 1");
}

TEST_F(SpreadsheetView, Cells_Are_Described_By_Their_Headings) {
  table().RowText(2, "Point 2");
  table().ColText(2, "X-Velocity\n(Fps)");
  table().NumberRC(2, 2, 1.5);
  EXPECT_EQ(Data(2, 2, Qt::AccessibleDescriptionRole), "Point 2, X-Velocity (Fps)");
  QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(book);
  ASSERT_NE(seen, nullptr);
  ASSERT_NE(seen->tableInterface(), nullptr);
  QAccessibleInterface* cell = seen->tableInterface()->cellAt(1, 1);
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(cell->text(QAccessible::Name), "1.5");
  EXPECT_EQ(cell->text(QAccessible::Description), "Point 2, X-Velocity (Fps)");
  EXPECT_EQ(seen->text(QAccessible::Description), "Ctrl+Tab leaves the table");
}

TEST_F(SpreadsheetView, Headings_Are_Never_Cut) {
  table().ColText(1, "Void Ratio\nAfter Deposition");
  table().ColWidth(1, 256);
  table().ColHeadingHeight(100);
  table().RowText(2, "Point 26 (t=12.5 Hrs)");
  table().RowHeadingWidth(256);
  QCoreApplication::processEvents();
  const QFontMetrics metrics(book->horizontalHeader()->font());
  EXPECT_GE(book->columnWidth(0), metrics.horizontalAdvance("After Deposition"));
  EXPECT_GE(book->horizontalHeader()->height(), 2 * metrics.height());
  EXPECT_GE(book->verticalHeader()->width(), metrics.horizontalAdvance("Point 26 (t=12.5 Hrs)"));
}

// A digit's width 3650 / 256 = 14.26 times; 550 twips are 550 / 1440 inch.
TEST_F(SpreadsheetView, Widths_Follow_The_Font_And_Heights_The_Display) {
  table().ColText(1, "D");
  table().ColWidth(1, 3650);
  table().RowHeadingWidth(4500);
  table().ColHeadingHeight(1440);
  QCoreApplication::processEvents();
  const int digit = book->fontMetrics().horizontalAdvance('0');
  EXPECT_EQ(book->columnWidth(0), 3650 * digit / 256);
  EXPECT_EQ(book->verticalHeader()->width(), 4500 * digit / 256);
  EXPECT_EQ(book->horizontalHeader()->height(), book->logicalDpiY());
  QFont larger = book->font();
  larger.setPointSize(2 * larger.pointSize());
  book->setFont(larger);
  QCoreApplication::processEvents();
  EXPECT_GT(book->columnWidth(0), 3650 * digit / 256 * 3 / 2);
}

TEST_F(SpreadsheetView, An_Automatic_Width_Follows_What_Stands_In_The_Column) {
  table().AutoColWidth();
  QCoreApplication::processEvents();
  const int narrow = book->columnWidth(1);
  table().TextRC(4, 2, "a text that is much longer than the heading");
  QCoreApplication::processEvents();
  EXPECT_GE(book->columnWidth(1),
            book->fontMetrics().horizontalAdvance(QString::fromStdString(table().TextRC(4, 2))));
  table().TextRC(4, 2, "");
  QCoreApplication::processEvents();
  EXPECT_EQ(book->columnWidth(1), narrow);
}

TEST_F(SpreadsheetView, An_Automatic_Width_Leaves_The_Other_Columns_In_Sight) {
  table().AutoColWidth();
  table().TextRC(4, 2, std::string(10000, 'x'));
  QCoreApplication::processEvents();
  EXPECT_EQ(book->columnWidth(1), 60 * book->fontMetrics().horizontalAdvance('0'));
}

TEST_F(SpreadsheetView, A_Column_That_The_User_Dragged_Keeps_Its_Width) {
  book->setColumnWidth(1, 222);
  table().ColWidth(3, 3000);
  table().MaxRow(5);
  QCoreApplication::processEvents();
  EXPECT_EQ(book->columnWidth(1), 222);
}

TEST_F(SpreadsheetView, Cells_With_A_Larger_Font_Are_Not_Cut) {
  table().Font({1, 1, 4, 3}, "ariel", 30);
  QCoreApplication::processEvents();
  const QFont font = Data(1, 1, Qt::FontRole).value<QFont>();
  EXPECT_EQ(font.pointSize(), 30);
  EXPECT_GE(book->rowHeight(0), QFontMetrics(font).height());
}

TEST_F(SpreadsheetView, No_Font_Of_A_Cell_Is_Smaller_Than_The_Users_Own) {
  const QFont usual = QApplication::font("QTableView");
  QFont large = usual;
  large.setPointSize(24);
  QApplication::setFont(large, "QTableView");
  table().Font({1, 1, 4, 3}, "ariel", 10);
  EXPECT_EQ(Data(1, 1, Qt::FontRole).value<QFont>().pointSize(), 24);
  QApplication::setFont(usual, "QTableView");
}

TEST_F(SpreadsheetView, A_Large_Table_Is_Filled_With_One_Reset_And_Keeps_Its_Place) {
  int resets = 0, changes = 0;
  QObject::connect(book->model(), &QAbstractItemModel::modelReset, &screen, [&] { ++resets; });
  QObject::connect(book->model(), &QAbstractItemModel::dataChanged, &screen, [&] { ++changes; });
  const auto fill = [&](double base) {
    const Table_Fill filling(table());
    table().MaxRow(96);
    table().MaxCol(96);
    for (int row = 1; row <= 96; ++row) {
      table().RowText(row, "Row " + std::to_string(row));
      for (int col = 1; col <= 96; ++col) table().NumberRC(row, col, base + row * 100 + col);
    }
  };
  fill(0);
  EXPECT_EQ(resets, 1);
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(Data(96, 96, Qt::DisplayRole), "9696");
  QCoreApplication::processEvents();
  Start_At(50, 50);
  book->scrollTo(book->model()->index(49, 49));
  QCoreApplication::processEvents();
  const int down = book->verticalScrollBar()->value();
  ASSERT_GT(down, 0);
  fill(1);
  QCoreApplication::processEvents();
  EXPECT_EQ(book->verticalScrollBar()->value(), down);
  EXPECT_EQ(cursor(), "AX50");
  EXPECT_EQ(book->currentIndex(), book->model()->index(49, 49));
  EXPECT_EQ(Data(96, 96, Qt::DisplayRole), "9697");
  {
    const Table_Fill filling(table());
    table().SetActiveCell(1, 1);
  }
  EXPECT_EQ(book->verticalScrollBar()->value(), 0) << "a cursor that moved is in sight";
}

TEST_F(SpreadsheetView, A_Table_Without_Cells_Takes_Every_Key) {
  table().MaxRow(0);
  book->setFocus();
  Set_Clipboard("1");
  Type_In("5");
  for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Delete, Qt::Key_Down}) Key(key);
  for (const Qt::Key key : {Qt::Key_C, Qt::Key_X, Qt::Key_V, Qt::Key_Z, Qt::Key_Y, Qt::Key_A}) {
    Key(key, Qt::ControlModifier);
  }
  EXPECT_TRUE(edits.empty());
  Key(Qt::Key_Tab);
  EXPECT_FALSE(book->hasFocus());
  table().MaxRow(4);
  EXPECT_EQ(cells(), ",,/,,/,,/,,/");
}

TEST(SpreadsheetViewArray, Tables_Are_Made_As_A_Control_Array) {
  QWidget screen;
  const ControlArray<F1Book> F1Book2{&screen, "F1Book2", 2, 0, kBookNumbers};
  EXPECT_EQ(F1Book2(1)->objectName(), "F1Book2(1)");
  F1Book2(1)->table().NumberRC(1, 1, 1.5);
  EXPECT_EQ(F1Book2(1)->table().TextRC(1, 1), "1.5");
}

}  // namespace
}  // namespace barvon::testing
