#pragma once

#include <optional>

#include "core/desk/analysis_choices.h"
#include "core/project_record.h"

namespace barvon {

/// What the choices of the main screen do to the record. An index of -1 stands for a group in
/// which nothing is chosen.

/// KEY4 for a type of analysis, SSOption1(0) to (2), and a method of disposal, SSOption2(0) or
/// (1). Nothing when either group has no choice: KEY4 then keeps its value.
std::optional<std::int16_t> KEY4_Value(int type, int method);

/// A click on a type of analysis: AnalysisType, KEY4, and FileKind becomes a project's.
void Choose_Analysis_Type(int type, int method, ProjectRecord& record);

/// A click on a method of disposal: DisposalMethod, KEY4, KEY1 1, PreviousDisposalMethod.
void Choose_Disposal_Method(int type, int method, ProjectRecord& record);

/// The option of the group that shows KEY4: 0 to 2, or -1 for a KEY4 that chooses none.
int Type_Option(std::int16_t key4);
/// The option that shows DisposalMethod: 0 hopper, 1 barge, -1 for any other.
int Method_Option(std::int16_t disposal_method);

/// KEY3 for the simulation type, a Simulation_Choice, and the evaluation, SSOption4(0) to (2).
/// Without an evaluation the last one that the type offers counts. Nothing for a type that has no
/// evaluations: KEY3 then keeps its value.
std::optional<std::int16_t> KEY3_Value(int simulation, int evaluation, std::int16_t analysis_type);

/// KEY3 takes the value of the two groups, as far as they give one.
void Follow_KEY3(int simulation, int evaluation, ProjectRecord& record);

/// Whoever chooses a type of analysis, or diffusion, expects KEY3 to follow. It does when the
/// options are next shown, or asked for: until then other choices may still come.
class KEY3_Follower {
 public:
  void Choice_Made() { due_ = true; }
  void Forget() { due_ = false; }
  /// KEY3 follows the choice made since the last call, by the evaluation that it shows itself.
  /// While there is no diffusion it waits.
  void Follow(ProjectRecord& record);

 private:
  bool due_ = false;
};

/// A click on a simulation type: KEY2, and without diffusion there is no contaminant.
void Choose_Simulation_Type(int simulation, ProjectRecord& record);

/// The Simulation_Choice that shows KEY2, -1 for none.
int Simulation_Option(std::int16_t key2);

/// The hint of the simulation frame, Label4(0); nothing for a type without one.
std::optional<const char*> Simulation_Hint(std::int16_t analysis_type);
/// The hint that an evaluation puts into Label4(1); empty for one that the type does not offer.
const char* Evaluation_Hint(int evaluation, std::int16_t analysis_type);

/// A click on a velocity option, Option3D1(0) to (3), while Check3D1 is set or not.
void Choose_Velocity(int option, bool logarithmic, ProjectRecord& record);
/// A click on Check3D1.
void Choose_Logarithmic(bool logarithmic, ProjectRecord& record);

/// How VelocityProfileType shows: option -1 for none.
struct Velocity_Choice {
  int option = -1;
  bool logarithmic = false;
};
Velocity_Choice Velocity_Choice_Of(double velocity_profile_type);

/// What keeps "Enter/Edit Evaluation" from its screen.
enum class Evaluation_Entry {
  Open,                // nothing
  No_Diffusion,        // diffusion is not computed
  No_Evaluation,       // none of the options is set
  No_Tracer_Evaluated  // no evaluation is made
};
/// Tells the user what stands in the way.
Evaluation_Entry Enter_Evaluation(int evaluation, const ProjectRecord& record);

/// False, after a warning, while AnalysisType is negative.
bool Check_Eval(const ProjectRecord& record);

}  // namespace barvon
