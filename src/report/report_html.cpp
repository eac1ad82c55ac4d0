#include "report/report_html.h"

#include <cstddef>

#include "pictures/shapes/svg_writer.h"

namespace barvon {
namespace {

// Tables that are cut by a page show their headings again; rows and pictures are never cut.
constexpr char kStyle[] = R"(
@page { margin: 18mm 16mm; }
body { font: 10.5pt/1.4 "Helvetica Neue", Helvetica, Arial, "Liberation Sans", sans-serif;
  color: #1f252d; max-width: 48em; margin: 2em auto; padding: 0 1.5em; }
header { border-bottom: 2px solid #0b5ea8; margin-bottom: 1.5em; padding-bottom: .6em; }
h1 { font-size: 1.9em; margin: 0; }
header p { font-size: 1.15em; margin: .2em 0 0; color: #5a626d; }
h2 { font-size: 1.3em; margin: 1.8em 0 .5em; border-bottom: 1px solid #c9ced5; color: #0b5ea8; }
h3 { font-size: 1.1em; margin: 1.4em 0 .4em; }
h2, h3, caption { break-after: avoid; }
h2.page { break-before: page; }
table { border-collapse: collapse; margin: .4em 0 1.2em; }
caption { text-align: left; font-weight: bold; padding: .3em 0; }
thead { display: table-header-group; }
tr, figure { break-inside: avoid; }
th, td { padding: .22em .7em; text-align: left; vertical-align: top; overflow-wrap: anywhere; }
th { vertical-align: bottom; border-bottom: 1.5px solid #7a828c; }
tbody tr { border-bottom: 1px solid #e4e7eb; }
.n { text-align: right; font-variant-numeric: tabular-nums; white-space: nowrap; }
table.values { width: 100%; }
table.values th { font-weight: normal; vertical-align: top; border: 0; width: 62%;
  padding-left: 0; }
table.values td:nth-child(2) { width: 18%; }
table.values td[colspan="2"] { width: 38%; }
table.values tr.group td { font-weight: bold; padding: .7em .7em .22em 0; width: auto; }
table.values tr.inside th { padding-left: 1.3em; }
table.grid { font-size: 7pt; line-height: 1.25; width: 100%; }
table.grid th, table.grid td { padding: .1em .3em; white-space: nowrap; }
table.grid td:first-child { color: #5a626d; }
p.warning { color: #b02a20; font-weight: bold; }
figure { margin: 1em 0 1.4em; }
figcaption { font-weight: bold; margin-bottom: .3em; }
svg { max-width: 100%; height: auto; }
footer { border-top: 1px solid #c9ced5; margin-top: 2.5em; padding-top: .5em; color: #5a626d;
  font-size: .85em; }
@media print { body { max-width: none; margin: 0; padding: 0; } }
)";

/// Line breaks of headings stay.
std::string Lines(const std::string& text) {
  std::string html;
  for (const char c : Svg_Escaped(text)) {
    if (c == '\n') {
      html += "<br>";
    } else {
      html += c;
    }
  }
  return html;
}

std::string Picture_Html(const Shape_List& picture) {
  const std::string file = Svg_Text(picture);
  const std::size_t begin = file.find("<svg");
  return begin == std::string::npos ? std::string() : file.substr(begin);
}

class Html_Writer {
 public:
  void operator()(const Report_Heading& heading) {
    const std::string tag = heading.level == 1 ? "h2" : "h3";
    text_ += "<" + tag + (new_page_ ? " class=\"page\"" : "") + ">" + Svg_Escaped(heading.text) +
             "</" + tag + ">\n";
    new_page_ = false;
  }

  void operator()(const Report_Paragraph& paragraph) {
    text_ += std::string("<p") + (paragraph.warns ? " class=\"warning\">" : ">") +
             Lines(paragraph.text) + "</p>\n";
  }

  void operator()(const Report_Picture& picture) {
    text_ += "<figure><figcaption>" + Svg_Escaped(picture.picture.title) + "</figcaption>\n" +
             Picture_Html(picture.picture) + "</figure>\n";
  }

  void operator()(const Report_Table& table) {
    static constexpr const char* kClasses[] = {"values", "plain", "grid"};
    text_ +=
        std::string("<table class=\"") + kClasses[static_cast<std::size_t>(table.kind)] + "\">\n";
    if (!table.caption.empty()) text_ += "<caption>" + Svg_Escaped(table.caption) + "</caption>\n";
    if (table.kind != Table_Kind::values) Put_Headings(table);
    text_ += "<tbody>\n";
    for (const Report_Row& row : table.rows) Put_Row(table, row);
    text_ += "</tbody></table>\n";
  }

  /// The next heading begins the page.
  void operator()(const Report_Break&) { new_page_ = true; }

  std::string text_;

 private:
  void Put_Headings(const Report_Table& table) {
    text_ += "<thead><tr>";
    for (const Report_Column& column : table.columns) {
      text_ += std::string("<th scope=\"col\"") + (column.numbers ? " class=\"n\">" : ">") +
               Lines(column.heading) + "</th>";
    }
    text_ += "</tr></thead>\n";
  }

  void Put_Row(const Report_Table& table, const Report_Row& row) {
    text_ += row.group ? "<tr class=\"group\">" : row.inside ? "<tr class=\"inside\">" : "<tr>";
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      const bool last = i + 1 == row.cells.size();
      const std::size_t span = last ? table.columns.size() - i : 1;
      const bool number = table.columns[i].numbers && span == 1;
      // A value's label is what a screen reader tells with it.
      const bool label = table.kind == Table_Kind::values && i == 0 && !last;
      text_ += std::string(label ? "<th scope=\"row\"" : "<td") + (number ? " class=\"n\"" : "");
      if (span > 1) text_ += " colspan=\"" + std::to_string(span) + "\"";
      text_ += ">" + Svg_Escaped(row.cells[i]) + (label ? "</th>" : "</td>");
    }
    text_ += "</tr>\n";
  }

  bool new_page_ = false;
};

}  // namespace

std::string Report_Html(const Report_Document& report) {
  const std::string title = Svg_Escaped(report.title), subtitle = Svg_Escaped(report.subtitle);
  Html_Writer writer;
  writer.text_ = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
                 title + " - " + subtitle + "</title>\n<style>" + kStyle +
                 "</style>\n</head>\n<body>\n<header><h1>" + title + "</h1><p>" + subtitle +
                 "</p></header>\n";
  for (const Report_Part& part : report.parts) std::visit(writer, part);
  writer.text_ += "<footer>" + Svg_Escaped(report.running_title) + ", " + Svg_Escaped(report.date) +
                  "</footer>\n</body>\n</html>\n";
  return std::move(writer.text_);
}

}  // namespace barvon
