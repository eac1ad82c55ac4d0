#include "solver/simulation.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include "solver/column.h"
#include "solver/columns.h"
#include "solver/comparison.h"
#include "solver/evaluation.h"
#include "solver/look_times.h"
#include "solver/near_field.h"
#include "solver/notes.h"
#include "solver/parts.h"
#include "solver/raster.h"
#include "solver/refusals.h"
#include "solver/release.h"
#include "solver/water.h"

namespace companion {
namespace {

/// What lies on the bed, a species: on the grid by cells, and in all.
class Bed {
 public:
  explicit Bed(const Model_Input& input) : input_(input), settled_(input.Species(), 0.0) {
    for (std::size_t s = 0; s < input.Species(); ++s) {
      rasters_.emplace_back(input.points_x, input.points_z, input.spacing_x, input.spacing_z);
    }
  }

  void Add(const Deposit& deposit) {
    if (deposit.amount <= 0) return;
    rasters_[deposit.species].Add_Deposit(Part_Of(deposit));
    settled_[deposit.species] += deposit.amount;
  }

  double Settled(std::size_t species) const { return settled_[species]; }
  double On_Grid(std::size_t species) const {
    return std::min(rasters_[species].On_Grid(), settled_[species]);
  }

  /// ft of thickness that an ft of solids makes.
  double Bulking(std::size_t solid) const {
    return 1 + input_.batches.front().solids[solid].void_ratio;
  }

  std::vector<double> Thickness() const {
    std::vector<double> sum(rasters_.front().Values().size(), 0.0);
    for (std::size_t s = 0; s < input_.Solids(); ++s) {
      const std::vector<double>& values = rasters_[s].Values();
      for (std::size_t c = 0; c < sum.size(); ++c) sum[c] += values[c] * Bulking(s);
    }
    return sum;
  }

  void Append_Maps(double time, std::vector<Cell_Map>& maps) const {
    const auto append = [&](const std::vector<double>& values, double scale, int number) {
      maps.push_back(Windowed(values, input_.points_x, input_.points_z, scale, 0));
      maps.back().time = time;
      maps.back().number = number;
    };
    append(Thickness(), 1, 0);
    for (std::size_t s = 0; s < input_.Solids(); ++s) {
      append(rasters_[s].Values(), Bulking(s), static_cast<int>(s) + 1);
    }
  }

  Bed_Summary Summary() const {
    Bed_Summary summary;
    const std::vector<double> thickness = Thickness();
    const double cell = input_.spacing_x * input_.spacing_z;
    for (int i = 0; i < input_.points_x; ++i) {
      for (int k = 0; k < input_.points_z; ++k) {
        const double value =
            thickness[static_cast<std::size_t>(i) * static_cast<std::size_t>(input_.points_z) +
                      static_cast<std::size_t>(k)];
        if (value > kNotableThickness) summary.area += cell;
        if (value > 0) {
          Raise(summary.thickest,
                {true, value, input_.duration, i * input_.spacing_x, k * input_.spacing_z, 0});
        }
      }
    }
    for (std::size_t s = 0; s < input_.Solids(); ++s) {
      summary.by_solid.push_back(On_Grid(s) * Bulking(s));
      summary.volume += summary.by_solid.back();
    }
    return summary;
  }

 private:
  const Model_Input& input_;
  std::vector<Raster> rasters_;
  std::vector<double> settled_;
};

/// Carries on from the near field to the end, from one time that is looked at to the next.
class Run {
 public:
  Run(const Model_Input& input, const Additions& additions, const Water& water, Outcome& outcome)
      : input_(input),
        water_(water),
        outcome_(outcome),
        series_(Series_Times(input)),
        maps_(Map_Times(input)),
        passive_(input, water),
        bed_(input),
        keeper_(input, water, Comparisons(input, additions, outcome.notes)),
        handed_over_(input.Species(), 0.0) {}

  void Go(const Additions& additions) {
    for (const Moving& moving : outcome_.near_field.moving) Look(moving);
    keeper_.Finish(additions, outcome_);
    outcome_.bed = bed_.Summary();
    Tell_Land();
  }

 private:
  bool Carries_On() const { return input_.key2 == 0; }

  void Look(const Moving& moving) {
    const double time = moving.time;
    const bool series = Holds_Time(series_, time), map = Holds_Time(maps_, time);
    Take_Up(time);
    if (Carries_On()) {
      passive_.Advance(time);
      keeper_.Look(time, passive_.Columns(), moving, series, map);
    }
    if (!series) return;
    for (const Deposit& deposit : passive_.Take_Settled()) bed_.Add(deposit);
    Append_Masses(moving);
    if (!map) return;
    bed_.Append_Maps(time, outcome_.beds);
    if (Carries_On()) Append_Drift(moving);
  }

