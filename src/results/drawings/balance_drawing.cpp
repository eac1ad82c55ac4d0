#include "results/drawings/balance_drawing.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "pictures/shapes/inks.h"
#include "results/csv_text.h"
#include "results/drawings/map_words.h"
#include "results/drawings/result_words.h"
#include "results/summary.h"

namespace barvon {
namespace {

// Amounts come with so many; between output times they are computed.
constexpr int kAmountDigits = 7;

// From light to dark, so that grey print keeps them apart.
constexpr Colour kWater{150, 198, 235}, kBottom{168, 128, 78}, kOutside{66, 52, 40};

std::vector<Species_Balance> Balances_Of(const Results& results, std::optional<double> time) {
  return time ? Balance_At(results, *time) : Balance_At_End(results);
}

std::optional<Species_Balance> Balance_Of(const std::vector<Species_Balance>& balances,
                                          int species) {
  const auto found = std::ranges::find(balances, species, &Species_Balance::species);
  if (found == balances.end()) return std::nullopt;
  return *found;
}

Bar Bar_Of(const std::string& label, const std::optional<Species_Balance>& balance) {
  Bar bar{label, {}};
  if (!balance) {
    bar.remark = "no balance at this time";
  } else if (!(balance->released > 0)) {
    bar.remark = "nothing released";
  } else {
    const auto percent = [&](double amount) { return 100 * balance->Share(amount); };
    bar = Stacked_Bar(label, {{percent(balance->suspended), kWater, "in the water"},
                              {percent(balance->on_grid), kBottom, "on the bottom"},
                              {percent(balance->off_grid), kOutside, "outside the grid"},
                              {percent(balance->Missing()), kWarnFill, "not accounted for"}});
  }
  return bar;
}

struct Side {
  const Results* results;
  std::vector<Species_Balance> balances;
  std::string name;
};

std::vector<Side> Sides_Of(const Results& own, const Results* other, std::optional<double> time) {
  std::vector<Side> sides = {{&own, Balances_Of(own, time), ""}};
  if (other != nullptr) {
    const auto names = Project_Names(own, *other);
    sides[0].name = names.first;
    sides.push_back({other, Balances_Of(*other, time), names.second});
  }
  return sides;
}

std::string Name_Of(const Results& results, int species) {
  const auto index = static_cast<std::size_t>(species - 1);
  return index < results.species.size() ? results.species[index].name : std::to_string(species);
}

// "Sand, 7290 ft3", the project in between where there are two.
std::string Label_Of(const Side& side, int species, const std::optional<Species_Balance>& balance) {
  std::string label = Name_Of(*side.results, species);
  if (!side.name.empty()) label += ", " + side.name;
  if (!balance) return label;
  return label + ", " + Reading_Words(balance->released, Amount_Unit(*side.results, species));
}

void Add_Bar(Bar_Chart& chart, const Side& side, int species) {
  const auto balance = Balance_Of(side.balances, species);
  chart.bars.push_back(Bar_Of(Label_Of(side, species, balance), balance));
}

bool Has_Missing(const Bar_Chart& chart) {
  return std::ranges::any_of(chart.bars, [](const Bar& bar) {
    return std::ranges::find(bar.parts, kWarnFill, &Bar_Part::fill) != bar.parts.end();
  });
}

int Species_Count(const Results& results) { return static_cast<int>(results.species.size()); }

}  // namespace

std::string Amount_Unit(const Results& results, int species) {
  const auto index = static_cast<std::size_t>(species - 1);
  const std::string unit = index < results.species.size() ? results.species[index].unit : "";
  // A solid has its own maps of thickness; without any the unit alone tells.
  const bool solid =
      results.beds.empty()
          ? unit != "%"
          : std::ranges::find(results.beds, species, &Result_Map::species) != results.beds.end();
  return solid ? "ft3" : unit + " ft3";
}

Bar_Chart Balance_Chart(const Results& own, const Results* other, std::optional<double> time) {
  Bar_Chart chart;
  chart.title = "Balance " + (time ? "at " + Time_Words(*time) : "at the end");
  chart.value_label = "Part of what was released (%)";
  const std::vector<Side> sides = Sides_Of(own, other, time);
  for (int species = 1; species <= Species_Count(own); ++species) {
    Add_Bar(chart, sides[0], species);
    if (other == nullptr) continue;
    const auto same = Same_Species(*other, own, species);
    if (same) Add_Bar(chart, sides[1], *same);
  }
  for (int species = 1; other != nullptr && species <= Species_Count(*other); ++species) {
    if (Same_Species(own, *other, species)) continue;
    Add_Bar(chart, sides[1], species);
  }
  chart.legend = {{"in the water", kWater, Sample::area},
                  {"on the bottom", kBottom, Sample::area},
                  {"on the bottom outside the grid", kOutside, Sample::area}};
  if (Has_Missing(chart)) {
    chart.legend.push_back({"not accounted for", kWarnFill, Sample::area});
  }
  return chart;
}

Shape_List Balance_Shapes(const Bar_Chart& chart, const Canvas& canvas) {
  return Bar_Shapes(Draw_Bars(chart), canvas);
}

std::string Balance_Csv(const Results& own, const Results* other, std::optional<double> time) {
  std::string csv = Csv_Line({"project", "species", "unit", "time (s)", "released", "in the water",
                              "on the bottom", "outside the grid"});
  for (const Side& side : Sides_Of(own, other, time)) {
    for (const Species_Balance& row : side.balances) {
      csv += Csv_Line(
          {side.name.empty() ? Project_Name(own) : side.name, Name_Of(*side.results, row.species),
           Amount_Unit(*side.results, row.species), Csv_Number(row.time),
           Csv_Number(row.released, kAmountDigits), Csv_Number(row.suspended, kAmountDigits),
           Csv_Number(row.on_grid, kAmountDigits), Csv_Number(row.off_grid, kAmountDigits)});
    }
  }
  return csv;
}

}  // namespace barvon
