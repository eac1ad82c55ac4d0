#include "report/report_pages.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <sstream>
#include <string>
#include <utility>

#include "pictures/shapes/inks.h"
#include "pictures/shapes/lettering.h"

namespace barvon {
namespace {

// Points.
constexpr double kTitleSize = 21, kSubtitleSize = 12.5, kChapterSize = 14, kPartSize = 11.5;
constexpr double kTextSize = 9.5, kGridSize = 6.6, kRunningSize = 8;
constexpr double kLeast = 200;              // side of what can be written on
constexpr double kRunningRoom = 22;         // of the running title, and of the page number
constexpr double kPad = 6, kGridPad = 2.4;  // left and right in a cell
constexpr double kRowPad = 2.4, kGridRowPad = 0.7;
constexpr double kInset = 12;          // of rows below a group
constexpr double kPicturePart = 0.68;  // points of a picture's pixel
constexpr double kAbovePicture = 9, kBelowPicture = 8;
constexpr double kHeadingsRoom = 60;   // for headings above a picture that is as high as a page
constexpr double kLeastShrunk = 0.78;  // a picture's part of its usual size
constexpr double kLine = 1.32;         // height of a line, of its size
constexpr double kValueColumns[] = {0.58, 0.17, 0.25};  // of the page's width
constexpr std::size_t kLeastRows = 2;   // of a table at the end and at the start of a page
constexpr std::size_t kWholeGroup = 8;  // rows of a group that are never parted
constexpr double kBold = 1.06;          // bold letters are so much wider
constexpr std::size_t kWholeTable = 7;  // rows that are never parted
constexpr Colour kChapterInk{11, 94, 168}, kRule{201, 206, 213}, kHeadRule{122, 130, 140};

struct Mover {
  double x, y, scale;
  Place operator()(const Place& place) const { return {x + place.x * scale, y + place.y * scale}; }
  Stroke operator()(Stroke stroke) const {
    stroke.width *= scale;
    return stroke;
  }
  void Move(Line_Shape& line) const {
    for (Place& place : line.points) place = (*this)(place);
    line.stroke = (*this)(line.stroke);
  }
  void Move(Polygon_Shape& polygon) const {
    for (Place& place : polygon.points) place = (*this)(place);
    if (polygon.stroke) polygon.stroke = (*this)(*polygon.stroke);
  }
  void Move(Circle_Shape& circle) const {
    circle.centre = (*this)(circle.centre);
    circle.radius *= scale;
    if (circle.stroke) circle.stroke = (*this)(*circle.stroke);
  }
  void Move(Text_Shape& text) const {
    text.place = (*this)(text.place);
    text.size *= scale;
  }
};

Shape Moved(Shape shape, const Mover& mover) {
  std::visit([&](auto& known) { mover.Move(known); }, shape);
  return shape;
}

std::vector<std::string> Lines_Of(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream all(text);
  for (std::string line; std::getline(all, line);) lines.push_back(line);
  if (lines.empty()) lines.emplace_back();
  return lines;
}

double Wide_Letters(const std::string& text, double size, bool bold) {
  return Text_Width(text, size) * (bold ? kBold : 1);
}

/// How texts are set.
struct Setting {
  const Text_Measure& measure;

  double Width(const std::string& text, double size, bool bold) const {
    return measure(text, size, bold);
  }

  /// In lines of at most that width, broken at blanks; a longer word has a line of its own.
  std::vector<std::string> Wrap(const std::string& text, double size, double width,
                                bool bold) const {
    std::vector<std::string> lines;
    for (const std::string& paragraph : Lines_Of(text)) {
      std::istringstream words(paragraph);
      std::string line;
      for (std::string word; words >> word;) {
        const std::string longer = line.empty() ? word : line + ' ' + word;
        if (!line.empty() && Width(longer, size, bold) > width) {
          lines.push_back(std::exchange(line, word));
        } else {
          line = longer;
        }
      }
      lines.push_back(line);
    }
    return lines;
  }

