#include "dilution/dilution_mirror.h"

#include <algorithm>
#include <utility>

#include "dilution/dilution_grid.h"
#include "dilution/kept_concentrations.h"

namespace barvon {
namespace {

std::size_t At(int row) { return static_cast<std::size_t>(row); }

/// A row of an edit, with the name that it had before.
struct Edited_Row {
  int row = 0;
  std::string former, name;
  bool emptied = false;
  /// A list that was saved and is pasted anew has the same names, though the file has cut them.
  bool is_renamed() const { return !Are_Same_Name(name, former) && !Is_One_Cut(name, former); }
};

/// The other table still shows the former names. A row of which only the name goes is not emptied.
std::vector<Edited_Row> Rows_Of_Edit(Dilution_Tab tab, const Cell_Range& range,
                                     const Dilution_Grids& grids) {
  const bool can_empty = range.col2 > kNameColumn;
  std::vector<Edited_Row> rows;
  for (int row = range.row1; row <= std::min(range.row2, kMaxDilutionRows); ++row) {
    rows.push_back({row, grids(Other_Tab(tab)).TextRC(row, kNameColumn),
                    grids(tab).TextRC(row, kNameColumn),
                    can_empty && !Row_Is_Filled(grids(tab), row)});
  }
  return rows;
}

template <class Fits>
std::optional<Kept_Concentration> Take_First(std::vector<Kept_Concentration>& from,
                                             const Fits& fits) {
  const auto found = std::ranges::find_if(from, fits);
  if (found == from.end()) return std::nullopt;
  Kept_Concentration taken = std::move(*found);
  from.erase(found);
  return taken;
}

/// One parameter is called something else now, or has got its name.
void Follow_Name(Dilution_Tab tab, const Edited_Row& row, Dilution_Grids& grids) {
  if (row.name.empty()) return;
  if (Holds_Concentration(tab, row.row, grids)) {
    Concentration_Note& note = grids.notes[tab][At(row.row)];
    if (!note.names.empty()) note.names.insert(row.name);
    return;
  }
  const auto found = Find_Concentration(tab, row.row, row.name, grids);
  if (found) Put(*found, tab, row.row, grids);
  Concentration_Note& note = grids.notes[tab][At(row.row)];
  if (found) note.names.insert(row.name);
  note.awaits = !found;
}

void Move_With_Names(Dilution_Tab tab, const std::vector<Edited_Row>& rows, Dilution_Grids& grids) {
  std::vector<Kept_Concentration> lifted;
  std::vector<Edited_Row> open;
  // Those with the name that they had too: of two rows of one name it may be the other's turn.
  for (const Edited_Row& row : rows) {
    if (row.former.empty() && row.name.empty()) continue;
    lifted.push_back(Lift(tab, row.row, row.former, grids));
    open.push_back(row);
  }
  const auto put_each = [&](const auto& find) {
    std::erase_if(open, [&](const Edited_Row& row) {
      std::optional<Kept_Concentration> found = find(row);
      if (!found) return false;
      if (!row.name.empty()) found->note.names.insert(row.name);
      Put(*found, tab, row.row, grids);
      return true;
    });
  };
  put_each([&](const Edited_Row& row) {
    if (row.name.empty()) return std::optional<Kept_Concentration>();
    return Take_First(lifted, [&](const auto& each) { return Are_Same_Name(each.name, row.name); });
  });
  // Names that the file has cut go by their order, where there are as many as there were.
  put_each([&](const Edited_Row& row) {
    const auto was_cut = [&](const Kept_Concentration& each) {
      return Is_One_Cut(each.name, row.name);
    };
    const auto first = std::ranges::find_if(lifted, was_cut);
    if (first == lifted.end()) return std::optional<Kept_Concentration>();
    const auto rivals = std::ranges::count_if(
        open, [&](const Edited_Row& each) { return Is_One_Cut(first->name, each.name); });
    if (std::ranges::count_if(lifted, was_cut) != rivals) {
      return std::optional<Kept_Concentration>();
    }
    return Take_First(lifted, was_cut);
  });
  put_each([&](const Edited_Row& row) {
    if (row.name.empty()) return std::optional<Kept_Concentration>();
    return Find_Concentration(tab, row.row, row.name, grids);
  });
  // One that was renamed meanwhile, when a paste is undone.
  put_each([&](const Edited_Row& row) {
    return Take_First(lifted,
                      [&](const auto& each) { return Holds_Name(each.note.names, row.name); });
  });
  // A row without a name, before or now, keeps its own.
  put_each([&](const Edited_Row& row) {
    if (row.emptied || (!row.name.empty() && !row.former.empty())) {
      return std::optional<Kept_Concentration>();
    }
    auto found = Take_First(lifted, [&](const auto& each) { return each.row == row.row; });
    return found || !row.name.empty() ? found : Find_Concentration(tab, row.row, row.name, grids);
  });
  for (const Edited_Row& row : open) {
    grids.notes[tab][At(row.row)].awaits = !row.name.empty() && row.is_renamed();
  }
  for (Kept_Concentration& each : lifted) Keep(std::move(each), tab, grids);
}

/// Whether names have become others, as a paste makes them. A single cell is a name that is typed:
/// the parameter is called something else. Names that were only cleared are typed anew in their
/// rows, and names of rows that had none belong to what is there.
bool Names_Are_Others(const std::vector<Edited_Row>& rows, const Cell_Range& range) {
  if (range.rows() == 1 && range.cols() == 1) return false;
  return std::ranges::any_of(rows, [](const Edited_Row& row) {
    return row.is_renamed() && !row.name.empty() && !row.former.empty();
  });
}

void Follow_In_Other_Tab(Dilution_Tab tab, const std::vector<Edited_Row>& rows, bool are_others,
                         Dilution_Grids& grids) {
  for (const Edited_Row& row : rows) {
    const bool was_alone = grids.notes[tab][At(row.row)].names.empty();
    if (row.emptied && !was_alone && !(are_others && row.is_renamed())) {
      Keep(Lift(tab, row.row, row.former, grids), tab, grids);
    }
  }
  if (are_others) return Move_With_Names(tab, rows, grids);
  for (const Edited_Row& row : rows) {
    if (row.is_renamed()) Follow_Name(tab, row, grids);
  }
}

/// The tab's own concentrations are as they were entered.
void Note_Entered(Dilution_Tab tab, const Cell_Range& range, const std::vector<Edited_Row>& rows,
                  Dilution_Grids& grids) {
  const bool entered = range.col1 <= kConcentrationColumn && range.col2 >= kConcentrationColumn;
  for (const Edited_Row& row : rows) {
    Concentration_Note& note = grids.notes[tab][At(row.row)];
    if (row.emptied || (entered && row.is_renamed())) note = {};
    if (entered) {
      note.awaits = false;
      note.lent_by = 0;
      // What is entered for a name, nothing too, is what counts for it.
      std::erase_if(grids.kept[tab], [&](const Kept_Concentration& each) {
        return !row.name.empty() && Are_Same_Name(each.name, row.name);
      });
      if (grids(tab).IsEmptyRC(row.row, kConcentrationColumn)) {
        note.names.clear();
      } else if (!row.name.empty()) {
        note.names.insert(row.name);
      }
    } else if (row.is_renamed()) {
      Follow_Name(tab, row, grids);
    }
  }
}

void Copy_Common(Dilution_Tab tab, const std::vector<Edited_Row>& rows, Dilution_Grids& grids) {
  const Spreadsheet_Table& table = grids(tab);
  Spreadsheet_Table& other = grids(Other_Tab(tab));
  for (const Edited_Row& row : rows) {
    for (const int col : {kNameColumn, kCriteriaColumn, kBackgroundColumn}) {
      other.ValueRC(row.row, col, table.ValueRC(row.row, col));
    }
  }
}

/// What is kept for the name of a row that awaits it goes there: a paste may bring the name before
/// the row that it came from is emptied. True when there was such a row.
bool Give_Kept_To_Who_Awaits(Dilution_Tab tab, Dilution_Grids& grids) {
  if (grids.kept[tab].empty()) return false;
  bool given = false;
  for (int row = 1; row <= kMaxDilutionRows; ++row) {
    if (!grids.notes[tab][At(row)].awaits || Holds_Concentration(tab, row, grids)) continue;
    const std::string name = grids(tab).TextRC(row, kNameColumn);
    if (name.empty()) continue;
    const auto kept = Take_Kept(tab, row, name, grids);
    if (!kept) continue;
    Put(*kept, tab, row, grids);
    grids.notes[tab][At(row)].names.insert(name);
    given = true;
  }
  return given;
}

/// A concentration that stands alone is nobody's until it is read under a name; but what a name has
/// fetched from another row may go back there.
void Forget_Names_Of_Lone_Ones(const std::vector<Edited_Row>& rows, Dilution_Grids& grids) {
  for (const Dilution_Tab tab : kTabs) {
    for (const Edited_Row& row : rows) {
      Concentration_Note& note = grids.notes[tab][At(row.row)];
      if (row.name.empty() && note.lent_by == 0 && !Row_Is_Filled(grids(Other_Tab(tab)), row.row)) {
        note.names.clear();
      }
    }
  }
}

/// A row that was emptied has no result; it comes back with the parameter.
void Follow_Results(const std::vector<Edited_Row>& rows, Dilution_Grids& grids) {
  for (const Dilution_Tab tab : kTabs) {
    Spreadsheet_Table& table = grids(tab);
    for (const Edited_Row& row : rows) {
      const std::optional<Computed_Row>& computed = grids.computed[tab][At(row.row)];
      if (row.emptied) {
        table.ValueRC(row.row, kDilutionColumn, {});
      } else if (table.IsEmptyRC(row.row, kDilutionColumn) && computed &&
                 computed->name == row.name) {
        table.TextRC(row.row, kDilutionColumn, Result_Text(computed->dilution));
      }
    }
  }
}

}  // namespace

void Follow_Dilute_Edit(Dilution_Tab tab, const Cell_Range& range, Dilution_Grids& grids) {
  if (range.col1 > kBackgroundColumn) return;
  const std::vector<Edited_Row> rows = Rows_Of_Edit(tab, range, grids);
  const Dilution_Tab other = Other_Tab(tab);
  const Table_Fill fill(grids(other));
  const auto concentrations = [&] {
    std::vector<Cell_Value> cells;
    for (const Edited_Row& row : rows) {
      cells.push_back(grids(other).ValueRC(row.row, kConcentrationColumn));
    }
    return cells;
  };
  const std::vector<Cell_Value> before = concentrations();
  const bool are_others = Names_Are_Others(rows, range);
  Follow_In_Other_Tab(other, rows, are_others, grids);
  // Numbers may be equal, and the rows are others all the same.
  const bool moved =
      are_others || std::ranges::any_of(rows, &Edited_Row::emptied) || concentrations() != before;
  Note_Entered(tab, range, rows, grids);
  Copy_Common(tab, rows, grids);
  // Its history would bring back what belongs to other names now.
  if (Give_Kept_To_Who_Awaits(other, grids) || moved) grids(other).ForgetEdits();
  Forget_Names_Of_Lone_Ones(rows, grids);
  Follow_Results(rows, grids);
  // What is typed is shown as it was typed, in no pattern of the numbers of a file.
  for (const Dilution_Tab each : kTabs) grids(each).NumberFormat(range, {});
}

}  // namespace barvon
