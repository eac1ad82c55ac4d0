#pragma once

#include <span>

#include "core/project_record.h"

namespace barvon::samples {

/// One fictional project that passes validation. Places, vessels and materials are invented; the
/// magnitudes are those of real work.
struct Sample {
  const char* file;  // "Hopper_Six_Openings.DUI"
  void (*fill)(ProjectRecord& record);
};

std::span<const Sample> Samples();

/// The sample on a fresh project: every field that the sample does not name has its default.
void Fill_Sample(const Sample& sample, ProjectRecord& record);

}  // namespace barvon::samples
