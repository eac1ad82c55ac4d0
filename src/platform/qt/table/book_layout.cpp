#include "platform/qt/table/book_layout.h"

#include <QHeaderView>
#include <QLayout>
#include <QScopedValueRollback>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "platform/table/table_width.h"

namespace barvon {
namespace {

constexpr int kLargestHintWidth = 640;
constexpr int kLargestHintHeight = 360;
constexpr int kDefaultDigits = 9;
constexpr int kLargestAutoDigits = 60;  // so that one long text leaves the other columns in sight
constexpr int kTwipsInInch = 1440;

int Digit_Pixels(const QWidget& widget) {
  return widget.fontMetrics().horizontalAdvance(QLatin1Char('0'));
}

}  // namespace

Book_Layout::Book_Layout(QTableView& view, const Spreadsheet_Table& table)
    : QObject(&view), view_(view), table_(table), largest_height_(kLargestHintHeight) {
  view_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  connect(view_.horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int col, int, int width) {
            if (!laying_out_) dragged_[col + 1] = width;
          });
}

void Book_Layout::Lay_Out() {
  due_ = false;
  laid_out_font_ = table_.LargestFont();
  const QScopedValueRollback laying_out(laying_out_, true);
  view_.verticalHeader()->setMinimumWidth(table_.RowHeadingWidth() * Digit_Pixels(view_) /
                                          kWidthsInDigit);
  view_.verticalHeader()->setDefaultSectionSize(Row_Pixels());
  view_.horizontalHeader()->setMinimumHeight(table_.ColHeadingHeight() * view_.logicalDpiY() /
                                             kTwipsInInch);
  for (int col = 1; col <= table_.MaxCol(); ++col) {
    const auto dragged = dragged_.find(col);
    view_.setColumnWidth(col - 1, dragged == dragged_.end() ? Column_Pixels(col) : dragged->second);
  }
  Set_Least_Width();
  Tell_Size();
}

void Book_Layout::Set_Least_Width() {
  if (cols_in_sight_ == 0) return;
  int width = view_.verticalHeader()->sizeHint().width() + 2 * view_.frameWidth() +
              view_.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  for (int col = 1; col <= cols_in_sight_; ++col) width += Column_Pixels(col);
  view_.setMinimumWidth(width);
}

/// To everything around that is not in view yet: the toolkit tells it of no new hint, and a screen
/// would open with the size of an empty table.
void Book_Layout::Tell_Size() {
  view_.updateGeometry();
  for (QWidget* around = view_.parentWidget(); around != nullptr && !around->isVisible();
       around = around->parentWidget()) {
    if (around->layout() != nullptr) around->layout()->activate();
    around->updateGeometry();
  }
}

void Book_Layout::Lay_Out_Later() {
  if (std::exchange(due_, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (due_) Lay_Out();
      },
      Qt::QueuedConnection);
}

void Book_Layout::Follow_Cells(const Cell_Range& range) {
  bool hangs_on_them = table_.LargestFont() != laid_out_font_;
  for (int col = range.col1; col <= std::min(range.col2, table_.MaxCol()); ++col) {
    hangs_on_them = hangs_on_them || table_.ColWidth(col) == Spreadsheet_Table::kAutoWidth;
  }
  if (hangs_on_them) Lay_Out_Later();
}

int Book_Layout::Row_Pixels() const {
  QFont font = view_.font();
  if (table_.LargestFont() > font.pointSize()) font.setPointSize(table_.LargestFont());
  const int margins = 2 * (view_.style()->pixelMetric(QStyle::PM_FocusFrameVMargin) + 2);
  return std::max(view_.verticalHeader()->minimumSectionSize(),
                  QFontMetrics(font).height() + margins);
}

int Book_Layout::Column_Pixels(int col) const {
  const int heading = view_.horizontalHeader()->sectionSizeHint(col - 1);
  const int width = table_.ColWidth(col);
  const int digit = Digit_Pixels(view_);
  if (width == Spreadsheet_Table::kAutoWidth) {
    view_.resizeColumnToContents(col - 1);
    return std::max(heading, std::min(view_.columnWidth(col - 1), kLargestAutoDigits * digit));
  }
  return std::max(heading, width == 0 ? kDefaultDigits * digit : width * digit / kWidthsInDigit);
}

QSize Book_Layout::Size_Hint() const {
  const QHeaderView& rows = *view_.verticalHeader();
  const QHeaderView& cols = *view_.horizontalHeader();
  const int width = rows.sizeHint().width() + cols.length();
  const int height =
      cols.sizeHint().height() + std::max(rows.length(), asked_rows_ * rows.defaultSectionSize());
  // A table that scrolls in one direction must not do so in the other for the bar's sake.
  const int bar = view_.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const QSize frame(2 * view_.frameWidth(), 2 * view_.frameWidth());
  return QSize(std::min(width + (height > largest_height_ ? bar : 0), kLargestHintWidth),
               std::min(height + (width > kLargestHintWidth ? bar : 0), largest_height_)) +
         frame;
}

void Book_Layout::Ask_For_Rows(int rows) {
  asked_rows_ = rows;
  Tell_Size();
}

void Book_Layout::Keep_In_Sight(int cols) {
  cols_in_sight_ = cols;
  Set_Least_Width();
  Tell_Size();
}

void Book_Layout::Ask_For_All_Rows() {
  largest_height_ = QWIDGETSIZE_MAX;
  Tell_Size();
}

}  // namespace barvon
