#pragma once

#include <set>
#include <string>
#include <variant>

#include "core/number_text.h"
#include "report/report_document.h"

namespace barvon::testing {

/// A number as its plain text, however many decimals are shown of it.
inline std::string Plain_Cell(const std::string& cell) {
  const Number_Start number = Read_Number_Start(cell);
  return number.end == cell.size() && !cell.empty() ? Plain_Number(number.value) : cell;
}

/// What a report says: its titles and every cell, but for the chapters of those headings.
inline std::multiset<std::string> Cells_Of(const Report_Document& report,
                                           const std::set<std::string>& without = {}) {
  std::multiset<std::string> cells = {report.subtitle};
  bool counts = true;
  for (const Report_Part& part : report.parts) {
    if (const auto* heading = std::get_if<Report_Heading>(&part)) {
      if (heading->level == 1) counts = !without.contains(heading->text);
    }
    const auto* table = std::get_if<Report_Table>(&part);
    if (table == nullptr || !counts) continue;
    for (const Report_Row& row : table->rows) {
      for (const std::string& cell : row.cells) cells.insert(Plain_Cell(cell));
    }
  }
  return cells;
}

/// The value of a row of values by its label; "" when there is none.
inline std::string Value_Of(const Report_Document& report, const std::string& label) {
  for (const Report_Part& part : report.parts) {
    const auto* table = std::get_if<Report_Table>(&part);
    if (table == nullptr) continue;
    for (const Report_Row& row : table->rows) {
      if (row.cells.size() > 1 && row.cells[0] == label) return row.cells[1];
    }
  }
  return "";
}

/// The chapter that a text is in, as a label or a paragraph; "" when it is nowhere.
inline std::string Chapter_Of(const Report_Document& report, const std::string& text) {
  std::string chapter;
  for (const Report_Part& part : report.parts) {
    const auto* heading = std::get_if<Report_Heading>(&part);
    if (heading != nullptr && heading->level == 1) chapter = heading->text;
    const auto* paragraph = std::get_if<Report_Paragraph>(&part);
    if (paragraph != nullptr && paragraph->text == text) return chapter;
    const auto* table = std::get_if<Report_Table>(&part);
    if (table == nullptr) continue;
    for (const Report_Row& row : table->rows) {
      if (!row.cells.empty() && row.cells[0] == text) return chapter;
    }
  }
  return "";
}

}  // namespace barvon::testing
