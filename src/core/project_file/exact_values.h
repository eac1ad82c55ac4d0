#pragma once

#include <string>
#include <string_view>

#include "core/failure.h"
#include "core/project_file/column_reader.h"
#include "core/project_file/project_image.h"

namespace barvon {

/// The columns of a project file can't hold every value: a wide real, a corner of 1250.5 ft, a
/// name of 12 characters. What would not survive is written once more behind the last line, as
/// plain text lines that older readers leave unread:
///
///     Exact values of this project that the columns above this line can not hold: 2
///     RealSlots(102) = 2.6512345678901234; the columns give 1234567
///     SolidNames(1) = "Coarse sand"; the columns give "Coarse s"
///     End of the exact values
///
/// The exact value counts only where the columns still give what they gave when it was written,
/// so an edit of the columns by hand wins. "nothing" is written where the columns give no value.

/// The lines for every value of `image` that `columns`, read back from its lines, does not give;
/// empty when everything survives.
std::string Exact_Value_Lines(const Project_Image& image, const Columns_Read& columns);

/// A file's bytes in two: the columns, and the exact values behind them, empty when there are
/// none.
struct File_Parts {
  std::string_view columns;
  std::string_view exact;
};
File_Parts Split_File(std::string_view bytes);

/// Puts exact values in the place of what the columns gave. Input_Past_End when the lines are cut
/// off, Type_Mismatch when they are damaged, and the failure of the columns when a value in front
/// of the tail is still missing afterwards. `damaged` takes the number of a damaged line of the
/// file, from 1, and its text.
Failure Apply_Exact_Values(const File_Parts& parts, Columns_Read& columns, std::string& damaged);

}  // namespace barvon
