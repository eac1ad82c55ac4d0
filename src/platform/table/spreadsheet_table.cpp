#include "platform/table/spreadsheet_table.h"

#include <algorithm>

namespace barvon {
namespace {

constexpr std::size_t kKeptSteps = 100;

}  // namespace

// Size

void Spreadsheet_Table::Resize(int& count, int new_count) {
  if (new_count == count) return;
  if (new_count < count || &count == &max_col_) ForgetEdits();
  count = new_count;
  const Cell_Range table = TableRange();
  row_ = std::min(row_, table.row2);
  col_ = std::min(col_, table.col2);
  selection_ = Shared(selection_, table).value_or(Cell_Range{row_, col_, row_, col_});
  Tell_Shape();
}

void Spreadsheet_Table::MaxRow(int rows) { Resize(max_row_, std::clamp(rows, 0, kSheetRows)); }

void Spreadsheet_Table::MaxCol(int cols) { Resize(max_col_, std::clamp(cols, 0, kSheetCols)); }

void Spreadsheet_Table::FixedRows(int rows) {
  fixed_rows_ = std::clamp(rows, 0, kSheetRows);
  Tell_Shape();
}

void Spreadsheet_Table::FixedCols(int cols) {
  fixed_cols_ = std::clamp(cols, 0, kSheetCols);
  Tell_Shape();
}

Cell_Range Spreadsheet_Table::TableRange() const {
  return {1, 1, std::max(max_row_, 1), std::max(max_col_, 1)};
}

// Cells

const Spreadsheet_Table::Cell& Spreadsheet_Table::At(int row, int col) const {
  static const Cell empty;
  if (row < 1 || col < 1 || Index(row) >= rows_.size()) return empty;
  const std::vector<Cell>& line = rows_[Index(row)];
  return Index(col) < line.size() ? line[Index(col)] : empty;
}

Spreadsheet_Table::Cell& Spreadsheet_Table::Reach(int row, int col) {
  if (Index(row) >= rows_.size()) rows_.resize(Index(row) + 1);
  std::vector<Cell>& line = rows_[Index(row)];
  if (Index(col) >= line.size()) line.resize(Index(col) + 1);
  return line[Index(col)];
}

const Cell_Value& Spreadsheet_Table::ValueRC(int row, int col) const { return At(row, col).value; }

void Spreadsheet_Table::ValueRC(int row, int col, Cell_Value value) {
  if (!kSheet.Holds(row, col)) return;
  const auto* text = std::get_if<std::string>(&value);
  if (text != nullptr && text->empty()) value = std::monostate();
  if (At(row, col).value == value) return;
  std::swap(Reach(row, col).value, value);
  const Cell_Range here{row, col, row, col};
  if (open_steps_ == 0) {
    Tell_Cells(here);
    return;
  }
  step_.push_back({row, col, std::move(value)});
  step_told_ = step_told_ ? Joined(*step_told_, here) : here;
}

const Cell_Style& Spreadsheet_Table::StyleRC(int row, int col) const {
  return styles_[At(row, col).style];
}

std::string Spreadsheet_Table::TextRC(int row, int col) const {
  const Cell& cell = At(row, col);
  if (const auto* number = std::get_if<double>(&cell.value)) {
    return numbers_.show(*number, styles_[cell.style].format);
  }
  const auto* text = std::get_if<std::string>(&cell.value);
  return text == nullptr ? std::string() : *text;
}

void Spreadsheet_Table::TextRC(int row, int col, const std::string& text) {
  ValueRC(row, col, text);
}

double Spreadsheet_Table::NumberRC(int row, int col) const {
  const Cell_Value& value = At(row, col).value;
  if (const auto* number = std::get_if<double>(&value)) return *number;
  const auto* text = std::get_if<std::string>(&value);
  return text == nullptr ? 0 : numbers_.read(*text).value;
}

void Spreadsheet_Table::NumberRC(int row, int col, double number) { ValueRC(row, col, number); }

std::string Spreadsheet_Table::ShownRC(int row, int col) const {
  const Cell& cell = At(row, col);
  const auto* text = std::get_if<std::string>(&cell.value);
  const std::string& format = styles_[cell.style].format;
  if (text == nullptr || format.empty()) return TextRC(row, col);
  const Cell_Reading reading = numbers_.read(*text);
  return reading.whole ? numbers_.show(reading.value, format) : *text;
}

std::string Spreadsheet_Table::EntryRC(int row, int col) const {
  const auto* number = std::get_if<double>(&At(row, col).value);
  return number == nullptr ? TextRC(row, col) : numbers_.show(*number, {});
}

bool Spreadsheet_Table::IsNumberRC(int row, int col) const {
  const Cell_Value& value = At(row, col).value;
  const auto* text = std::get_if<std::string>(&value);
  return text == nullptr ? std::holds_alternative<double>(value) : numbers_.read(*text).whole;
}

bool Spreadsheet_Table::IsEmptyRC(int row, int col) const {
  return std::holds_alternative<std::monostate>(At(row, col).value);
}

// Cursor and selection

void Spreadsheet_Table::SetActiveCell(int row, int col) {
  row = std::clamp(row, 1, kSheetRows);
  col = std::clamp(col, 1, kSheetCols);
  const Cell_Range cell{row, col, row, col};
  if (row == row_ && col == col_ && selection_ == cell) return;
  row_ = row;
  col_ = col;
  selection_ = cell;
  Tell_Cursor();
}

bool Spreadsheet_Table::Selection(std::string_view range) {
  const std::optional<Cell_Range> parsed = Parse_Range(range);
  if (!parsed || !Shared(*parsed, kSheet)) return false;
  SelectRange(*parsed);
  return true;
}

void Spreadsheet_Table::SelectRange(const Cell_Range& range) {
  const std::optional<Cell_Range> selection = Shared(range, kSheet);
  if (!selection || *selection == selection_) return;
  selection_ = *selection;
  if (!selection_.Holds(row_, col_)) {
    row_ = selection_.row1;
    col_ = selection_.col1;
  }
  Tell_Cursor();
}

// Styles

template <class Change>
void Spreadsheet_Table::Restyle(const Cell_Range& range, Change change) {
  const std::optional<Cell_Range> cells = Shared(range, kSheet);
  if (!cells) return;
  std::map<std::uint16_t, std::uint16_t> changed;  // old style -> new style
  for (int row = cells->row1; row <= cells->row2; ++row) {
    for (int col = cells->col1; col <= cells->col2; ++col) {
      std::uint16_t& style = Reach(row, col).style;
      const auto [known, is_new] = changed.try_emplace(style, style);
      if (is_new) {
        Cell_Style wanted = styles_[style];
        change(wanted);
        const auto at = std::find(styles_.begin(), styles_.end(), wanted);
        known->second = static_cast<std::uint16_t>(at - styles_.begin());
        if (at == styles_.end()) styles_.push_back(std::move(wanted));
      }
      style = known->second;
    }
  }
  Tell_Cells(*cells);
}

void Spreadsheet_Table::NumberFormat(const std::string& pattern) {
  NumberFormat(selection_, pattern);
}

void Spreadsheet_Table::NumberFormat(const Cell_Range& range, const std::string& pattern) {
  Restyle(range, [&](Cell_Style& style) { style.format = pattern; });
}

void Spreadsheet_Table::Centred(bool centred) { Centred(selection_, centred); }

void Spreadsheet_Table::Centred(const Cell_Range& range, bool centred) {
  Restyle(range, [&](Cell_Style& style) { style.centred = centred; });
}

void Spreadsheet_Table::Font(const std::string& name, int points) {
  Font(selection_, name, points);
}

void Spreadsheet_Table::Font(const Cell_Range& range, const std::string& name, int points) {
  Restyle(range, [&](Cell_Style& style) {
    style.font = name;
    style.font_size = std::max(points, 0);
  });
}

int Spreadsheet_Table::LargestFont() const {
  int largest = 0;
  for (const Cell_Style& style : styles_) largest = std::max(largest, style.font_size);
  return largest;
}

// Headings and widths

std::string Spreadsheet_Table::RowText(int row) const {
  const auto own = row_texts_.find(row);
  return own == row_texts_.end() ? std::to_string(row) : own->second;
}

void Spreadsheet_Table::RowText(int row, const std::string& text) {
  if (row < 1 || row > kSheetRows) return;
  row_texts_[row] = text;
  Tell_Headings();
}

std::string Spreadsheet_Table::ColText(int col) const {
  const auto own = col_texts_.find(col);
  return own == col_texts_.end() ? Column_Letters(col) : own->second;
}

void Spreadsheet_Table::ColText(int col, const std::string& text) {
  if (col < 1 || col > kSheetCols) return;
  col_texts_[col] = text;
  Tell_Headings();
}

int Spreadsheet_Table::ColWidth(int col) const {
  const auto own = col_widths_.find(col);
  return own == col_widths_.end() ? all_widths_ : own->second;
}

void Spreadsheet_Table::ColWidth(int col, int width) {
  if (col < 1 || col > kSheetCols) return;
  col_widths_[col] = std::max(width, kAutoWidth);
  Tell_Headings();
}

void Spreadsheet_Table::ColWidths(int width) {
  all_widths_ = std::max(width, kAutoWidth);
  col_widths_.clear();
  Tell_Headings();
}

void Spreadsheet_Table::RowHeadingWidth(int width) {
  row_heading_width_ = std::max(width, 0);
  Tell_Headings();
}

void Spreadsheet_Table::ColHeadingHeight(int twips) {
  col_heading_height_ = std::max(twips, 0);
  Tell_Headings();
}

// Whole ranges

void Spreadsheet_Table::ClearAll() {
  for (std::vector<Cell>& line : rows_) {
    for (Cell& cell : line) cell.value = std::monostate();
  }
  ForgetEdits();
  Tell_Cells(TableRange());
}

void Spreadsheet_Table::ClearRange(const Cell_Range& range) {
  const std::optional<Cell_Range> cells = Shared(range, kSheet);
  if (!cells) return;
  for (int row = cells->row1; row <= cells->row2; ++row) {
    for (int col = cells->col1; col <= cells->col2; ++col) {
      ValueRC(row, col, std::monostate());
    }
  }
}

// History

void Spreadsheet_Table::ForgetEdits() {
  undo_.clear();
  redo_.clear();
  step_.clear();
}

void Spreadsheet_Table::End_Step() {
  if (!step_.empty()) {
    undo_.push_back(std::move(step_));
    if (undo_.size() > kKeptSteps) undo_.erase(undo_.begin());
    redo_.clear();
    step_.clear();
  }
  if (const auto told = std::exchange(step_told_, std::nullopt)) Tell_Cells(*told);
}

std::optional<Cell_Range> Spreadsheet_Table::Swap_Step(std::vector<Step>& from,
                                                       std::vector<Step>& to) {
  if (from.empty()) return std::nullopt;
  Step step = std::move(from.back());
  from.pop_back();
  // Swapped, not written: whatever code put into the cells meanwhile comes back with the redo.
  // A cell that was written twice is in the step twice, so the last comes first.
  std::reverse(step.begin(), step.end());
  Cell_Range touched{step[0].row, step[0].col, step[0].row, step[0].col};
  for (Saved_Cell& saved : step) {
    std::swap(Reach(saved.row, saved.col).value, saved.value);
    touched = Joined(touched, {saved.row, saved.col, saved.row, saved.col});
  }
  to.push_back(std::move(step));
  Tell_Cells(touched);
  return touched;
}

// Telling

void Spreadsheet_Table::Tell_Cells(const Cell_Range& range) {
  if (fills_ == 0 && watcher_.cells) watcher_.cells(range);
}

void Spreadsheet_Table::Tell_Shape() {
  if (fills_ == 0 && watcher_.shape) watcher_.shape();
}

void Spreadsheet_Table::Tell_Headings() {
  if (fills_ == 0 && watcher_.headings) watcher_.headings();
}

void Spreadsheet_Table::Tell_Cursor() {
  if (fills_ == 0 && watcher_.cursor) watcher_.cursor();
}

Table_Fill::Table_Fill(Spreadsheet_Table& table) : table_(table) { ++table_.fills_; }

Table_Fill::~Table_Fill() {
  if (--table_.fills_ == 0) table_.Tell_Shape();
}

Edit_Step::Edit_Step(Spreadsheet_Table& table) : table_(table) { ++table_.open_steps_; }

Edit_Step::~Edit_Step() {
  if (--table_.open_steps_ == 0) table_.End_Step();
}

}  // namespace barvon
