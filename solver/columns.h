#pragma once

#include <cstddef>
#include <vector>

#include "solver/column.h"
#include "solver/cutting.h"
#include "solver/drift.h"
#include "solver/model_input.h"
#include "solver/sources.h"
#include "solver/vertical.h"
#include "solver/water.h"

namespace companion {

inline constexpr int kLayers = 32;               // of a column
inline constexpr double kLongestStep = 30;       // s, of the passive transport
inline constexpr double kLastOfAColumn = 1e-13;  // of what it received: settles at once

/// Transport of what no longer falls or spreads of itself: one column a cloud and species (more
/// where they are cut), each moved by symmetric steps (Strang 1968): half the vertical diffusion,
/// half the settling, drift with horizontal diffusion, and the halves turned round. Columns act on
/// nothing but themselves, so the steps of each end at its own sources.
class Passive {
 public:
  Passive(const Model_Input& input, const Water& water, int layers = kLayers,
          double longest_step = kLongestStep);

  /// Enters at the source's own time, which lies in the next Advance.
  void Add(const Source& source);
  /// What settles on the way of the near field.
  void Add(const Deposit& deposit);
  /// Moves everything on to a time, s. Steps end at every source.
  void Advance(double time);

  const std::vector<Column>& Columns() const { return columns_; }
  /// What settled since the last call, as normal distributions: amounts a species on the bed, first
  /// what the near field left there, then one a column.
  std::vector<Deposit> Take_Settled();

 private:
  /// The columns of one cloud and species.
  struct Family {
    std::size_t number = 0, cloud = 0, species = 0;
    bool held = false;
    std::vector<std::size_t> columns;
    std::vector<Source> waiting;  // in the order of their times
  };

  Family& Family_Of(const Source& source);
  void Rebuild();
  void Follow(Family& family, double from, double to);
  void Step(Column& column, double from, double seconds);
  void Enter(Family& family, const Source& source);

  const Model_Input& input_;
  const Water& water_;
  int layers_;
  double longest_step_;
  double now_ = 0;
  double next_cut_ = kCutEvery;
  bool has_depression_ = false;
  Vertical vertical_;
  Drift drift_;
  std::vector<Column> columns_;
  std::vector<Family> families_;
  std::vector<Deposit> deposits_;
};

}  // namespace companion
