#include "dilution/kept_concentrations.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/text_tools.h"
#include "dilution/dilution_file.h"

namespace barvon {
namespace {

std::size_t At(int row) { return static_cast<std::size_t>(row); }

/// A number 0 is that of a cell that nobody has filled.
bool Is_Entered(const Cell_Value& shown) {
  const auto* number = std::get_if<double>(&shown);
  return number != nullptr ? *number != 0 : !std::holds_alternative<std::monostate>(shown);
}

bool Belongs_To(const Kept_Concentration& kept, const std::string& name) {
  return Are_Same_Name(kept.name, name) || (kept.name.empty() && Holds_Name(kept.note.names, name));
}

template <class Fits>
std::optional<Kept_Concentration> Take_Last(std::vector<Kept_Concentration>& from,
                                            const Fits& fits) {
  const auto found = std::find_if(from.rbegin(), from.rend(), fits);
  if (found == from.rend()) return std::nullopt;
  Kept_Concentration taken = std::move(*found);
  from.erase(std::next(found).base());
  return taken;
}

/// What went from the row to another one that awaited it: an undo has brought the name back.
std::optional<Kept_Concentration> Take_Back(Dilution_Tab tab, int row, const std::string& name,
                                            Dilution_Grids& grids) {
  for (int from = 1; from <= kMaxDilutionRows; ++from) {
    const Concentration_Note& note = grids.notes[tab][At(from)];
    if (note.lent_by != row || !Holds_Name(note.names, name)) continue;
    Kept_Concentration taken = Lift(tab, from, name, grids);
    grids.notes[tab][At(from)].awaits = true;
    taken.note.lent_by = 0;
    return taken;
  }
  return std::nullopt;
}

}  // namespace

bool Are_Same_Name(std::string_view one, std::string_view other) {
  return Trimmed(one) == Trimmed(other);
}

bool Is_One_Cut(std::string_view one, std::string_view other) {
  const std::string a = Trimmed(one), b = Trimmed(other);
  const std::string &cut = a.size() < b.size() ? a : b, &whole = a.size() < b.size() ? b : a;
  return cut != whole && Character_Count(cut) == std::size_t{kDilutionNameLength} &&
         whole.starts_with(cut);
}

bool Holds_Name(const std::set<std::string>& names, const std::string& name) {
  return std::ranges::any_of(names,
                             [&](const std::string& each) { return Are_Same_Name(each, name); });
}

bool Holds_Concentration(Dilution_Tab tab, int row, const Dilution_Grids& grids) {
  return Is_Entered(grids(tab).ValueRC(row, kConcentrationColumn));
}

Kept_Concentration Lift(Dilution_Tab tab, int row, const std::string& name, Dilution_Grids& grids) {
  Spreadsheet_Table& table = grids(tab);
  Kept_Concentration lifted{name, row, table.ValueRC(row, kConcentrationColumn),
                            std::exchange(grids.notes[tab][At(row)], {})};
  table.ValueRC(row, kConcentrationColumn, {});
  return lifted;
}

void Put(const Kept_Concentration& lifted, Dilution_Tab tab, int row, Dilution_Grids& grids) {
  grids(tab).ValueRC(row, kConcentrationColumn, lifted.shown);
  grids.notes[tab][At(row)] = lifted.note;
}

void Keep(Kept_Concentration lifted, Dilution_Tab tab, Dilution_Grids& grids) {
  if (Is_Entered(lifted.shown)) grids.kept[tab].push_back(std::move(lifted));
}

std::optional<Kept_Concentration> Take_Kept(Dilution_Tab tab, int row, const std::string& name,
                                            Dilution_Grids& grids) {
  auto& kept = grids.kept[tab];
  auto found = Take_Last(kept, [&](const Kept_Concentration& each) {
    return each.row == row && Belongs_To(each, name);
  });
  if (found || name.empty()) return found;
  found = Take_Last(kept, [&](const Kept_Concentration& each) { return Belongs_To(each, name); });
  const auto is_cut = [&](const Kept_Concentration& each) { return Is_One_Cut(each.name, name); };
  if (!found && std::ranges::count_if(kept, is_cut) == 1) found = Take_Last(kept, is_cut);
  if (found) found->note.lent_by = found->row;
  return found;
}

std::optional<Kept_Concentration> Find_Concentration(Dilution_Tab tab, int row,
                                                     const std::string& name,
                                                     Dilution_Grids& grids) {
  auto found = Take_Kept(tab, row, name, grids);
  return found || name.empty() ? found : Take_Back(tab, row, name, grids);
}

}  // namespace barvon
