#include "report/report_tables.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <string>

#include "pictures/shapes/inks.h"

namespace barvon {
namespace {

// Points.
constexpr double kGridSize = 6.6;
constexpr double kPad = 6, kGridPad = 2.4;  // left and right in a cell
constexpr double kRowPad = 2.4, kGridRowPad = 0.7;
constexpr double kInset = 12;                           // of rows below a group
constexpr double kValueColumns[] = {0.58, 0.17, 0.25};  // of the page's width
constexpr Colour kHeadRule{122, 130, 140};

/// Where a table's columns lie, and how its rows become blocks.
class Table_Layout {
 public:
  Table_Layout(const Report_Table& table, double room, const Text_Setting& setting)
      : table_(table),
        setting_(setting),
        grid_(table.kind == Table_Kind::grid),
        size_(grid_ ? kGridSize : kReportTextSize),
        pad_(grid_ ? kGridPad : kPad) {
    if (table.kind == Table_Kind::values) {
      for (const double part : kValueColumns) widths_.push_back(part * room);
    } else {
      Measure(room);
    }
    for (const double width : widths_) width_ += width;
  }

  Page_Block Head() const {
    Page_Block head;
    if (table_.kind == Table_Kind::values) return head;
    std::vector<std::vector<std::string>> headings;
    std::size_t most = 0;
    for (std::size_t i = 0; i < table_.columns.size(); ++i) {
      headings.push_back(
          setting_.Wrap(table_.columns[i].heading, size_, widths_[i] - 2 * pad_ + kSlack, true));
      most = std::max(most, headings.back().size());
    }
    const bool any = std::ranges::any_of(
        table_.columns, [](const Report_Column& column) { return !column.heading.empty(); });
    if (!any) return head;
    head.height = static_cast<double>(most) * kReportLine * size_ + Row_Pad();
    double x = 0;
    for (std::size_t i = 0; i < table_.columns.size(); ++i) {
      const std::vector<std::string>& lines = headings[i];
      // At the bottom of the row.
      double y =
          head.height - static_cast<double>(lines.size()) * kReportLine * size_ - Row_Pad() / 2;
      for (const std::string& line : lines) {
        y += kReportLine * size_;
        Put(head, i, x, y, line, table_.columns[i].numbers, kInk, true);
      }
      x += widths_[i];
    }
    Add_Rule(head, {0, head.height}, width_, {kHeadRule, 0.9});
    return head;
  }

  Page_Block Row(const Report_Row& row) const {
    Page_Block block;
    if (row.group) {
      // Air above it.
      block =
          Block_Of_Lines(setting_.Wrap(row.cells.front(), size_, width_, true), size_, kInk, true);
      for (Shape& shape : block.shapes) shape = Moved(shape, {0, kRowPad * 2.5});
      block.height += kRowPad * 3.5;
      return block;
    }
    double x = 0;
    double lowest = 0;
    for (std::size_t i = 0; i < row.cells.size() && i < widths_.size(); ++i) {
      const bool rest = i + 1 == row.cells.size() && i + 1 < widths_.size();
      double room = widths_[i];
      for (std::size_t j = i + 1; rest && j < widths_.size(); ++j) room += widths_[j];
      const double inset = row.inside && i == 0 ? kInset : 0;
      const bool number = table_.columns[i].numbers && !rest;
      double y = Row_Pad() / 2;
      const std::vector<std::string> lines =
          number || grid_ ? std::vector<std::string>{row.cells[i]}
                          : setting_.Wrap(row.cells[i], size_,
                                          room - pad_ - Left_Pad(i) - inset + kSlack, false);
      for (const std::string& line : lines) {
        y += kReportLine * size_;
        Put(block, i, x + inset, y, line, number, grid_ && i == 0 ? kQuietInk : kInk, false);
      }
      lowest = std::max(lowest, y);
      x += widths_[i];
    }
    block.height = lowest + Row_Pad();
    Add_Rule(block, {0, block.height}, width_, {kGridInk, 0.5});
    return block;
  }

