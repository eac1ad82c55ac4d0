#include "results/geojson.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "results/contours.h"
#include "results/map_polygons.h"
#include "results/plain_numbers.h"

namespace barvon {
namespace {

constexpr int kDecimals = 3;
constexpr double kSteps = 1000;  // of a unit

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    if (static_cast<unsigned char>(c) < ' ') {
      std::array<char, 8> code;
      std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned char>(c));
      quoted += code.data();
    } else {
      quoted += c;
    }
  }
  return quoted + "\"";
}

/// Writes points of the grid's plane as positions of the system.
class Position_Writer {
 public:
  explicit Position_Writer(const Map_Place& place) : place_(place) {}

  /// In steps.
  Map_Point Point(const Result_Point& point) const {
    const Map_Point on_map = On_Map(place_, point);
    return {on_map.easting * kSteps, on_map.northing * kSteps};
  }

  static std::string Position(const Map_Step& step) {
    const auto text = [](long long steps) {
      return Rounded_Number(static_cast<double>(steps) / kSteps, kDecimals);
    };
    return "[" + text(step.east) + "," + text(step.north) + "]";
  }

  std::string Position(const Result_Point& point) const {
    return Position(Rounded_Step(Point(point)));
  }

  Map_Outline Outline(const std::vector<Result_Point>& points) const {
    Map_Outline outline;
    for (const Result_Point& point : points) outline.push_back(Point(point));
    return outline;
  }

  /// With its first position at the end again.
  static std::string Positions(const Map_Ring& ring) {
    std::string text;
    for (const Map_Step& step : ring) text += Position(step) + ",";
    return "[" + text + Position(ring.front()) + "]";
  }

  /// The positions of a line, or of a ring with its first position at the end again; empty where
  /// rounding leaves fewer than two, of a ring four.
  std::string Positions(std::vector<Result_Point> points, bool closed) const {
    if (closed && !points.empty()) points.push_back(points.front());
    std::string text, last;
    int count = 0;
    for (const Result_Point& point : points) {
      const std::string position = Position(point);
      if (position == last) continue;
      text += (count > 0 ? "," : "") + position;
      last = position;
      ++count;
    }
    return count < (closed ? 4 : 2) ? "" : "[" + text + "]";
  }

 private:
  const Map_Place& place_;
};

std::string Joined(const std::vector<std::string>& parts, const char* between) {
  std::string text;
  for (const std::string& part : parts) text += (text.empty() ? "" : between) + part;
  return text;
}

std::string Feature(const std::string& kind, const std::string& further, const char* geometry,
                    const std::string& coordinates) {
  return R"({"type":"Feature","properties":{"kind":)" + Quoted(kind) + further +
         R"(},"geometry":{"type":")" + geometry + R"(","coordinates":)" + coordinates + "}}";
}

std::string Multi_Polygon(const std::vector<Contour_Ring>& regions, const Position_Writer& writer) {
  std::vector<Map_Outline> outlines;
  for (const Contour_Ring& ring : regions) outlines.push_back(writer.Outline(ring.points));
  std::vector<std::string> texts;
  for (const Map_Polygon& polygon : Polygons_Within(outlines)) {
    std::vector<std::string> rings = {Position_Writer::Positions(polygon.outer)};
    for (const Map_Ring& hole : polygon.holes) rings.push_back(Position_Writer::Positions(hole));
    texts.push_back("[" + Joined(rings, ",") + "]");
  }
  return texts.empty() ? "" : "[" + Joined(texts, ",") + "]";
}

std::string Multi_Line(const std::vector<Contour_Line>& lines, const Position_Writer& writer) {
  std::vector<std::string> texts;
  for (const Contour_Line& line : lines) {
    std::string text = writer.Positions(line.points, line.closed);
    if (!text.empty()) texts.push_back(std::move(text));
  }
  return texts.empty() ? "" : "[" + Joined(texts, ",") + "]";
}

std::string Outline(const std::string& kind, const Result_Area& area,
                    const Position_Writer& writer) {
  // Counterclockwise on the map, as X grows downwards there.
  const std::string ring = writer.Positions({{area.top, area.left},
                                             {area.bottom, area.left},
                                             {area.bottom, area.right},
                                             {area.top, area.right}},
                                            true);
  return ring.empty() ? "" : Feature(kind, "", "Polygon", "[" + ring + "]");
}

Result_Area Ordered(const Result_Area& area) {
  return {std::min(area.top, area.bottom), std::min(area.left, area.right),
          std::max(area.top, area.bottom), std::max(area.left, area.right)};
}

/// What the cells cover.
Result_Area Extent_Of(const Cell_Values& cells) {
  return {-cells.spacing_x / 2, -cells.spacing_z / 2, (cells.rows - 0.5) * cells.spacing_x,
          (cells.columns - 0.5) * cells.spacing_z};
}

/// A system that lies nowhere on the Earth, with its unit, under the name that was typed.
std::string Unplaced_System(const Map_Place& place) {
  std::string name = place.system.empty() ? "unknown" : place.system;
  std::ranges::replace(name, '"', '\'');
  const std::string unit =
      place.unit == Place_Unit::foot ? R"(UNIT["foot",0.3048])" : R"(UNIT["metre",1])";
  return "LOCAL_CS[\"" + name + "\"," + unit + "]";
}

std::string System_Member(const Map_Place& place) {
  const auto code = Epsg_Code(place.system);
  const std::string name =
      code ? "urn:ogc:def:crs:EPSG::" + std::to_string(*code) : Unplaced_System(place);
  return R"({"type":"name","properties":{"name":)" + Quoted(name) + "}}";
}

}  // namespace

std::string Geojson_Text(const Cell_Values& cells, std::vector<double> levels,
                         const std::string& what, const std::string& unit, const Results& results,
                         const Map_Place& place) {
  const Position_Writer writer(place);
  std::vector<std::string> features;
  const auto add = [&features](std::string feature) {
    if (!feature.empty()) features.push_back(std::move(feature));
  };
  std::ranges::sort(levels);
  for (const double level : levels) {
    const std::string further = R"(,"what":)" + Quoted(what) + R"(,"level":)" +
                                Shortest_Number(level) + R"(,"unit":)" + Quoted(unit);
    const std::string areas = Multi_Polygon(Regions_Above(cells, level), writer);
    if (!areas.empty()) add(Feature("area", further, "MultiPolygon", areas));
    const std::string lines = Multi_Line(Contour_Lines(cells, level), writer);
    if (!lines.empty()) add(Feature("line", further, "MultiLineString", lines));
  }
  add(Outline("grid", Extent_Of(cells), writer));
  if (results.site) {
    const char* kind = results.mixing_zone ? "mixing zone" : "disposal site";
    add(Outline(kind, Ordered(*results.site), writer));
  }
  if (results.zid) add(Outline("ZID", Ordered(*results.zid), writer));
  if (results.disposal) {
    add(Feature("disposal point", "", "Point", writer.Position(*results.disposal)));
  }
  return R"({"type":"FeatureCollection","name":)" + Quoted(what) + R"(,"crs":)" +
         System_Member(place) + ",\"features\":[\n" + Joined(features, ",\n") + "\n]}\n";
}

}  // namespace barvon
