#pragma once

#include <string>

namespace barvon {

/// What the open data wizard says, for the screens that it opens: they take their first values from
/// here while ProjectRecord::WizardActive is set. The wizard writes it as its own fields change.
/// Texts are as typed and are read leniently, so an empty one is 0.
struct Wizard_Answers {
  std::string max_duration;       // "Maximum Simulation Duration (sec)"
  std::string water_depth;        // "Average Water Depth (ft)"
  std::string water_temperature;  // "Average Water Temperature (deg F)"
  std::string water_salinity;     // "Average Water Salinity (ppt)"
  int method_option = -1;         // 0 hopper, 1 barge or scow; -1 none
  int velocity_option = -1;       // 0 single depth, 1 two-point, 2 field, 3 unsteady; -1 none
  int analysis_option = -1;       // 0 open water, 1 ocean sites, 2 navigable waters; -1 none
};

/// The answers of the one wizard of the program.
inline Wizard_Answers& Answers_Of_Wizard() {
  static Wizard_Answers answers;
  return answers;
}

}  // namespace barvon
