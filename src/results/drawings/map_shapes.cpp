#include <algorithm>
#include <utility>

#include "pictures/shapes/inks.h"
#include "pictures/shapes/lettering.h"
#include "results/drawings/map_drawing.h"

namespace barvon {
namespace {

constexpr double kSectionBelow = 0.36;                // of the height
constexpr double kSectionBeside = 0.45;               // of the width
constexpr double kLine = 1.35, kGap = 6;              // of the size; pixels
constexpr double kTitle = 1.1;                        // letters of the title, of the size
constexpr double kMostAbove = 0.25;                   // of the height, for title and summary
constexpr double kBoxWidth = 1.6, kTallestBox = 1.7;  // of the size
constexpr double kWidestScale = 0.45;                 // of the canvas
constexpr std::size_t kMostTitleLines = 2;

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
  for (const Map_Sign& sign : drawing.signs) {
    widest = std::max(widest, kBoxWidth * size + kGap + Text_Width(sign.words, size));
  }
  return widest + 2 * kGap;
}

Map_Layout Layout_Of(const Map_Drawing& drawing, const Canvas& canvas) {
  const double size = canvas.text_size;
  Map_Layout layout;
  layout.title = Wrapped(drawing.content.title, kTitle * size, canvas.width - 2 * kGap);
  if (layout.title.size() > kMostTitleLines) layout.title.resize(kMostTitleLines);
  layout.summary = Wrapped(drawing.summary, size, canvas.width - 2 * kGap);
  if (layout.summary.size() > kMostTitleLines) layout.summary.resize(kMostTitleLines);
  const auto height_of = [size](const std::vector<std::string>& lines, double letters) {
    return kLine * size * letters * static_cast<double>(lines.size());
  };
  layout.top = height_of(layout.title, kTitle) + kGap;
  const double with_summary = layout.top + height_of(layout.summary, 1);
  // The map's room goes before what its colours and its tips tell too.
  if (with_summary > kMostAbove * canvas.height) {
    layout.summary.clear();
  } else {
    layout.top = with_summary;
  }
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
  // Beyond the last number above the map too.
  const double right =
      frame.Is_Empty() ? layout.map.width
                       : std::max(frame.plot().right() + 2 * kGap, frame.plot().numbers_right());
  // Beside the map rather than at the far edge of a wide window.
  layout.scale = {std::min(right, layout.map.width) + kGap, layout.top + kGap};
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
  for (const std::string& line : layout.title) add(line, kTitle * size, kInk, true);
  for (const std::string& line : layout.summary) add(line, size, kQuietInk, false);
}

void Add_Scale(Shape_List& picture, const Map_Drawing& drawing, const Map_Layout& layout,
               double size) {
  const auto rows = Scale_Rows(drawing.content.scale);
  const double left = layout.scale.x, box = kBoxWidth * size;
  double y = layout.scale.y + size;
  const auto label = [&](double baseline, const std::string& text) {
    picture.shapes.push_back(Text_Shape{{left + box + kGap, baseline}, text, size, kInk});
  };
  picture.shapes.push_back(
      Text_Shape{{left, y}, drawing.content.unit, size, kInk, Anchor::start, false, true});
  y += kGap;
  if (!drawing.content.scale.levels.empty()) {
    const double below = static_cast<double>(drawing.signs.size()) * kLine * size + 2 * kGap;
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
  for (const Map_Sign& sign : drawing.signs) {
    y += kLine * size;
    const double middle = y - Half_Figure(size), half = 0.4 * size;
    if (const auto* line = std::get_if<Stroke>(&sign.look)) {
      picture.shapes.push_back(
          Polygon_Shape{Rectangle({left, middle - half}, {left + box, middle + half}), {}, *line});
    } else {
      Circle_Shape point = std::get<Circle_Shape>(sign.look);
      point.centre = {left + box / 2, middle};
      picture.shapes.push_back(point);
    }
    label(y, sign.words);
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
  const Place at = frame.At({place.x, place.z});
  return Place{at.x, at.y + layout.top};
}

}  // namespace barvon
