#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/project_record.h"

namespace barvon {

/// Keeps what a person entered while a model input is made from the record: the kind of velocity
/// with its three averages, the simulation type, and the contaminant with its name and
/// concentrations; with them the tracer flags in the table of solids as they were loaded. When it
/// goes, also in the middle of a failure, the record has them again as they were.
///
/// What is derived stays: with KEY3 4 and 7 the tracer's concentration is computed, not entered.
class Entered_Values {
 public:
  explicit Entered_Values(ProjectRecord& record);
  ~Entered_Values();
  Entered_Values(const Entered_Values&) = delete;
  Entered_Values& operator=(const Entered_Values&) = delete;

 private:
  ProjectRecord& record_;
  std::array<double, 8> numbers_{};
  std::int16_t key2_ = 0;
  std::string tracer_;
  OneBased<double, kSolidEntries> tracer_flags_;
};

}  // namespace barvon
