#pragma once

#include "pictures/drawings/depth_drawing.h"
#include "pictures/drawings/velocity_drawing.h"
#include "pictures/shapes/shapes.h"

namespace barvon {

// The maps of a grid as lists of shapes, for who has no window: rows downwards, columns to the
// right, each point a cell in the colour of its value, with a scale of the colours beside them. A
// grid without a value gives a list without shapes.

Shape_List Depth_Shapes(const Depth_Drawing& drawing, const Canvas& canvas);

/// The speeds, and arrows where the current goes to.
Shape_List Velocity_Shapes(const Velocity_Drawing& drawing, const Canvas& canvas);

}  // namespace barvon
