#pragma once

#include "solver/model_input.h"

/// How fast grains settle among others: in the clouds that fall and spread, and in the columns.
namespace companion {

inline constexpr double kHinderedPower = 4.65;  // of the water's share: Richardson, Zaki (1954)
inline constexpr double kFlocFrom = 200;        // mg/l from which flocs settle faster
inline constexpr double kMostOfFlocs = 5;       // of the fall velocity

/// Share of the fall velocity that is left among solids of a volume share c: (1 - c)^4.65,
/// Richardson and Zaki (1954).
double Hindrance(double share);

/// Fall velocity of flocs over that of their grains: their concentration over 200 mg/l, between 1
/// and 5 (Whitehouse and others 2000); 1 for a fraction that is not cohesive. `share` is a volume
/// share.
double Floc_Factor(const Solid& solid, double share);

/// Both of them, of one fraction alone in the water: its fall velocity over that of one grain. Made
/// for the columns, where it is asked for often and where a share is mostly small.
double Settling_Factor(const Solid& solid, double share);

}  // namespace companion
