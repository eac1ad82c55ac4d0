#pragma once

#include <optional>

namespace barvon {

/// Density of sea water, g/cc, by the Knudsen-Ekman equation of state: density at the surface from
/// M. Knudsen, Hydrographical Tables, 1901, compressibility from V. W. Ekman, Publications de
/// Circonstance 43, 1908. Some of its signs and constants are this system's own, see the source.
///
/// `Salinity` in parts per thousand, `Temperature` in deg C, `Depth` in ft, 0 at the surface. Any
/// value is taken and no result is held to a range: what it means far from the sea is the caller's
/// to judge. Nothing where the formula breaks down: a division by zero (at -67.26 deg C for one),
/// an overflow, an argument that is no number. No message, no state.
std::optional<double> AMDEN(double Salinity, double Temperature, double Depth);

}  // namespace barvon
