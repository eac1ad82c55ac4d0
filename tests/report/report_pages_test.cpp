#include "report/report_pages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "report/report_blocks.h"

namespace barvon {
namespace {

/// Where a page has the text; nothing when it has not.
std::optional<Text_Shape> Text_On(const Shape_List& page, const std::string& text) {
  for (const Shape& shape : page.shapes) {
    const auto* found = std::get_if<Text_Shape>(&shape);
    if (found != nullptr && found->text == text) return *found;
  }
  return std::nullopt;
}

int Page_Of(const std::vector<Shape_List>& pages, const std::string& text) {
  for (std::size_t i = 0; i < pages.size(); ++i) {
    if (Text_On(pages[i], text)) return static_cast<int>(i);
  }
  return -1;
}

Report_Document Empty_Report() { return {"Project Report", "A SITE", "a.DUI", "today", {}}; }

Report_Table Long_Table(int rows) {
  Report_Table table{Table_Kind::plain, "A caption", {{"Row"}, {"Depth", true}}, {}};
  for (int i = 1; i <= rows; ++i) {
    table.rows.push_back({{"Row " + std::to_string(i), std::to_string(i * 10)}});
  }
  return table;
}

Shape_List Picture(double height) {
  Shape_List picture{300, height, "A picture", "", {}};
  picture.shapes.push_back(Line_Shape{{{0, 0}, {300, height}}, {}});
  return picture;
}

TEST(ReportPages, Every_Page_Says_Which_It_Is_Of_How_Many) {
  Report_Document report = Empty_Report();
  report.parts.emplace_back(Long_Table(200));
  const auto pages = Report_Pages(report);
  ASSERT_GT(pages.size(), 3u);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const std::string words =
        "Page " + std::to_string(i + 1) + " of " + std::to_string(pages.size());
    EXPECT_TRUE(Text_On(pages[i], words)) << words;
    EXPECT_TRUE(Text_On(pages[i], "a.DUI"));
    EXPECT_TRUE(Text_On(pages[i], "today"));
  }
}

TEST(ReportPages, An_Empty_Report_Is_One_Page_With_Its_Title) {
  const auto pages = Report_Pages(Empty_Report());
  ASSERT_EQ(pages.size(), 1u);
  EXPECT_TRUE(Text_On(pages[0], "Project Report"));
  EXPECT_TRUE(Text_On(pages[0], "A SITE"));
  EXPECT_TRUE(Text_On(pages[0], "Page 1 of 1"));
}

TEST(ReportPages, Nothing_Leaves_The_Paper_Between_Its_Margins) {
  Report_Document report = Empty_Report();
  report.parts.emplace_back(Long_Table(120));
  report.parts.emplace_back(Report_Picture{Picture(2000)});
  const Report_Paper paper{420, 595, 40, 50, 30, 60};
  for (const Shape_List& page : Report_Pages(report, paper)) {
    EXPECT_EQ(page.width, 420);
    EXPECT_EQ(page.height, 595);
    for (const Shape& shape : page.shapes) {
      if (const auto* text = std::get_if<Text_Shape>(&shape)) {
        EXPECT_GE(text->place.x, 40) << text->text;
        EXPECT_LE(text->place.x, 390) << text->text;
        EXPECT_LE(text->place.y, 535.01) << text->text;
        EXPECT_GE(text->place.y - text->size, 49) << text->text;
      } else if (const auto* line = std::get_if<Line_Shape>(&shape)) {
        for (const Place& place : line->points) {
          EXPECT_GE(place.x, 39.99);
          EXPECT_LE(place.x, 390.01);
          EXPECT_LE(place.y, 535.01);
        }
      }
    }
  }
}

/// No text of a page is beside the paper's margins, by the measure of its letters.
void Expect_On_The_Paper(const std::vector<Shape_List>& pages, double left, double right) {
  for (const Shape_List& page : pages) {
    for (const Shape& shape : page.shapes) {
      const auto* text = std::get_if<Text_Shape>(&shape);
      if (text == nullptr || text->upwards) continue;
      const double width = Wide_Letters(text->text, text->size, text->bold);
      const double part = text->anchor == Anchor::start ? 0 : text->anchor == Anchor::end ? 1 : 0.5;
      EXPECT_GE(text->place.x - part * width, left - 0.1) << text->text;
      EXPECT_LE(text->place.x + (1 - part) * width, right + 0.1) << text->text;
    }
  }
}

TEST(ReportPages, Nothing_Leaves_The_Paper_However_Long_It_Is) {
  const std::string word(300, '9');
  Report_Document report = {word, word, word, "today", {}};
  report.parts.emplace_back(Report_Heading{1, word});
  report.parts.emplace_back(Report_Paragraph{"Words and " + word});
  Report_Table values{Table_Kind::values, "", {{}, {"", true}, {}}, {}};
  values.rows.push_back({{word, "-1.23456789012345E+300", "cu yd"}});
  values.rows.push_back({{"Label", word}});
  report.parts.emplace_back(values);
  for (const Table_Kind kind : {Table_Kind::plain, Table_Kind::grid}) {
    Report_Table table{kind, "", {}, {}};
    Report_Row row;
    for (int i = 0; i < 9; ++i) {
      table.columns.push_back({"Specific\nGravity", true});
      row.cells.emplace_back("-1.23456789012345E+300");
    }
    table.rows = {row, row};
    report.parts.emplace_back(table);
  }
  Expect_On_The_Paper(Report_Pages(report), 54, 558);
}

TEST(ReportPages, Words_Below_A_Heading_Are_With_It_And_With_What_Follows) {
  for (int above = 20; above < 80; ++above) {
    Report_Document report = Empty_Report();
    report.parts.emplace_back(Long_Table(above));
    report.parts.emplace_back(Report_Heading{1, "Next chapter"});
    report.parts.emplace_back(Report_Paragraph{"Words."});
    report.parts.emplace_back(Report_Picture{Picture(300)});
    const auto pages = Report_Pages(report);
    EXPECT_EQ(Page_Of(pages, "Next chapter"), Page_Of(pages, "A picture")) << above;
    EXPECT_EQ(Page_Of(pages, "Words."), Page_Of(pages, "A picture")) << above;
  }
}

TEST(ReportPages, Joined_Groups_Are_On_One_Page_And_No_Page_Has_Three_Rows_Of_A_Table) {
  for (int above = 20; above < 70; ++above) {
    Report_Document report = Empty_Report();
    Report_Table values{Table_Kind::values, "", {{}, {"", true}, {}}, {}};
    for (int i = 1; i <= above; ++i) {
      values.rows.push_back({{"Value " + std::to_string(i), "1", "ft"}});
    }
    for (const bool second : {false, true}) {
      values.rows.push_back({{second ? "Lower" : "Upper"}, true, false, second});
      values.rows.push_back({{"Top", "1", "ft"}, false, true});
      values.rows.push_back({{"Left", "2", "ft"}, false, true});
    }
    report.parts.emplace_back(values);
    EXPECT_EQ(Page_Of(Report_Pages(report), "Upper"), Page_Of(Report_Pages(report), "Lower"));
    Report_Document rows = Empty_Report();
    rows.parts.emplace_back(Long_Table(above));
    const auto pages = Report_Pages(rows);
    EXPECT_EQ(Page_Of(pages, "Row " + std::to_string(above)),
              Page_Of(pages, "Row " + std::to_string(above - 3)));
  }
}

TEST(ReportPages, A_Table_That_Goes_On_Has_Its_Headings_Again) {
  Report_Document report = Empty_Report();
  report.parts.emplace_back(Long_Table(120));
  const auto pages = Report_Pages(report);
  for (const Shape_List& page : pages) EXPECT_TRUE(Text_On(page, "Depth"));
  EXPECT_EQ(Page_Of(pages, "A caption"), 0);
}

TEST(ReportPages, Every_Row_Is_There_Once_And_In_Order) {
  Report_Document report = Empty_Report();
  report.parts.emplace_back(Long_Table(150));
  int row = 0;
  for (const Shape_List& page : Report_Pages(report)) {
    for (const Shape& shape : page.shapes) {
      const auto* text = std::get_if<Text_Shape>(&shape);
      if (text != nullptr && text->text.starts_with("Row ")) {
        EXPECT_EQ(text->text, "Row " + std::to_string(++row));
      }
    }
  }
  EXPECT_EQ(row, 150);
}

// However many rows are before it: a page never begins with a table's last row alone, nor ends
// with a heading or with the first row of a table.
TEST(ReportPages, No_Line_Is_Alone_And_A_Heading_Is_With_What_Follows) {
  for (int above = 20; above < 80; ++above) {
    Report_Document report = Empty_Report();
    report.parts.emplace_back(Long_Table(above));
    report.parts.emplace_back(Report_Heading{1, "Next chapter"});
    Report_Table next{Table_Kind::plain, "Next caption", {{"Name"}}, {}};
    for (int i = 1; i <= 30; ++i) next.rows.push_back({{"Name " + std::to_string(i)}});
    report.parts.emplace_back(next);
    const auto pages = Report_Pages(report);
    const std::string last = "Row " + std::to_string(above);
    const std::string before_last = "Row " + std::to_string(above - 1);
    EXPECT_EQ(Page_Of(pages, last), Page_Of(pages, before_last)) << above;
    const int page = Page_Of(pages, "Next chapter");
    EXPECT_EQ(Page_Of(pages, "Next caption"), page) << above;
    EXPECT_EQ(Page_Of(pages, "Name 1"), page) << above;
    EXPECT_EQ(Page_Of(pages, "Name 2"), page) << above;
    EXPECT_EQ(Page_Of(pages, "Name 29"), Page_Of(pages, "Name 30")) << above;
  }
}

TEST(ReportPages, A_Group_Is_On_One_Page) {
  for (int above = 20; above < 70; ++above) {
    Report_Document report = Empty_Report();
    Report_Table values{Table_Kind::values, "", {{}, {"", true}, {}}, {}};
    for (int i = 1; i <= above; ++i) values.rows.push_back({{"Value", std::to_string(i), "ft"}});
    values.rows.push_back({{"Corner"}, true});
    values.rows.push_back({{"Top", "1", "ft"}, false, true});
    values.rows.push_back({{"Left", "2", "ft"}, false, true});
    report.parts.emplace_back(values);
    const auto pages = Report_Pages(report);
    EXPECT_EQ(Page_Of(pages, "Corner"), Page_Of(pages, "Top")) << above;
    EXPECT_EQ(Page_Of(pages, "Corner"), Page_Of(pages, "Left")) << above;
  }
}

TEST(ReportPages, A_Picture_Is_Whole_And_Keeps_Its_Proportions) {
  for (int above = 1; above < 60; above += 3) {
    Report_Document report = Empty_Report();
    report.parts.emplace_back(Long_Table(above));
    report.parts.emplace_back(Report_Picture{Picture(300)});
    const auto pages = Report_Pages(report);
    const int page = Page_Of(pages, "A picture");
    ASSERT_GE(page, 0);
    int lines = 0;
    for (const Shape& shape : pages[static_cast<std::size_t>(page)].shapes) {
      const auto* line = std::get_if<Line_Shape>(&shape);
      if (line == nullptr || line->points[0].y == line->points[1].y) continue;
      ++lines;
      const double width = line->points[1].x - line->points[0].x;
      EXPECT_NEAR(line->points[1].y - line->points[0].y, width, 1e-6);
    }
    EXPECT_EQ(lines, 1) << above;
  }
}

TEST(ReportPages, A_Break_Begins_A_Page_And_None_Is_Empty) {
  Report_Document report = Empty_Report();
  report.parts.emplace_back(Report_Paragraph{"First"});
  report.parts.emplace_back(Report_Break{});
  report.parts.emplace_back(Report_Break{});
  report.parts.emplace_back(Report_Heading{1, "Second"});
  const auto pages = Report_Pages(report);
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_EQ(Page_Of(pages, "Second"), 1);
}

TEST(ReportPages, Long_Words_Are_Wrapped_And_Numbers_Stand_At_The_Right) {
  Report_Document report = Empty_Report();
  const std::string label =
      "A label that is much too long for its column and goes on over several lines of the page";
  report.parts.emplace_back(Report_Table{Table_Kind::values,
                                         "",
                                         {{}, {"", true}, {}},
                                         {{{label, "60.0", "ft"}}, {{"B", "1.25", ""}}}});
  const auto page = Report_Pages(report).front();
  EXPECT_FALSE(Text_On(page, label));
  const auto a = Text_On(page, "60.0"), b = Text_On(page, "1.25");
  ASSERT_TRUE(a && b);
  EXPECT_EQ(a->anchor, Anchor::end);
  EXPECT_EQ(a->place.x, b->place.x);
}

TEST(ReportPages, A_Wide_Grid_Is_Made_Narrower_Than_Its_Page) {
  Report_Document report = Empty_Report();
  Report_Table grid{Table_Kind::grid, "", {{}}, {{{"Row 1"}}}};
  for (int i = 1; i <= 40; ++i) {
    grid.columns.push_back({"Col " + std::to_string(i), true});
    grid.rows[0].cells.push_back("12345.678");
  }
  report.parts.emplace_back(grid);
  const std::vector<Shape_List> pages = Report_Pages(report);
  for (const Shape& shape : pages.front().shapes) {
    const auto* text = std::get_if<Text_Shape>(&shape);
    if (text == nullptr) continue;
    EXPECT_LE(text->place.x, 612 - 54 + 0.01) << text->text;
  }
}

TEST(ReportPages, A_Paper_That_Is_Too_Small_Is_Taken_As_Letter) {
  EXPECT_EQ(Report_Pages(Empty_Report(), {100, 100}).front().width, 612);
}

}  // namespace
}  // namespace barvon
