#pragma once

#include <string>

#include "core/project_record.h"
#include "database/index_files.h"
#include "database/line_walk.h"

namespace barvon {

// The data files of the database, in the program's folder. A record is found by walking a file from
// its top and passing the records before it by their count of lines, so each line counts:
//
//     dispdb.dat  sites      points of the density profile + 9 lines
//     veldb.dat   velocities 37 lines for each site, a point above and one below for each month
//     matdb.dat   materials  solids + 4 lines
//     vesdb.dat   vessels    openings + 13 lines
//
// Numbers stand in fixed columns. A file whose records have other counts falls out of step without
// a word; database_check says where.

inline constexpr char kSiteFile[] = "dispdb.dat";
inline constexpr char kVelocityFile[] = "veldb.dat";
inline constexpr char kMaterialFile[] = "matdb.dat";
inline constexpr char kVesselFile[] = "vesdb.dat";

/// Lines of a record behind its first line, which tells the count where there is one.
int Site_Lines_Behind(int points);
inline constexpr int kVelocityLinesBehind = 36;
int Material_Lines_Behind(int solids);
int Vessel_Lines_Behind(int openings);
/// The counts on a record's first line.
int Points_In(const std::string& first_line);
int Solids_In(const std::string& first_line);

/// Each looks for the record of the project's code (and month) and fills the project from it. False
/// when it is not found, or when it has counts or numbers that the project can't hold; the project
/// is as it was then.
///
/// A site fills grid, depth, roughness, slopes and density profile, which is no computed one then.
bool Find_Site(const std::string& folder, ProjectRecord& record);
/// A site and a month give a two-point profile; what a whole field was
/// filled with is forgotten.
bool Find_Velocity(const std::string& folder, ProjectRecord& record);
/// How many of the twelve months Find_Velocity does not find for a site's code, by one walk.
int Months_Missing(const std::string& folder, double code);
/// A material fills the fractions with their flags, volume, moisture content and, where they have
/// one, the site's water density. The bulk density is 0 then, or the next load would compute the
/// water from it.
bool Find_Material(const std::string& folder, ProjectRecord& record);
/// A vessel fills the hopper's bins, drafts, openings and the depression. Records before it are
/// passed by the project's own NOPENS, whatever they hold.
bool Find_Vessel(const std::string& folder, ProjectRecord& record);

}  // namespace barvon
