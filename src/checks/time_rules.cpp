#include "checks/time_rules.h"

#include "checks/references.h"
#include "core/desk/help_topics.h"
#include "core/keys.h"

namespace barvon {
namespace {

constexpr double kLongestOcean = 144000;  // s
constexpr double kLongestInland = 36000;  // s
constexpr char kTooLong[] = "Simulation Duration Is Too Large.  Please Reduce.";

void Check_Duration_Given(const ProjectRecord& record, Error_List& errors) {
  if (record.SimulationDuration <= 0) {
    errors.Add("Please Specify the Duration of the Simulation.", reference::kDuration,
               help_topic::kSimulation);
  }
}

void Check_Time_Step_Given(const ProjectRecord& record, Error_List& errors) {
  if (record.LongTermTimeStep <= 0) {
    errors.Add("Please Specify Long Term Time Step for Diffusion.", reference::kTimeStep,
               help_topic::kSimulation);
  }
}

void Check_Ocean_Duration(const ProjectRecord& record, Error_List& errors) {
  if (record.SimulationDuration > kLongestOcean && record.AnalysisType == kOceanSites) {
    errors.Add(kTooLong, reference::kDuration, help_topic::kSimulation);
  }
}

void Check_Inland_Duration(const ProjectRecord& record, Error_List& errors) {
  if (record.SimulationDuration > kLongestInland && record.AnalysisType == kNavigableWaters) {
    errors.Add(kTooLong, reference::kDuration, help_topic::kSimulation);
  }
}

void Check_Time_Step_Fits(const ProjectRecord& record, Error_List& errors) {
  if (record.SimulationDuration / 2 <= record.LongTermTimeStep) {
    errors.Add("Simulation Time Step Is Too Large.  Please Reduce.", reference::kTimeStep,
               help_topic::kSimulation);
  }
}

}  // namespace

void Check_Time(const ProjectRecord& record, Error_List& errors) {
  Check_Duration_Given(record, errors);
  Check_Time_Step_Given(record, errors);
  Check_Ocean_Duration(record, errors);
  Check_Inland_Duration(record, errors);
  Check_Time_Step_Fits(record, errors);
}

}  // namespace barvon
