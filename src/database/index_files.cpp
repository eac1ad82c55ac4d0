#include "database/index_files.h"

#include <cmath>

#include "core/text_tools.h"
#include "database/line_walk.h"
#include "platform/files/paths.h"

namespace barvon {
namespace {

constexpr const char* kMonthNames[kMonths] = {"January",   "February", "March",    "April",
                                              "May",       "June",     "July",     "August",
                                              "September", "October",  "November", "December"};

using Names = std::optional<std::vector<std::string>>;

/// The second of every three lines.
Names Names_Of_Three_Lines(const std::string& path) {
  Line_Walk lines(path);
  if (!lines.Opened()) return std::nullopt;
  std::vector<std::string> names;
  while (lines.Next_Or_Last() && lines.Next_Or_Last()) {
    names.push_back(lines.Line());
    lines.Next_Or_Last();
  }
  return names;
}

List_Contents Contents(Names names, const char* file, double code) {
  List_Contents list;
  if (names) {
    list.names = *std::move(names);
    const int place = Place_Of_Code(code);
    if (place < static_cast<int>(list.names.size())) list.place = place;
  } else {
    list.missing_file = file;
  }
  return list;
}

}  // namespace

double Code_Of_Place(int place) { return (place + 1.0) * kCodeStep; }

int Place_Of_Code(double code) {
  const double place = code / kCodeStep;
  return place >= 1 && place <= kMostEntries && place == std::floor(place)
             ? static_cast<int>(place) - 1
             : -1;
}

Names Site_Names(const std::string& folder) {
  return Names_Of_Three_Lines(Join_Path(folder, kSiteList));
}

Names Material_Names(const std::string& folder) {
  return Names_Of_Three_Lines(Join_Path(folder, kMaterialList));
}

Names Vessel_Names(const std::string& folder) {
  Line_Walk lines(Join_Path(folder, kVesselList));
  if (!lines.Opened()) return std::nullopt;
  std::vector<std::string> names;
  while (lines.Next_Or_Last() && !Trimmed(lines.Line()).empty() && lines.Next_Or_Last()) {
    names.push_back(lines.Line());
  }
  return names;
}

List_Contents Load_Site(const std::string& folder, ProjectRecord& record) {
  record.SiteFound = kFalse;
  return Contents(Site_Names(folder), kSiteList, record.SelectedSiteCode);
}

List_Contents Load_Velocity(const ProjectRecord& record) {
  List_Contents list;
  list.names.assign(std::begin(kMonthNames), std::end(kMonthNames));
  for (int place = 0; place < kMonths; ++place) {
    if (record.SelectedMonth == place + 1) list.place = place;
  }
  return list;
}

List_Contents Load_Material(const std::string& folder, ProjectRecord& record) {
  record.MaterialFound = kFalse;
  return Contents(Material_Names(folder), kMaterialList, record.SelectedMaterialCode);
}

List_Contents Load_Disposal(const std::string& folder, ProjectRecord& record) {
  record.VesselFound = kFalse;
  return Contents(Vessel_Names(folder), kVesselList, record.SelectedVesselCode);
}

}  // namespace barvon
