#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace barvon {

/// A place in a picture: pixels from its upper left corner, to the right and down.
struct Place {
  double x = 0, y = 0;

  bool operator==(const Place&) const = default;
};

struct Colour {
  std::uint8_t red = 0, green = 0, blue = 0;

  bool operator==(const Colour&) const = default;
};

enum class Dash { solid, dashed, dotted };

/// How a line is drawn, `width` in pixels.
struct Stroke {
  Colour colour;
  double width = 1;
  Dash dash = Dash::solid;

  bool operator==(const Stroke&) const = default;
};

/// A line through two points or more.
struct Line_Shape {
  std::vector<Place> points;
  Stroke stroke;
};

/// A closed area. One with a fill and no stroke is plain ground.
struct Polygon_Shape {
  std::vector<Place> points;
  std::optional<Colour> fill;
  std::optional<Stroke> stroke;
};

/// An area of several closed rings, filled by the odd-even rule: a ring in another one is a hole.
struct Area_Shape {
  std::vector<std::vector<Place>> rings;
  std::optional<Colour> fill;
  std::optional<Stroke> stroke;
};

struct Circle_Shape {
  Place centre;
  double radius = 1;  // pixels
  std::optional<Colour> fill;
  std::optional<Stroke> stroke;
};

enum class Anchor { start, middle, end };

/// One line of text, UTF-8. Its place is on the baseline, at the part of the text that `anchor`
/// names.
struct Text_Shape {
  Place place;
  std::string text;
  double size = 12;  // pixels
  Colour colour = {};
  Anchor anchor = Anchor::start;
  bool upwards = false;  // turned about its place, to be read from below
  bool bold = false;
};

using Shape = std::variant<Line_Shape, Polygon_Shape, Area_Shape, Circle_Shape, Text_Shape>;

/// The room that a picture is given.
struct Canvas {
  double width = 0, height = 0;  // pixels
  double text_size = 12;         // pixels
};

/// A picture as a list of shapes, later ones above earlier ones, on white ground. The window
/// paints it, `Svg_Text` writes it.
struct Shape_List {
  double width = 0, height = 0;  // pixels
  std::string title;             // what the picture is
  std::string description;       // the picture in words, with its numbers
  std::vector<Shape> shapes;
};

/// Farther than this from the corner, in pixels, nothing is drawn.
inline constexpr double kFarthestPlace = 1e6;

/// The shape has places, all of them finite and not beyond kFarthestPlace. Whoever draws a list
/// passes over the others, so that a value without a place leaves a gap and no harm.
bool Has_Places(const Shape& shape);

/// The shape with its corner at that place, so many times as large.
Shape Moved(Shape shape, Place corner, double scale = 1);

/// The four corners of an upright rectangle, clockwise from `a`'s.
std::vector<Place> Rectangle(Place a, Place b);

}  // namespace barvon
