#include "material/material_copy.h"

#include <algorithm>

#include "core/put_back.h"

namespace barvon {
namespace {

/// What a copy and the record share, fraction by fraction up to NumSolids.
template <class From, class To>
void Copy_Parts(const From& from, To& to) {
  to.LAYERS = from.LAYERS;
  to.NumSolids = from.NumSolids;
  to.SeparationFlag = from.SeparationFlag;
  to.JBFCFlag = from.JBFCFlag;
  to.TotalVolume = from.TotalVolume;
  to.MoistureContent = from.MoistureContent;
  to.SiteDensity = from.SiteDensity;
  to.SiteSalinity = from.SiteSalinity;
  to.SiteTemperature = from.SiteTemperature;
  const auto solids = static_cast<std::size_t>(std::clamp<int>(from.NumSolids, 0, kMaxSolids));
  for (std::size_t i = 1; i <= solids; ++i) {
    to.SolidNames[i] = from.SolidNames[i];
    to.SolidSG[i] = from.SolidSG[i];
    to.SolidFallVelocity[i] = from.SolidFallVelocity[i];
    to.SolidVoidRatio[i] = from.SolidVoidRatio[i];
    to.SolidCriticalShear[i] = from.SolidCriticalShear[i];
    to.SolidCohesive[i] = from.SolidCohesive[i];
    to.SolidStripped[i] = from.SolidStripped[i];
  }
}

}  // namespace

Material_Copy Copy_Material(const ProjectRecord& record) {
  Material_Copy copy;
  Copy_Parts(record, copy);
  return copy;
}

void Reset_Vars(const Material_Copy& copy, ProjectRecord& record) {
  if (Copy_Material(record) == copy) return;
  Copy_Parts(copy, record);
  Left_Behind_The_File(record);
}

}  // namespace barvon
