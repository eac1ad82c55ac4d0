#pragma once

#include <QColor>
#include <QImage>

#include "pictures/picture.h"

namespace barvon::testing {

/// Shows the picture at a size and gives back what it looks like.
QImage Seen(Picture& picture, QSize size = {480, 360});

/// How far apart two colours are, 0 to 765.
int Difference(const QColor& a, const QColor& b);

/// How many pixels of the area have this colour, as near as the tolerance (0 to 765).
int Count_Pixels(const QImage& image, const QRect& area, const QColor& colour, int tolerance = 60);

}  // namespace barvon::testing
