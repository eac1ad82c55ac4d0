#include "material/layer_composition.h"

#include <algorithm>

#include "core/book_numbers.h"
#include "core/format_pattern.h"
#include "core/number_text.h"
#include "material/solids_doubts.h"

namespace barvon {
namespace {

constexpr int kRowHeadingWidth = 4000;
constexpr Cell_Range kCentred{1, 1, 7, kMaxLayers};

std::size_t At(int index) { return static_cast<std::size_t>(index); }

std::string Row_Heading(int row, const Spreadsheet_Table& solids) {
  const std::string name = solids.TextRC(kRowBase + row, 1);
  return name.empty() ? "Param " + Format_Number(row, "##") : name;
}

using Layer_Texts = OneBased<std::string, kMaxLayers>;

/// A layer that the project does not have shows only what it once held.
std::string Layer_Text(double value, int layer, int layers) {
  return layer > layers && value == 0 ? "" : Plain_Number(value);
}

void Store_Text(const std::string& text, double& value) {
  if (text != Plain_Number(value)) value = Lenient_Number(text);
}

}  // namespace

void Open_Composition(const ProjectRecord& record, Solids_State& state, Layer_Moisture& moisture) {
  const int layers = std::clamp<int>(record.LAYERS, 1, kMaxLayers);
  const int solids = std::clamp<int>(record.NumSolids, 1, kMaxSolids);
  moisture = {};
  for (int layer = 1; layer <= kMaxLayers; ++layer) {
    for (int i = 1; i <= solids; ++i) {
      state.Row(kRowBase + i).layers[At(layer)] =
          Layer_Text(record.LayerSolidFraction[At(i)][At(layer)], layer, layers);
    }
    moisture.texts[At(layer)] = Layer_Text(record.LayerMoisture[At(layer)], layer, layers);
  }
  if (record.SeparationFlag == 0) {
    moisture.offered = moisture.texts[1] = Plain_Number(record.MoistureContent);
  }
}

int Composition_Rows(const Solids_State& state, const Spreadsheet_Table& solids) {
  return std::clamp(std::max(state.SelectedCount, Filled_Solids(solids)), 1, kMaxSolids);
}

void Define_Book_1(int layers, bool with_moisture, const Solids_State& state,
                   const Layer_Moisture& moisture, const Spreadsheet_Table& solids,
                   Spreadsheet_Table& table) {
  const Table_Fill fill(table);
  const int rows = Composition_Rows(state, solids);
  table.MaxCol(layers);
  table.MaxRow(with_moisture ? rows + 1 : rows);
  table.RowHeadingWidth(kRowHeadingWidth);
  for (int layer = 1; layer <= layers; ++layer) {
    table.ColText(layer, "Layer " + Format_Number(layer, "##"));
    for (int row = 1; row <= rows; ++row) {
      table.RowText(row, Row_Heading(row, solids));
      table.TextRC(row, layer, state.Row(kRowBase + row).layers[At(layer)]);
    }
    if (with_moisture) table.TextRC(rows + 1, layer, moisture.texts[At(layer)]);
  }
  if (with_moisture) table.RowText(rows + 1, kMoistureRow);
  table.Centred(kCentred, true);
  table.AutoColWidth();
  table.SetActiveCell(1, 1);
  table.ForgetEdits();
}

void Read_Composition(const Spreadsheet_Table& table, bool with_moisture, Solids_State& state,
                      Layer_Moisture& moisture) {
  for (int row = 1; row <= table.MaxRow(); ++row) {
    const bool is_moisture = with_moisture && row == table.MaxRow();
    // A fifth row of fractions has no place.
    if (!is_moisture && row > kMaxSolids) continue;
    Layer_Texts& texts = is_moisture ? moisture.texts : state.Row(kRowBase + row).layers;
    for (int layer = 1; layer <= std::min(table.MaxCol(), kMaxLayers); ++layer) {
      texts[At(layer)] = table.TextRC(row, layer);
    }
  }
}

std::string Composition_Doubts(int layers, const Solids_State& state,
                               const Layer_Moisture& moisture, const Spreadsheet_Table& solids) {
  Spreadsheet_Table all(kBookNumbers);
  Define_Book_1(layers, true, state, moisture, solids, all);
  return Number_Doubts(all, all.TableRange());
}

void Store_Composition(const Solids_State& state, const Layer_Moisture& moisture,
                       bool moisture_shown, ProjectRecord& record) {
  for (int layer = 1; layer <= std::min<int>(record.LAYERS, kMaxLayers); ++layer) {
    for (int i = 1; i <= std::min<int>(record.NumSolids, kMaxSolids); ++i) {
      Store_Text(state.Row(kRowBase + i).layers[At(layer)],
                 record.LayerSolidFraction[At(i)][At(layer)]);
    }
    const std::string& text = moisture.texts[At(layer)];
    if (layer == 1 && !moisture_shown && text == moisture.offered) continue;
    Store_Text(text, record.LayerMoisture[At(layer)]);
  }
}

}  // namespace barvon
