#pragma once

#include <QColor>
#include <QFont>

#include "pictures/shapes/shapes.h"

class QPainter;

namespace barvon {

constexpr QColor To_QColor(Colour colour) { return {colour.red, colour.green, colour.blue}; }

/// Paints the shapes that have places, the picture's corner at the painter's origin. The ground
/// stays as it is. `letters` is the family of its texts; sizes are the shapes' own.
void Paint_Shapes(QPainter& painter, const Shape_List& picture, const QFont& letters);

}  // namespace barvon
