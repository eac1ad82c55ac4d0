#include "solver/ode.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace companion {

namespace {

// The tableau of Dormand and Prince (1980). Its last row is the result of the fifth order.
constexpr int kStages = 7;
constexpr double kNodes[kStages] = {0, 1.0 / 5, 3.0 / 10, 4.0 / 5, 8.0 / 9, 1, 1};
constexpr double kWeights[kStages][kStages - 1] = {
    {},
    {1.0 / 5},
    {3.0 / 40, 9.0 / 40},
    {44.0 / 45, -56.0 / 15, 32.0 / 9},
    {19372.0 / 6561, -25360.0 / 2187, 64448.0 / 6561, -212.0 / 729},
    {9017.0 / 3168, -355.0 / 33, 46732.0 / 5247, 49.0 / 176, -5103.0 / 18656},
    {35.0 / 384, 0, 500.0 / 1113, 125.0 / 192, -2187.0 / 6784, 11.0 / 84}};
constexpr double kHopeless = 1e30;  // an error above it, or no number
constexpr double kTiny = 1e-300;

constexpr double kErrors[kStages] = {71.0 / 57600,      0,          -71.0 / 16695, 71.0 / 1920,
                                     -17253.0 / 339200, 22.0 / 525, -1.0 / 40};

}  // namespace

Integrator::Integrator(Rates rates, double tolerance, Values floors)
    : rates_(std::move(rates)), tolerance_(tolerance), floors_(std::move(floors)) {
  trial_.resize(floors_.size());
  stage_.resize(floors_.size());
  for (Values& slope : slopes_) slope.resize(floors_.size());
}

void Integrator::Start(double time, Values values) {
  time_ = time;
  values_ = std::move(values);
  rates_(time_, values_, slopes_[0]);
  step_ = First_Step();
}

/// A hundredth of the time in which the fastest value changes by itself or by its floor.
double Integrator::First_Step() const {
  double fastest = 0;
  for (std::size_t i = 0; i < values_.size(); ++i)
    fastest =
        std::max(fastest, std::abs(slopes_[0][i]) / std::max(std::abs(values_[i]), floors_[i]));
  return fastest > 0 ? 0.01 / fastest : 1;
}

/// From where it stands, whose slope is the first; the slope at the end is the last.
void Integrator::Try(double step, Values& end) {
  for (int stage = 1; stage < kStages; ++stage) {
    Values& into = stage + 1 < kStages ? stage_ : end;
    for (std::size_t i = 0; i < values_.size(); ++i) {
      double sum = 0;
      for (int k = 0; k < stage; ++k)
        sum += kWeights[stage][k] * slopes_[static_cast<std::size_t>(k)][i];
      into[i] = values_[i] + step * sum;
    }
    if (stage + 1 == kStages)
      for (std::size_t i = rising_; i < values_.size(); ++i) end[i] = std::max(end[i], values_[i]);
    rates_(time_ + kNodes[stage] * step, into, slopes_[static_cast<std::size_t>(stage)]);
  }
}

double Integrator::Error(double step, const Values& end) const {
  double worst = 0;
  for (std::size_t i = 0; i < values_.size(); ++i) {
    double sum = 0;
    for (std::size_t k = 0; k < kStages; ++k) sum += kErrors[k] * slopes_[k][i];
    const double size = std::max({std::abs(values_[i]), std::abs(end[i]), floors_[i]});
    const double share = std::abs(step * sum) / (tolerance_ * size);
    if (!(share < kHopeless)) return kHopeless;
    worst = std::max(worst, share);
  }
  return worst;
}

/// The shortest step behind the event, in `trial_`: secants between a step before it and one behind
/// it, where an end that stays has its value halved (the Illinois rule), and a bisection now and
/// then against what no secant suits.
double Integrator::Find(double step, double at_end, const Past& past) {
  double before = 0, behind = step;
  double value_before = std::min(past(time_, values_), -kTiny), value_behind = at_end;
  bool last_before = false, last_behind = false;
  for (int round = 1; behind - before > kEventTime; ++round) {
    const double wide = behind - before;
    double middle = before + wide / 2;
    if (round % 4 != 0) {
      middle = before + wide * (-value_before / (value_behind - value_before));
      const double edge = std::min(kEventTime / 2, wide / 2);
      middle = std::clamp(middle, before + edge, behind - edge);
    }
    if (!(middle > before && middle < behind)) break;
    Try(middle, trial_);
    const double value = past(time_ + middle, trial_);
    if (value >= 0) {
      behind = middle;
      value_behind = value;
      if (last_behind) value_before /= 2;
    } else {
      before = middle;
      value_before = value;
      if (last_before) value_behind /= 2;
    }
    last_behind = value >= 0;
    last_before = !last_behind;
  }
  Try(behind, trial_);
  return behind;
}

bool Integrator::Step(double limit, const Past& past) {
  double step = step_;
  for (;;) {
    const bool cut = time_ + step >= limit;
    if (cut) step = limit - time_;
    ++tries_;
    Try(step, trial_);
    const double error = Error(step, trial_);
    // The theory's fifth root needs more than square roots; the fourth changes the step sooner.
    const double fourth_root = std::sqrt(std::sqrt(error));
    const double change = fourth_root > 0
                              ? std::clamp(kStepSafety / fourth_root, kLeastChange, kGreatestChange)
                              : kGreatestChange;
    if (error > (step > kLeastStep ? 1 : kForcedError)) {
      if (step <= kLeastStep) tries_ = kMostSteps;
      if (Exhausted()) return false;
      step = std::max(step * change, kLeastStep);
      continue;
    }
    // A step cut short by a stop says little of the next.
    step_ = cut ? std::max(step_, step * change) : step * change;
    const double at_end = past(cut ? limit : time_ + step, trial_);
    const bool event = at_end >= 0;
    const double taken = event ? Find(step, at_end, past) : step;
    time_ = cut && taken == step ? limit : time_ + taken;
    values_.swap(trial_);
    slopes_[0].swap(slopes_[6]);
    return event;
  }
}

}  // namespace companion
