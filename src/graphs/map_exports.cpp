#include "graphs/map_exports.h"

#include <QString>
#include <cerrno>
#include <cstdio>
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

/// Asks. A damaged file is replaced only after a question.
std::optional<Map_Place> Ask_Anew(const Results& results, const Kept_Place& kept) {
  if (!kept.problem.empty() &&
      Show_Message({.text = "The place of the grid in " + Place_File_Of(results.path) +
                            " can't be used: " + kept.problem +
                            "\nDo you want to type it anew?  The file is changed then.",
                    .buttons = Buttons::YesNo,
                    .icon = Icon::Warning,
                    .on_return = Answer::No}) != Answer::Yes) {
    return std::nullopt;
  }
  return Ask_Place(results.grid, kept.place);
}

/// The place that is kept, or what is typed, which is kept then.
std::optional<Map_Place> Known_Place(const Results& results) {
  const std::string file = Place_File_Of(results.path);
  const Kept_Place kept = Read_Place(file);
  if (kept.place) return kept.place;
  auto place = Ask_Anew(results, kept);
  if (!place) return std::nullopt;
  if (const int error = Write_Place(file, *place); error != 0) {
    Show_Warning("The place of the grid is used, but could not be kept in " + file + ": " +
                 std::generic_category().message(error) + ".");
  }
  return place;
}

/// Saves the grid and beside it the notes of what its values are. Notes never stand beside a grid
/// that they say nothing of, even when the program is killed: the former go first, and come back
/// where the new grid can't be put in its place. False when the grid was not saved; what failed has
/// been told.
bool Write_Grid(const std::string& path, const std::string& grid, const std::string& notes) {
  const std::string notes_path = path + ".aux.xml";
  Safe_File new_grid, new_notes, former_notes;
  std::string former;
  int error = Read_Whole_File(notes_path, former);
  const bool had_notes = error == 0;
  // All that needs room comes first: then there are only names to change.
  if (error == 0) error = Make_Ready(former_notes, notes_path, former);
  if (error == 0 || error == ENOENT) error = Make_Ready(new_notes, notes_path, notes);
  if (error == 0) error = Make_Ready(new_grid, path, grid);
  if (error == 0 && had_notes && std::remove(new_notes.Target().c_str()) != 0) error = errno;
  if (error != 0) {
    Tell_Not_Saved(path, std::generic_category().message(error));
    return false;
  }
  Unsynced_Folders folders;
  if (error = new_grid.Commit(&folders); error != 0) {
    Tell_Not_Saved(path, std::generic_category().message(error));
    if (had_notes && former_notes.Commit() != 0) {
      Show_Warning("The former grid was kept, but " + notes_path + " beside it is gone.");
    }
    return false;
  }
  if (error = new_notes.Commit(&folders); error != 0) {
    Show_Warning("The grid was saved, but " + notes_path +
                 " was not: " + std::generic_category().message(error) +
                 ".\nA GIS is not told what the values are and their unit.");
  }
  Wait_For_Names(folders, path);
  return true;
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
  const bool saved =
      Write_Grid(path, Ascii_Grid_Text(*grid), Ascii_Grid_Notes(*grid, place, map.what, map.unit));
  return saved ? "Saved as " + path : "";
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
  const std::string file = Place_File_Of(results->path);
  const auto place = Ask_Anew(*results, Read_Place(file));
  if (!place) return {};
  if (const int error = Write_Place(file, *place); error != 0) {
    Show_Warning("The place of the grid could not be kept in " + file + ": " +
                 std::generic_category().message(error) + ".");
    return {};
  }
  return "The place of the grid is kept in " + file;
}

}  // namespace barvon
