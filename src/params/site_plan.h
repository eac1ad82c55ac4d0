#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/project_record.h"
#include "pictures/drawings/site_plan_drawing.h"

namespace barvon {

/// Name of the plan for those who do not see it, and of its saved file.
inline constexpr char kSitePlanName[] = "Site plan", kSitePlanFile[] = "site plan";

/// The site as the record has it. A screen puts what is being typed in the place of its members.
Site_Plan Plan_Of_Site(const ProjectRecord& record);

/// Velocities (ft/s) of a vessel that empties in that many seconds, an equal part of them at each.
struct Vessel_Velocity {
  double x = 0, z = 0;
};
std::vector<Vessel_Leg> Legs_Of(std::span<const Vessel_Velocity> velocities, double seconds);

/// The one leg of a vessel by its speed (ft/s) and its course, in degrees counter-clockwise from
/// the X axis, which points down.
Vessel_Leg Leg_Of_Course(double speed, double degrees, double seconds);

/// Asks whether what is chosen on the plan shall go there: "Put the vessel at X = 1200 ft,
/// Z = 800 ft?" for "the vessel". True for Yes.
bool Agrees_To_Put(const std::string& what, const Feet_Point& point);

}  // namespace barvon