 private:
  double Row_Pad() const { return grid_ ? kGridRowPad * 2 : kRowPad * 2; }

  /// The first column of values begins at the page's edge.
  double Left_Pad(std::size_t column) const {
    return table_.kind == Table_Kind::values && column == 0 ? 0 : pad_;
  }

  void Put(Page_Block& block, std::size_t column, double x, double y, const std::string& text,
           bool number, Colour colour, bool bold) const {
    const double baseline = y - Below_Baseline(size_);
    if (number) {
      // A number is never broken: one that is too long has smaller letters.
      const double room = widths_[column] - pad_ + kSlack,
                   width = setting_.Width(text, size_, bold);
      const double size = width > room ? size_ * room / width : size_;
      Add_Text(block, {x + widths_[column] - pad_, baseline}, text, size, colour, Anchor::end,
               bold);
    } else {
      Add_Text(block, {x + Left_Pad(column), baseline}, text, size_, colour, Anchor::start, bold);
    }
  }

  /// The width of a column by its cells, without its heading.
  double Cells_Width(std::size_t column) const {
    const std::size_t columns = table_.columns.size();
    double width = 0;
    for (const Report_Row& row : table_.rows) {
      const bool spans = row.cells.size() < columns && column + 1 == row.cells.size();
      if (column >= row.cells.size() || spans) continue;
      width = std::max(width, setting_.Width(row.cells[column], size_, false));
    }
    return width;
  }

  double Heading_Width(std::size_t column) const {
    double width = 0;
    for (const std::string& line : Lines_Of(table_.columns[column].heading)) {
      width = std::max(width, setting_.Width(line, size_, true));
    }
    return width;
  }

  double Sum() const { return std::accumulate(widths_.begin(), widths_.end(), 0.0); }

  void Measure_Columns() {
    widths_.clear();
    for (std::size_t i = 0; i < table_.columns.size(); ++i) {
      widths_.push_back(std::max(Heading_Width(i), Cells_Width(i)) + 2 * pad_);
    }
  }

  void Measure(double room) {
    const std::size_t columns = table_.columns.size();
    Measure_Columns();
    if (grid_ && Sum() > room) {
      const double narrower = room / Sum();
      size_ *= narrower;
      pad_ *= narrower;
      Measure_Columns();
      return;
    }
    if (grid_ && Sum() < room) {
      // Over the page, but not so far that a row is hard to follow.
      const double wider = std::min(room / Sum(), kWidest);
      for (double& width : widths_) width *= wider;
    }
    if (Sum() <= room) return;
    for (std::size_t i = 0; i < columns; ++i) {
      const std::string& heading = table_.columns[i].heading;
      widths_[i] = std::max(setting_.Longest_Word(heading, size_, true), Cells_Width(i)) + 2 * pad_;
    }
    if (Sum() <= room) return;
    // The widest column of words gives way; its cells are wrapped.
    std::size_t widest = columns;
    for (std::size_t i = 0; i < columns; ++i) {
      if (table_.columns[i].numbers) continue;
      if (widest == columns || widths_[i] > widths_[widest]) widest = i;
    }
    if (widest < columns) {
      widths_[widest] = std::max(widths_[widest] - (Sum() - room), room / 4);
    }
    if (Sum() <= room) return;
    const double narrower = room / Sum();
    size_ *= narrower;
    pad_ *= narrower;
    for (double& width : widths_) width *= narrower;
  }

  // Of the page; and what rounding may take of a width.
  static constexpr double kWidest = 1.6, kSlack = 0.01;

  const Report_Table& table_;
  const Text_Setting& setting_;
  bool grid_;
  double size_, pad_;
  std::vector<double> widths_;
  double width_ = 0;
};

}  // namespace

Laid_Table Lay_Out_Table(const Report_Table& table, double room, const Text_Setting& setting) {
  const Table_Layout layout(table, room, setting);
  Laid_Table laid{layout.Head(), {}};
  for (const Report_Row& row : table.rows) laid.rows.push_back(layout.Row(row));
  return laid;
}

}  // namespace barvon
