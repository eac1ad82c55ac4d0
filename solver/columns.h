#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "solver/model_input.h"
#include "solver/sources.h"
#include "solver/water.h"

namespace companion {

/// One layer of a column: an amount with its centre and second moments about it, in plan.
struct Layer {
  double amount = 0;
  double x = 0, z = 0;
  Plan_Moments spread;
};

/// A tilted normal distribution for each layer of the water, of one species.
struct Column {
  std::size_t cloud = 0, species = 0;
  double depth = 0;  // ft at its centre
  bool held = false;
  std::vector<Layer> layers;  // from the bed up
};

/// Transport of what no longer falls or spreads of itself.
class Passive {
 public:
  Passive(const Model_Input& input, const Water& water, int layers = 32, double longest_step = 30);

  /// Enters at the source's own time, which lies in the next Advance.
  void Add(const Source& source);
  /// What settles on the way of the near field.
  void Add(const Deposit& deposit);
  /// Moves everything on to a time, s. Steps end at every source.
  void Advance(double time);

  const std::vector<Column>& Columns() const;
  /// What settled since the last call, as normal distributions: amounts a species on the bed.
  std::vector<Deposit> Take_Settled();
};

/// Height of a layer's lower face above the bed as a share of the depth.
double Face_Share(int layer, int layers);

}  // namespace companion