  /// Sources and deposits up to a time.
  void Take_Up(double time) {
    const Near_Field& near = outcome_.near_field;
    for (; next_source_ < near.sources.size() && near.sources[next_source_].time <= time;
         ++next_source_) {
      const Source& source = near.sources[next_source_];
      handed_over_[source.species] += source.amount;
      if (Carries_On()) passive_.Add(source);
    }
    for (; next_deposit_ < near.deposits.size() && near.deposits[next_deposit_].time <= time;
         ++next_deposit_) {
      const Deposit& deposit = near.deposits[next_deposit_];
      if (Carries_On()) {
        passive_.Add(deposit);
      } else {
        bed_.Add(deposit);
      }
    }
  }

  std::vector<double> In_Motion(const Moving& moving) const {
    std::vector<double> amounts(input_.Species(), 0.0);
    for (const auto* clouds : {&moving.falling, &moving.collapsing}) {
      for (const Source& source : *clouds) amounts[source.species] += source.amount;
    }
    return amounts;
  }

  void Append_Masses(const Moving& moving) {
    std::vector<double> suspended = In_Motion(moving);
    if (Carries_On()) {
      for (const Column& column : passive_.Columns()) suspended[column.species] += Amount(column);
    } else {
      for (std::size_t s = 0; s < suspended.size(); ++s) suspended[s] += handed_over_[s];
    }
    for (std::size_t s = 0; s < input_.Species(); ++s) {
      Mass_Row row;
      row.time = moving.time;
      row.species = s;
      row.suspended = suspended[s];
      row.on_grid = bed_.On_Grid(s);
      row.off_grid = bed_.Settled(s) - row.on_grid;
      row.released = moving.released[s];
      if (row.released > 0) {
        outcome_.worst_balance =
            std::max(outcome_.worst_balance, std::abs(row.Difference()) / row.released);
      }
      outcome_.masses.push_back(row);
    }
  }

  void Append_Drift(const Moving& moving) {
    std::vector<Layer> whole(input_.Species());
    for (const Column& column : passive_.Columns()) {
      const Layer all = Whole(column);
      Join(whole[column.species], all.amount, all);
    }
    for (const auto* clouds : {&moving.falling, &moving.collapsing}) {
      for (const Source& source : *clouds) {
        Join(whole[source.species], source.amount,
             {source.amount, source.x, source.z, source.spread});
      }
    }
    for (std::size_t s = 0; s < input_.Species(); ++s) {
      const double released = moving.released[s];
      outcome_.drift.push_back(
          {moving.time, s, released > 0 ? whole[s].amount / released : 0, whole[s].x, whole[s].z,
           std::sqrt(std::max(0.0, 0.5 * (whole[s].spread.xx + whole[s].spread.zz)))});
    }
  }

  void Tell_Land() {
    if (!Carries_On() || input_.constant_depth) return;
    for (std::size_t s = 0; s < input_.Species(); ++s) {
      Raster raster(input_.points_x, input_.points_z, input_.spacing_x, input_.spacing_z);
      for (const Column& column : passive_.Columns()) {
        if (column.species != s) continue;
        const Layer all = Whole(column);
        if (all.amount > 0) raster.Add_Deposit({all.amount, all.x, all.z, all.spread});
      }
      const double released = outcome_.near_field.released[s];
      outcome_.over_land.push_back(released > 0 ? raster.Above_Land(water_) / released : 0);
    }
  }

  const Model_Input& input_;
  const Water& water_;
  Outcome& outcome_;
  std::vector<double> series_, maps_;
  Passive passive_;
  Bed bed_;
  Evaluation_Keeper keeper_;
  std::vector<double> handed_over_;
  std::size_t next_source_ = 0, next_deposit_ = 0;
};

double Last_Release(const Near_Field& near) {
  double last = 0;
  for (const Phase& phase : near.phases) {
    if (phase.kind != Phase_Kind::Descent || phase.rows.empty()) continue;
    last = std::max(last, phase.rows.front().t);
  }
  return last;
}

}  // namespace

Outcome Simulate(const std::string& file, const Model_Input& input, const Additions& additions) {
  double tracer = 0;
  for (const Batch& batch : input.batches) tracer += Tracer_Amount(input, batch);
  Check_Load(file, input, tracer);
  Check_Land(file, input, additions);
  const Water water(input, additions);
  Outcome outcome;
  outcome.notes = Input_Notes(input, additions);
  std::vector<double> times = Series_Times(input);
  if (input.key2 == 0) {
    const Near_Field first = Follow_Clouds(input, water, {}, kFirstRunTolerance);
    times = Look_Times(input, Last_Release(first), first.ends);
  }
  outcome.near_field = Follow_Clouds(input, water, times, kTolerance);
  Run(input, additions, water, outcome).Go(additions);
  Append_Outcome_Notes(input, outcome);
  return outcome;
}

}  // namespace companion