  double Longest_Word(const std::string& text, double size, bool bold) const {
    double longest = 0;
    std::istringstream words(text);
    for (std::string word; words >> word;) longest = std::max(longest, Width(word, size, bold));
    return longest;
  }
};

/// Something whole, with its upper left corner at 0, 0.
struct Block {
  double height = 0;
  std::vector<Shape> shapes;
};

void Add_Text(Block& block, Place baseline, const std::string& text, double size, Colour colour,
              Anchor anchor = Anchor::start, bool bold = false) {
  block.shapes.push_back(Text_Shape{baseline, text, size, colour, anchor, false, bold});
}

void Add_Rule(Block& block, double x, double y, double length, const Stroke& stroke) {
  block.shapes.push_back(Line_Shape{{{x, y}, {x + length, y}}, stroke});
}

Block Lines_Block(const std::vector<std::string>& lines, double size, Colour colour, bool bold) {
  Block block;
  for (const std::string& line : lines) {
    block.height += kLine * size;
    Add_Text(block, {0, block.height - 0.35 * size}, line, size, colour, Anchor::start, bold);
  }
  return block;
}

/// Where a table's columns lie, and how its rows become blocks.
class Table_Layout {
 public:
  Table_Layout(const Report_Table& table, double room, const Setting& setting)
      : table_(table),
        setting_(setting),
        grid_(table.kind == Table_Kind::grid),
        size_(grid_ ? kGridSize : kTextSize),
        pad_(grid_ ? kGridPad : kPad) {
    if (table.kind == Table_Kind::values) {
      for (const double part : kValueColumns) widths_.push_back(part * room);
    } else {
      Measure(room);
    }
    for (const double width : widths_) width_ += width;
  }

  Block Head() const {
    Block head;
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
    head.height = static_cast<double>(most) * kLine * size_ + Row_Pad();
    double x = 0;
    for (std::size_t i = 0; i < table_.columns.size(); ++i) {
      const std::vector<std::string>& lines = headings[i];
      // At the bottom of the row.
      double y = head.height - static_cast<double>(lines.size()) * kLine * size_ - Row_Pad() / 2;
      for (const std::string& line : lines) {
        y += kLine * size_;
        Put(head, i, x, y, line, table_.columns[i].numbers, kInk, true);
      }
      x += widths_[i];
    }
    Add_Rule(head, 0, head.height, width_, {kHeadRule, 0.9});
    return head;
  }

  Block Row(const Report_Row& row) const {
    Block block;
    if (row.group) {
      // Air above it.
      block = Lines_Block(setting_.Wrap(row.cells.front(), size_, width_, true), size_, kInk, true);
      for (Shape& shape : block.shapes) shape = Moved(shape, {0, kRowPad * 2.5, 1});
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
        y += kLine * size_;
        Put(block, i, x + inset, y, line, number, grid_ && i == 0 ? kQuietInk : kInk, false);
      }
      lowest = std::max(lowest, y);
      x += widths_[i];
    }
    block.height = lowest + Row_Pad();
    Add_Rule(block, 0, block.height, width_, {kGridInk, 0.5});
    return block;
  }

 private:
  double Row_Pad() const { return grid_ ? kGridRowPad * 2 : kRowPad * 2; }

  /// The first column of values begins at the page's edge.
  double Left_Pad(std::size_t column) const {
    return table_.kind == Table_Kind::values && column == 0 ? 0 : pad_;
  }

