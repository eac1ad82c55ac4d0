#include "results/drawings/map_drawing.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "pictures/shapes/inks.h"
#include "pictures/shapes/lettering.h"
#include "results/cell_places.h"
#include "results/contours.h"
#include "results/drawings/map_words.h"

namespace barvon {
namespace {

constexpr Colour kSiteInk{0, 112, 74}, kZidInk{134, 38, 140}, kDarkLine{60, 60, 60};
constexpr double kOutline = 1.6, kHalo = 4, kContour = 0.8, kGridLine = 0.5;  // pixels
constexpr double kPointRadius = 4.5, kEndRadius = 3;
constexpr double kSectionBelow = 0.36;                // of the height
constexpr double kSectionBeside = 0.45;               // of the width
constexpr double kLine = 1.35, kGap = 6;              // of the size; pixels
constexpr double kBoxWidth = 1.6, kTallestBox = 1.7;  // of the size
constexpr double kWidestScale = 0.45;                 // of the canvas
constexpr std::size_t kMostTitleLines = 2;

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
void Add_Outline(Plan& plan, const Result_Area& area, Colour ink, Dash dash) {
  plan.shapes.push_back(Polygon_Shape{Outline(area), {}, Stroke{kWhite, kHalo}});
  plan.shapes.push_back(Polygon_Shape{Outline(area), {}, Stroke{ink, kOutline, dash}});
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
  if (content.site) {
    const bool held = Is_Held(reach, *content.site);
    say(Area_Words("Site", *content.site), held);
    if (held) Add_Outline(drawing.plan, *content.site, kSiteInk, Dash::solid);
  }
  if (content.zid) {
    const bool held = Is_Held(reach, *content.zid);
    say(Area_Words("ZID", *content.zid), held);
    if (held) Add_Outline(drawing.plan, *content.zid, kZidInk, Dash::dashed);
  }
  if (content.disposal) {
    const bool held = Is_Held(reach, *content.disposal);
    say("Disposal point: " + Place_Words(*content.disposal) + ".", held);
    if (held) {
      drawing.plan.marks.push_back(Circle_Shape{barvon::On_Plan(Feet(*content.disposal)),
                                                kPointRadius, kWarnInk, Stroke{kWhite, 1.5}});
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

struct Scale_Row {
  std::optional<Colour> fill;  // nothing: below the levels
  std::string lower;           // label at the lower edge; the last row has none
};

// From the largest values down.
std::vector<Scale_Row> Scale_Rows(const Colour_Scale& scale) {
  std::vector<Scale_Row> rows;
  const std::vector<double>& levels = scale.levels;
  const std::size_t bands = levels.size();
  for (std::size_t i = bands; i-- > 0;) {
    rows.push_back({scale.two_sides ? More_Colour(i, bands) : Band_Colour(i, bands),
                    (scale.two_sides ? "+" : "") + Short_Text(levels[i])});
  }
  rows.push_back({{}, ""});
  if (!scale.two_sides) return rows;
  for (std::size_t i = 0; i < bands; ++i) {
    rows.back().lower = "-" + Short_Text(levels[i]);
    rows.push_back({Less_Colour(i, bands), ""});
  }
  return rows;
}

enum class Sign { area, dashed_area, point };

std::vector<std::pair<Sign, std::string>> Signs_Of(const Map_Drawing& drawing) {
  const Map_Content& content = drawing.content;
  const Result_Area reach = Reach_Of(content.cells);
  std::vector<std::pair<Sign, std::string>> signs;
  if (content.site && Is_Held(reach, *content.site)) signs.emplace_back(Sign::area, "Site");
  if (content.zid && Is_Held(reach, *content.zid)) signs.emplace_back(Sign::dashed_area, "ZID");
  if (content.disposal && Is_Held(reach, *content.disposal)) {
    signs.emplace_back(Sign::point, "Disposal");
  }
  return signs;
}

/// Where the parts of the picture lie on a canvas.
struct Map_Layout {
  std::vector<std::string> title, summary;
  double top = 0;  // below the title
  Canvas map, section;
  Place scale;  // corner
  double scale_width = 0;
  Place section_at;
};

double Scale_Width(const Map_Drawing& drawing, double size) {
  double widest = Text_Width(drawing.content.unit, size);
  for (const Scale_Row& row : Scale_Rows(drawing.content.scale)) {
    widest = std::max(widest, kBoxWidth * size + kGap + Text_Width(row.lower, size));
  }
  for (const auto& [sign, words] : Signs_Of(drawing)) {
    widest = std::max(widest, kBoxWidth * size + kGap + Text_Width(words, size));
  }
  return widest + 2 * kGap;
}

Map_Layout Layout_Of(const Map_Drawing& drawing, const Canvas& canvas) {
  const double size = canvas.text_size;
  Map_Layout layout;
  layout.title = Wrapped(drawing.content.title, 1.1 * size, canvas.width - 2 * kGap);
  if (layout.title.size() > kMostTitleLines) layout.title.resize(kMostTitleLines);
  layout.summary = Wrapped(drawing.summary, size, canvas.width - 2 * kGap);
  if (layout.summary.size() > kMostTitleLines) layout.summary.resize(kMostTitleLines);
  layout.top = kLine * size *
                   (1.1 * static_cast<double>(layout.title.size()) +
                    static_cast<double>(layout.summary.size())) +
               kGap;
  const double scale_width = Scale_Width(drawing, size);
  const double kept = scale_width < kWidestScale * canvas.width ? scale_width : 0;
  const double height = canvas.height - layout.top;
  layout.map = {canvas.width - kept, height, size};
  bool beside = false;
  if (drawing.section) {
    // Where it leaves the map larger: below a wide one, beside a tall one.
    const Canvas above{layout.map.width, (1 - kSectionBelow) * height, size};
    const Canvas left{(1 - kSectionBeside) * canvas.width - kept, height, size};
    const auto scale_of = [&](const Canvas& part) {
      return Plan_Frame(drawing.plan.area, part).Pixels_Per_Foot();
    };
    beside = scale_of(left) > scale_of(above);
    layout.map = beside ? left : above;
  }
  const Plan_Frame frame(drawing.plan.area, layout.map);
  const double right = frame.Is_Empty() ? layout.map.width : frame.plot().right();
  // Beside the map rather than at the far edge of a wide window.
  layout.scale = {std::min(right + 2 * kGap, layout.map.width) + kGap, layout.top + kGap};
  layout.scale_width = kept;
  if (drawing.section) {
    layout.section_at = beside ? Place{layout.scale.x + kept, layout.top}
                               : Place{0, layout.top + layout.map.height};
    const double width = canvas.width - layout.section_at.x;
    layout.section = {width, beside ? std::min(height, width) : kSectionBelow * height, size};
  }
  return layout;
}

void Add_Titles(Shape_List& picture, const Map_Layout& layout, double size) {
  double baseline = 0.2 * size;
  const auto add = [&](const std::string& line, double letters, Colour ink, bool bold) {
    baseline += kLine * letters;
    picture.shapes.push_back(
        Text_Shape{{kGap, baseline}, line, letters, ink, Anchor::start, false, bold});
  };
  for (const std::string& line : layout.title) add(line, 1.1 * size, kInk, true);
  for (const std::string& line : layout.summary) add(line, size, kQuietInk, false);
}

void Add_Scale(Shape_List& picture, const Map_Drawing& drawing, const Map_Layout& layout,
               double size) {
  const auto rows = Scale_Rows(drawing.content.scale);
  const auto signs = Signs_Of(drawing);
  const double left = layout.scale.x, box = kBoxWidth * size;
  double y = layout.scale.y + size;
  const auto label = [&](double baseline, const std::string& text) {
    picture.shapes.push_back(Text_Shape{{left + box + kGap, baseline}, text, size, kInk});
  };
  picture.shapes.push_back(
      Text_Shape{{left, y}, drawing.content.unit, size, kInk, Anchor::start, false, true});
  y += kGap;
  if (!drawing.content.scale.levels.empty()) {
    const double below = static_cast<double>(signs.size()) * kLine * size + 2 * kGap;
    const double room = layout.top + layout.map.height - y - below;
    const double tall =
        std::clamp(room / static_cast<double>(rows.size()), 2.0, kTallestBox * size);
    double free_from = y;
    for (const Scale_Row& row : rows) {
      picture.shapes.push_back(Polygon_Shape{Rectangle({left, y}, {left + box, y + tall}),
                                             row.fill.value_or(kWhite), Stroke{kAxisInk, 1}});
      y += tall;
      // Of low boxes every few have a label.
      if (row.lower.empty() || y - 0.5 * size < free_from) continue;
      label(y + Half_Figure(size), row.lower);
      free_from = y + 0.6 * size;
    }
  }
  y += kGap;
  for (const auto& [sign, words] : signs) {
    y += kLine * size;
    const double middle = y - Half_Figure(size), half = 0.4 * size;
    if (sign == Sign::point) {
      picture.shapes.push_back(
          Circle_Shape{{left + box / 2, middle}, kPointRadius, kWarnInk, Stroke{kWhite, 1.5}});
    } else {
      const bool dashed = sign == Sign::dashed_area;
      picture.shapes.push_back(Polygon_Shape{
          Rectangle({left, middle - half}, {left + box, middle + half}),
          {},
          Stroke{dashed ? kZidInk : kSiteInk, kOutline, dashed ? Dash::dashed : Dash::solid}});
    }
    label(y, words);
  }
}

void Add_Nothing(Shape_List& picture, const std::string& words, const Canvas& canvas) {
  const double size = canvas.text_size;
  const auto lines = Wrapped(words, size, canvas.width - 4 * kGap);
  double baseline = (canvas.height - kLine * size * static_cast<double>(lines.size())) / 2 + size;
  for (const std::string& line : lines) {
    picture.shapes.push_back(
        Text_Shape{{canvas.width / 2, baseline}, line, size, kQuietInk, Anchor::middle});
    baseline += kLine * size;
  }
}

Place On_Map(const Map_Layout& layout, const Place& place) {
  return {place.x, place.y - layout.top};
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

Shape_List Map_Shapes(const Map_Drawing& drawing, const Canvas& canvas) {
  Shape_List picture{std::max(canvas.width, 0.0),
                     std::max(canvas.height, 0.0),
                     drawing.content.title,
                     drawing.description,
                     {}};
  if (!drawing.content.nothing.empty()) {
    Add_Nothing(picture, drawing.content.nothing, canvas);
    return picture;
  }
  const Map_Layout layout = Layout_Of(drawing, canvas);
  Add_Titles(picture, layout, canvas.text_size);
  for (Shape& shape : Plan_Shapes(drawing.plan, layout.map).shapes) {
    picture.shapes.push_back(Moved(std::move(shape), {0, layout.top}));
  }
  if (layout.scale_width > 0) Add_Scale(picture, drawing, layout, canvas.text_size);
  if (drawing.section) {
    for (Shape& shape : Section_Shapes(*drawing.section, layout.section).shapes) {
      picture.shapes.push_back(Moved(std::move(shape), layout.section_at));
    }
  }
  return picture;
}

std::optional<Result_Point> Map_Feet_At(const Map_Drawing& drawing, const Canvas& canvas,
                                        const Place& place, bool nearest) {
  if (!drawing.content.nothing.empty()) return std::nullopt;
  const Map_Layout layout = Layout_Of(drawing, canvas);
  const Plan_Frame frame(drawing.plan.area, layout.map);
  if (frame.Is_Empty()) return std::nullopt;
  const Place on_map = On_Map(layout, place);
  if (!nearest && !frame.plot().Holds(on_map)) return std::nullopt;
  const Feet_Point point = frame.Nearest_Feet(on_map);
  return Result_Point{point.x, point.z};
}

std::optional<Place> Map_Place_Of(const Map_Drawing& drawing, const Canvas& canvas,
                                  const Result_Point& place) {
  if (!drawing.content.nothing.empty()) return std::nullopt;
  const Map_Layout layout = Layout_Of(drawing, canvas);
  const Plan_Frame frame(drawing.plan.area, layout.map);
  if (frame.Is_Empty()) return std::nullopt;
  const Place at = frame.At(Feet(place));
  return Place{at.x, at.y + layout.top};
}

std::string Map_Words_At(const Map_Drawing& drawing, const Result_Point& place) {
  return Place_Words(place) + ": " +
         Signed_Words(Value_At(drawing.content.cells, place), drawing.content);
}

}  // namespace barvon
