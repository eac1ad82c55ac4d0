#include "solver/columns.h"

#include <algorithm>
#include <cmath>

namespace companion {
namespace {

constexpr double kSameTime = 1e-9;  // s

}  // namespace

Passive::Passive(const Model_Input& input, const Water& water, int layers, double longest_step)
    : input_(input),
      water_(water),
      layers_(layers),
      longest_step_(longest_step),
      vertical_(input, water, layers),
      drift_(input, water, layers) {}

Passive::Family& Passive::Family_Of(const Source& source) {
  for (Family& family : families_)
    if (family.cloud == source.cloud && family.species == source.species &&
        family.held == source.held)
      return family;
  families_.push_back({families_.size(), source.cloud, source.species, source.held, {}, {}});
  return families_.back();
}

void Passive::Add(const Source& source) {
  if (source.amount <= 0) return;
  std::vector<Source>& waiting = Family_Of(source).waiting;
  const auto later = [](double time, const Source& other) { return time < other.time; };
  waiting.insert(std::upper_bound(waiting.begin(), waiting.end(), source.time, later), source);
}

void Passive::Add(const Deposit& deposit) {
  if (deposit.amount > 0) deposits_.push_back(deposit);
}

void Passive::Enter(Family& family, const Source& source) {
  Column* nearest = nullptr;
  double least = 0;
  for (const std::size_t index : family.columns) {
    const Layer whole = Whole(columns_[index]);
    if (whole.amount <= 0) continue;
    const double dx = whole.x - source.x, dz = whole.z - source.z;
    const double squared = dx * dx + dz * dz;
    if (nearest != nullptr && squared >= least) continue;
    nearest = &columns_[index];
    least = squared;
  }
  if (nearest == nullptr) {
    family.columns.push_back(columns_.size());
    columns_.push_back({source.cloud,
                        source.species,
                        water_.Bed(source.x, source.z),
                        source.held,
                        std::vector<Layer>(static_cast<std::size_t>(layers_)),
                        {},
                        0,
                        family.number});
    nearest = &columns_.back();
  }
  Put(*nearest, source);
}

void Passive::Step(Column& column, double from, double seconds) {
  const double half = 0.5 * seconds;
  vertical_.Prepare(column, from + half);
  vertical_.Diffuse(column, half);
  vertical_.Settle(column, half);
  drift_.Move(column, from, seconds);
  vertical_.Settle(column, half);
  vertical_.Diffuse(column, half);
}

void Passive::Follow(Family& family, double from, double to) {
  std::size_t entered = 0;
  double time = from;
  while (time < to - kSameTime || entered < family.waiting.size()) {
    const bool enters =
        entered < family.waiting.size() && family.waiting[entered].time <= to + kSameTime;
    if (!enters && time >= to - kSameTime) break;
    const double end = enters ? std::max(time, family.waiting[entered].time) : to;
    const double length = end - time;
    if (length > kSameTime) {
      const int steps =
          std::max(1, static_cast<int>(std::ceil(length / longest_step_ - kSameTime)));
      for (const std::size_t index : family.columns) {
        Column& column = columns_[index];
        for (int s = 0; s < steps; ++s) {
          const double left = Amount(column);
          if (left <= 0) break;
          Step(column, time + length * s / steps, length / steps);
        }
        const double left = Amount(column);
        const bool settles = column.species < input_.Solids();
        if (settles && left < kLastOfAColumn * column.received)
          for (Layer& layer : column.layers) {
            Join(column.settled, layer.amount, layer);
            layer = {};
          }
      }
    }
    time = std::max(time, end);
    if (enters) Enter(family, family.waiting[entered++]);
  }
  family.waiting.erase(family.waiting.begin(),
                       family.waiting.begin() + static_cast<std::ptrdiff_t>(entered));
}

void Passive::Advance(double time) {
  while (now_ < time - kSameTime) {
    if (water_.Strains() && now_ >= next_cut_ - kSameTime) {
      const double left = std::min(input_.duration - now_, kCutOutlook);
      if (Cut(columns_, families_.size(), input_, water_, now_, left)) Rebuild();
      next_cut_ = (std::floor(now_ / kCutEvery + kSameTime) + 1) * kCutEvery;
    }
    const double end = water_.Strains() ? std::min(time, next_cut_) : time;
    for (Family& family : families_) Follow(family, now_, end);
    now_ = end;
  }
  for (Family& family : families_) Follow(family, now_, now_);
}

/// Families by what the columns say of themselves, after some were added or dropped.
void Passive::Rebuild() {
  for (Family& family : families_) family.columns.clear();
  for (std::size_t c = 0; c < columns_.size(); ++c)
    families_[columns_[c].family].columns.push_back(c);
}

std::vector<Deposit> Passive::Take_Settled() {
  const auto later = std::stable_partition(
      deposits_.begin(), deposits_.end(),
      [&](const Deposit& deposit) { return deposit.time <= now_ + kSameTime; });
  std::vector<Deposit> taken(deposits_.begin(), later);
  deposits_.erase(deposits_.begin(), later);
  bool empty = false;
  for (Column& column : columns_) {
    const Layer& settled = column.settled;
    if (settled.amount > 0)
      taken.push_back({now_, column.species, settled.amount, settled.x, settled.z, settled.spread});
    column.settled = {};
    empty = empty || Amount(column) <= 0;
  }
  if (empty) {
    columns_.erase(std::remove_if(columns_.begin(), columns_.end(),
                                  [](const Column& column) { return Amount(column) <= 0; }),
                   columns_.end());
    Rebuild();
  }
  return taken;
}

}  // namespace companion
