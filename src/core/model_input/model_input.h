#pragma once

#include <string>
#include <vector>

#include "core/failure.h"
#include "core/model_input/model_text.h"
#include "core/project_record.h"

namespace barvon {

/// Derives what the model input needs and writes the section that DisposalMethod chooses into
/// `text`, as bytes of the file. What it changes in the record stays: tracer and fluid
/// concentration, DZ0, NROA0 and the density profile, KEY2, VelocityProfileType, SolidTracerFlag,
/// the grid indices. A failure (a zero spacing, a count beyond an array) leaves `text` empty and
/// in the record what had been derived before it. A method without a section gives an empty text.
/// `wide_values` (may be null) takes what does not fit its columns; it is left alone on a failure.
Failure Write_Model_Input(ProjectRecord& record, std::string& text,
                          std::vector<Wide_Value>* wide_values = nullptr);

/// The model input as export and run hand it on: under the tag "DUE", which the record keeps, and
/// without a trace in what a person entered, also on a failure. What is derived stays.
Failure Make_Model_Input(ProjectRecord& record, std::string& text);

/// Writes a model input beside the path under its name with the extension DUE, whole or not at
/// all. On a failure an older one stays as it was, and no new one appears; the caller tells the
/// user.
Failure Write_Model_Extract(const std::string& path, const std::string& text);

/// The export of the model input: makes it and writes it.
Failure Save_Model_Extract(const std::string& path, ProjectRecord& record);

}  // namespace barvon
