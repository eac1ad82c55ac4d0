#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "solver/cloud.h"
#include "solver/model_input.h"
#include "solver/near_field.h"
#include "solver/sources.h"
#include "solver/water.h"

namespace companion {

inline constexpr double kRadiusStep = 1.08;        // of what leaves a spreading cloud, times radius
inline constexpr double kSpreadingInertia = 0.25;  // of the mass: the round similarity solution
inline constexpr double kLargestBedHeight = 0.9;   // of the depth, at a landing; inflow ebbs above
inline constexpr double kEdgeOfDiffusion = 2;    // radii that the 4/3 law takes for a cloud's size
inline constexpr double kTurbulentSpeeds = 2;    // of the shear velocity, which outdo the weight
inline constexpr double kHeadRichardson = 1.25;  // e(Ri) = (1 - 1.25 Ri)/(1 + 5 Ri)
inline constexpr double kTailRichardson = 5;     // e(Ri), after Ellison and Turner (1959)
inline constexpr double kSmoothSpeed = 0.001;    // ft/s, over which |w| turns at 0

/// The share of an inflow that weight lets into a spreading cloud's faces (Ellison and Turner 1959,
/// in the form of Turner 1986): 1 at none, 0 from a Richardson number of 0.8 on.
double Inflow_Share(double richardson);

/// A cloud that spreads by its weight: at the level of its own density, or on the bed.
class Collapse {
 public:
  /// Told at every stop that comes while the cloud spreads.
  using Tell = std::function<void(std::size_t stop, const Cloud& cloud)>;

  /// From the end of a fall, or of a collapse at a level for one on the bed. On the bed it begins
  /// with at most 0.9 of the depth for height. What leaves goes to `sources` and `deposits`. All
  /// that is handed in by reference is looked at up to its end.
  Collapse(const Model_Input& input, const Water& water, Cloud start, bool on_bed, double until,
           const std::vector<double>& stops, double tolerance, Tell tell,
           std::vector<Source>& sources, std::vector<Deposit>& deposits);
  ~Collapse();
  Collapse(Collapse&&) noexcept;

  /// On to a time, or to its end. A stop at that time is told by the next advance, or when the time
  /// is the end of the run.
  void Advance(double time);
  /// A cloud that lands inside it goes into it.
  void Join(const Cloud& landing);
  /// Nothing while it goes on; else "bed", "surface", "spread", "light", "held", "time" or "steps".
  const std::string& End() const;
  const Cloud& Now() const;
  Phase Take_Phase();

 private:
  struct Work;
  std::unique_ptr<Work> work_;
};

}  // namespace companion
