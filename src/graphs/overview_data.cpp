#include "graphs/overview_data.h"

#include <cstddef>
#include <optional>
#include <tuple>

#include "graphs/graph_words.h"
#include "results/drawings/map_words.h"
#include "results/drawings/result_words.h"
#include "results/summary.h"

namespace barvon {
namespace {

constexpr char kNone[] = "-";  // in a cell of what a run has not

std::string Warning_Of(const Results& results) {
  constexpr char kBetween[] = " - ";
  const auto at = results.label.find(kBetween);
  std::string warning = at == std::string::npos ? results.label : results.label.substr(at + 3);
  if (!warning.empty() && warning[0] >= 'a' && warning[0] <= 'z') warning[0] += 'A' - 'a';
  return warning;
}

std::string Verdicts_Of(const Results& results) {
  std::string text;
  for (const std::string& line : results.verdicts) text += (text.empty() ? "" : "\n") + line;
  if (!text.empty()) return text;
  if (!results.input_sum) {
    return "These outputs are of an earlier solver, which tells its verdicts in the listing alone.";
  }
  return "None: nothing is compared in this run.";
}

std::string Deposit_Of(const Results& results) {
  const Result_Map* bed = Last_Bed(results);
  if (bed == nullptr) return "The outputs hold no deposit.";
  const Deposit_Totals totals = Totals_Of(results.grid, *bed);
  const std::string at = "Deposit at " + Time_Words(bed->time) + ": ";
  if (!(totals.thickest > 0)) return at + "none on the grid.";
  return at + "thickest " + Reading_Words(totals.thickest, "ft") + " at " +
         Place_Words({totals.x, totals.z}) + "; " + Reading_Words(totals.volume, "ft3") +
         " on the grid, voids included.";
}

/// The columns of areas that are there.
struct Areas_Shown {
  bool site = false, anywhere = false, zid = false;
};

std::string Cell_Of(const std::optional<Largest_Value>& largest, const std::string& unit) {
  if (!largest) return kNone;
  return Reading_Words(largest->value, unit) + "\nat " + Time_Words(largest->time) + ", " +
         Depth_Words(largest->depth);
}

std::string Cell_Of(const std::optional<Result_Peak>& peak, const std::string& unit) {
  if (!peak) return kNone;
  return Reading_Words(peak->value, unit) + "\nat " + Time_Words(peak->time) + ", " +
         Depth_Words(peak->depth);
}

std::vector<std::string> Row_Of(const Results& results, int species, const std::string& name,
                                const Areas_Shown& areas) {
  const Result_Species& known = results.species[static_cast<std::size_t>(species - 1)];
  const Largest_Values largest = Largest_Of(results, species);
  std::vector<std::string> row = {name.empty() ? known.name : known.name + "\n" + name};
  // Without a site the values outside are those of all places.
  const bool site = Has_Site(results);
  const std::string outside = Cell_Of(largest.outside, known.unit);
  if (areas.site) {
    row.push_back(Cell_Of(largest.inside, known.unit));
    row.push_back(site ? outside : kNone);
  }
  if (areas.anywhere) row.push_back(site ? kNone : outside);
  if (areas.zid) row.push_back(Cell_Of(largest.outside_zid, known.unit));
  row.push_back(Cell_Of(Largest_Peak(results, species), known.unit));
  return row;
}

int Count_Of(const Results& results) { return static_cast<int>(results.species.size()); }

}  // namespace

Overview_Words Words_Of(const Results& results, const std::string& name) {
  Overview_Words words;
  words.title = results.title.empty() ? Project_Name(results) : results.title;
  if (!name.empty()) words.title = name + ": " + words.title;
  words.made = results.solver + ", " + Clock_Text(results.made);
  words.warning = Warning_Of(results);
  words.verdicts = Verdicts_Of(results);
  words.deposit = Deposit_Of(results);
  return words;
}

Overview_Table Largest_Table(const Results& own, const Results* other) {
  const auto any = [&](const auto& has) { return has(own) || (other != nullptr && has(*other)); };
  const Areas_Shown areas{any(Has_Site), any([](const Results& run) { return !Has_Site(run); }),
                          any(Has_Zid)};
  Overview_Table table;
  table.headings = {"Species"};
  const std::string site = Site_Name(own, other);
  if (areas.site) {
    table.headings.push_back("Inside the " + site);
    table.headings.push_back("Outside the " + site);
  }
  if (areas.anywhere) table.headings.push_back("Anywhere");
  if (areas.zid) table.headings.push_back("Outside the ZID");
  table.headings.push_back("At any point");
  std::string own_name, other_name;
  if (other != nullptr) std::tie(own_name, other_name) = Project_Names(own, *other);
  for (int species = 1; species <= Count_Of(own); ++species) {
    table.rows.push_back(Row_Of(own, species, own_name, areas));
    if (other == nullptr) continue;
    const auto same = Same_Species(*other, own, species);
    if (same) table.rows.push_back(Row_Of(*other, *same, other_name, areas));
  }
  for (int species = 1; other != nullptr && species <= Count_Of(*other); ++species) {
    if (Same_Species(own, *other, species)) continue;
    table.rows.push_back(Row_Of(*other, species, other_name, areas));
  }
  return table;
}

}  // namespace barvon
