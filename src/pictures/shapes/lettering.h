#pragma once

#include <string>
#include <vector>

#include "pictures/shapes/shapes.h"

namespace barvon {

/// The pixels that a text of this size takes at most, by an estimate for the wide sans serif of
/// most desktops: a picture is laid out without a font, alike in the window and in a file.
double Text_Width(const std::string& text, double size);

/// The text in lines of at most that many pixels, broken at blanks and line breaks; a word that is
/// wider has a line of its own.
std::vector<std::string> Wrapped(const std::string& text, double size, double width);

/// From a baseline up to the middle of its figures, in pixels.
double Half_Figure(double size);

/// Writes a note in quiet letters below the picture, which grows by it. Empty: nothing.
void Add_Note(Shape_List& picture, const std::string& note, double size);

}  // namespace barvon
