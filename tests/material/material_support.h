#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon::testing {

/// Makes the fractions up to `count` the project's: Sand1 with 2.61 and so on, with digits that the
/// tables do not show.
inline void Set_Solids(ProjectRecord& record, int count) {
  record.NumSolids = static_cast<std::int16_t>(count);
  for (int i = 1; i <= count; ++i) {
    const auto at = static_cast<std::size_t>(i);
    record.SolidNames[at] = "Sand" + std::to_string(i);
    record.SolidSG[at] = 2.6 + i * 0.01000001;
    record.SolidVolFraction[at] = i * 0.02000003;
    record.SolidFallVelocity[at] = i * 0.00001;
    record.SolidVoidRatio[at] = i * 0.70000007;
    record.SolidCriticalShear[at] = i * 0.0000123;
    record.SolidCohesive[at] = static_cast<std::int16_t>(i % 2);
    record.SolidStripped[at] = static_cast<std::int16_t>((i + 1) % 2);
  }
}

}  // namespace barvon::testing
