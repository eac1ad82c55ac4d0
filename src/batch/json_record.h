#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// The record as one JSON object, a field to a line: every field under its name, arrays without
/// their unused index 0, grids as arrays of rows by their first subscript, flags and integers as
/// numbers. Values that are no finite number are the texts "nan", "inf" and "-inf", since JSON has
/// no numbers for them. Texts are UTF-8; bytes that are none become the replacement character.
std::string Json_Of(const ProjectRecord& record);

/// The record for reading: a field to a line, grids and long arrays by their extent only.
std::string Listing_Of(const ProjectRecord& record);

}  // namespace barvon
