#include "solver/assumed.h"
#include "solver/cloud.h"
#include "solver/collapse.h"
#include "solver/descent.h"
#include "solver/ode.h"
#include "solver/tables.h"

namespace companion {

std::string Assumed_Descent_And_Collapse() {
  std::string text = std::string("  Descent and collapse") + kLineEnd;
  text += Constant_Line("Least apparent mass (CM) in the equations", kLeastMassFactor);
  text += Constant_Line("Plan moments of a hand-over, times the cloud's own", kPlanMoments);
  text += Constant_Line("Parts of the way to the bed for what leaves", kPartsOfFall);
  text += Constant_Line("Calm: speed through the water below", kCalmSpeed, "ft/s");
  text += Constant_Line("Calm: excess of density times gravity below", kCalmExcess, "ft/s2 g/cc");
  text += Constant_Line("Washed away: volume below, of the start's", kWashedAway);
  text += Constant_Line("Strength of the load at its liquid limit", kStrengthAtLimit, "lb/sq ft");
  text += Constant_Line("  its power of the moisture", kStrengthPower);
  text += Constant_Line("  least moisture, of the liquid limit", kLeastMoisture);
  text += Constant_Line("Least share of ALPHA0 of a stiff load", kLeastInflowFactor);
  text += Constant_Line("Inertia of spreading, of the cloud's mass", kSpreadingInertia);
  text += Constant_Line("Largest height at the start on the bed, of the depth", kLargestBedHeight);
  text += Constant_Line("Growth of radius between two parts that leave", kRadiusStep);
  text += Constant_Line("Size in the 4/3 law where a collapse ends, in radii", kEdgeOfDiffusion);
  text += Constant_Line("  or its speed, in shear velocities", kTurbulentSpeeds);
  text += Constant_Line("Inflow from above, (1 - a Ri)/(1 + b Ri): a", kHeadRichardson);
  text += Constant_Line("  b", kTailRichardson);
  text += Constant_Line("Size of a speed up and down turns at 0 over", kSmoothSpeed, "ft/s");
  text += Constant_Line("All has left where its rates sum up to", kAllLost);
  text += Constant_Line("Steps of a phase at most, tries included", kMostSteps);
  text += Constant_Line("  of what the error would allow", kStepSafety);
  text += Constant_Line("  change from one to the next at least, times", kLeastChange);
  text += Constant_Line("  at most, times", kGreatestChange);
  text += Constant_Line("  taken at any rate when as short as", kLeastStep, "s");
  text += Constant_Line("  with an error of at most, in tolerances", kForcedError);
  text += Constant_Line("Moment of an event found to", kEventTime, "s");
  return text;
}

}  // namespace companion
