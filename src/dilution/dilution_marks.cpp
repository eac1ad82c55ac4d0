#include "dilution/dilution_marks.h"

#include <cmath>

#include "dilution/dilution_grid.h"
#include "dilution/dilution_rules.h"
#include "pictures/shapes/inks.h"
#include "platform/text/counted.h"

namespace barvon {
namespace {

constexpr char kChanged[] = "Changed since the last Compute";
constexpr char kNotInList[] = "Not in the list: a name is missing above";
constexpr char kMissing[] = "A name is missing here: the list ends above";

std::size_t At(int row) { return static_cast<std::size_t>(row); }

Computed_Row Shown_Row(Dilution_Tab tab, int row, const Dilution_Grids& grids) {
  const Spreadsheet_Table& table = grids(tab);
  return {table.TextRC(row, kNameColumn),
          table.NumberRC(row, kConcentrationColumn),
          table.NumberRC(row, kCriteriaColumn),
          table.NumberRC(row, kBackgroundColumn),
          0,
          {},
          0};
}

Bar Bar_Of(const Computed_Row& row, Colour fill) {
  Bar bar{row.name, {}};
  if (row.dilution == kCannotBeMet) {
    bar.endless = true;
    bar.remark = "cannot be met";
  } else if (!std::isfinite(row.dilution)) {
    bar.endless = true;
    bar.remark = "beyond every number";
  } else if (row.dilution == 0) {
    bar.remark = "met undiluted";
  } else {
    bar = Plain_Bar(row.name, row.dilution, fill);
  }
  return bar;
}

}  // namespace

void Keep_Computed(Dilution_Grids& grids, const ProjectRecord& record) {
  grids.computed_solids = record.DiluteSolidsConc;
  grids.computed = {};
  for (int i = 1; i <= record.DiluteRowCount; ++i) {
    const std::string& name = record.DiluteParameterNames[At(i)];
    const double criteria = record.DiluteCriteria[At(i)];
    const double background = record.DiluteBackground[At(i)];
    if (Bulk_Is_Computed(record, i)) {
      grids.computed[kBulkTab][At(i)] = {name,
                                         record.DiluteBulk[At(i)],
                                         criteria,
                                         background,
                                         record.DiluteBulkDilution[At(i)],
                                         record.DiluteBulkRemark[At(i)],
                                         record.DiluteBulkWaterConc[At(i)]};
    }
    if (Elutriate_Is_Computed(record, i)) {
      grids.computed[kElutriateTab][At(i)] = {
          name,       record.DiluteElutriate[At(i)],    criteria,
          background, record.DiluteElutDilution[At(i)], record.DiluteElutRemark[At(i)],
          0};
    }
  }
}

bool Has_Changed(Dilution_Tab tab, int row, const Dilution_Grids& grids) {
  const std::optional<Computed_Row>& computed = grids.computed[tab][At(row)];
  if (!computed || (tab == kBulkTab && grids.solids != grids.computed_solids)) return true;
  const Computed_Row shown = Shown_Row(tab, row, grids);
  return shown.name != computed->name || shown.concentration != computed->concentration ||
         shown.criteria != computed->criteria || shown.background != computed->background;
}

Cell_Look Look_Of_Dilution(Dilution_Tab tab, int row, int col, const Dilution_Grids& grids) {
  const Spreadsheet_Table& table = grids(tab);
  if (!Row_Is_Filled(table, row)) return {};
  const int count = Dilute_Rows(table);
  if (row <= count) {
    if (Has_Changed(tab, row, grids)) return {.tip = kChanged, .grey = true};
    return {};
  }
  if (col == kNameColumn && table.IsEmptyRC(row, col)) return {.warned = true, .tip = kMissing};
  return {.tip = kNotInList, .grey = true};
}

Bar_Chart Dilution_Bars(Dilution_Tab tab, const Dilution_Grids& grids) {
  const Colour fill = tab == kBulkTab ? kGroundInk : kWaterInk;
  Bar_Chart chart;
  chart.title =
      tab == kBulkTab ? "Dilution required for bulk sediment" : "Dilution required for elutriate";
  chart.value_label = "parts of ambient water";
  chart.logarithmic = true;
  for (int row = 1; row <= Dilute_Rows(grids(tab)); ++row) {
    if (!Has_Changed(tab, row, grids)) {
      chart.bars.push_back(Bar_Of(*grids.computed[tab][At(row)], fill));
    }
  }
  return chart;
}

std::string Changed_Rows_Note(Dilution_Tab tab, const Dilution_Grids& grids) {
  std::size_t changed = 0;
  for (int row = 1; row <= Dilute_Rows(grids(tab)); ++row) {
    if (Has_Changed(tab, row, grids)) ++changed;
  }
  return changed == 0 ? "" : Counted(changed, "row") + " changed since the last Compute: not shown";
}

}  // namespace barvon
