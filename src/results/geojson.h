#pragma once

#include <string>
#include <vector>

#include "results/cell_values.h"
#include "results/map_place.h"
#include "results/results.h"

namespace barvon {

/// A map with its contours, and what is drawn on it, as a GeoJSON FeatureCollection in the place's
/// coordinate system, to a thousandth of its unit.
///
/// For each level a MultiPolygon where the values are at it or above ("kind": "area") and its line
/// ("kind": "line"), where there are any, both with "what", "level" and "unit"; then the outlines
/// "grid", "disposal site" or "mixing zone", "ZID", and the "disposal point", where the results
/// have them. Areas of higher levels come later, above those that hold them. Outer rings run
/// counterclockwise.
///
/// "crs", as GeoJSON of 2008 has it, names the coordinate system by its code. Where none is known
/// it is a local system with the place's unit, so that who reads "crs" does not take the numbers
/// for longitude and latitude.
std::string Geojson_Text(const Cell_Values& cells, std::vector<double> levels,
                         const std::string& what, const std::string& unit, const Results& results,
                         const Map_Place& place);

}  // namespace barvon
