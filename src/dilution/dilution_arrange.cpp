#include "dilution/dilution_arrange.h"

#include <algorithm>
#include <utility>

namespace barvon {
namespace {

std::size_t At(int row) { return static_cast<std::size_t>(row); }

/// The former rows by their names, each to be taken once.
class Former_Rows {
 public:
  explicit Former_Rows(const OneBased<std::string, kMaxDilutionRows>& names) {
    for (int row = 1; row <= kMaxDilutionRows; ++row) {
      if (!names[At(row)].empty()) rows_.emplace(names[At(row)], row);
    }
  }
  std::optional<int> Take(const std::string& name) {
    const auto found = rows_.lower_bound(name);
    if (found == rows_.end() || found->first != name) return std::nullopt;
    const int row = found->second;
    rows_.erase(found);
    return row;
  }
  void Take_Row(const std::string& name, int row) {
    const auto [first, last] = rows_.equal_range(name);
    const auto found = std::find_if(first, last, [&](const auto& at) { return at.second == row; });
    if (found != last) rows_.erase(found);
  }
  const std::multimap<std::string, int>& left() const { return rows_; }

 private:
  std::multimap<std::string, int> rows_;
};

}  // namespace

void Arrange_By_Name(Dilution_Tab tab, int count, Dilution_Grids& grids, ProjectRecord& record) {
  const std::set<int> by_name = std::exchange(grids.by_name[tab], {});
  if (by_name.empty()) return;
  const Spreadsheet_Table& table = grids(tab);
  auto& values = Concentrations(Other_Tab(tab), record);
  auto& put_aside = grids.put_aside[Other_Tab(tab)];
  const auto former = values;
  Former_Rows former_rows(record.DiluteParameterNames);
  const auto stays = [&](int row) {
    return !by_name.contains(row) ||
           table.TextRC(row, kNameColumn) == record.DiluteParameterNames[At(row)];
  };
  for (int row = 1; row <= count; ++row) {
    if (stays(row)) former_rows.Take_Row(record.DiluteParameterNames[At(row)], row);
  }
  for (int row = 1; row <= count; ++row) {
    if (stays(row)) continue;
    const std::string name = table.TextRC(row, kNameColumn);
    if (const std::optional<int> from = former_rows.Take(name)) {
      values[At(row)] = former[At(*from)];
    } else {
      const auto aside = put_aside.find(name);
      values[At(row)] = aside == put_aside.end() ? 0 : aside->second;
    }
  }
  for (const auto& [name, row] : former_rows.left()) put_aside[name] = former[At(row)];
  grids(Other_Tab(tab)).ForgetEdits();
}

void Arrange_By_Row(Dilution_Grids& grids, ProjectRecord& record) {
  const Row_Order order = std::exchange(grids.record_rows, Same_Order());
  if (order == grids.record_rows) return;
  Arrange(record.DiluteParameterNames, order);
  Arrange(record.DiluteBulk, order);
  Arrange(record.DiluteElutriate, order);
  Arrange(record.DiluteCriteria, order);
  Arrange(record.DiluteBackground, order);
  Arrange(record.DiluteBulkWaterConc, order);
  Arrange(record.DiluteBulkDilution, order);
  Arrange(record.DiluteElutDilution, order);
  Arrange(record.DiluteBulkRemark, order);
  Arrange(record.DiluteElutRemark, order);
}

}  // namespace barvon
