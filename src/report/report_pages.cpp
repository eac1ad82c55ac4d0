#include "report/report_pages.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "pictures/shapes/inks.h"
#include "report/report_tables.h"

namespace barvon {
namespace {

// Points.
constexpr double kTitleSize = 21, kSubtitleSize = 12.5, kChapterSize = 14, kPartSize = 11.5;
constexpr double kRunningSize = 8;
constexpr double kLeast = 200;         // side of what can be written on
constexpr double kRunningRoom = 22;    // of the running title, and of the page number
constexpr double kPicturePart = 0.68;  // points of a picture's pixel
constexpr double kAbovePicture = 9, kBelowPicture = 8;
constexpr double kHeadingsRoom = 60;    // for headings above a picture that is as high as a page
constexpr double kLeastShrunk = 0.78;   // a picture's part of its usual size
constexpr double kMostHeld = 0.3;       // of a page, for a heading and the words below it
constexpr std::size_t kLeastRows = 4;   // of a table at the end and at the start of a page
constexpr std::size_t kWholeGroup = 8;  // rows of a group that are never parted
constexpr std::size_t kWholeTable = 7;  // rows that are never parted
constexpr Colour kChapterInk{11, 94, 168}, kRule{201, 206, 213};

class Page_Maker {
 public:
  Page_Maker(const Report_Paper& paper, const Text_Setting& setting)
      : paper_(paper), setting_(setting) {
    room_ = paper.width - paper.left - paper.right;
    top_ = paper.top + kRunningRoom;
    bottom_ = paper.height - paper.bottom - kRunningRoom;
    New_Page();
  }

  void Title(const Report_Document& report) {
    Page_Block block = Block_Of_Lines(setting_.Wrap(report.title, kTitleSize, room_, true),
                                      kTitleSize, kInk, true);
    const Page_Block below =
        Block_Of_Lines(setting_.Wrap(report.subtitle, kSubtitleSize, room_, false), kSubtitleSize,
                       kQuietInk, false);
    for (const Shape& shape : below.shapes) {
      block.shapes.push_back(Moved(shape, {0, block.height}));
    }
    block.height += below.height + 5;
    Add_Rule(block, {0, block.height}, room_, {kChapterInk, 1.6});
    block.height += 10;
    Put(block);
  }

  void operator()(const Report_Heading& heading) {
    const bool chapter = heading.level == 1;
    const double size = chapter ? kChapterSize : kPartSize;
    Page_Block block = Block_Of_Lines(setting_.Wrap(heading.text, size, room_, true), size,
                                      chapter ? kChapterInk : kInk, true);
    if (chapter) {
      block.height += 2.5;
      Add_Rule(block, {0, block.height}, room_, {kRule, 0.8});
    }
    block.height += 5;
    // Air above it, but not at the top of a page.
    Hold(block, chapter ? 17 : 11);
  }

  void operator()(const Report_Paragraph& paragraph) {
    const bool warns = paragraph.warns;
    Page_Block block = Block_Of_Lines(setting_.Wrap(paragraph.text, kReportTextSize, room_, warns),
                                      kReportTextSize, warns ? kWarnInk : kInk, warns);
    block.height += 5;
    // What is said below a heading is parted neither from it nor from what it is about.
    if (!held_.empty() && Held_Height() + block.height < (bottom_ - top_) * kMostHeld) {
      return Hold(block, 0);
    }
    Put(block);
  }

  void operator()(const Report_Picture& picture) {
    const Shape_List& list = picture.picture;
    Page_Block block = Block_Of_Lines(setting_.Wrap(list.title, kReportTextSize, room_, true),
                                      kReportTextSize, kInk, true);
    const double caption = block.height + 3;
    double scale = std::min(kPicturePart, room_ / std::max(list.width, 1.0));
    const double height = std::max(list.height, 1.0);
    scale = std::min(scale, (bottom_ - top_ - caption - kHeadingsRoom) / height);
    // Somewhat smaller on this page rather than on the next one.
    const double left = (bottom_ - y_ - Held_Height() - caption - kBelowPicture - kAbovePicture);
    if (left < height * scale && left > height * scale * kLeastShrunk) scale = left / height;
    for (const Shape& shape : list.shapes) {
      if (Has_Places(shape)) block.shapes.push_back(Moved(shape, {0, caption}, scale));
    }
    block.height = caption + list.height * scale + kBelowPicture;
    Put(block, kAbovePicture);
  }

