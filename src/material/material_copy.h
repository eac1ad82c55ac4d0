#pragma once

#include <cstdint>
#include <string>

#include "core/project_record.h"

namespace barvon {

/// What Cancel of a material screen brings back. Volumes, volumetric fractions and compositions are
/// not in it: nothing but OK changes them.
struct Material_Copy {
  std::int16_t LAYERS = 0, NumSolids = 0, SeparationFlag = 0, JBFCFlag = 0;
  double TotalVolume = 0, MoistureContent = 0;
  double SiteDensity = 0, SiteSalinity = 0, SiteTemperature = 0;
  OneBased<std::string, kSolidEntries> SolidNames{};
  OneBased<double, kSolidEntries> SolidSG{}, SolidFallVelocity{}, SolidVoidRatio{},
      SolidCriticalShear{};
  OneBased<std::int16_t, kSolidEntries> SolidCohesive{}, SolidStripped{};

  bool operator==(const Material_Copy&) const = default;
};

Material_Copy Copy_Material(const ProjectRecord& record);
void Reset_Vars(const Material_Copy& copy, ProjectRecord& record);

}  // namespace barvon
