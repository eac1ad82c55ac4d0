#pragma once

#include <optional>

#include "core/field_table.h"
#include "core/project_record.h"

namespace barvon {

inline constexpr char kDensityFrame[] = "Density of Dredging Site Water";

/// The table of frmDensity: salinity, temperature and density in Text3(0) to Text3(2).
Field_Table Density_Fields();

/// What frmDensity holds.
struct Density_Entry {
  Field_Texts texts;      // of Density_Fields(), as typed
  bool Check3D3 = false;  // the density comes from salinity and temperature
};

/// What the screen shows when it opens. SiteDensity is held to its limits first, without a message.
Density_Entry Open_Density(ProjectRecord& record);

/// "Compute": SiteSalinity and SiteTemperature become what is typed, SiteDensity the water's
/// density at the surface if Check3D3 is set, held to its limits without a message; the entry shows
/// it. A text that is no number, and water for which there is no density, are refused with a
/// message: nothing has changed then, and the result is the index of the text to correct.
/// Otherwise the result is nothing.
std::optional<int> Compute_Water_Density(Density_Entry& entry, ProjectRecord& record);

/// Tells that the formula has no density for such water.
void Tell_No_Water_Density(double salinity, double temperature);

/// OK: all three values become what is typed, by the lenient parse. A density outside the limits is
/// told and becomes the limit; the save goes on. The entry shows the density that is stored.
void Save_Data(Density_Entry& entry, ProjectRecord& record);

/// What Cancel brings back: the density alone. Salinity and temperature have no copy, "Compute"
/// has changed them for good.
struct Density_Copy {
  double SiteDensity = 0;  // g/cc
};
Density_Copy Copy_Density(const ProjectRecord& record);
void Reset_Vars(const Density_Copy& copy, ProjectRecord& record);

}  // namespace barvon
