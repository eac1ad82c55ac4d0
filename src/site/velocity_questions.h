#pragma once

#include "site/velocity_data.h"

namespace barvon {

/// Whether the entry can be stored as that type; the user has been told when it can't. Only the
/// unsteady profile is held against anything here.
bool Check_Velocity(const Velocity_Entry& entry, double velocity_profile_type);

// A tick of "Initialize the ... Velocity field to a constant?".
void Tell_Constant_Missing(Velocity_Direction direction);
/// Whether a field that holds data may be filled with the constant.
bool Ask_To_Overwrite();

/// While the screen fills itself and the simulation has no duration.
void Tell_Duration_Missing();

/// Tells of a grid with more points than the fields have room for; silent for all others.
void Tell_Grid_Beyond_Fields(const ProjectRecord& record);

}  // namespace barvon
