#pragma once

#include <optional>
#include <string>

#include "core/project_record.h"

namespace barvon {

/// What the wizard asks for to lay out a grid. Computed in 32 bits throughout.
struct Typical_Data {
  float plume_distance = 0;  // maximum plume distance of interest, ft
  float duration = 0;        // s
  float velocity_x = 0;      // typical, ft/s, positive from top to bottom
  float velocity_z = 0;      // ft/s, positive from left to right
  float depth = 0;           // average, ft
};

/// A spacing rounded up to a step of the ladder, ft: tens below 100, then 125, 150, 175, 200, from
/// 250 in fifties to 500, hundreds above. The ladder tests ranges of whole numbers, so there are
/// gaps of one foot between its steps, which give nothing.
std::optional<float> SpacingUp(float spacing);

/// A spacing as whole hundreds, ft. Nothing beyond 16 bits of hundreds.
std::optional<float> RoundHundred(float spacing);

/// Fills NMAX0, MMAX0, DX0 and DZ0 so that a plume of the typical velocity stays on the grid for
/// the duration: both counts are 5 more than the number of intervals, at most 85. A spacing that
/// falls into a gap of the ladder leaves the record's own. The result is empty, or says why no grid
/// comes of the data; the record is as it was then.
std::string ComputeGridFromTypicalData(const Typical_Data& data, ProjectRecord& record);

}  // namespace barvon
