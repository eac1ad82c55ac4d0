#include <QAccessible>
#include <QFont>
#include <QHeaderView>
#include <QScrollBar>

#include "core/number_reading.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/number_field.h"
#include "platform/qt/table/spreadsheet_screen.h"

namespace barvon::testing {
namespace {

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

TEST_F(SpreadsheetView, A_Cell_Stands_Out_As_It_Is_Told_And_Says_Why) {
  book->SetNumberNote(Real_Note);
  book->SetCellLook([this](int row, int col) {
    const bool negative = table().NumberRC(row, col) < 0;
    return negative ? Cell_Look{true, true, "negative"} : Cell_Look();
  });
  table().TextRC(2, 2, "-2,5");
  EXPECT_TRUE(Data(2, 2, Qt::FontRole).value<QFont>().bold());
  EXPECT_TRUE(Data(2, 2, Qt::ForegroundRole).isValid());
  EXPECT_TRUE(Data(2, 2, Qt::BackgroundRole).isValid());
  EXPECT_EQ(Data(2, 2, Qt::ToolTipRole), "reads as -2; negative");
  EXPECT_EQ(Data(2, 2, Qt::AccessibleDescriptionRole), "2, B; reads as -2; negative");
  EXPECT_FALSE(Data(2, 3, Qt::FontRole).isValid());
  EXPECT_FALSE(Data(2, 3, Qt::BackgroundRole).isValid());
  table().TextRC(2, 2, "2");
  EXPECT_FALSE(Data(2, 2, Qt::ForegroundRole).isValid());
  book->SetCellLook({});
  table().TextRC(2, 2, "-2");
  EXPECT_FALSE(Data(2, 2, Qt::ToolTipRole).isValid());
}

TEST_F(SpreadsheetView, Fixed_Columns_Are_On_Another_Ground_And_Without_A_Mark) {
  book->SetNumberNote(Real_Note);
  table().TextRC(1, 1, "2,5");
  table().FixedCols(1);
  EXPECT_TRUE(Data(1, 1, Qt::BackgroundRole).isValid());
  EXPECT_FALSE(Data(1, 2, Qt::BackgroundRole).isValid());
  EXPECT_EQ(book->NumberNoteOf(1, 1), "");
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

TEST_F(SpreadsheetView, A_Cell_Lays_The_Table_Out_Anew_Only_Where_A_Width_Hangs_On_It) {
  table().ColWidth(2, Spreadsheet_Table::kAutoWidth);
  QCoreApplication::processEvents();
  // A layout gives the headings back the width that the table asks for.
  constexpr int kAnother = 177;
  book->verticalHeader()->setMinimumWidth(kAnother);
  table().TextRC(4, 1, "5");
  QCoreApplication::processEvents();
  EXPECT_EQ(book->verticalHeader()->minimumWidth(), kAnother);
  table().TextRC(4, 2, "5");
  QCoreApplication::processEvents();
  EXPECT_NE(book->verticalHeader()->minimumWidth(), kAnother);
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
