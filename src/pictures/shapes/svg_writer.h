#pragma once

#include <string>

#include "pictures/shapes/shapes.h"

namespace barvon {

/// The picture as a file of scalable graphics (SVG 1.1, UTF-8): a line for each shape, numbers with
/// at most two decimals and "." as the point whatever the desktop says. Characters that such a
/// file cannot hold are left out, bytes that are no UTF-8 become "?".
std::string Svg_Text(const Shape_List& picture);

/// A text as it may be in the file's elements and attributes.
std::string Svg_Escaped(const std::string& text);

}  // namespace barvon
