#pragma once

#include "core/project_record.h"

namespace barvon {

/// Whether the lines of the fluid in the model input hold a value of the evaluation as it was
/// entered: TracerConcentration, BackgroundConcentration, CriterionConcentration,
/// SedimentConcentration, ToxicityDilution, ZidToxicityDilution or ZCRIT. It depends on KEY3 and on
/// the method; a concentration that is computed from the sediment is not an entered one.
bool Is_In_The_Fluid_Lines(const ProjectRecord& record, double ProjectRecord::*value);

}  // namespace barvon
