#include "core/model_input/entered_values.h"

#include <cstddef>
#include <utility>

#include "core/keys.h"

namespace barvon {
namespace {

constexpr std::array kNumbers = {
    &ProjectRecord::VelocityProfileType,    &ProjectRecord::AvgVelocityX,
    &ProjectRecord::AvgVelocityZ,           &ProjectRecord::AvgVelocityDepth,
    &ProjectRecord::TracerConcentration,    &ProjectRecord::BackgroundConcentration,
    &ProjectRecord::CriterionConcentration, &ProjectRecord::SedimentConcentration,
};

bool Is_Computed(double ProjectRecord::*number, const ProjectRecord& record) {
  return number == &ProjectRecord::TracerConcentration && Contaminant_Is_In_The_Sediment(record);
}

}  // namespace

Entered_Values::Entered_Values(ProjectRecord& record)
    : record_(record),
      key2_(record.KEY2),
      tracer_(record.TracerName()),
      tracer_flags_(record.SolidTracerFlag) {
  static_assert(kNumbers.size() == decltype(numbers_){}.size());
  for (std::size_t i = 0; i < kNumbers.size(); ++i) numbers_[i] = record.*kNumbers[i];
}

Entered_Values::~Entered_Values() {
  for (std::size_t i = 0; i < kNumbers.size(); ++i) {
    if (!Is_Computed(kNumbers[i], record_)) record_.*kNumbers[i] = numbers_[i];
  }
  record_.KEY2 = key2_;
  record_.TracerName() = std::move(tracer_);
  record_.SolidTracerFlag = tracer_flags_;
}

}  // namespace barvon
