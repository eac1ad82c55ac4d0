#pragma once

#include <string>

#include "core/project_record.h"
#include "material/solids_table.h"
#include "platform/table/spreadsheet_table.h"

namespace barvon {

// The composition table of frmMatBarge: a row for each fraction, a column for each layer and, with
// the JBFC coefficient, a last row of moisture contents. It shows texts that are kept beside the
// solids table, so that they stay while it is built anew.

inline constexpr char kMoistureRow[] = "Moisture Content";

/// The moisture contents of the layers, as text. The fractions of the layers are in Solids_Row.
struct Layer_Moisture {
  OneBased<std::string, kMaxLayers> texts{};
  std::string offered = {};  // for layer 1, when it opened with the load's and not with its own
};

/// Opening: the texts of the record's fractions and layers. Without separation the load's moisture
/// content is offered for layer 1. Layers beyond the project's keep what they held before there
/// were fewer.
void Open_Composition(const ProjectRecord& record, Solids_State& state, Layer_Moisture& moisture);

/// Rows of fractions that the table has: the lines that are ticked or the rows that are filled,
/// whichever are more, 1 to 4.
int Composition_Rows(const Solids_State& state, const Spreadsheet_Table& solids);

/// Builds the table for so many layers.
void Define_Book_1(int layers, bool with_moisture, const Solids_State& state,
                   const Layer_Moisture& moisture, const Spreadsheet_Table& solids,
                   Spreadsheet_Table& table);

/// Takes the cells of a table with or without a row of moisture contents into the texts.
void Read_Composition(const Spreadsheet_Table& table, bool with_moisture, Solids_State& state,
                      Layer_Moisture& moisture);

/// What to say of texts that are read as other numbers, also of a moisture content or a composition
/// that is not shown: OK stores them all.
std::string Composition_Doubts(int layers, const Solids_State& state,
                               const Layer_Moisture& moisture, const Spreadsheet_Table& solids);

/// OK: the texts become the record's, for its NumSolids and LAYERS. A text that is the record's own
/// value leaves it alone, and so does an offered one where no layer's moisture content is shown.
void Store_Composition(const Solids_State& state, const Layer_Moisture& moisture,
                       bool moisture_shown, ProjectRecord& record);

}  // namespace barvon
