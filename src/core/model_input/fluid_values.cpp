#include "core/model_input/fluid_values.h"

#include "core/keys.h"

namespace barvon {
namespace {

bool Has_Criterion(std::int16_t key3) {
  return key3 == kOceanWaterQuality || key3 == kNavigableWaterQuality ||
         key3 == kNavigableFurtherTesting;
}

bool Has_Dilution_At_Zid(std::int16_t key3) {
  return key3 == kOceanFurtherTesting || key3 == kNavigableWaterQuality ||
         key3 == kNavigableToxicity;
}

bool Is_Evaluation(std::int16_t key3) {
  return key3 >= kNoTracer && key3 <= kNavigableFurtherTesting;
}

/// A hopper's lines have zeros in place of both concentrations for toxicity, and nothing at all for
/// an evaluation that is none.
bool Has_Concentrations(const ProjectRecord& record) {
  if (record.DisposalMethod != kHopper) return true;
  return Is_Evaluation(record.KEY3) && !Compares_Toxicity(record);
}

bool Is_In_The_Vessels_Lines(const ProjectRecord& record, double ProjectRecord::*value) {
  if (value == &ProjectRecord::TracerConcentration ||
      value == &ProjectRecord::BackgroundConcentration) {
    return Has_Concentrations(record);
  }
  if (value == &ProjectRecord::CriterionConcentration) return Has_Criterion(record.KEY3);
  if (value == &ProjectRecord::SedimentConcentration) {
    return Contaminant_Is_In_The_Sediment(record);
  }
  if (value == &ProjectRecord::ToxicityDilution) return Compares_Toxicity(record);
  if (value == &ProjectRecord::ZidToxicityDilution) return Has_Dilution_At_Zid(record.KEY3);
  return value == &ProjectRecord::ZCRIT && record.KEY3 == kNavigableFurtherTesting;
}

}  // namespace

bool Is_In_The_Fluid_Lines(const ProjectRecord& record, double ProjectRecord::*value) {
  if (value == &ProjectRecord::TracerConcentration && Contaminant_Is_In_The_Sediment(record)) {
    return false;
  }
  if (Has_Vessel(record)) return Is_In_The_Vessels_Lines(record, value);
  // A pipeline's lines are the same for every evaluation.
  return record.DisposalMethod == kContinuous && value != &ProjectRecord::ZidToxicityDilution &&
         value != &ProjectRecord::ZCRIT;
}

}  // namespace barvon
