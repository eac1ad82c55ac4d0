#include "solver/notes.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "solver/comparison.h"
#include "solver/look_times.h"
#include "solver/number_text.h"
#include "solver/release.h"

namespace companion {
namespace {

constexpr int kTidal = 5;

void Note_Grid(const Model_Input& input, const Additions& additions,
               std::vector<std::string>& notes) {
  const Areas areas(input);
  if (!areas.On_Grid(areas.Row(input.vessel_x), areas.Column(input.vessel_z))) {
    notes.push_back("The disposal point lies off the grid.");
  }
  if (input.constant_depth) return;
  if (!additions.depths.empty()) {
    notes.push_back("The depths are those of the additions: they stand as they were entered.");
  } else {
    notes.push_back(
        "There are no additions to the input with the depths as they were entered: the rows of the "
        "depth grid are taken along X. The depths at the disposal point and at the corners, above, "
        "show whether they are where they belong.");
  }
  const auto& depths = additions.depths.empty() ? input.depths : additions.depths;
  std::size_t land = 0;
  for (const auto& row : depths) {
    land += static_cast<std::size_t>(
        std::count_if(row.begin(), row.end(), [](double depth) { return depth <= 0; }));
  }
  if (land > 0) {
    notes.push_back(std::to_string(land) +
                    " grid points have no depth and count as land. Nothing above them counts in a "
                    "maximum; what drifts ashore stands still there.");
  }
}

void Note_Water(const Model_Input& input, const Additions& additions,
                std::vector<std::string>& notes) {
  if (input.velocity_type == kTidal) {
    notes.push_back(additions.tide
                        ? "The current turns with the tide's table from the additions: straight "
                          "between its times."
                        : "The current is the tide's average: its table is not in the input, and "
                          "there are no additions that hold it.");
    if (additions.tide && additions.tide->times.front() > 0) {
      notes.push_back("The tide's table begins " + Plain(additions.tide->times.front(), 7) +
                      " s after the start: until then the water stands still.");
    }
    if (additions.tide && additions.tide->times.back() < input.duration) {
      notes.push_back("The tide's table ends at " + Plain(additions.tide->times.back(), 7) +
                      " s of the run: from there on its last value holds.");
    }
  }
  if (input.hole_depth > 0) {
    notes.push_back(
        "The layers of what drifts out of the depression become as thin as the water beside it has "
        "them: values rise there in the ratio of the two depths, and fall by it on the way in.");
  }
  for (std::size_t i = 1; i < input.profile_densities.size(); ++i) {
    if (input.profile_densities[i] < input.profile_densities[i - 1]) {
      notes.push_back("The water is denser above than below between " +
                      Plain(input.profile_depths[i - 1]) + " and " +
                      Plain(input.profile_depths[i]) + " ft: it counts as not layered there.");
    }
  }
}

bool Same_Material(const Solid& a, const Solid& b) {
  return a.sg == b.sg && a.fall_velocity == b.fall_velocity && a.void_ratio == b.void_ratio &&
         a.critical_shear == b.critical_shear && a.cohesive == b.cohesive &&
         a.stripped == b.stripped;
}

void Note_Load(const Model_Input& input, std::vector<std::string>& notes) {
  const Batch& first = input.batches.front();
  const std::string batch_word = input.barge ? "Layer " : "Opening ";
  bool less = false;
  for (std::size_t j = 0; j < input.batches.size(); ++j) {
    const Batch& batch = input.batches[j];
    if (batch.fluid.density != input.load_density) {
      notes.push_back(batch_word + std::to_string(j + 1) + " gives its fluid the density " +
                      Plain(batch.fluid.density, 6) + " g/cc; that of the vessel's line holds, " +
                      Plain(input.load_density, 6) + " g/cc.");
    }
    for (std::size_t s = 0; s < batch.solids.size(); ++s) {
      if (Same_Material(batch.solids[s], first.solids[s])) continue;
      notes.push_back(batch_word + std::to_string(j + 1) + " has another " + first.solids[s].name +
                      " than the first: behind the descent the first one's values hold for all.");
    }
    const bool none = input.Has_Tracer() && batch.volume > 0 && Tracer_Amount(input, batch) <= 0;
    less = less || none;
  }
  if (less) {
    notes.push_back("The load holds no more of " + Species_Name(input, input.Solids()) +
                    " than the water around, or less, at least in part: no excess of it is "
                    "followed there.");
  }
}

}  // namespace

std::vector<std::string> Input_Notes(const Model_Input& input, const Additions& additions) {
  std::vector<std::string> notes;
  Note_Grid(input, additions, notes);
  Note_Water(input, additions, notes);
  Note_Load(input, notes);
  for (const double time : input.print_times) {
    if (time <= 0) {
      notes.push_back("The print time " + Plain(time, 7) +
                      " s is not behind the start and left out.");
    } else if (time > input.duration) {
      notes.push_back("The print time " + Plain(time, 7) + " s is behind the end and left out.");
    }
  }
  if (!input.print_times.empty() && Map_Times(input).empty()) {
    notes.push_back("No print time lies within the run: the maps are those of the largest values.");
  }
  if (input.key2 != 0) {
    notes.push_back(
        "The input asks for descent and collapse only: nothing is carried on behind them. The maps "
        "hold what settled until then; what is called suspended is all that is left.");
  }
  const Areas areas(input);
  const int evaluation = static_cast<int>(input.evaluation);
  if (evaluation >= 2 && evaluation <= 4 && !areas.Has_Site()) {
    notes.push_back("No disposal site is given: every cell counts as outside it.");
  }
  return notes;
}

void Append_Outcome_Notes(const Model_Input& input, Outcome& outcome) {
  std::vector<std::string>& notes = outcome.notes;
  notes.insert(notes.end(), outcome.near_field.notes.begin(), outcome.near_field.notes.end());
  for (std::size_t species = 0; species < outcome.over_land.size(); ++species) {
    if (outcome.over_land[species] <= 0) continue;
    notes.push_back("At the end " + Plain(100 * outcome.over_land[species], 3) + " % of the " +
                    Species_Name(input, species) + " released is suspended above land.");
  }
}

}  // namespace companion
