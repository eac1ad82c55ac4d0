#include "results/ascii_grid.h"

#include <algorithm>
#include <cmath>

#include "results/plain_numbers.h"

namespace barvon {
namespace {

constexpr int kMostParts = 16;        // that a cell's side is cut into
constexpr double kSameLength = 1e-9;  // of a length, within which two are one
constexpr int kEdgeDecimals = 6, kSideDecimals = 10;
constexpr char kLineEnd[] = "\r\n";

/// The longest side of which both spacings are whole multiples.
std::optional<double> Common_Side(double a, double b) {
  for (int parts = 1; parts <= kMostParts; ++parts) {
    const double side = a / parts;
    const double other = std::round(b / side);
    if (other >= 1 && other <= kMostParts && std::abs(other * side - b) <= kSameLength * b) {
      return side;
    }
  }
  return std::nullopt;
}

bool Is_Quarter_Turn(double degrees) { return std::remainder(degrees, 90) == 0; }

bool Has_Extent(const Cell_Values& cells) {
  const auto above_0 = [](double spacing) { return std::isfinite(spacing) && spacing > 0; };
  return cells.rows > 0 && cells.columns > 0 && above_0(cells.spacing_x) &&
         above_0(cells.spacing_z);
}

/// The cell that a point is in, or nothing.
std::optional<double> Value_At(const Cell_Values& cells, const Result_Point& point) {
  const double row = std::floor(point.x / cells.spacing_x + 0.5);
  const double column = std::floor(point.z / cells.spacing_z + 0.5);
  if (!(row >= 0 && row < cells.rows && column >= 0 && column < cells.columns)) return std::nullopt;
  const double value = cells.At(static_cast<int>(row) + 1, static_cast<int>(column) + 1);
  return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::string With_Point(double value) {
  std::string text = Shortest_Number(value == 0 ? 0 : value);
  if (text.find('.') != std::string::npos) return text;
  return text.insert(std::min(text.find('e'), text.size()), ".0");
}

/// A number that no cell has.
double No_Data(const North_Grid& grid) {
  double mark = -9999;
  while (std::ranges::find(grid.values, std::optional(mark)) != grid.values.end()) {
    mark = mark * 10 - 9;
  }
  return mark;
}

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '&') {
      escaped += "&amp;";
    } else if (c == '<') {
      escaped += "&lt;";
    } else if (c == '>') {
      escaped += "&gt;";
    } else {
      escaped += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
    }
  }
  return escaped;
}

}  // namespace

std::optional<North_Grid> To_North(const Cell_Values& cells, const Map_Place& place) {
  if (!Has_Extent(cells)) return std::nullopt;
  const double half_x = cells.spacing_x / 2, half_z = cells.spacing_z / 2;
  const double bottom = cells.rows * cells.spacing_x - half_x;
  const double right = cells.columns * cells.spacing_z - half_z;
  std::vector<double> eastings, northings;
  for (const Result_Point& corner :
       {Result_Point{-half_x, -half_z}, {-half_x, right}, {bottom, right}, {bottom, -half_z}}) {
    const Map_Point on_map = On_Map(place, corner);
    eastings.push_back(on_map.easting);
    northings.push_back(on_map.northing);
  }
  const auto [west, east] = std::ranges::minmax(eastings);
  const auto [south, north] = std::ranges::minmax(northings);

  const auto common =
      Is_Quarter_Turn(place.turn) ? Common_Side(cells.spacing_x, cells.spacing_z) : std::nullopt;
  North_Grid grid;
  grid.exact = common.has_value();
  grid.left = west;
  grid.bottom = south;
  grid.cell =
      Units_Per_Foot(place.unit) * common.value_or(std::min(cells.spacing_x, cells.spacing_z) / 2);
  const auto squares = [&](double length) {
    const double count = length / grid.cell;
    return static_cast<int>(grid.exact ? std::round(count) : std::ceil(count - kSameLength));
  };
  grid.columns = squares(east - west);
  grid.rows = squares(north - south);
  for (int row = grid.rows; row > 0; --row) {
    for (int column = 0; column < grid.columns; ++column) {
      const Map_Point centre{grid.left + (column + 0.5) * grid.cell,
                             grid.bottom + (row - 0.5) * grid.cell};
      grid.values.push_back(Value_At(cells, On_Grid(place, centre)));
    }
  }
  return grid;
}

std::string Ascii_Grid_Text(const North_Grid& grid) {
  const std::string no_data = Rounded_Number(No_Data(grid), 0);
  std::string text = "ncols " + std::to_string(grid.columns) + kLineEnd;
  text += "nrows " + std::to_string(grid.rows) + kLineEnd;
  text += "xllcorner " + Rounded_Number(grid.left, kEdgeDecimals) + kLineEnd;
  text += "yllcorner " + Rounded_Number(grid.bottom, kEdgeDecimals) + kLineEnd;
  text += "cellsize " + Rounded_Number(grid.cell, kSideDecimals) + kLineEnd;
  text += "NODATA_value " + no_data + kLineEnd;
  int column = 0;
  for (const std::optional<double>& value : grid.values) {
    text += value ? With_Point(*value) : no_data;
    column = column + 1 < grid.columns ? column + 1 : 0;
    text += column > 0 ? " " : kLineEnd;
  }
  return text;
}

std::string Ascii_Grid_Notes(const North_Grid& grid, const Map_Place& place,
                             const std::string& what, const std::string& unit) {
  std::string text = "<PAMDataset>\n  <Metadata>\n";
  if (!place.system.empty()) {
    text += "    <MDI key=\"SYSTEM\">" + Escaped(place.system) + "</MDI>\n";
  }
  text += "    <MDI key=\"CELLS\">";
  text += grid.exact ? "each square has the value of the one cell of the site's grid that it is a "
                       "part of"
                     : "each square has the value of the cell of the site's grid that its centre "
                       "is in; edges lie up to half a diagonal of a square from theirs";
  text += "</MDI>\n  </Metadata>\n";
  text += "  <PAMRasterBand band=\"1\">\n    <Description>" + Escaped(what) +
          "</Description>\n    <UnitType>" + Escaped(unit) +
          "</UnitType>\n  </PAMRasterBand>\n</PAMDataset>\n";
  return text;
}

}  // namespace barvon
