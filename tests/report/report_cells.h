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

/// What a report says: its titles and every cell, but for the chapter of that heading.
inline std::multiset<std::string> Cells_Of(const Report_Document& report,
                                           const std::string& without = "") {
  std::multiset<std::string> cells = {report.subtitle};
  bool counts = true;
  for (const Report_Part& part : report.parts) {
    if (const auto* heading = std::get_if<Report_Heading>(&part)) {
      if (heading->level == 1) counts = heading->text != without;
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

}  // namespace barvon::testing
