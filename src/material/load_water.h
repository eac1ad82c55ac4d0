#pragma once

#include "core/field_table.h"
#include "core/project_record.h"

namespace barvon {

// The water in a load, that of the dredging site: density, salinity and temperature in Text3(0) to
// Text3(2) of both material screens.

inline constexpr char kWaterFrame[] = "Dredging Site Water Density";
enum Water_Field { kLoadDensity = 0, kLoadSalinity, kLoadTemperature, kLoadWaterFields };

Field_Table Water_Fields();

/// A salinity or a temperature was typed: SiteDensity follows while both are above 0. Where it is
/// held it is brought into its limits then, whatever was typed. Neither tells anything. The result
/// is whether Text3(0) has to show it anew.
bool Type_Water(const Field_Texts& texts, bool held, ProjectRecord& record);

/// "Compute Density": SiteSalinity and SiteTemperature become what the boxes of the hopper screen
/// hold, and SiteDensity follows. A density outside its limits is told and becomes the limit.
/// Water that has none is told, and nothing has changed then.
void Compute_Density(ProjectRecord& record);

/// What Text3(0) shows of a density that was computed.
Field_Texts Computed_Density_Text(const ProjectRecord& record);

/// OK: whether the density is within its limits; told when it is not.
bool Water_Density_Fits(const Field_Texts& texts, const ProjectRecord& record);

}  // namespace barvon