  void Put(Block& block, std::size_t column, double x, double y, const std::string& text,
           bool number, Colour colour, bool bold) const {
    const double baseline = y - 0.35 * size_;
    if (number) {
      Add_Text(block, {x + widths_[column] - pad_, baseline}, text, size_, colour, Anchor::end,
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
    if (widest == columns) return;
    widths_[widest] = std::max(widths_[widest] - (Sum() - room), room / 4);
  }

  // Of the page; and what rounding may take of a width.
  static constexpr double kWidest = 1.6, kSlack = 0.01;

  const Report_Table& table_;
  const Setting& setting_;
  bool grid_;
  double size_, pad_;
  std::vector<double> widths_;
  double width_ = 0;
};

class Page_Maker {
 public:
  Page_Maker(const Report_Paper& paper, const Setting& setting) : paper_(paper), setting_(setting) {
    room_ = paper.width - paper.left - paper.right;
    top_ = paper.top + kRunningRoom;
    bottom_ = paper.height - paper.bottom - kRunningRoom;
    New_Page();
  }

  void Title(const Report_Document& report) {
    Block block =
        Lines_Block(setting_.Wrap(report.title, kTitleSize, room_, true), kTitleSize, kInk, true);
    const Block below = Lines_Block(setting_.Wrap(report.subtitle, kSubtitleSize, room_, false),
                                    kSubtitleSize, kQuietInk, false);
    for (const Shape& shape : below.shapes) {
      block.shapes.push_back(Moved(shape, {0, block.height, 1}));
    }
    block.height += below.height + 5;
    Add_Rule(block, 0, block.height, room_, {kChapterInk, 1.6});
    block.height += 10;
    Put(block);
  }

  void operator()(const Report_Heading& heading) {
    const bool chapter = heading.level == 1;
    const double size = chapter ? kChapterSize : kPartSize;
    Block block = Lines_Block(setting_.Wrap(heading.text, size, room_, true), size,
                              chapter ? kChapterInk : kInk, true);
    if (chapter) {
      block.height += 2.5;
      Add_Rule(block, 0, block.height, room_, {kRule, 0.8});
    }
    block.height += 5;
    // Air above it, but not at the top of a page.
    Hold(block, chapter ? 17 : 11);
  }

  void operator()(const Report_Paragraph& paragraph) {
    Block block =
        Lines_Block(setting_.Wrap(paragraph.text, kTextSize, room_, false), kTextSize, kInk, false);
    block.height += 5;
    Put(block);
  }

  void operator()(const Report_Picture& picture) {
    const Shape_List& list = picture.picture;
    Block block =
        Lines_Block(setting_.Wrap(list.title, kTextSize, room_, true), kTextSize, kInk, true);
    const double caption = block.height + 3;
    double scale = std::min(kPicturePart, room_ / std::max(list.width, 1.0));
    const double height = std::max(list.height, 1.0);
    scale = std::min(scale, (bottom_ - top_ - caption - kHeadingsRoom) / height);
    // Somewhat smaller on this page rather than on the next one.
    const double left = (bottom_ - y_ - Held_Height() - caption - kBelowPicture - kAbovePicture);
    if (left < height * scale && left > height * scale * kLeastShrunk) scale = left / height;
    for (const Shape& shape : list.shapes) {
      if (Has_Places(shape)) block.shapes.push_back(Moved(shape, {0, caption, scale}));
    }
    block.height = caption + list.height * scale + kBelowPicture;
    Put(block, kAbovePicture);
  }

  void operator()(const Report_Table& table) {
    const Table_Layout layout(table, room_, setting_);
    if (!table.caption.empty()) {
      Block caption =
          Lines_Block(setting_.Wrap(table.caption, kTextSize, room_, true), kTextSize, kInk, true);
      caption.height += 2;
      Hold(caption, 7);
    }
    std::vector<Block> rows;
    for (const Report_Row& row : table.rows) rows.push_back(layout.Row(row));
    Put_Rows(table, layout.Head(), rows);
    y_ += 7;
  }

  void operator()(const Report_Break&) {
    if (!Is_Fresh()) New_Page();
  }

  std::vector<Shape_List> Finished(const Report_Document& report) {
    Flush();
    if (pages_.size() > 1 && pages_.back().shapes.empty()) pages_.pop_back();
    for (std::size_t i = 0; i < pages_.size(); ++i) Add_Running_Lines(report, i);
    return std::move(pages_);
  }

 private:
  bool Is_Fresh() const { return y_ <= top_ && held_.empty(); }

  void New_Page() {
    pages_.push_back({paper_.width, paper_.height, "", "", {}});
    y_ = top_;
  }

  void Write(const Block& block) {
    for (const Shape& shape : block.shapes) {
      pages_.back().shapes.push_back(Moved(shape, {paper_.left, y_, 1}));
    }
    y_ += block.height;
  }

  /// Keeps a block for the page of what follows it.
  void Hold(const Block& block, double air) { held_.push_back({block, air}); }

  double Held_Height() const {
    double height = 0;
    for (const auto& [block, air] : held_) height += block.height + air;
    return height;
  }

  /// Makes room for what is held and so much more, and writes what is held.
  void Make_Room(double height) {
    if (y_ > top_ && y_ + Held_Height() + height > bottom_) New_Page();
    Flush();
  }

  void Flush() {
    for (const auto& [block, air] : std::exchange(held_, {})) {
      if (y_ > top_) y_ += air;
      Write(block);
    }
  }

  void Put(const Block& block, double air = 0) {
    Make_Room(block.height + air);
    if (y_ > top_) y_ += air;
    Write(block);
  }

  /// The rows that are one with that of `row`: a group and what is below it.
  std::size_t Unit_At(const Report_Table& table, std::size_t row) const {
    std::size_t rows = 1;
    if (!table.rows[row].group) return rows;
    while (row + rows < table.rows.size() && table.rows[row + rows].inside) ++rows;
    return std::min(rows, kWholeGroup);
  }

  /// How many rows from `first` on must be together: the last rows are never alone, and a short
  /// table is never parted.
  std::size_t Together(const Report_Table& table, std::size_t first) const {
    const std::size_t count = table.rows.size();
    if (first == 0 && count <= kWholeTable) return count;
    std::size_t rows = Unit_At(table, first);
    while (first == 0 && rows < kLeastRows && rows < count) rows += Unit_At(table, rows);
    if (count - first - rows < kLeastRows) rows = count - first;
    return std::min(rows, count - first);
  }

  void Put_Rows(const Report_Table& table, const Block& head, const std::vector<Block>& rows) {
    const double page = bottom_ - top_ - head.height;
    for (std::size_t row = 0; row < rows.size();) {
      std::size_t together = Together(table, row);
      const auto height = [&] {
        double sum = row == 0 ? head.height : 0;
        for (std::size_t i = row; i < row + together; ++i) sum += rows[i].height;
        return sum;
      };
      while (together > 1 && height() > page) --together;
      const std::size_t before = pages_.size();
      Make_Room(height());
      if (row == 0 || pages_.size() > before) Write(head);
      for (const std::size_t end = row + together; row < end; ++row) Write(rows[row]);
    }
  }

  void Add_Running_Lines(const Report_Document& report, std::size_t page) {
    Shape_List& list = pages_[page];
    const double right = paper_.width - paper_.right;
    const double above = paper_.top + kRunningSize, below = paper_.height - paper_.bottom;
    const auto put = [&](double x, double y, const std::string& text, Anchor anchor) {
      list.shapes.push_back(Text_Shape{{x, y}, text, kRunningSize, kQuietInk, anchor});
    };
    put(paper_.left, above, report.running_title, Anchor::start);
    put(right, above, report.date, Anchor::end);
    list.shapes.push_back(Line_Shape{{{paper_.left, above + 4}, {right, above + 4}}, {kRule, 0.6}});
    list.shapes.push_back(
        Line_Shape{{{paper_.left, below - kRunningSize - 4}, {right, below - kRunningSize - 4}},
                   {kRule, 0.6}});
    put(paper_.left, below, report.title, Anchor::start);
    list.title = "Page " + std::to_string(page + 1) + " of " + std::to_string(pages_.size());
    put(right, below, list.title, Anchor::end);
  }

  Report_Paper paper_;
  const Setting& setting_;
  double room_ = 0, top_ = 0, bottom_ = 0, y_ = 0;
  std::vector<Shape_List> pages_;
  std::vector<std::pair<Block, double>> held_;
};

bool Can_Be_Written_On(const Report_Paper& paper) {
  return paper.width - paper.left - paper.right >= kLeast &&
         paper.height - paper.top - paper.bottom - 2 * kRunningRoom >= kLeast;
}

}  // namespace

std::vector<Shape_List> Report_Pages(const Report_Document& report, const Report_Paper& paper,
                                     const Text_Measure& measure) {
  const Text_Measure wide = Wide_Letters;
  const Setting setting{measure ? measure : wide};
  Page_Maker pages(Can_Be_Written_On(paper) ? paper : Report_Paper{}, setting);
  pages.Title(report);
  for (const Report_Part& part : report.parts) std::visit(pages, part);
  return pages.Finished(report);
}

}  // namespace barvon
