#include "graphs/map_exports.h"

#include <QString>
#include <system_error>

#include "graphs/export_files.h"
#include "graphs/frm_place.h"
#include "platform/ask/busy_cursor.h"
#include "platform/ask/message_box.h"
#include "platform/files/safe_file.h"
#include "results/ascii_grid.h"
#include "results/geojson.h"
#include "results/place_file.h"
#include "results/plain_numbers.h"

namespace barvon {
namespace {

/// Asks, and keeps the answer. A damaged file is replaced only after a question.
std::optional<Map_Place> Ask_And_Keep(const Results& results, const Kept_Place& kept) {
  const std::string file = Place_File_Of(results.path);
  if (!kept.problem.empty() &&
      Show_Message({.text = "The place of the grid in " + file + " can't be used: " + kept.problem +
                            "\nDo you want to type it anew?  The file is changed then.",
                    .buttons = Buttons::YesNo,
                    .icon = Icon::Warning,
                    .on_return = Answer::No}) != Answer::Yes) {
    return std::nullopt;
  }
  auto place = Ask_Place(results.grid, kept.place);
  if (!place) return std::nullopt;
  if (const int error = Write_Place(file, *place); error != 0) {
    Show_Warning("The place of the grid is used, but could not be kept in " + file + ": " +
                 std::generic_category().message(error) + ".");
  }
  return place;
}

/// The place that is kept, or what is typed.
std::optional<Map_Place> Known_Place(const Results& results) {
  const Kept_Place kept = Read_Place(Place_File_Of(results.path));
  return kept.place ? kept.place : Ask_And_Keep(results, kept);
}

/// Grid and notes, both or none.
int Write_Both(const std::string& path, const std::string& grid, const std::string& notes) {
  Safe_File grid_file, notes_file;
  const auto fill = [](Safe_File& file, const std::string& name, const std::string& bytes) {
    int error = file.Open(name);
    if (error == 0) error = file.Write(bytes);
    return error == 0 ? file.Settle() : error;
  };
  int error = fill(notes_file, path + ".aux.xml", notes);
  if (error == 0) error = fill(grid_file, path, grid);
  if (error == 0) error = notes_file.Commit();
  return error == 0 ? grid_file.Commit() : error;
}

bool Agrees_To_Squares(const North_Grid& grid, const Map_Place& place) {
  const std::string unit = place.unit == Place_Unit::foot ? " ft" : " m";
  return Ask("An ASCII grid has square cells to the north, and this grid is turned or has cells of "
             "other sides.  It is written in squares of " +
                 Rounded_Number(grid.cell, 2) + unit +
                 ", each with the value of the cell that its centre is in.  The contours of a "
                 "GeoJSON file lie exactly.\nDo you want to save it so?",
             Buttons::YesNo, Icon::Question) == Answer::Yes;
}

std::string Save_Grid(const std::string& path, const Shown_Map& map, const Map_Place& place) {
  const auto grid = To_North(map.cells, place);
  if (!grid) {
    Tell_Not_Saved(path, "the map has no cells");
    return {};
  }
  if (!grid->exact && !Agrees_To_Squares(*grid, place)) return {};
  const Busy_Cursor waiting;
  const int error =
      Write_Both(path, Ascii_Grid_Text(*grid), Ascii_Grid_Notes(*grid, place, map.what, map.unit));
  if (error == 0) return "Saved as " + path;
  Tell_Not_Saved(path, std::generic_category().message(error));
  return {};
}

std::string Save_Contours(const std::string& path, const Shown_Map& map, const Results& results,
                          const Map_Place& place) {
  const Busy_Cursor waiting;
  return Write_Export(path,
                      Geojson_Text(map.cells, map.levels, map.what, map.unit, results, place));
}

}  // namespace

std::string Save_Map_For_Gis(const Graph_Page& page, const Results_Held& own) {
  const auto map = page.Map_Shown();
  if (!map) {
    Show_Warning("There is no map on this page to save for a GIS.");
    return {};
  }
  const Results_Held results = map->of != nullptr ? map->of : own;
  const auto place = Known_Place(*results);
  if (!place) return {};
  const auto path = Ask_Export_File(
      "Save Map for GIS",
      {{"ASCII Grids (*.asc)", "*.asc"}, {"GeoJSON Contours (*.geojson)", "*.geojson"}},
      QString::fromStdString(map->what), *results);
  if (!path) return {};
  return Has_Ending(*path, ".asc") ? Save_Grid(*path, *map, *place)
                                   : Save_Contours(*path, *map, *results, *place);
}

std::string Change_Place(const Results_Held& results) {
  const auto place = Ask_And_Keep(*results, Read_Place(Place_File_Of(results->path)));
  return place ? "The place of the grid is kept in " + Place_File_Of(results->path) : "";
}

}  // namespace barvon
