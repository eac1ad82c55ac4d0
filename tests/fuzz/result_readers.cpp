#include <cmath>
#include <cstddef>

#include "fuzz/readers.h"
#include "results/phase_reader.h"
#include "results/place_entry.h"
#include "results/place_file.h"
#include "results/result_reader.h"
#include "results/small_outputs.h"

namespace barvon::fuzz {
namespace {

/// Outputs of the samples, maps and phases with a few of their rows and columns.
std::vector<std::string> With_Small(std::vector<std::string> files, const std::string& small) {
  files.push_back(small);
  return files;
}

std::vector<std::string> Series() {
  return With_Small(Files_Of(BARVON_SOURCE "/tests/solver/goldens", ".dut"),
                    barvon::testing::kSmallSeries);
}

std::vector<std::string> Maps() {
  return With_Small(Files_Of(BARVON_TEST_DATA "/outputs", ".duc"), barvon::testing::kSmallMaps);
}

std::vector<std::string> Phases() {
  return With_Small(Files_Of(BARVON_TEST_DATA "/outputs", ".dup"), barvon::testing::kSmallPhases);
}

/// What is told of a problem is for a person, who looks for the line in the file.
bool Sound(const std::optional<Result_Problem>& problem, std::string_view bytes) {
  if (!problem) return true;
  Demand(!problem->reason.empty() && problem->line > 0, "a problem has a line and a reason");
  Demand(static_cast<std::size_t>(problem->line) <= bytes.size() + 1, "the line is in the file");
  Demand(!problem->Words().empty(), "a problem has words");
  return false;
}

template <typename Rows>
void Demand_Order(const Rows& rows, std::size_t species) {
  double time = 0;
  for (const auto& row : rows) {
    Demand(std::isfinite(row.time) && row.time >= time, "times rise");
    Demand(row.species >= 0 && (species == 0 || row.species <= static_cast<int>(species)),
           "a species is one of them");
    time = row.time;
  }
}

void Read_One_Series(std::string_view bytes) {
  Results results;
  if (!Sound(Read_Series("a.dut", bytes, results), bytes)) return;
  const std::size_t species = results.species.size();
  Demand(species > 0 && !results.masses.empty(), "sound series have species and masses");
  Demand(results.maxima.size() % species == 0 && results.peaks.size() % species == 0 &&
             results.masses.size() % species == 0,
         "every species is in the series");
  Demand_Order(results.maxima, species);
  Demand_Order(results.peaks, species);
  Demand_Order(results.masses, species);
  for (const Result_Limit& limit : results.limits) {
    Demand(limit.species >= 1 && limit.species <= static_cast<int>(species), "a limit's species");
  }
}

void Demand_Whole(const Result_Grid& grid, const std::vector<Result_Map>& maps) {
  for (const Result_Map& map : maps) {
    const Cell_Values whole = Whole_Grid(grid, map);
    Demand(whole.values.size() ==
               static_cast<std::size_t>(grid.rows) * static_cast<std::size_t>(grid.columns),
           "a map covers the grid");
    for (const double value : whole.values) Demand(std::isfinite(value), "a value is a number");
  }
}

void Read_One_Maps(std::string_view bytes) {
  for (const std::size_t species : {std::size_t{0}, std::size_t{3}}) {
    Results results;
    results.species.resize(species);
    if (!Sound(Read_Maps("a.duc", bytes, results), bytes)) continue;
    Demand(!results.beds.empty() && results.maps.empty() == results.most.empty(),
           "sound maps are all there");
    Demand(results.grid.spacing_x > 0 && results.grid.spacing_z > 0, "points lie apart");
    Demand_Order(results.maps, species);
    Demand_Order(results.beds, species);
    Demand_Order(results.most, species);
    Demand_Whole(results.grid, results.maps);
    Demand_Whole(results.grid, results.beds);
    Demand_Whole(results.grid, results.most);
  }
}

void Read_One_Phases(std::string_view bytes) {
  Results results;
  Sound(Check_Phases("a.dup", bytes, results), bytes);
}

/// As the program reads them, beside others that are sound.
void Hold_Series(std::string_view bytes) {
  Put("a.dut", bytes);
  Put("a.duc", barvon::testing::kSmallMaps);
  Put("a.dup", barvon::testing::kSmallPhases);
  Read_Results(Work_Folder() + "/a.DUI");
}

void Hold_Maps(std::string_view bytes) {
  Put("a.dut", barvon::testing::kSmallSeries);
  Put("a.duc", bytes);
  Put("a.dup", barvon::testing::kSmallPhases);
  const Results_Or_Problem read = Read_Results(Work_Folder() + "/a.DUI");
  if (const auto* results = std::get_if<Results>(&read)) {
    Demand_Whole(results->grid, results->maps);
  }
}

// ---- The place that a person gave the grid

constexpr char kPlaceFile[] = "a.place";

std::vector<std::string> Places() {
  return {
      "[Place]\r\nEasting=583960.5\r\nNorthing=4507523\r\nTurn=-12.5\r\n"
      "Unit=m, US survey foot\r\nSystem=EPSG:32618\r\n",
      "; from the survey of May\n[place]\n easting = '0' \nNorthing=-1e8\nTurn=360\nUnit=ft\n"
      "System=\"M\xFCnde; east\"\n[Other]\nKey=1\n",
      "\xEF\xBB\xBF[Place]\nEasting=1\nEasting=2\nNorthing=3\nTurn=0\nUnit=m\nSystem=\n\x1A"};
}

Kept_Place Place_Of(std::string_view bytes) {
  Put(kPlaceFile, bytes);
  return Read_Place(Place_File_Of(Work_Folder() + "/a.DUI"));
}

void Read_One_Place(std::string_view bytes) {
  const Kept_Place kept = Place_Of(bytes);
  Demand(kept.place.has_value() == kept.problem.empty(), "a file has a place or a problem");
  if (!kept.place) return;
  Demand(std::abs(kept.place->easting) <= 1e8 && std::abs(kept.place->northing) <= 1e8 &&
             std::abs(kept.place->turn) <= 360,
         "a place is on the Earth");
  Result_Grid grid;
  grid.rows = grid.columns = 96;
  grid.spacing_x = grid.spacing_z = 100;
  Demand(!Corners_In_Words(*kept.place, grid).empty(), "a place has corners");
}

void Hold_Place(std::string_view bytes) {
  const Kept_Place kept = Place_Of(bytes);
  const Map_Place place =
      kept.place.value_or(Map_Place{583960.5, -4.5e6, 12.5, Place_Unit::foot, "EPSG:2263"});
  const std::string file = Work_Folder() + "/" + kPlaceFile;
  Demand(Write_Place(file, place) == 0, "a place is written");
  Demand(Read_Place(file).place == place, "a place is read as it was written");
  const std::string once = Content(file);
  Write_Place(file, place);
  Demand(Content(file) == once, "a place that is there changes nothing");
}

constexpr Reader kReaders[] = {
    {"result_series", 6, Series, Read_One_Series, Hold_Series, nullptr},
    {"result_maps", 6, Maps, Read_One_Maps, Hold_Maps, nullptr},
    {"result_phases", 2, Phases, Read_One_Phases, nullptr, nullptr},
    {"place", 2, Places, Read_One_Place, Hold_Place, nullptr},
};

}  // namespace

std::span<const Reader> Result_Readers() { return kReaders; }

}  // namespace barvon::fuzz
