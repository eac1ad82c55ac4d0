#pragma once

#include <string>

#include "core/failure.h"
#include "core/project_record.h"

namespace barvon {

/// What of a project its model input can't carry, for the solver that asks for it; others leave it
/// alone. Lines "name: values", the version first; a quantity that is in the model input, or that
/// the project's evaluation does not use, has no line:
/// - "Criterion", mg/l, where the contaminant is given in the sediment of an ocean site;
/// - "ZidStandard", mg/l, for the water quality at the border of a Zone of Initial Dilution;
/// - "TideStart", hours, "TideX" and "TideZ", ft/s, the tidal pattern by half hours;
/// - "DepthRow", ft, one for each row of the depth table, its values along the columns.
///
/// `text` gets the bytes of the file, or stays empty where there is nothing to say. To be called
/// with what a person entered in the record, not while a model input is written from it. A count
/// beyond an array is a failure (Subscript) and leaves `text` empty.
Failure Write_Additions(const ProjectRecord& record, std::string& text);

}  // namespace barvon
