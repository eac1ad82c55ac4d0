#pragma once

#include <string>

#include "core/project_record.h"
#include "platform/table/cell_look.h"
#include "platform/table/spreadsheet_table.h"

namespace barvon {

/// The check box of frmCoefficients.
inline constexpr char kPritchardCaption[] =
    "Calculate Vertical Diffusion Coeff (AKY0) using Pritchard Expression Insead of Using Current "
    "Value?";

/// The table of frmCoefficients: a row for each coefficient that the record's method has.
enum Coefficient_Column {
  kDescriptionColumn = 1,
  kKeywordColumn,
  kDefaultColumn,
  kCurrentColumn,
  kCoefficientColumns = kCurrentColumn
};

/// The project's coefficients and the defaults of its method, whatever was accepted.
void List_Coefficients(const ProjectRecord& record, Spreadsheet_Table& table);

/// The table as the screen opens. Coefficients that were accepted, came from a file or from the
/// wizard are the record's, those of a new project the method's defaults. The column of defaults
/// stays empty for a project from a file or the wizard until it is accepted here.
void Fill_Coefficients(const ProjectRecord& record, Spreadsheet_Table& F1Book1);

/// "Default": the method's defaults in both columns, as one step that can be undone.
void Fill_Defaults(const ProjectRecord& record, Spreadsheet_Table& F1Book1);

/// How a cell stands out: a current value that is not the method's default is bold, one that makes
/// no physical sense warns. Its tip says why.
Cell_Look Look_Of_Coefficient(const Spreadsheet_Table& F1Book1, const ProjectRecord& record,
                              int row, int col);

/// A click on Check3D1: PritchardFlag is changed for good, Cancel does not bring it back.
void Choose_Pritchard(bool chosen, ProjectRecord& record);

/// OK: the current values to the record. Coefficients of the other methods stay as they are; a
/// value that is still the record's keeps all its digits; an empty cell is 0.
void Save_Data(const Spreadsheet_Table& F1Book1, ProjectRecord& record);

}  // namespace barvon
