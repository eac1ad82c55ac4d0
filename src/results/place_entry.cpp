#include "results/place_entry.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/files/profile_settings.h"
#include "results/plain_numbers.h"

namespace barvon {
namespace {

constexpr double kFarthest = 1e8;    // of any system of a plane on the Earth, in feet
constexpr double kMostTurned = 360;  // degrees
constexpr std::size_t kLongestSystem = 200;
// Systems of longitude and latitude that are in common use.
constexpr std::array kDegrees = {4326, 4269, 4267, 4258, 4979, 4759, 6318, 4283, 7844};

std::string Blanks_Cut(const std::string& text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// The number, or nothing with the fault told.
std::optional<double> Take(const std::string& text, const std::string& name, Place_Field field,
                           double most, Place_Fault& fault) {
  if (Blanks_Cut(text).empty()) {
    fault = {field, name + " is missing."};
    return std::nullopt;
  }
  const auto value = Number_Of(text);
  if (!value) {
    fault = {field, name +
                        " is not a number.  Digits and one decimal point are, without any "
                        "other mark: 583960.5"};
    return std::nullopt;
  }
  if (std::abs(*value) > most) {
    fault = {field, name + " is beyond " + Shortest_Number(most) + "."};
    return std::nullopt;
  }
  return value;
}

}  // namespace

Place_Reading Read_Place_Entry(const Place_Entry& entry) {
  Place_Fault fault;
  const auto easting = Take(entry.easting, "The easting", Place_Field::easting, kFarthest, fault);
  if (!easting) return {{}, fault};
  const auto northing =
      Take(entry.northing, "The northing", Place_Field::northing, kFarthest, fault);
  if (!northing) return {{}, fault};
  const auto turn = Take(entry.turn, "The turn", Place_Field::turn, kMostTurned, fault);
  if (!turn) return {{}, fault};
  const std::string system = Blanks_Cut(entry.system);
  if (system.size() > kLongestSystem || !Is_Read_Back_From_Profile(system)) {
    return {{}, {Place_Field::system, "The coordinate system can't be kept as it is typed."}};
  }
  if (const auto code = Epsg_Code(system); code && std::ranges::count(kDegrees, *code) > 0) {
    return {{},
            {Place_Field::system, "EPSG:" + std::to_string(*code) +
                                      " has degrees.  A grid in feet needs a system with metres "
                                      "or feet, of a UTM zone or a state plane for instance."}};
  }
  return {Map_Place{*easting, *northing, *turn, entry.unit, system}};
}

Place_Entry Entry_Of(const Map_Place& place) {
  return {Shortest_Number(place.easting), Shortest_Number(place.northing),
          Shortest_Number(place.turn), place.unit, place.system};
}

bool Looks_Like_Degrees(const Map_Place& place) {
  const bool at_origin = place.easting == 0 && place.northing == 0;
  return !at_origin && std::abs(place.easting) <= 180 && std::abs(place.northing) <= 90;
}

std::string Corners_In_Words(const Map_Place& place, const Result_Grid& grid) {
  const double x = (grid.rows - 1) * grid.spacing_x, z = (grid.columns - 1) * grid.spacing_z;
  const auto corner = [&](int row, int column) {
    const Map_Point point = On_Map(place, {row > 1 ? x : 0, column > 1 ? z : 0});
    return "Row " + std::to_string(row) + ", column " + std::to_string(column) + ": easting " +
           Rounded_Number(point.easting, 2) + ", northing " + Rounded_Number(point.northing, 2);
  };
  return corner(1, 1) + "\n" + corner(1, grid.columns) + "\n" + corner(grid.rows, 1) + "\n" +
         corner(grid.rows, grid.columns);
}

}  // namespace barvon
