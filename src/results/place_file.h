#pragma once

#include <optional>
#include <string>

#include "results/map_place.h"

namespace barvon {

/// The file that keeps a project's place: "NAME.place" beside the project or output of that name.
std::string Place_File_Of(const std::string& path);

/// The place that was kept; nothing where there is no file. `problem` says in words what is wrong
/// with a file that is there and can't be used.
struct Kept_Place {
  std::optional<Map_Place> place;
  std::string problem = {};
};
Kept_Place Read_Place(const std::string& file);

/// Keeps the place. The file is replaced whole or stays as it was, and lines that are not of the
/// place stay in it. 0 or an errno value.
int Write_Place(const std::string& file, const Map_Place& place);

}  // namespace barvon
