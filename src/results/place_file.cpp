#include "results/place_file.h"

#include <array>
#include <system_error>
#include <utility>

#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/profile_settings.h"
#include "platform/files/safe_file.h"
#include "results/place_entry.h"

namespace barvon {
namespace {

constexpr char kSection[] = "Place";
constexpr char kEasting[] = "Easting", kNorthing[] = "Northing", kTurn[] = "Turn";
constexpr char kUnit[] = "Unit", kSystem[] = "System";

constexpr std::array<std::pair<Place_Unit, const char*>, 3> kUnits = {{
    {Place_Unit::metre, "m"},
    {Place_Unit::metre_survey, "m, US survey foot"},
    {Place_Unit::foot, "ft"},
}};

const char* Name_Of_Unit(Place_Unit unit) {
  for (const auto& [known, name] : kUnits) {
    if (known == unit) return name;
  }
  return "";
}

std::optional<Place_Unit> Unit_Of(const std::string& name) {
  for (const auto& [unit, known] : kUnits) {
    if (name == known) return unit;
  }
  return std::nullopt;
}

}  // namespace

std::string Place_File_Of(const std::string& path) {
  return Path_To_Write(With_Extension(path, "place"));
}

Kept_Place Read_Place(const std::string& file) {
  std::string bytes;
  int error = Read_Whole_File(file, bytes);
  if (error == ENOENT) return {};
  // Each value is read anew: one that can't be read for a moment is not one that is empty.
  const auto value = [&](const char* key) {
    int failed = 0;
    std::string read = Read_Profile_String(file, kSection, key, "", &failed);
    if (error == 0) error = failed;
    return read;
  };
  const auto unit = Unit_Of(value(kUnit));
  const Place_Entry entry{value(kEasting), value(kNorthing), value(kTurn),
                          unit.value_or(Place_Unit::metre), value(kSystem)};
  if (error != 0) return {{}, std::generic_category().message(error)};
  if (!unit) return {{}, "no unit that is known stands there"};
  const Place_Reading read = Read_Place_Entry(entry);
  if (!read.place) return {{}, read.fault.words};
  return {read.place};
}

int Write_Place(const std::string& file, const Map_Place& place) {
  const Place_Entry entry = Entry_Of(place);
  return Write_Profile_Strings(file, {{kSection, kEasting, entry.easting},
                                      {kSection, kNorthing, entry.northing},
                                      {kSection, kTurn, entry.turn},
                                      {kSection, kUnit, Name_Of_Unit(entry.unit)},
                                      {kSection, kSystem, entry.system}});
}

}  // namespace barvon
