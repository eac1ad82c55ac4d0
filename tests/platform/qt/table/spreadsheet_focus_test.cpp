#include <QMenu>

#include "platform/qt/table/spreadsheet_screen.h"

namespace barvon::testing {
namespace {

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

}  // namespace
}  // namespace barvon::testing
