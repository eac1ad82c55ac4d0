#include "material/load_stack.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "core/number_text.h"
#include "pictures/shapes/inks.h"

namespace barvon {
namespace {

// From coarse sand to mud; told apart by lightness as well as by colour.
constexpr std::array<Colour, kMaxSolids> kGrains = {
    {{232, 196, 120}, {176, 128, 62}, {112, 78, 44}, {58, 48, 44}}};
constexpr Colour kWaterFill{186, 217, 240};
constexpr double kThinnestPart = 0.1;  // of the load, so that a thin layer can be read
constexpr double kRounding = 1e-9;     // of a sum of fractions that make up a whole

std::string Fraction_Name(int solid, const Spreadsheet_Table& solids) {
  const std::string name = solids.TextRC(kRowBase + solid, 1);
  return name.empty() ? "Param " + std::to_string(solid) : name;
}

double Fraction_Of(int solid, int layer, const Solids_State& state,
                   const Spreadsheet_Table& solids) {
  const int row = kRowBase + solid;
  if (state.layout != kSeparatedLoad) {
    return solids.NumberRC(row, Column_Of(Solids_Field::Volume, state.layout));
  }
  return Lenient_Number(state.Row(row).layers[static_cast<std::size_t>(layer)]);
}

}  // namespace

Bar_Chart Load_Stack(int layers, const Spreadsheet_Table& volumes, const Solids_State& state,
                     const Spreadsheet_Table& solids) {
  Bar_Chart chart;
  chart.title = "Composition of the load";
  chart.value_label = "part of the layer's volume";
  const int count = Filled_Solids(solids);
  bool all_have_volumes = true;
  double load = 0;
  for (int layer = 1; layer <= layers; ++layer) {
    all_have_volumes = all_have_volumes && volumes.NumberRC(layer, 1) > 0;
    load += volumes.NumberRC(layer, 1);
  }
  const double thinnest = kThinnestPart * load;
  for (int layer = 1; layer <= layers; ++layer) {
    std::vector<Bar_Amount> amounts;
    double sum = 0;
    for (int solid = 1; solid <= count; ++solid) {
      const double part = Fraction_Of(solid, layer, state, solids);
      sum += std::max(part, 0.0);
      amounts.push_back(
          {part, kGrains[static_cast<std::size_t>(solid - 1)], Fraction_Name(solid, solids)});
    }
    amounts.push_back({std::max(1 - sum, 0.0), kWaterFill, "water"});
    Bar bar = Stacked_Bar("Layer " + std::to_string(layer), amounts);
    bar.warned = sum > 1 + kRounding;
    if (bar.warned) bar.remark = "more than the whole";
    if (all_have_volumes) bar.weight = std::max(volumes.NumberRC(layer, 1), thinnest);
    chart.bars.push_back(bar);
  }
  for (int solid = 1; solid <= count; ++solid) {
    chart.legend.push_back(
        {Fraction_Name(solid, solids), kGrains[static_cast<std::size_t>(solid - 1)], Sample::area});
  }
  chart.legend.push_back({"water", kWaterFill, Sample::area});
  return chart;
}

}  // namespace barvon
