#include "checks/material_rules.h"

#include <algorithm>
#include <string>

#include "checks/references.h"
#include "core/desk/help_topics.h"
#include "core/keys.h"

namespace barvon {
namespace {

std::string Zero_Fraction_Message(const ProjectRecord& record, int solid) {
  return "Volumetric Fraction for " + record.SolidNames[solid] + " is Zero";
}

/// A continuous discharge's finding leads nowhere: no reference and no topic.
void Check_Mixed_Load(const ProjectRecord& record, Error_List& errors) {
  if (record.SeparationFlag != 0) return;
  const int solids = std::min<int>(record.NumSolids, kSolidEntries);
  for (int i = 1; i <= solids; ++i) {
    if (record.SolidVolFraction[i] != 0) continue;
    if (record.DisposalMethod == kHopper) {
      errors.Add(Zero_Fraction_Message(record, i), reference::kHopperSolids,
                 help_topic::kMaterialHopper);
    } else if (record.DisposalMethod == kBarge) {
      errors.Add(Zero_Fraction_Message(record, i), reference::kBargeSolids,
                 help_topic::kMaterialBarge);
    } else {
      errors.Add(Zero_Fraction_Message(record, i), reference::kNowhere);
    }
  }
}

void Check_Separated_Load(const ProjectRecord& record, Error_List& errors) {
  if (record.LAYERS < 2 || record.SeparationFlag != 1) return;
  const int solids = std::min<int>(record.NumSolids, kMaxSolids);
  const int layers = std::min<int>(record.LAYERS, kMaxLayers);
  for (int i = 1; i <= solids; ++i) {
    for (int j = 1; j <= layers; ++j) {
      if (record.LayerSolidFraction[i][j] == 0) {
        errors.Add(Zero_Fraction_Message(record, i), reference::kBargeSolids,
                   help_topic::kMaterialBarge);
      }
    }
  }
}

}  // namespace

void Check_Material(const ProjectRecord& record, Error_List& errors) {
  Check_Mixed_Load(record, errors);
  Check_Separated_Load(record, errors);
}

}  // namespace barvon