  void operator()(const Report_Table& table) {
    if (!table.caption.empty()) {
      Page_Block caption = Block_Of_Lines(
          setting_.Wrap(table.caption, kReportTextSize, room_, true), kReportTextSize, kInk, true);
      caption.height += 2;
      Hold(caption, 7);
    }
    const Laid_Table laid = Lay_Out_Table(table, room_, setting_);
    Put_Rows(table, laid.head, laid.rows);
    y_ += 7;
  }

  void operator()(const Report_Break&) {
    if (Is_Fresh()) return;
    Make_Room(0);
    New_Page();
  }

  std::vector<Shape_List> Finished(const Report_Document& report) {
    Make_Room(0);
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

  void Write(const Page_Block& block) {
    for (const Shape& shape : block.shapes) {
      pages_.back().shapes.push_back(Moved(shape, {paper_.left, y_}));
    }
    y_ += block.height;
  }

  /// Keeps a block for the page of what follows it.
  void Hold(const Page_Block& block, double air) { held_.push_back({block, air}); }

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

  void Put(const Page_Block& block, double air = 0) {
    Make_Room(block.height + air);
    if (y_ > top_) y_ += air;
    Write(block);
  }

  /// The rows that are one with that of `row`: a group and what is below it, and the group that is
  /// joined to it.
  std::size_t Unit_At(const Report_Table& table, std::size_t row) const {
    std::size_t rows = 1;
    if (!table.rows[row].group) return rows;
    const auto goes_on = [&](const Report_Row& next) { return next.inside || next.joined; };
    while (row + rows < table.rows.size() && goes_on(table.rows[row + rows])) ++rows;
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

  void Put_Rows(const Report_Table& table, const Page_Block& head,
                const std::vector<Page_Block>& rows) {
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
    const double date = setting_.Width(report.date, kRunningSize, false) + 2 * kRunningSize;
    put(paper_.left, above, setting_.Cut(report.running_title, kRunningSize, room_ - date),
        Anchor::start);
    put(right, above, report.date, Anchor::end);
    list.shapes.push_back(Line_Shape{{{paper_.left, above + 4}, {right, above + 4}}, {kRule, 0.6}});
    list.shapes.push_back(
        Line_Shape{{{paper_.left, below - kRunningSize - 4}, {right, below - kRunningSize - 4}},
                   {kRule, 0.6}});
    put(paper_.left, below, setting_.Cut(report.title, kRunningSize, room_ - date), Anchor::start);
    list.title = "Page " + std::to_string(page + 1) + " of " + std::to_string(pages_.size());
    put(right, below, list.title, Anchor::end);
  }

  Report_Paper paper_;
  const Text_Setting& setting_;
  double room_ = 0, top_ = 0, bottom_ = 0, y_ = 0;
  std::vector<Shape_List> pages_;
  std::vector<std::pair<Page_Block, double>> held_;
};

bool Can_Be_Written_On(const Report_Paper& paper) {
  return paper.width - paper.left - paper.right >= kLeast &&
         paper.height - paper.top - paper.bottom - 2 * kRunningRoom >= kLeast;
}

}  // namespace

std::vector<Shape_List> Report_Pages(const Report_Document& report, const Report_Paper& paper,
                                     const Text_Measure& measure) {
  const Text_Measure wide = Wide_Letters;
  const Text_Setting setting{measure ? measure : wide};
  Page_Maker pages(Can_Be_Written_On(paper) ? paper : Report_Paper{}, setting);
  pages.Title(report);
  for (const Report_Part& part : report.parts) std::visit(pages, part);
  return pages.Finished(report);
}

}  // namespace barvon
