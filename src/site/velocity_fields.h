#pragma once

#include "core/field_table.h"

namespace barvon {

/// The check box of the average form.
inline constexpr char kLogarithmicCaption[] = "Do you wish a Logarithmic Profile to be employed?";

/// Text1 of the average form, in the order of its indices.
inline constexpr Field_Row kAverageFields[] = {
    {.control = {"Text1", 0},
     .label = "Depth at location (ft)",
     .unit = "ft",
     .pattern = "####0.0",
     .member = &ProjectRecord::AvgVelocityDepth},
    {.control = {"Text1", 1},
     .label = "X-Direction Velocity (fps)",
     .unit = "fps",
     .pattern = "####0.0",
     .member = &ProjectRecord::AvgVelocityX},
    {.control = {"Text1", 2},
     .label = "Z-Direction Velocity (fps)",
     .unit = "fps",
     .pattern = "####0.0",
     .member = &ProjectRecord::AvgVelocityZ},
};

/// Text3 of the unsteady form. The record keeps the duration in seconds: it is filled and read
/// apart from the others.
enum Unsteady_Field { kStart = 0, kDepth, kDuration, kAverageX, kAverageZ };
inline constexpr Field_Row kUnsteadyFields[] = {
    {.control = {"Text3", kStart},
     .label = "Start Time Within Velocity Profile (Hrs)",
     .unit = "hrs",
     .pattern = "###0.00",
     .member = &ProjectRecord::TidalStartTime},
    {.control = {"Text3", kDepth},
     .label = "Depth Where Velocity Profile is Applied (Ft)",
     .unit = "ft",
     .pattern = "###0.00",
     .member = &ProjectRecord::TidalDepth},
    {.control = {"Text3", kDuration},
     .label = "Simulation Duration (Hrs)",
     .unit = "hrs",
     .pattern = "####0.0"},
    {.control = {"Text3", kAverageX},
     .label = "Average X-Velocity (Ft/Sec)",
     .unit = "fps",
     .pattern = "###0.0",
     .reads = Reads::Nothing,
     .member = &ProjectRecord::TidalAvgVelX},
    {.control = {"Text3", kAverageZ},
     .label = "Average Z-Velocity (Ft/Sec)",
     .unit = "fps",
     .pattern = "###0.0",
     .reads = Reads::Nothing,
     .member = &ProjectRecord::TidalAvgVelZ},
};

}  // namespace barvon
