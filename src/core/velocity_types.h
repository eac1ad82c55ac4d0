#pragma once

#include <array>

namespace barvon {

/// VelocityProfileType, an integer in a real. Any other value is none of them. A variable depth
/// grid that displaces a two-point profile leaves kNoVelocity.
inline constexpr double kNoVelocity = 0;
inline constexpr double kSingleVelocity = 1;
inline constexpr double kLogarithmicVelocity = 2;
inline constexpr double kTwoPointVelocity = 3;
inline constexpr double kVelocityField = 4;
inline constexpr double kUnsteadyVelocity = 5;

/// The forms of frmVelocity, by the index of option, frame and illustration; the options of the
/// main window have the same indices.
enum Velocity_Form { kNoForm = -1, kSingleForm = 0, kTwoPointForm, kFieldForm, kUnsteadyForm };

struct Velocity_Type {
  double number;
  Velocity_Form form;
  const char* option;  // its option's caption; null for a type that a check box of the form chooses
  const char* name;    // of the form
};

/// Every type. The screens, the main window, the wizard's answers and the model input go by it.
inline constexpr auto kVelocityTypes = std::to_array<Velocity_Type>({
    {kSingleVelocity, kSingleForm, "Single Depth Averaged Velocity",
     "Single Depth Averaged Velocity"},
    {kLogarithmicVelocity, kSingleForm, nullptr, "Single Depth Averaged Velocity"},
    {kTwoPointVelocity, kTwoPointForm, "2-Point Velocity Profile For Constant Depth",
     "2-Point Velocity Profile for a Constant Depth Grid"},
    {kVelocityField, kFieldForm, "Variable Velocity Field",
     "Variable Velocity Field for Entire Grid"},
    {kUnsteadyVelocity, kUnsteadyForm, "Unsteady Velocity Profile",
     "Unsteady Velocity for Single Depth (Tidal Velocity Profile)"},
});

/// The types with an option, which are the forms; -1 when their rows do not follow the forms'
/// order.
constexpr int Count_Forms() {
  int forms = 0;
  for (const Velocity_Type& type : kVelocityTypes) {
    if (type.option == nullptr) continue;
    if (type.form != forms) return -1;
    ++forms;
  }
  return forms;
}
inline constexpr int kVelocityForms = Count_Forms();
static_assert(kVelocityForms > 0, "the rows with an option follow the order of the forms");

/// The form that shows a type; kNoForm for none.
Velocity_Form Form_Of_Type(double velocity_profile_type);
/// The type that a click on the form's option sets; kNoVelocity for kNoForm.
double Type_Of_Form(Velocity_Form form);
/// The option's caption and the form's name; empty for kNoForm.
const char* Option_Of_Form(Velocity_Form form);
const char* Name_Of_Form(Velocity_Form form);

}  // namespace barvon
