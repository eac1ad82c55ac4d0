#include "core/keys.h"

namespace barvon {
namespace {

constexpr int kMostEvaluations = 3;
constexpr std::int16_t kNotOffered = -1;
constexpr std::int16_t kEvaluations[kAnalysisTypes][kMostEvaluations] = {
    {kNoTracer, kTracer, kNotOffered},
    {kOceanFurtherTesting, kOceanWaterQuality, kOceanToxicity},
    {kNavigableFurtherTesting, kNavigableWaterQuality, kNavigableToxicity},
};

struct Place {
  std::int16_t type = kNoAnalysis;
  int option = -1;
};

Place Place_Of(std::int16_t key3) {
  for (std::int16_t type = 1; type <= kAnalysisTypes; ++type) {
    for (int option = 0; option < Evaluations_Of(type); ++option) {
      if (KEY3_Of(type, option) == key3) return {type, option};
    }
  }
  return {};
}

}  // namespace

bool Has_Vessel(const ProjectRecord& record) {
  return record.DisposalMethod == kHopper || record.DisposalMethod == kBarge;
}

bool Is_Model_Project(const ProjectRecord& record) {
  return record.FileKind == kProjectKind || record.FileKind == kFormerProjectKind;
}

bool Is_Analysis_Type(std::int16_t analysis_type) {
  return analysis_type >= kOpenWater && analysis_type <= kNavigableWaters;
}

bool Is_Regulatory(const ProjectRecord& record) { return record.KEY3 >= kOceanWaterQuality; }

bool Speaks_Of_Disposal_Site(const ProjectRecord& record) {
  return record.KEY3 >= kOceanWaterQuality && record.KEY3 <= kOceanFurtherTesting;
}

bool Offers_Zid(const ProjectRecord& record) {
  return record.KEY3 >= kNavigableWaterQuality && record.KEY3 <= kNavigableFurtherTesting;
}

bool Compares_Toxicity(const ProjectRecord& record) {
  return record.KEY3 == kOceanToxicity || record.KEY3 == kNavigableToxicity;
}

bool Has_Zid(const ProjectRecord& record) {
  return record.KEY3 > kOceanFurtherTesting && record.ZidFlag == 1;
}

bool Contaminant_Is_In_The_Sediment(const ProjectRecord& record) {
  return record.KEY3 == kOceanFurtherTesting || record.KEY3 == kNavigableFurtherTesting;
}

int Evaluations_Of(std::int16_t analysis_type) {
  int count = 0;
  while (KEY3_Of(analysis_type, count)) ++count;
  return count;
}

std::optional<std::int16_t> KEY3_Of(std::int16_t analysis_type, int evaluation) {
  if (!Is_Analysis_Type(analysis_type)) return std::nullopt;
  if (evaluation < 0 || evaluation >= kMostEvaluations) return std::nullopt;
  const std::int16_t key3 = kEvaluations[analysis_type - 1][evaluation];
  return key3 == kNotOffered ? std::nullopt : std::optional(key3);
}

int Evaluation_Option(std::int16_t key3) { return Place_Of(key3).option; }

std::int16_t Analysis_Type_Of_KEY3(std::int16_t key3) { return Place_Of(key3).type; }

std::optional<std::int16_t> KEY4_Of(std::int16_t analysis_type, std::int16_t disposal_method) {
  if (!Is_Analysis_Type(analysis_type)) return std::nullopt;
  if (disposal_method != kHopper && disposal_method != kBarge) return std::nullopt;
  const int hopper = 2 * analysis_type - 1;
  return static_cast<std::int16_t>(disposal_method == kHopper ? hopper : hopper + 1);
}

std::int16_t Analysis_Type_Of_KEY4(std::int16_t key4) {
  for (std::int16_t type = 1; type <= kAnalysisTypes; ++type) {
    if (KEY4_Of(type, kHopper) == key4 || KEY4_Of(type, kBarge) == key4) return type;
  }
  return kNoAnalysis;
}

}  // namespace barvon
