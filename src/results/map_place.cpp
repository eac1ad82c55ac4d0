#include "results/map_place.h"

#include <charconv>
#include <cmath>
#include <numbers>
#include <string_view>

#include "platform/text/letter_case.h"

namespace barvon {

double Units_Per_Foot(Place_Unit unit) {
  switch (unit) {
    case Place_Unit::metre:
      return 0.3048;
    case Place_Unit::metre_survey:
      return 1200.0 / 3937.0;
    case Place_Unit::foot:
      break;
  }
  return 1;
}

Turn Turn_Of(double degrees) {
  const double turn = std::remainder(degrees, 360);
  if (turn == 0) return {0, 1};
  if (turn == 90) return {1, 0};
  if (turn == -90) return {-1, 0};
  if (std::abs(turn) == 180) return {0, -1};
  const double angle = turn * std::numbers::pi / 180;
  return {std::sin(angle), std::cos(angle)};
}

Map_Point On_Map(const Map_Place& place, const Result_Point& point) {
  const double unit = Units_Per_Foot(place.unit);
  const Turn turn = Turn_Of(place.turn);
  return {place.easting + unit * (point.z * turn.cosine - point.x * turn.sine),
          place.northing - unit * (point.z * turn.sine + point.x * turn.cosine)};
}

Result_Point On_Grid(const Map_Place& place, const Map_Point& point) {
  const double unit = Units_Per_Foot(place.unit);
  const Turn turn = Turn_Of(place.turn);
  const double east = (point.easting - place.easting) / unit;
  const double south = (place.northing - point.northing) / unit;
  return {.x = south * turn.cosine - east * turn.sine, .z = east * turn.cosine + south * turn.sine};
}

std::optional<int> Epsg_Code(const std::string& system) {
  static constexpr std::string_view kRegister = "EPSG", kBetween = " :\t";
  std::string_view text = system;
  const auto skip = [&] {
    text.remove_prefix(std::min(text.find_first_not_of(kBetween), text.size()));
  };
  skip();
  if (Equal_Ignoring_Case(text.substr(0, kRegister.size()), kRegister)) {
    text.remove_prefix(kRegister.size());
    skip();
  }
  int code = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), code);
  const std::string_view behind = text.substr(static_cast<std::size_t>(end.ptr - text.data()));
  // Codes of the register have four to six digits.
  if (end.ec != std::errc() || behind.find_first_not_of(" \t") != std::string_view::npos ||
      code < 1000 || code > 999999) {
    return std::nullopt;
  }
  return code;
}

}  // namespace barvon
