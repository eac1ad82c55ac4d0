#include "results/drawings/map_drawing.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "pictures/shapes/inks.h"
#include "results/cell_places.h"
#include "results/contours.h"
#include "results/drawings/map_words.h"

namespace barvon {
namespace {

constexpr Colour kSiteInk{0, 112, 74}, kZidInk{134, 38, 140}, kDarkLine{60, 60, 60};
constexpr double kOutline = 1.6, kHalo = 4, kContour = 0.8, kGridLine = 0.5;  // pixels
constexpr double kPointRadius = 4.5, kEndRadius = 3;                          // pixels

Feet_Point Feet(const Result_Point& point) { return {point.x, point.z}; }

std::vector<Place> On_Plan(const std::vector<Result_Point>& points) {
  std::vector<Place> places;
  places.reserve(points.size());
  for (const Result_Point& point : points) places.push_back(barvon::On_Plan(Feet(point)));
  return places;
}

std::vector<Place> Outline(const Result_Area& area) {
  return Rectangle({area.left, area.top}, {area.right, area.bottom});
}

void Add_Level(Plan& plan, const Map_Content& content, const Cell_Values& cells, double level,
               const Colour& fill, const Stroke& line) {
  Area_Shape area{{}, fill, {}};
  for (const Contour_Ring& ring : Regions_Above(cells, level)) {
    area.rings.push_back(On_Plan(ring.points));
  }
  if (area.rings.empty()) return;
  plan.shapes.push_back(std::move(area));
  if (!content.lines && !content.scale.two_sides) return;
  for (const Contour_Line& contour : Contour_Lines(cells, level)) {
    std::vector<Place> places = On_Plan(contour.points);
    if (contour.closed) places.push_back(places.front());
    plan.shapes.push_back(Line_Shape{std::move(places), line});
  }
}

void Add_Levels(Plan& plan, const Map_Content& content) {
  const std::vector<double>& levels = content.scale.levels;
  const auto line_on = [](const Colour& fill, Dash dash) {
    return Stroke{Is_Dark(fill) ? kWhite : kDarkLine, kContour, dash};
  };
  for (std::size_t band = 0; band < levels.size(); ++band) {
    const Colour fill = content.scale.two_sides ? More_Colour(band, levels.size())
                                                : Band_Colour(band, levels.size());
    Add_Level(plan, content, content.cells, levels[band], fill, line_on(fill, Dash::solid));
  }
  if (!content.scale.two_sides) return;
  Cell_Values turned = content.cells;
  for (double& value : turned.values) value = -value;
  for (std::size_t band = 0; band < levels.size(); ++band) {
    const Colour fill = Less_Colour(band, levels.size());
    // Print in grey shows both sides alike: the lines of less are dashed.
    Add_Level(plan, content, turned, levels[band], fill, line_on(fill, Dash::dashed));
  }
}

void Add_Grid(Plan& plan, const Cell_Values& cells) {
  const Result_Area reach = Reach_Of(cells);
  const Stroke stroke{kAxisInk, kGridLine};
  for (int row = 1; row < cells.rows; ++row) {
    const double x = (row - 0.5) * cells.spacing_x;
    plan.shapes.push_back(Line_Shape{{{reach.left, x}, {reach.right, x}}, stroke});
  }
  for (int column = 1; column < cells.columns; ++column) {
    const double z = (column - 0.5) * cells.spacing_z;
    plan.shapes.push_back(Line_Shape{{{z, reach.top}, {z, reach.bottom}}, stroke});
  }
}

bool Is_Held(const Result_Area& area, const Result_Point& point) {
  return point.x >= area.top && point.x <= area.bottom && point.z >= area.left &&
         point.z <= area.right;
}

bool Is_Held(const Result_Area& area, const Result_Area& part) {
  return Is_Held(area, Result_Point{part.top, part.left}) &&
         Is_Held(area, Result_Point{part.bottom, part.right});
}

// On white, so that it is seen on dark areas too.
void Add_Outline(Plan& plan, const Result_Area& area, const Stroke& stroke) {
  plan.shapes.push_back(Polygon_Shape{Outline(area), {}, Stroke{kWhite, kHalo}});
  plan.shapes.push_back(Polygon_Shape{Outline(area), {}, stroke});
}

std::string Area_Words(const std::string& name, const Result_Area& area) {
  return name + ": X " + Short_Text(area.top) + " to " + Short_Text(area.bottom) + " ft, Z " +
         Short_Text(area.left) + " to " + Short_Text(area.right) + " ft.";
}

// What lies beyond the grid is not drawn: a plan does not cut, and a far place would leave the map
// a dot. It is told.
void Add_Marks(Map_Drawing& drawing) {
  const Map_Content& content = drawing.content;
  const Result_Area reach = Reach_Of(content.cells);
  const auto say = [&](const std::string& words, bool held) {
    drawing.description += " " + words;
    if (!held) drawing.description += " It reaches beyond the grid and is not drawn.";
  };
  const auto add_area = [&](const char* name, const Result_Area& area, const Stroke& stroke) {
    Add_Outline(drawing.plan, area, stroke);
    drawing.signs.push_back({name, stroke});
  };
  if (content.site) {
    const bool held = Is_Held(reach, *content.site);
    const char* name = content.mixing_zone ? "Mixing zone" : "Site";
    say(Area_Words(name, *content.site), held);
    if (held) add_area(name, *content.site, {kSiteInk, kOutline});
  }
  if (content.zid) {
    const bool held = Is_Held(reach, *content.zid);
    say(Area_Words("ZID", *content.zid), held);
    if (held) add_area("ZID", *content.zid, {kZidInk, kOutline, Dash::dashed});
  }
  if (content.disposal) {
    const bool held = Is_Held(reach, *content.disposal);
    say("Disposal point: " + Place_Words(*content.disposal) + ".", held);
    if (held) {
      const Circle_Shape point{barvon::On_Plan(Feet(*content.disposal)), kPointRadius, kWarnInk,
                               Stroke{kWhite, 1.5}};
      drawing.plan.marks.push_back(point);
      drawing.signs.push_back({"Disposal", point});
    }
  }
}

void Add_Section_Line(Plan& plan, const Section_Line& line) {
  const Place from = barvon::On_Plan(Feet(line.from)), to = barvon::On_Plan(Feet(line.to));
  plan.marks.push_back(Line_Shape{{from, to}, {kWhite, 4}});
  plan.marks.push_back(Line_Shape{{from, to}, {kInk, 1.8}});
  for (const auto& [place, letter] : {std::pair{from, " A"}, std::pair{to, " B"}}) {
    plan.marks.push_back(Circle_Shape{place, kEndRadius, kInk, Stroke{kWhite, 1}});
    plan.marks.push_back(Text_Shape{place, letter, 1, kInk, Anchor::start, false, true});
  }
}

std::string Signed_Words(double value, const Map_Content& content) {
  const std::string words = Reading_Words(value, content.unit);
  return content.scale.two_sides && value > 0 ? "+" + words : words;
}

std::string Summary_Of(const Map_Content& content) {
  const Cell_Values& cells = content.cells;
  const Cell_Place high = Largest_Cell(cells);
  if (high.row == 0) return "No values.";
  const auto at = [&](const Cell_Place& cell, double value) {
    return Signed_Words(value, content) + " at " + Place_Words(Centre_Of(cells, cell));
  };
  const double largest = cells.At(high.row, high.column);
  Cell_Values turned = cells;
  for (double& value : turned.values) value = -value;
  const Cell_Place low = Largest_Cell(turned);
  const double least = cells.At(low.row, low.column);
  if (largest == least) return Reading_Words(largest, content.unit) + " everywhere.";
  if (!content.scale.two_sides) return "Largest " + at(high, largest) + ".";
  return "From " + at(low, least) + " to " + at(high, largest) + ".";
}

std::string Scale_Words(const Map_Content& content) {
  if (content.scale.levels.empty()) return "No levels.";
  std::string words = content.scale.two_sides ? "Levels, more and less:" : "Levels:";
  for (const double level : content.scale.levels) words += " " + Short_Text(level);
  return words + " " + content.unit + ".";
}

}  // namespace

Map_Drawing Draw_Map(Map_Content content) {
  Map_Drawing drawing;
  drawing.content = std::move(content);
  const Map_Content& shown = drawing.content;
  if (shown.nothing.empty() && !Is_Whole(shown.cells)) {
    drawing.content.nothing = "There is no map to show.";
  }
  if (!shown.nothing.empty()) {
    drawing.description = shown.nothing;
    return drawing;
  }
  drawing.summary = Summary_Of(shown);
  drawing.description =
      shown.quantity + ", " + shown.title + ". " + drawing.summary + " " + Scale_Words(shown);
  const Result_Area reach = Reach_Of(shown.cells);
  drawing.plan.area = {reach.top, reach.left, reach.bottom, reach.right};
  Add_Levels(drawing.plan, shown);
  if (shown.grid) Add_Grid(drawing.plan, shown.cells);
  drawing.plan.shapes.push_back(Polygon_Shape{Outline(reach), {}, Stroke{kAxisInk, 1}});
  Add_Marks(drawing);
  if (shown.section) {
    Add_Section_Line(drawing.plan, *shown.section);
    drawing.section =
        Draw_Section(shown.cells, *shown.section, shown.unit, shown.scale, shown.logarithmic);
    drawing.description += " " + drawing.section->description;
  }
  drawing.plan.title = shown.title;
  drawing.plan.description = drawing.description;
  return drawing;
}

std::string Map_Words_At(const Map_Drawing& drawing, const Result_Point& place) {
  return Place_Words(place) + ": " +
         Signed_Words(Value_At(drawing.content.cells, place), drawing.content);
}

}  // namespace barvon
