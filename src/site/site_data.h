#pragma once

#include <cstdint>
#include <string>

#include "core/project_record.h"
#include "platform/table/spreadsheet_table.h"
#include "site/site_fields.h"

namespace barvon {

/// What frmDescription holds beside its density table.
struct Site_Entry {
  Field_Texts texts;              // of Site_Fields(), as typed
  bool computes_density = false;  // Check3D1(0)
  bool variable_depth = false;    // Check3D1(1)
};

/// What the opening screen shows: a roughness height of 0 as 0.005, the count of density points
/// brought to 2 to 5. Neither is in the record before OK.
Field_Texts Opening_Texts(const ProjectRecord& record);

/// The rows of the density table for the record's count of points, 2 to 5.
int Density_Points(const ProjectRecord& record);

/// With the wizard open, the water depth is its own.
void Store_Wizard_Depth(ProjectRecord& record);

/// With the wizard open, the profile becomes its water at the surface and at the bottom. Water
/// without a finite density is told and keeps the densities as they were.
void Store_Wizard_Densities(ProjectRecord& record);

/// What a change of Text1(index) has to say. False when nothing may follow it: neither the number
/// of density rows nor the grid's dimensions.
bool Check_Site_Text(int index, const std::string& text);

/// The rows that the density table gets by Text1(8), half to even.
int Density_Rows(const std::string& Text1_8);

/// Writes DistZ and DistX to the record, by its own counts and spacings or by those typed.
void Store_Dimensions(ProjectRecord& record);
void Store_Dimensions(const Site_Entry& entry, ProjectRecord& record);

/// Check3D1(1), by whomever: ConstantDepthFlag follows. A two-point velocity profile, which needs a
/// constant depth, goes with it and comes back, and so does the blue of its option on the main
/// window.
void Choose_Variable_Depth(bool variable, ProjectRecord& record);

/// OK: the fields and the table become the record's. Counts outside their limits are brought in
/// without a word.
void SaveSiteData(const Site_Entry& entry, const Spreadsheet_Table& F1Book1, ProjectRecord& record);

/// What Cancel puts back.
struct Site_Copy {
  std::int16_t NMAX0 = 0, MMAX0 = 0, NROA0 = 0;
  double DZ0 = 0, DX0 = 0, RHDA0 = 0, SLOPEX0 = 0, SLOPEZ0 = 0, DEPC0 = 0;
  bool computes_density = false, variable_depth = false;  // the check boxes
};

Site_Copy Copy_Site(const Site_Entry& entry, const ProjectRecord& record);

/// Copies the values back into the record. Densities, dimensions and the velocity profile are not
/// among them; the check boxes are the screen's to put back.
void Reset_Vars(const Site_Copy& copy, ProjectRecord& record);

}  // namespace barvon
