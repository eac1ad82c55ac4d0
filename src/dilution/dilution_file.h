#pragma once

#include <string>
#include <string_view>

#include "core/failure.h"
#include "core/project_record.h"

namespace barvon {

/// The file of a list of parameters (.DUD): Windows-1252, lines ended by CR LF, fields
/// right-aligned and never cut:
///
///        DUD    0
///                                                  the project's title, 60 columns
///         2             50
///     Copper
///                1000             26             10              2
///
/// Line 3 is the number of parameters (5 columns) and the solids concentration (15). Each
/// parameter has two lines: its name, of which 20 characters are read back, and concentration in
/// the sediment and in the elutriate, criterion and background in 15 columns each. Results are
/// not stored.

inline constexpr int kDilutionNameLength = 20;  // characters of a name that are read

/// The bytes of the file. A number that its field can't hold is in the closest form that fits.
std::string Write_Dilution_File(const ProjectRecord& record);

/// Takes title, solids concentration and parameters from the bytes; results become those of
/// nothing computed. A list of one or more leaves no entry behind its last one; an empty list
/// leaves the former entries. Fields with text read as 0. On any failure the record is as it was:
/// Subscript for a number of parameters below 0 or above 500, Input_Past_End for a file that is
/// too short, Overflow for a number that no double holds.
Failure Read_Dilution_File(std::string_view bytes, ProjectRecord& record);

/// Makes both known to the routines that open and save.
void Register_Dilution_File();

/// The plain text of a number when it has no more characters than `width` (8 or more), else the
/// closest one that fits, plain or with an exponent.
std::string Number_To_Fit(double value, std::size_t width);

/// Why the file can't keep a name as it is typed; "" when it can, apart from its length.
std::string Dilution_Name_Note(const std::string& typed);

/// How many names of the list are not read back as they are, and why; "" when all are.
std::string Lost_Letters_Note(const ProjectRecord& record);

}  // namespace barvon
