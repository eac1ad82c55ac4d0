#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/project_record.h"
#include "material/material_library.h"
#include "material/solids_layout.h"
#include "platform/table/cell_look.h"
#include "platform/table/spreadsheet_table.h"

namespace barvon {

/// What belongs to a row of the project and is not in its cells. It moves with the row.
struct Solids_Row {
  int solid = 0;                  // of the record, that the row came from; 0 for a new fraction
  Cell_Value saved_volume = {};   // the volumetric fraction while its column is out of the table
  bool volume_was_shown = false;  // before the column went
  OneBased<std::string, kMaxLayers> layers{};  // the fraction of each layer, as text
};

/// What a material screen keeps beside its solids table while it is open.
struct Solids_State {
  Solids_Layout layout = kHopperLoad;
  Material_Library library = {};
  std::vector<std::string> lines = {};                // of List1
  int SelectedCount = 0;                              // lines that are ticked
  std::array<Solids_Row, kMostSolidsRows> rows = {};  // from row kRowBase + 1 on
  std::vector<Cell_Value> opened = {};                // cells of the project's rows, as they opened

  Solids_Row& Row(int row) { return rows.at(static_cast<std::size_t>(row - kRowBase - 1)); }
  const Solids_Row& Row(int row) const {
    return rows.at(static_cast<std::size_t>(row - kRowBase - 1));
  }
};

/// Opening: the library of the section, the table with the reference rows and the project's
/// fractions, those without a name only where they hold values. The result is the lines of List1
/// that are to be ticked, from 0.
std::vector<int> Open_Solids(const std::string& section, Solids_Layout layout,
                             const ProjectRecord& record, Solids_State& state,
                             Spreadsheet_Table& table);

/// A line of the list, from 0, is ticked: its entry goes to the first row without a name. False,
/// and told, when no row is free.
bool Tick_Material(int line, Solids_State& state, Spreadsheet_Table& table);

/// A line is unticked: the first row with its name goes, those below move up. Without such a row
/// nothing changes.
void Untick_Material(int line, Solids_State& state, Spreadsheet_Table& table);

/// Takes the column of volumetric fractions out of the table or puts it back, filled with what it
/// held. The reference rows have nothing in it then.
void Separate_Solids(bool separated, Solids_State& state, Spreadsheet_Table& table);

/// Of the project's four rows, those that have a name.
int Filled_Solids(const Spreadsheet_Table& table);

/// Whether OK may go on: the row under the cursor is not one of values without a name, whichever
/// row it is, and a person agrees when more than four fractions are there.
bool Check_Solids_Table(Spreadsheet_Table& table);

/// Whether the project's rows are as they opened: nothing typed, ticked or moved.
bool Are_Solids_Untouched(const Solids_State& state, const Spreadsheet_Table& table);

/// The rows become the record's fractions, and NumSolids their number. An untouched cell keeps the
/// record's value, wherever its row has moved. A fraction below an empty row is lost. Untouched
/// rows keep a fraction that has values and no name, too.
void Store_Solids(const Solids_State& state, const Spreadsheet_Table& table, ProjectRecord& record);

/// Takes names as the files can hold them: line breaks become blanks.
void Clean_Solids_Names(Spreadsheet_Table& table);

/// How an empty Y or N cell of the project's named rows stands out where it counts as Y.
Cell_Look Look_Of_Letter(Solids_Layout layout, const Spreadsheet_Table& table, int row, int col);

/// What to say about a text of a Y or N cell that is neither.
std::string Letter_Note(Solids_Layout layout, const std::string& typed);

}  // namespace barvon
