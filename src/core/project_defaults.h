#pragma once

#include "core/project_record.h"

namespace barvon {

/// Brings the record to the defaults of a new project: file names and title, slots, grids, every
/// field with a default, the dilution tables. It touches no screen and asks nothing; Reset_Vars
/// does that around it.
///
/// Left as they stand, as no default is told for them: BaseFileName, FileKind, ShowMode,
/// FileTypeTag, DistX, DistZ, TidalStartTime, the tidal table, SiteSalinity, SiteTemperature,
/// FluidComputedConcentration, the cell texts, DiluteRowCount and remarks.
void Set_Project_Defaults(ProjectRecord& record);

/// The bulk density rule. With NumSolids above 0, a stored bulk density overrides the stored
/// SiteDensity wherever it leaves water behind:
/// SiteDensity = (BulkDensity - mass of solids) / (1 - volume of solids), in g/cc.
/// SiteDensity is then held to its limits, recomputed or not. A result that is no number leaves
/// SiteDensity as it was before it is held. Solids beyond the record's entries are not counted.
void Compute_Site_Density_From_Bulk(ProjectRecord& record);

/// Nothing has been chosen from the database for the project yet.
void Forget_Database(ProjectRecord& record);

/// Every value of the dilution tables to its default; the row count and the remarks stay.
void Set_Dilution_Defaults(ProjectRecord& record);

}  // namespace barvon
