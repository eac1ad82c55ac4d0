#pragma once

#include "core/project_record.h"

namespace barvon {

/// Typical velocities of the wizard, ft/s; only their signs count here.
struct Typical_Velocity {
  float TypicalVelX = 0, TypicalVelZ = 0;
};

/// Puts the vessel upstream of the middle of the grid, so that the plume travels across it: at a
/// fifth of its length and width (ft, by counts and spacings), at four fifths against a negative
/// velocity. A velocity of 0 counts as not negative.
void PlaceVesselFromTypicalVelocity(const Typical_Velocity& velocity, ProjectRecord& record);

/// Puts the upstream edges of the disposal site three vessel footprints (hopper) or two barge
/// lengths in front of the vessel. The downstream edges stay.
void PlaceSiteEdges(const Typical_Velocity& velocity, bool hopper, ProjectRecord& record);

}  // namespace barvon
