#include "workspace/option_logic.h"

#include <utility>

#include "core/desk/analysis_keys.h"
#include "core/keys.h"
#include "core/velocity_types.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

constexpr int kMethods = 2;
constexpr std::int16_t kMethodOfOption[kMethods] = {kHopper, kBarge};

constexpr int kSimulations = 2;
constexpr std::int16_t kKEY2[kSimulations] = {kDescentAndCollapse, kDiffusion};
constexpr int kEvaluations = 3;

constexpr const char* kSimulationHints[kAnalysisTypes] = {
    "Choose Diffusion Option for Transport of Solids Or Tracer in the Water Column",
    ("Choose Diffusion Option for Initial Mixing Calculations for MPRSA 103 Water Column "
     "Evaluations."),
    "Choose Diffusion for Initial Mixing Calculations for CWA 404(b)(1) Water Column Evaluations."};
constexpr const char* kGeneralHints[kEvaluations] = {
    "Computations Are Made For Solid Fraction Only",
    "Requires Tracer Concentration [mg/l] in Dredged Material", ""};
constexpr const char* kTierHints[kEvaluations] = {
    "Requires Contaminant Concentration [mg/kg] in Sediment",
    "Requires Predicted Concentration [mg/l] in Water Column Prior to Initial Mixing",
    "Results Expressed in % of Initial Water Column Concentration Prior to Initial Mixing"};

std::int16_t Type_Of_Option(int option) { return static_cast<std::int16_t>(option + 1); }

}  // namespace

std::optional<std::int16_t> KEY4_Value(int type, int method) {
  if (method < 0 || method >= kMethods) return std::nullopt;
  return KEY4_Of(Type_Of_Option(type), kMethodOfOption[method]);
}

void Choose_Analysis_Type(int type, int method, ProjectRecord& record) {
  record.AnalysisType = Type_Of_Option(type);
  if (const auto key4 = KEY4_Value(type, method)) record.KEY4 = *key4;
  record.FileKind = kProjectKind;
}

void Choose_Disposal_Method(int type, int method, ProjectRecord& record) {
  record.DisposalMethod = kMethodOfOption[method];
  if (const auto key4 = KEY4_Value(type, method)) record.KEY4 = *key4;
  record.KEY1 = 1;
  record.PreviousDisposalMethod = record.DisposalMethod;
}

int Type_Option(std::int16_t key4) { return Analysis_Type_Of_KEY4(key4) - 1; }

int Method_Option(std::int16_t disposal_method) {
  for (int option = 0; option < kMethods; ++option) {
    if (kMethodOfOption[option] == disposal_method) return option;
  }
  return -1;
}

std::optional<std::int16_t> KEY3_Value(int simulation, int evaluation, std::int16_t analysis_type) {
  if (simulation == kWithoutDiffusion) return kNoTracer;
  const int last = Evaluations_Of(analysis_type) - 1;
  return KEY3_Of(analysis_type, evaluation >= 0 && evaluation < last ? evaluation : last);
}

void Follow_KEY3(int simulation, int evaluation, ProjectRecord& record) {
  const auto key3 = KEY3_Value(simulation, evaluation, record.AnalysisType);
  if (key3) record.KEY3 = *key3;
}

void KEY3_Follower::Follow(ProjectRecord& record) {
  const int simulation = Simulation_Option(record.KEY2);
  if (simulation != kWithDiffusion || !std::exchange(due_, false)) return;
  Follow_KEY3(simulation, Evaluation_Option(record.KEY3), record);
}

void Choose_Simulation_Type(int simulation, ProjectRecord& record) {
  record.KEY2 = kKEY2[simulation];
  if (simulation == kWithoutDiffusion) Reset_WQParams(record);
}

int Simulation_Option(std::int16_t key2) {
  for (int option = 0; option < kSimulations; ++option) {
    if (kKEY2[option] == key2) return option;
  }
  return -1;
}

std::optional<const char*> Simulation_Hint(std::int16_t analysis_type) {
  if (!Is_Analysis_Type(analysis_type)) return std::nullopt;
  return kSimulationHints[analysis_type - 1];
}

const char* Evaluation_Hint(int evaluation, std::int16_t analysis_type) {
  if (evaluation < 0 || evaluation >= kEvaluations) return "";
  return (analysis_type == kOpenWater ? kGeneralHints : kTierHints)[evaluation];
}

void Choose_Velocity(int option, bool logarithmic, ProjectRecord& record) {
  record.VelocityProfileType = option == kSingleForm && logarithmic
                                   ? kLogarithmicVelocity
                                   : Type_Of_Form(static_cast<Velocity_Form>(option));
}

void Choose_Logarithmic(bool logarithmic, ProjectRecord& record) {
  record.VelocityProfileType = logarithmic ? kLogarithmicVelocity : kSingleVelocity;
}

Velocity_Choice Velocity_Choice_Of(double velocity_profile_type) {
  return {Form_Of_Type(velocity_profile_type), velocity_profile_type == kLogarithmicVelocity};
}

Evaluation_Entry Enter_Evaluation(int evaluation, const ProjectRecord& record) {
  if (record.KEY2 != kDiffusion) {
    Show_Critical(
        "Diffusion Option Not Specified.  No Water Quality Calculations Will Be Conducted");
    return Evaluation_Entry::No_Diffusion;
  }
  if (evaluation < 0) {
    Show_Critical("Please Specify Evaluation Type");
    return Evaluation_Entry::No_Evaluation;
  }
  if (record.KEY3 == kNoTracer) {
    Show_Critical("No Long Term Tracer Computations Will Be Carried Out");
    return Evaluation_Entry::No_Tracer_Evaluated;
  }
  return Evaluation_Entry::Open;
}

bool Check_Eval(const ProjectRecord& record) {
  if (record.AnalysisType >= 0) return true;
  Show_Warning("Evaluation Type Must Be Selected", "BARVON Warning");
  return false;
}

}  // namespace barvon
