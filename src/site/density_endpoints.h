#pragma once

#include "core/project_record.h"
#include "platform/table/spreadsheet_table.h"
#include "site/site_data.h"

namespace barvon {

/// Where the ends of the density profile are.
struct Density_Ends {
  int result = 0;         // 0 neither end is right, 1 only the surface, 2 only the bottom, 3 both
  float BottomDepth = 0;  // ft: the constant depth as typed, or the depth grid's largest
};

/// The water depth (ft) that the profile has to reach.
double Bottom_Depth(const Site_Entry& entry, const ProjectRecord& record);

/// Holds the first depth of the table against the surface and the last one against the bottom.
Density_Ends Check_Depths(const Site_Entry& entry, const Spreadsheet_Table& F1Book1,
                          const ProjectRecord& record);

/// Asks the user about the ends of the profile that are not right and mends them in the table: by
/// another depth where the profile has no more points, otherwise by a row of its own, which the
/// count in the entry then includes. False when a row was added: its other cells are empty, and
/// the user has to fill them. A new first row ends the table's history of edits; another depth is a
/// step of it.
bool EnsureDensityEndpoints(Site_Entry& entry, Spreadsheet_Table& F1Book1,
                            const ProjectRecord& record);

}  // namespace barvon
