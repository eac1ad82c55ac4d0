#pragma once

#include <string>
#include <vector>

#include "solver/model_input.h"
#include "solver/sources.h"
#include "solver/water.h"

namespace companion {

enum class Phase_Kind { Descent, Level_Collapse, Bed_Collapse };

/// One row of a phase's table.
struct Cloud_State {
  double t = 0, x = 0, z = 0, y = 0;  // s, ft; y of the centre
  double radius = 0, height = 0;      // ft
  double speed = 0;     // horizontal speed of a falling cloud, spreading speed of another, ft/s
  double downward = 0;  // ft/s
  double density = 0;   // g/cc
  double volume = 0;    // ft3
  std::vector<double> solids;  // ft3
};

struct Phase {
  Phase_Kind kind = Phase_Kind::Descent;
  std::size_t batch = 0, cloud = 0;  // from 0
  std::string name;                  // "Descent of cloud 1 of layer 2"
  std::string end;                   // why it ended: "bed", "neutral", ...
  std::vector<Cloud_State> rows;     // every accepted step's end or a thinned choice of them
  // What left on the way, a species: off the skin, out of the foot, onto the bed; and what is left
  // at the end.
  std::vector<double> washed, fallen, settled, left;
};

/// The clouds in motion at a moment, as their hand-over at that moment would be.
struct Moving {
  double time = 0;
  std::vector<double> released;    // a species: what has left the vessel by then
  std::vector<Source> falling;     // counts in maps and balance
  std::vector<Source> collapsing;  // counts in maxima as well
};

/// Everything up to the passive transport. At every stop a species' released amount is what
/// the clouds in motion, the sources and the deposits up to then hold, to rounding. A cloud that is
/// in motion when the run ends stands in the last stop alone: no source hands it over.
struct Near_Field {
  std::vector<Phase> phases;
  std::vector<Source> sources;     // in the order of their times
  std::vector<Deposit> deposits;   // in the order of their times
  std::vector<Moving> moving;      // one for each stop, in their order
  std::vector<double> ends;        // the times at which phases end
  std::vector<double> released;    // a species: what left the vessel by the end
  std::vector<double> aboard;      // a species: what never left
  std::vector<std::string> notes;  // sentences for the listing
};

/// Releases the load and follows every cloud to its hand-over. `stops` are rising times at which
/// the clouds in motion are told. Relative tolerance of the steps.
Near_Field Follow_Clouds(const Model_Input& input, const Water& water,
                         const std::vector<double>& stops, double tolerance = 1e-8);

}  // namespace companion
