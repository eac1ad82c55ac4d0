#pragma once

#include "pictures/drawings/tidal_drawing.h"
#include "pictures/shapes/shapes.h"

namespace barvon {

/// The tidal curves as a list of shapes, for who has no window: velocity over time, the simulated
/// interval as a band, its averages dashed.
Shape_List Tidal_Shapes(const Tidal_Drawing& drawing, const Canvas& canvas);

}  // namespace barvon
