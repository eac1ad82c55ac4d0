#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/project_record.h"

namespace barvon {

// The lists of the database. An entry's place decides its code: the first is 100, the second 200,
// whatever code the file has beside the name.
//
//     dspsites.dat  sites      code; name; one further line
//     sites.dat     materials  code; name; one further line
//     vessels.dat   vessels    code, which ends the list where it is empty; name

inline constexpr char kSiteList[] = "dspsites.dat";
inline constexpr char kMaterialList[] = "sites.dat";
inline constexpr char kVesselList[] = "vessels.dat";

inline constexpr int kCodeStep = 100;
inline constexpr int kMonths = 12;
inline constexpr int kMostEntries = 99;  // beyond it a code does not fit into its columns

/// The lists by their index on the screen.
enum Database_List { kSites, kVelocities, kMaterials, kVessels };
inline constexpr int kDatabaseLists = 4;

/// The code of a place in a list, from 0; 0 for -1, no place.
double Code_Of_Place(int place);
/// The place of a code, from 0; -1 for what is no code.
int Place_Of_Code(double code);

/// A list as the screen shows it.
struct List_Contents {
  std::vector<std::string> names;
  int place = -1;            // of the entry chosen last, from 0; -1: none
  std::string missing_file;  // its name when it can't be read; the list is empty then
};

/// The names of a list file, a line each as it stands, also of a last line without an end.
/// Nothing when the file can't be read.
std::optional<std::vector<std::string>> Site_Names(const std::string& folder);
std::optional<std::vector<std::string>> Material_Names(const std::string& folder);
std::optional<std::vector<std::string>> Vessel_Names(const std::string& folder);

/// Each fills a list of the screen from the folder, the months from nowhere; its category counts
/// as not found from then on.
List_Contents Load_Site(const std::string& folder, ProjectRecord& record);
List_Contents Load_Velocity(const ProjectRecord& record);
List_Contents Load_Material(const std::string& folder, ProjectRecord& record);
List_Contents Load_Disposal(const std::string& folder, ProjectRecord& record);

}  // namespace barvon
