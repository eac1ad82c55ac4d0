#include "workspace/option_logic.h"

#include "core/desk/analysis_keys.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

constexpr int kTypes = 3;
constexpr int kMethods = 2;
constexpr std::int16_t kKEY4[kTypes][kMethods] = {
    // hopper, barge
    {1, 2},  // general open water
    {3, 4},  // Section 103, ocean sites
    {5, 6},  // Section 404(b)(1), navigable waters
};
constexpr std::int16_t kMethodOfOption[kMethods] = {1, 3};
constexpr double kProjectFileKind = 2;

constexpr int kSimulations = 2;
constexpr std::int16_t kKEY2[kSimulations] = {2, 0};  // descent and collapse; diffusion too
constexpr int kEvaluations = 3;
constexpr std::int16_t kKEY3[kTypes][kEvaluations] = {
    // further testing, water quality, toxicity
    {0, 1, 1},  // general: no diffusion of a tracer, or diffusion; it offers no third
    {4, 2, 3},  // Section 103
    {7, 5, 6},  // Section 404(b)(1)
};
constexpr std::int16_t kGeneral = 1;

constexpr Evaluation_Captions kGeneralCaptions = {
    "No Diffusion of a Conservative Tracer", "Long-Term Diffusion of Conservative Tracer", nullptr};
constexpr Evaluation_Captions kTierCaptions = {"Tier II, Determine Need for Further Testing",
                                               "Tier II, Compare Water Quality",
                                               " Tier III, Compare Toxicity Results"};
constexpr const char* kSimulationHints[kTypes] = {
    "Choose Diffusion Option for Transport of Solids Or Tracer in the Water Column",
    "Choose Diffusion Option for Initial Mixing Calculations for MPRSA 103 Water Column "
    "Evaluations.",
    "Choose Diffusion for Initial Mixing Calculations for CWA 404(b)(1) Water Column Evaluations."};
constexpr const char* kGeneralHints[kEvaluations] = {
    "Computations Are Made For Solid Fraction Only",
    "Requires Tracer Concentration [mg/l] in Dredged Material", ""};
constexpr const char* kTierHints[kEvaluations] = {
    "Requires Contaminant Concentration [mg/kg] in Sediment",
    "Requires Predicted Concentration [mg/l] in Water Column Prior to Initial Mixing",
    "Results Expressed in % of Initial Water Column Concentration Prior to Initial Mixing"};

constexpr int kVelocities = 4;
constexpr double kVelocityTypes[kVelocities] = {1, 3, 4, 5};
constexpr double kLogarithmic = 2;  // the first option with its check box

bool Is_Type(std::int16_t analysis_type) { return analysis_type >= 1 && analysis_type <= kTypes; }

}  // namespace

std::optional<std::int16_t> KEY4_Value(int type, int method) {
  if (type < 0 || type >= kTypes || method < 0 || method >= kMethods) return std::nullopt;
  return kKEY4[type][method];
}

void Choose_Analysis_Type(int type, int method, ProjectRecord& record) {
  record.AnalysisType = static_cast<std::int16_t>(type + 1);
  if (const auto key4 = KEY4_Value(type, method)) record.KEY4 = *key4;
  record.FileKind = kProjectFileKind;
}

void Choose_Disposal_Method(int type, int method, ProjectRecord& record) {
  record.DisposalMethod = kMethodOfOption[method];
  if (const auto key4 = KEY4_Value(type, method)) record.KEY4 = *key4;
  record.KEY1 = 1;
  record.PreviousDisposalMethod = record.DisposalMethod;
}

int Type_Option(std::int16_t key4) { return key4 >= 1 && key4 <= 6 ? (key4 - 1) / 2 : -1; }

int Method_Option(std::int16_t disposal_method) {
  for (int option = 0; option < kMethods; ++option) {
    if (kMethodOfOption[option] == disposal_method) return option;
  }
  return -1;
}

std::optional<std::int16_t> KEY3_Value(int simulation, int evaluation, std::int16_t analysis_type) {
  if (simulation == 0) return std::int16_t{0};
  if (!Is_Type(analysis_type)) return std::nullopt;
  const int last = analysis_type == kGeneral ? 1 : kEvaluations - 1;
  const int index = evaluation >= 0 && evaluation < last ? evaluation : last;
  return kKEY3[analysis_type - 1][index];
}

void Choose_Simulation_Type(int simulation, ProjectRecord& record) {
  record.KEY2 = kKEY2[simulation];
  if (simulation == 0) Reset_WQParams(record);
}

int Simulation_Option(std::int16_t key2) {
  for (int option = 0; option < kSimulations; ++option) {
    if (kKEY2[option] == key2) return option;
  }
  return -1;
}

int Evaluation_Option(std::int16_t key3) {
  for (const auto& row : kKEY3) {
    for (int option = 0; option < kEvaluations; ++option) {
      if (row[option] == key3) return option;
    }
  }
  return -1;
}

const Evaluation_Captions& Evaluation_Captions_Of(std::int16_t analysis_type) {
  return analysis_type == kGeneral ? kGeneralCaptions : kTierCaptions;
}

std::optional<const char*> Simulation_Hint(std::int16_t analysis_type) {
  if (!Is_Type(analysis_type)) return std::nullopt;
  return kSimulationHints[analysis_type - 1];
}

const char* Evaluation_Hint(int evaluation, std::int16_t analysis_type) {
  if (evaluation < 0 || evaluation >= kEvaluations) return "";
  return (analysis_type == kGeneral ? kGeneralHints : kTierHints)[evaluation];
}

void Choose_Velocity(int option, bool logarithmic, ProjectRecord& record) {
  record.VelocityProfileType = option == 0 && logarithmic ? kLogarithmic : kVelocityTypes[option];
}

void Choose_Logarithmic(bool logarithmic, ProjectRecord& record) {
  record.VelocityProfileType = logarithmic ? kLogarithmic : kVelocityTypes[0];
}

Velocity_Choice Velocity_Choice_Of(double velocity_profile_type) {
  if (velocity_profile_type == kLogarithmic) return {0, true};
  for (int option = 0; option < kVelocities; ++option) {
    if (kVelocityTypes[option] == velocity_profile_type) return {option, false};
  }
  return {};
}

bool Ask_To_Disable_Variable_Depth() {
  return Ask("To Use Two-Point Velocity Profile Variable Depth Must Be Disabled. Do You Wish To "
             "Disable Variable Depth Specification Now?",
             Buttons::YesNoCancel) == Answer::Yes;
}

Evaluation_Entry Enter_Evaluation(int evaluation, const ProjectRecord& record) {
  if (record.KEY2 != 0) {
    Show_Critical(
        "Diffusion Option Not Specified.  No Water Quality Calculations Will Be Conducted");
    return Evaluation_Entry::No_Diffusion;
  }
  if (evaluation < 0) {
    Show_Critical("Please Specify Evaluation Type");
    return Evaluation_Entry::No_Evaluation;
  }
  if (record.KEY3 == 0) {
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
