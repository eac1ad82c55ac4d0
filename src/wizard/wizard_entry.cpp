#include "wizard/wizard_entry.h"

#include <algorithm>
#include <array>

#include "core/desk/analysis_choices.h"
#include "core/format_pattern.h"
#include "core/keys.h"
#include "core/number_reading.h"
#include "core/number_text.h"
#include "core/velocity_types.h"
#include "core/wizard_answers.h"

namespace barvon {
namespace {

constexpr char kDurationPattern[] = "######";
constexpr std::array<double, kAnalysisTypes> kDefaultDurations = {2400, 14400, 3600};  // s

constexpr Field_Row kRows[] = {
    {.control = {"Text1"},
     .label = "Project Description",
     .reads = Reads::Text,
     .member = &ProjectRecord::ProjectTitle,
     .max_length = kTitleLength},
    {.control = {"Text7", kPlumeDistance},
     .label = "Maximum Plume Distance of Interest (ft)",
     .unit = "ft"},
    {.control = {"Text7", kMaxDuration},
     .label = "Maximum Simulation Duration (sec)",
     .unit = "sec",
     .pattern = kDurationPattern,
     .member = &ProjectRecord::SimulationDuration},
    {.control = {"Text7", kTypicalVelocityX},
     .label = "Typical X-Direction Velocity (ft/sec)",
     .unit = "ft/sec"},
    {.control = {"Text7", kTypicalVelocityZ},
     .label = "Typical Z-Direction Velocity (ft/sec)",
     .unit = "ft/sec"},
    {.control = {"Text7", kWaterDepth}, .label = "Average Water Depth (ft)", .unit = "ft"},
    {.control = {"Text7", kWaterTemperature},
     .label = "Average Water Temperature (deg F)",
     .unit = "deg C"},
    {.control = {"Text7", kWaterSalinity}, .label = "Average Water Salinity (ppt)", .unit = "ppt"},
};

/// The label asks for Fahrenheit, but the formula of the density takes the number as Celsius.
std::string Temperature_Note(const std::string& typed) {
  return "reads as " + Plain_Number(Lenient_Number(typed)) + " degrees Celsius";
}

bool Is_Default_Duration(double duration) {
  return std::ranges::find(kDefaultDurations, duration) != kDefaultDurations.end();
}

}  // namespace

Field_Table Wizard_Fields() { return kRows; }

std::vector<Field_Face> Wizard_Faces(const ProjectRecord& record) {
  std::vector<Field_Face> faces = Faces_Of(kRows, record);
  for (Field_Face& face : faces) {
    if (face.control == Control_Name{"Text7", kWaterTemperature}) face.note = Temperature_Note;
  }
  return faces;
}

std::int16_t Analysis_Type_Of(const Wizard_Entry& entry) {
  return static_cast<std::int16_t>(entry.analysis + kOpenWater);
}

std::int16_t Disposal_Method_Of(const Wizard_Entry& entry) {
  return entry.method == 0 ? kHopper : kBarge;
}

int Offered_Evaluation(const Wizard_Entry& entry) {
  return entry.evaluation < Evaluations_Of(Analysis_Type_Of(entry)) ? entry.evaluation : 0;
}

double Duration_Of(const Wizard_Entry& entry, const ProjectRecord& record) {
  return Entered_Number(kRows, {"Text7", kMaxDuration}, entry.texts, record);
}

double Water_Depth_Of(const Wizard_Entry& entry) {
  return Lenient_Number(entry.texts("Text7", kWaterDepth));
}

std::optional<std::string> Default_Duration(int analysis, const std::string& typed) {
  const bool empty = typed.find_first_not_of(" \t") == std::string::npos;
  if (!empty && !Is_Default_Duration(Lenient_Number(typed))) return std::nullopt;
  return Format_Number(kDefaultDurations.at(static_cast<std::size_t>(analysis)), kDurationPattern);
}

Wizard_Entry Opening_Entry(const ProjectRecord& record) {
  Wizard_Entry entry;
  entry.velocity = std::max<int>(Form_Of_Type(record.VelocityProfileType), kSingleForm);
  const Field_Texts filled = Fill_Fields(kRows, record);
  entry.texts.Set({"Text1"}, filled("Text1"));
  if (record.WizardAccepted == kFalse) return entry;
  RestoreOptionsFromRecord(record, entry);
  if (record.SimulationDuration != 0) {
    entry.texts.Set({"Text7", kMaxDuration}, filled("Text7", kMaxDuration));
  }
  return entry;
}

void RestoreOptionsFromRecord(const ProjectRecord& record, Wizard_Entry& entry) {
  entry.analysis = Is_Analysis_Type(record.AnalysisType) ? record.AnalysisType - kOpenWater : 0;
  entry.method = record.DisposalMethod == kHopper ? 0 : 1;
  entry.simulation = record.KEY2 == kDiffusion ? kWithDiffusion : kWithoutDiffusion;
  entry.evaluation = std::max(Evaluation_Option(record.KEY3), 0);
  entry.evaluation = Offered_Evaluation(entry);
  entry.velocity = std::max<int>(Form_Of_Type(record.VelocityProfileType), kSingleForm);
}

void Tell_Answers(const Wizard_Entry& entry, const ProjectRecord& record) {
  const bool untouched = entry.texts.Is_Untouched({"Text7", kMaxDuration});
  Answers_Of_Wizard() = {
      .max_duration =
          untouched ? Exact_Number(Duration_Of(entry, record)) : entry.texts("Text7", kMaxDuration),
      .water_depth = entry.texts("Text7", kWaterDepth),
      .water_temperature = entry.texts("Text7", kWaterTemperature),
      .water_salinity = entry.texts("Text7", kWaterSalinity),
      .method_option = entry.method,
      .velocity_option = entry.velocity,
      .analysis_option = entry.analysis,
  };
}

void Take_Back_Answers() { Answers_Of_Wizard() = {}; }

}  // namespace barvon
