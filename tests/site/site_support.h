#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/book_numbers.h"
#include "core/project_record.h"
#include "platform/table/spreadsheet_table.h"
#include "site/density_table.h"

namespace barvon::testing {

/// A density table of two columns, one row for each pair of depth (ft) and density (g/cc).
inline std::unique_ptr<Spreadsheet_Table> Typed_Profile(
    const std::vector<std::pair<double, double>>& rows) {
  auto table = std::make_unique<Spreadsheet_Table>(kBookNumbers);
  Lay_Out_Density_Table(false, *table);
  table->MaxRow(static_cast<int>(rows.size()));
  int row = 0;
  for (const auto& [depth, density] : rows) {
    table->NumberRC(++row, 1, depth);
    table->NumberRC(row, 2, density);
  }
  return table;
}

struct Water {
  double depth, salinity, temperature;  // ft, ppt, deg C
};

/// A density table of four columns, one row for each water; no density yet.
inline std::unique_ptr<Spreadsheet_Table> Computed_Profile(const std::vector<Water>& rows) {
  auto table = std::make_unique<Spreadsheet_Table>(kBookNumbers);
  Lay_Out_Density_Table(true, *table);
  table->MaxRow(static_cast<int>(rows.size()));
  int row = 0;
  for (const Water& water : rows) {
    table->NumberRC(++row, 1, water.depth);
    table->NumberRC(row, 2, water.salinity);
    table->NumberRC(row, 3, water.temperature);
  }
  return table;
}

/// What the cells of a column show, the first row first.
inline std::vector<std::string> Shown_Column(const Spreadsheet_Table& table, int column) {
  std::vector<std::string> shown;
  for (int row = 1; row <= table.MaxRow(); ++row) shown.push_back(table.ShownRC(row, column));
  return shown;
}

}  // namespace barvon::testing
