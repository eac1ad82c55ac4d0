#pragma once

#include <cstdint>
#include <vector>

#include "core/project_record.h"

namespace barvon {

/// One of the solver's empirical coefficients as a method of disposal uses it.
struct Coefficient {
  const char* description;
  const char* keyword;
  double ProjectRecord::*member;
  double default_value;
  double least = 0;  // below it the value has no physical sense
};

/// The coefficients of a method in the order of their table, 14 of a vessel and 15 of the
/// continuous discharge; none of any other method.
std::vector<Coefficient> Coefficients_Of(std::int16_t disposal_method);

/// All coefficients of the record's method have their default values.
bool Has_Default_Coefficients(const ProjectRecord& record);

/// A number that is not below the least one that makes sense, and not infinite.
bool Makes_Sense(const Coefficient& coefficient, double value);

}  // namespace barvon
