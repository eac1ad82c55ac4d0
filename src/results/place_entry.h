#pragma once

#include <optional>
#include <string>

#include "results/map_place.h"

namespace barvon {

/// A place as it is typed.
struct Place_Entry {
  std::string easting = {}, northing = {}, turn = "0";
  Place_Unit unit = Place_Unit::metre;
  std::string system = {};

  bool operator==(const Place_Entry&) const = default;
};

enum class Place_Field { easting, northing, turn, system };

/// What is wrong with an entry, in words, and the field that it is about.
struct Place_Fault {
  Place_Field field = Place_Field::easting;
  std::string words;
};

/// The place that was typed, or its first fault.
struct Place_Reading {
  std::optional<Map_Place> place;
  Place_Fault fault = {};
};
Place_Reading Read_Place_Entry(const Place_Entry& entry);

/// The texts of a place; they read back as the same.
Place_Entry Entry_Of(const Map_Place& place);

/// The coordinates look like degrees of longitude and latitude, which a place can't be in.
bool Looks_Like_Degrees(const Map_Place& place);

/// Where the corners of the grid come to lie, to be held against a chart.
std::string Corners_In_Words(const Map_Place& place, const Result_Grid& grid);

}  // namespace barvon
