#include "results/geojson.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "results/contours.h"
#include "results/plain_numbers.h"

namespace barvon {
namespace {

constexpr int kDecimals = 3;

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

  std::string Position(const Result_Point& point) const {
    const Map_Point on_map = On_Map(place_, point);
    return "[" + Rounded_Number(on_map.easting, kDecimals) + "," +
           Rounded_Number(on_map.northing, kDecimals) + "]";
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

/// By the odd-even rule.
bool Holds(const std::vector<Result_Point>& ring, const Result_Point& point) {
  bool inside = false;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Result_Point& a = ring[i];
    const Result_Point& b = ring[(i + 1) % ring.size()];
    if ((a.x > point.x) == (b.x > point.x)) continue;
    if (point.z < a.z + (point.x - a.x) / (b.x - a.x) * (b.z - a.z)) inside = !inside;
  }
  return inside;
}

struct Polygon {
  std::vector<Result_Point> outer;
  double area = 0;
  std::vector<std::vector<Result_Point>> holes;
};

/// The smallest polygon around a hole. A corner of it may touch the outline, so all have a voice.
Polygon* Around(std::vector<Polygon>& polygons, const std::vector<Result_Point>& hole) {
  Polygon* around = nullptr;
  for (Polygon& polygon : polygons) {
    const auto inside = std::ranges::count_if(
        hole, [&](const Result_Point& point) { return Holds(polygon.outer, point); });
    const bool holds = 2 * static_cast<std::size_t>(inside) > hole.size();
    if (holds && (around == nullptr || polygon.area < around->area)) around = &polygon;
  }
  return around;
}

std::vector<Polygon> Polygons_Of(const std::vector<Contour_Ring>& rings) {
  std::vector<Polygon> polygons;
  for (const Contour_Ring& ring : rings) {
    if (!ring.hole) polygons.push_back({ring.points, Signed_Area(ring.points), {}});
  }
  for (const Contour_Ring& ring : rings) {
    Polygon* around = ring.hole ? Around(polygons, ring.points) : nullptr;
    if (around != nullptr) around->holes.push_back(ring.points);
  }
  return polygons;
}

std::string Multi_Polygon(const std::vector<Polygon>& polygons, const Position_Writer& writer) {
  std::vector<std::string> texts;
  for (const Polygon& polygon : polygons) {
    std::vector<std::string> rings = {writer.Positions(polygon.outer, true)};
    if (rings.front().empty()) continue;
    for (const auto& hole : polygon.holes) {
      if (std::string ring = writer.Positions(hole, true); !ring.empty()) rings.push_back(ring);
    }
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
    const std::string areas = Multi_Polygon(Polygons_Of(Regions_Above(cells, level)), writer);
    if (!areas.empty()) add(Feature("area", further, "MultiPolygon", areas));
    const std::string lines = Multi_Line(Contour_Lines(cells, level), writer);
    if (!lines.empty()) add(Feature("line", further, "MultiLineString", lines));
  }
  add(Outline("grid", Extent_Of(cells), writer));
  if (results.site) add(Outline("disposal site", Ordered(*results.site), writer));
  if (results.zid) add(Outline("ZID", Ordered(*results.zid), writer));
  if (results.disposal) {
    add(Feature("disposal point", "", "Point", writer.Position(*results.disposal)));
  }
  return R"({"type":"FeatureCollection","name":)" + Quoted(what) + R"(,"crs":)" +
         System_Member(place) + ",\"features\":[\n" + Joined(features, ",\n") + "\n]}\n";
}

}  // namespace barvon
