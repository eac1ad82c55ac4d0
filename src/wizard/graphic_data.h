#pragma once

#include <optional>
#include <string>

#include "core/field_table.h"
#include "core/project_record.h"
#include "pictures/shapes/plan.h"
#include "wizard/grid_picks.h"

namespace barvon {

inline constexpr char kDrawnGridFrame[] = "Grid Description";
inline constexpr char kDrawnPointsFrame[] = "Site Description";
inline constexpr char kDrawnSiteFrame[] = "Disposal Site Description";

/// Text6, Text2 and Text3 of the graphical page.
enum Drawn_Rectangle { kUpperLeftX = 0, kUpperLeftY, kLowerRightX, kLowerRightY, kWidth, kHeight };
inline constexpr int kRectangleFields = 6;
enum Grid_Result { kPointsZ = 0, kPointsX, kSpacingZ, kSpacingX, kSlopeZ, kSlopeX };
inline constexpr int kResultFields = 6;
inline constexpr int kSiteCornerFields = 4;

/// The fields of the page. Those of the grid that is drawn are typed or dragged out; all others
/// only show.
Field_Table Graphic_Fields();

/// What has been drawn on the page, in the feet of its picture.
struct Graphic_Page {
  Largest_Velocity velocity;
  std::optional<Constructed_Grid> grid;      // GridConstructed
  std::optional<Grid_Pick> first, last;      // FirstCornerPicked, and the latest of later picks
  std::optional<Picture_Point> vessel = {};  // once a second corner is picked
};

/// The rectangle from one corner to another as Text6: while it is being dragged out, as it is, and
/// when it is let go, put right, whichever way it was dragged.
Field_Texts Dragged_Texts(const Picture_Point& from, const Picture_Point& to);
Field_Texts Rectangle_Texts(const Picture_Point& from, const Picture_Point& to);

/// What the lower right corner shows for the upper left one and the size that are typed.
Field_Texts Lower_Right_Texts(const Field_Texts& texts);

/// "Construct Grid" over what is typed, for the record's velocities. A negative size is put right.
void Construct_Grid(const Field_Texts& texts, const ProjectRecord& record, Graphic_Page& page);
/// Text2, counts and spacings; Text6 too where a size had to be put right.
Field_Texts Constructed_Texts(const Field_Texts& texts, const Graphic_Page& page);

/// A click on the constructed grid: the first one is a corner of the disposal site, each later one
/// the corner opposite, which places the vessel too. Nothing without a grid.
void Pick_Corner(const Picture_Point& place, Graphic_Page& page);
/// Text3, the corners that are picked.
Field_Texts Corner_Texts(const Graphic_Page& page);

/// "&Clear".
void Clear_Page(Graphic_Page& page);

/// The part of the site that the picture shows: the constructed grid; before there is one, half as
/// much again as the project's grid, 10000 ft without one, and whatever is typed.
Feet_Area Area_Of_Page(const Field_Texts& texts, const Graphic_Page& page,
                       const ProjectRecord& record);

/// The picture: the rectangle that is typed while no grid is constructed; then lines and points of
/// the grid, the picked site and the vessel.
Plan Draw_Page(const Field_Texts& texts, const Graphic_Page& page, const ProjectRecord& record);

/// "X: 1200 Y: 800".
std::string Coordinates_Text(const Picture_Point& place);

/// The answer of the input box goes to GridPointRadius; an empty answer, and one that is no whole
/// number from 1 to 32767, keeps the former radius.
void Set_Point_Radius(const std::string& answer, ProjectRecord& record);

/// Whether there is a grid that a project can have.
bool Has_Grid_To_Take(const Graphic_Page& page);

/// OK. The vessel goes to where it was placed. With `takes_grid` counts, spacings and, if both are
/// picked, the corners of the disposal site follow, and all is measured from the edges of the grid
/// that was drawn.
void Save_Page(const Graphic_Page& page, bool takes_grid, ProjectRecord& record);

}  // namespace barvon
