#include "wizard/graphic_data.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "core/format_pattern.h"
#include "core/number_text.h"
#include "pictures/shapes/inks.h"

namespace barvon {
namespace {

constexpr char kFeet[] = "#####", kExactFeet[] = "#####.00", kReadout[] = "######";
constexpr char kCount[] = "###", kSlope[] = "#####0.00";

constexpr Field_Row Corner(const Control_Name& control, const char* label, const char* pattern,
                           const char* frame, Reads reads) {
  return {.control = control,
          .label = label,
          .unit = "ft",
          .pattern = pattern,
          .reads = reads,
          .frame = frame};
}
constexpr Field_Row Result(int index, const char* label, const char* unit, const char* pattern,
                           Record_Member member = {}) {
  return {.control = {"Text2", index},
          .label = label,
          .unit = unit,
          .pattern = pattern,
          .reads = Reads::Nothing,
          .member = member,
          .frame = kDrawnPointsFrame};
}

constexpr Field_Row kRows[] = {
    Corner({"Text6", kUpperLeftX}, "Upper Left X", kFeet, kDrawnGridFrame, Reads::Real),
    Corner({"Text6", kUpperLeftY}, "Upper Left Y", kFeet, kDrawnGridFrame, Reads::Real),
    Corner({"Text6", kLowerRightX}, "Lower Right X", kFeet, kDrawnGridFrame, Reads::Nothing),
    Corner({"Text6", kLowerRightY}, "Lower Right Y", kFeet, kDrawnGridFrame, Reads::Nothing),
    Corner({"Text6", kWidth}, "Width (Z-Dir) (Ft)", kFeet, kDrawnGridFrame, Reads::Real),
    Corner({"Text6", kHeight}, "Height (X-Dir) (Ft)", kFeet, kDrawnGridFrame, Reads::Real),
    Result(kPointsZ, "Number of Grid Points in Z-Direction", "points", kCount),
    Result(kPointsX, "Number of Grid Points in X-Direction", "points", kCount),
    Result(kSpacingZ, "Spacing Between Grid Points in Z-Direction (Ft.)", "ft", kExactFeet),
    Result(kSpacingX, "Spacing Between Grid Points in X-Direction (Ft.)", "ft", kExactFeet),
    Result(kSlopeZ, "Bottom Slope in Z-Direction (Deg.)", "deg", kSlope, &ProjectRecord::SLOPEZ0),
    Result(kSlopeX, "Bottom Slope in X-Direction (Deg.)", "deg", kSlope, &ProjectRecord::SLOPEX0),
    Corner({"Text3", kUpperLeftX}, "Upper Left X", kExactFeet, kDrawnSiteFrame, Reads::Nothing),
    Corner({"Text3", kUpperLeftY}, "Upper Left Y", kExactFeet, kDrawnSiteFrame, Reads::Nothing),
    Corner({"Text3", kLowerRightX}, "Lower Right X", kExactFeet, kDrawnSiteFrame, Reads::Nothing),
    Corner({"Text3", kLowerRightY}, "Lower Right Y", kExactFeet, kDrawnSiteFrame, Reads::Nothing),
};

constexpr double kUsualExtent = 10000;  // ft, of a picture with nothing on it
constexpr double kRoom = 1.5;           // times the extent of the project's grid
constexpr double kMargin = 0.03;        // part of the extent
// Radii of points while none is chosen: fewer points have room for larger ones.
constexpr double kLeastPixels = 0.6, kMostPixels = 2.5, kPixelsOfAll = 60;
constexpr double kSiteMore = 1, kVesselPixels = 5;
constexpr Colour kPointInk{0, 0, 255}, kSiteInk{0, 0, 0}, kVesselInk{255, 0, 0};

double Typed(const Field_Texts& texts, Drawn_Rectangle field) {
  return Lenient_Number(texts("Text6", field));
}

double Grid_Extent(int points, double spacing) { return (points - 1) * spacing; }

/// The typed rectangle, its size put right.
struct Typed_Rectangle {
  Picture_Point upper_left;
  double width = 0, height = 0;
};
Typed_Rectangle Rectangle_Of(const Field_Texts& texts) {
  const double width = Typed(texts, kWidth), height = Typed(texts, kHeight);
  const double x = Typed(texts, kUpperLeftX), y = Typed(texts, kUpperLeftY);
  return {{std::min(x, x + width), std::min(y, y + height)}, std::fabs(width), std::fabs(height)};
}

void Set_Rectangle(const Typed_Rectangle& rectangle, Field_Texts& texts) {
  const auto& [corner, width, height] = rectangle;
  const double feet[] = {corner.x, corner.y, corner.x + width, corner.y + height, width, height};
  for (int i = 0; i < kRectangleFields; ++i) texts("Text6", i) = Format_Number(feet[i], kFeet);
}

Place On_Plan(const Picture_Point& point) { return {point.x, point.y}; }

/// The project's grid, in quiet dashes, to draw beside or over.
void Add_Project_Grid(const ProjectRecord& record, Plan& plan) {
  const double width = Grid_Extent(record.NMAX0, record.DZ0);
  const double height = Grid_Extent(record.MMAX0, record.DX0);
  if (!(width > 0) || !(height > 0)) return;
  plan.shapes.push_back(Polygon_Shape{Rectangle(On_Plan(Picture_Point{}), On_Plan({width, height})),
                                      {},
                                      Stroke{kAxisInk, 1, Dash::dashed}});
  plan.description = "Dashes show the project's grid. ";
}

Plan Outline(const Field_Texts& texts, const ProjectRecord& record, Plan plan) {
  Add_Project_Grid(record, plan);
  plan.description += "No grid is constructed yet.";
  const auto [corner, width, height] = Rectangle_Of(texts);
  if (width == 0 || height == 0) return plan;
  plan.shapes.push_back(
      Polygon_Shape{Rectangle(On_Plan(corner), On_Plan({corner.x + width, corner.y + height})),
                    {},
                    Stroke{kInk, 1}});
  return plan;
}

void Add_Lines(const Constructed_Grid& grid, Plan& plan) {
  const Stroke stroke{kAxisInk, 1};
  const Picture_Point& corner = grid.upper_left;
  const Picture_Point end = Place_Of(grid, {grid.points_z, grid.points_x});
  for (int row = 1; row <= grid.points_x; ++row) {
    const double y = Place_Of(grid, {1, row}).y;
    plan.shapes.push_back(Line_Shape{{On_Plan({corner.x, y}), On_Plan({end.x, y})}, stroke});
  }
  for (int column = 1; column <= grid.points_z; ++column) {
    const double x = Place_Of(grid, {column, 1}).x;
    plan.shapes.push_back(Line_Shape{{On_Plan({x, corner.y}), On_Plan({x, end.y})}, stroke});
  }
}

/// A point of the chosen radius in feet; of a few pixels while none is chosen.
void Add_Point(const Picture_Point& place, double radius, double pixels, Colour colour,
               Plan& plan) {
  if (radius > 0) {
    plan.shapes.push_back(Circle_Shape{On_Plan(place), radius, colour, {}});
  } else {
    plan.marks.push_back(Circle_Shape{On_Plan(place), pixels, colour, {}});
  }
}

bool Is_Between(int one, int value, int other) {
  return std::min(one, other) <= value && value <= std::max(one, other);
}

bool Is_In_Site(const Graphic_Page& page, const Grid_Pick& pick) {
  if (!page.first) return false;
  const Grid_Pick last = page.last.value_or(*page.first);
  return Is_Between(page.first->column, pick.column, last.column) &&
         Is_Between(page.first->row, pick.row, last.row);
}

std::string Words_Of(const Picture_Point& point) {
  return "X " + Format_Number(point.x, "#####0") + ", Y " + Format_Number(point.y, "#####0");
}

std::string Described(const Graphic_Page& page) {
  const Constructed_Grid& grid = *page.grid;
  std::string words = "A grid of " + Plain_Number(grid.points_z) + " by " +
                      Plain_Number(grid.points_x) + " points, " +
                      Format_Number(grid.spacing_z, "#####0.00") + " ft apart in Z and " +
                      Format_Number(grid.spacing_x, "#####0.00") + " ft in X.";
  if (page.first) {
    words += " The disposal site begins at " + Words_Of(Place_Of(grid, *page.first));
    if (page.last) words += " and ends at " + Words_Of(Place_Of(grid, *page.last));
    words += ".";
  }
  if (page.vessel) words += " The vessel is at " + Words_Of(*page.vessel) + ".";
  return words;
}

/// What a person may want to draw on beside a grid of the project.
double Room_For(int points, double spacing) {
  const double extent = Grid_Extent(points, spacing);
  return extent > 0 ? kRoom * extent : kUsualExtent;
}

Feet_Area With_Margin(const Feet_Area& area) {
  const double down = kMargin * (area.bottom - area.top);
  const double across = kMargin * (area.right - area.left);
  return {area.top - down, area.left - across, area.bottom + down, area.right + across};
}

}  // namespace

Field_Table Graphic_Fields() { return kRows; }

Field_Texts Dragged_Texts(const Picture_Point& from, const Picture_Point& to) {
  Field_Texts texts;
  Set_Rectangle({from, to.x - from.x, to.y - from.y}, texts);
  return texts;
}

Field_Texts Rectangle_Texts(const Picture_Point& from, const Picture_Point& to) {
  Field_Texts texts;
  Set_Rectangle({{std::min(from.x, to.x), std::min(from.y, to.y)},
                 std::fabs(to.x - from.x),
                 std::fabs(to.y - from.y)},
                texts);
  return texts;
}

Field_Texts Lower_Right_Texts(const Field_Texts& texts) {
  Field_Texts shown;
  shown("Text6", kLowerRightX) =
      Format_Number(Typed(texts, kUpperLeftX) + Typed(texts, kWidth), kFeet);
  shown("Text6", kLowerRightY) =
      Format_Number(Typed(texts, kUpperLeftY) + Typed(texts, kHeight), kFeet);
  return shown;
}

void Construct_Grid(const Field_Texts& texts, const ProjectRecord& record, Graphic_Page& page) {
  const auto [corner, width, height] = Rectangle_Of(texts);
  page = {};
  page.velocity = Largest_Velocity_Of(record);
  page.grid = Construct_Grid(corner, width, height, page.velocity);
}

Field_Texts Constructed_Texts(const Field_Texts& texts, const Graphic_Page& page) {
  Field_Texts shown;
  if (!page.grid) return shown;
  const Constructed_Grid& grid = *page.grid;
  if (Typed(texts, kWidth) < 0 || Typed(texts, kHeight) < 0) {
    Set_Rectangle(Rectangle_Of(texts), shown);
  }
  shown("Text2", kPointsZ) = Format_Number(grid.points_z, kCount);
  shown("Text2", kPointsX) = Format_Number(grid.points_x, kCount);
  shown("Text2", kSpacingZ) = Format_Number(grid.spacing_z, kExactFeet);
  shown("Text2", kSpacingX) = Format_Number(grid.spacing_x, kExactFeet);
  return shown;
}

void Pick_Corner(const Picture_Point& place, Graphic_Page& page) {
  if (!page.grid) return;
  const Grid_Pick pick = Nearest_Point(*page.grid, place);
  if (!page.first) {
    page.first = pick;
    return;
  }
  page.last = pick;
  page.vessel = Vessel_Between(*page.grid, *page.first, pick, page.velocity);
}

Field_Texts Corner_Texts(const Graphic_Page& page) {
  Field_Texts texts;
  for (int i = 0; i < kSiteCornerFields; ++i) texts("Text3", i) = "";
  const auto show = [&](const std::optional<Grid_Pick>& pick, int x, int y) {
    if (!pick) return;
    const Picture_Point place = Place_Of(*page.grid, *pick);
    texts("Text3", x) = Format_Number(place.x, kExactFeet);
    texts("Text3", y) = Format_Number(place.y, kExactFeet);
  };
  show(page.first, kUpperLeftX, kUpperLeftY);
  show(page.last, kLowerRightX, kLowerRightY);
  return texts;
}

void Clear_Page(Graphic_Page& page) { page = {}; }

Feet_Area Area_Of_Page(const Field_Texts& texts, const Graphic_Page& page,
                       const ProjectRecord& record) {
  if (page.grid) {
    const Constructed_Grid& grid = *page.grid;
    const Picture_Point end = Place_Of(grid, {grid.points_z, grid.points_x});
    return With_Margin({grid.upper_left.y, grid.upper_left.x, end.y, end.x});
  }
  const auto [corner, width, height] = Rectangle_Of(texts);
  return With_Margin({std::min(0.0, corner.y), std::min(0.0, corner.x),
                      std::max(Room_For(record.MMAX0, record.DX0), corner.y + height),
                      std::max(Room_For(record.NMAX0, record.DZ0), corner.x + width)});
}

Plan Draw_Page(const Field_Texts& texts, const Graphic_Page& page, const ProjectRecord& record) {
  Plan plan;
  plan.area = Area_Of_Page(texts, page, record);
  plan.title = "Graphical site grid";
  if (!page.grid) return Outline(texts, record, plan);
  const Constructed_Grid& grid = *page.grid;
  const double radius = record.GridPointRadius;
  const double pixels =
      std::clamp(kPixelsOfAll / std::max(grid.points_x, grid.points_z), kLeastPixels, kMostPixels);
  Add_Lines(grid, plan);
  for (int column = 1; column <= grid.points_z; ++column) {
    for (int row = 1; row <= grid.points_x; ++row) {
      const bool in_site = Is_In_Site(page, {column, row});
      Add_Point(Place_Of(grid, {column, row}), radius, pixels + (in_site ? kSiteMore : 0),
                in_site ? kSiteInk : kPointInk, plan);
    }
  }
  if (page.vessel) Add_Point(*page.vessel, radius, kVesselPixels, kVesselInk, plan);
  plan.description = Described(page);
  return plan;
}

std::string Coordinates_Text(const Picture_Point& place) {
  return "X: " + Format_Number(place.x, kReadout) + " Y: " + Format_Number(place.y, kReadout);
}

void Set_Point_Radius(const std::string& answer, ProjectRecord& record) {
  const double radius = Round_Half_Even(Lenient_Number(answer));
  if (radius < 1 || radius > std::numeric_limits<std::int16_t>::max()) return;
  record.GridPointRadius = static_cast<std::int16_t>(radius);
}

bool Has_Grid_To_Take(const Graphic_Page& page) {
  return page.grid && page.grid->spacing_x > 0 && page.grid->spacing_z > 0;
}

void Save_Page(const Graphic_Page& page, bool takes_grid, ProjectRecord& record) {
  // Where the grid's edges lie in the picture: a grid that is taken has no other place.
  const Picture_Point edge = takes_grid ? page.grid->upper_left : Picture_Point{};
  if (page.vessel) {
    record.ZBARGE = page.vessel->x - edge.x;
    record.XBARGE = page.vessel->y - edge.y;
    record.DataSaved = kFalse;
  }
  if (!takes_grid) return;
  const Constructed_Grid& grid = *page.grid;
  record.NMAX0 = static_cast<std::int16_t>(grid.points_z);
  record.MMAX0 = static_cast<std::int16_t>(grid.points_x);
  record.DZ0 = grid.spacing_z;
  record.DX0 = grid.spacing_x;
  record.DistZ = Grid_Extent(grid.points_z, grid.spacing_z);
  record.DistX = Grid_Extent(grid.points_x, grid.spacing_x);
  record.DataSaved = kFalse;
  if (!page.first || !page.last) return;
  const Picture_Point one = Place_Of(grid, *page.first), other = Place_Of(grid, *page.last);
  record.SiteLeft = std::min(one.x, other.x) - edge.x;
  record.SiteTop = std::min(one.y, other.y) - edge.y;
  record.SiteRight = std::max(one.x, other.x) - edge.x;
  record.SiteBottom = std::max(one.y, other.y) - edge.y;
}

}  // namespace barvon
