#pragma once

#include <string>
#include <variant>
#include <vector>

#include "pictures/shapes/shapes.h"

namespace barvon {

// A report as plain data. Writers make a page of the web (`report_html`) or pages of paper
// (`report_pages`) of it. Texts are UTF-8.

struct Report_Heading {
  int level = 1;  // 1 a chapter, 2 a part of it
  std::string text;
};

struct Report_Paragraph {
  std::string text;
  bool warns = false;  // in red and bold
};

struct Report_Picture {
  Shape_List picture;
};

struct Report_Column {
  std::string heading;   // a line break parts its lines
  bool numbers = false;  // set to the right
};

/// Fewer cells than columns: the last one has the room of the others, and is words. A group is one
/// cell that stands above the rows that follow it.
struct Report_Row {
  std::vector<std::string> cells;
  bool group = false;
  bool inside = false;  // below a group
  bool joined = false;  // a group that is on the page of the group before it
};

enum class Table_Kind {
  values,  // label, value and unit, alike in the whole report; without headings
  plain,   // as wide as its cells
  grid,    // in small letters, as wide as the page
};

struct Report_Table {
  Table_Kind kind = Table_Kind::plain;
  std::string caption;  // may be empty
  std::vector<Report_Column> columns;
  std::vector<Report_Row> rows;
};

/// What follows begins on a new page.
struct Report_Break {};

using Report_Part =
    std::variant<Report_Heading, Report_Paragraph, Report_Picture, Report_Table, Report_Break>;

struct Report_Document {
  std::string title, subtitle;
  std::string running_title;  // on every page: the project's file
  std::string date;           // of the report
  std::vector<Report_Part> parts;
};

}  // namespace barvon
