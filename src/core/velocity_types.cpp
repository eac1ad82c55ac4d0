#include "core/velocity_types.h"

namespace barvon {
namespace {

constexpr Velocity_Type kNone = {kNoVelocity, kNoForm, "", ""};

const Velocity_Type& Row_Of(Velocity_Form form) {
  for (const Velocity_Type& type : kVelocityTypes) {
    if (type.form == form && type.option != nullptr) return type;
  }
  return kNone;
}

}  // namespace

Velocity_Form Form_Of_Type(double velocity_profile_type) {
  for (const Velocity_Type& type : kVelocityTypes) {
    if (type.number == velocity_profile_type) return type.form;
  }
  return kNoForm;
}

double Type_Of_Form(Velocity_Form form) { return Row_Of(form).number; }
const char* Option_Of_Form(Velocity_Form form) { return Row_Of(form).option; }
const char* Name_Of_Form(Velocity_Form form) { return Row_Of(form).name; }

}  // namespace barvon
