#include "solver/descent.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "solver/det_math.h"
#include "solver/ode.h"
#include "solver/settling.h"
#include "solver/trail.h"

namespace companion {

double Inflow_Factor(double moisture, double reduced_gravity, double radius) {
  if (!(moisture > 0)) return 1;
  const double strength =
      kStrengthAtLimit * Pow(std::max(moisture, kLeastMoisture), kStrengthPower);
  const double weight = kSlugsPerGramCc * std::max(0.0, reduced_gravity) * radius;
  return std::max(kLeastInflowFactor, weight / (weight + strength));
}

namespace {

// What the equations step on. Solids follow from what the logarithms of their shares lost, so that
// they stay positive whatever the step.
enum Index : std::size_t {
  kX,  // from the start
  kZ,
  kDown,
  kFluid,
  kFluidMass,
  kMomentumX,
  kMomentumZ,
  kMomentumDown,
  kWashed,       // of the marked fractions and of the tracer, logarithm
  kFirstFallen,  // of each fraction, logarithm
};

constexpr double kEndless = 1e9;      // s, a fall that no run's end cuts
constexpr double kSpeedFloor = 0.01;  // ft/s, below which a speed's error counts as of this

class Faller {
 public:
  Faller(const Model_Input& input, const Water& water, const Cloud_Start& start,
         std::size_t number);

  /// What a state means.
  struct View {
    Cloud cloud;
    double volume = 0, mass = 0, density = 0;  // of the cloud, ft3, g/cc ft3, g/cc
    double water_density = 0;
    double through = 0;  // ft/s, speed through the water
    Velocity current;
  };

  Integrator::Values Start() const;
  Integrator::Values Floors() const;
  View Look(double time, const Integrator::Values& state) const;
  void Rates(double time, const Integrator::Values& state, Integrator::Values& rates);
  Ending Over(const View& view) const;
  bool Light_At(const View& view) const;
  const std::vector<Solid>& Kinds() const { return *kinds_; }
  Cloud_State Row(const View& view) const;
  double Volume_At_Start() const { return volume_; }

 private:
  const Water& water_;
  const Coefficients& coefficients_;
  const std::vector<Solid>* kinds_;
  Cloud_Start start_;
  std::size_t number_;
  double mass_factor_, drag_, volume_, mass_, inflow_ = 1;
  bool marked_ = false;
};

Faller::Faller(const Model_Input& input, const Water& water, const Cloud_Start& start,
               std::size_t number)
    : water_(water),
      coefficients_(input.coefficients),
      kinds_(&input.batches[start.batch].solids),
      start_(start),
      number_(number),
      mass_factor_(std::max(input.coefficients.CM, kLeastMassFactor)),
      drag_(input.coefficients.CD),
      volume_(start.Volume()),
      mass_(Cloud_Mass(start.fluid_mass, *kinds_, start.solids)) {
  for (std::size_t i = 0; i < start.solids.size(); ++i)
    if ((*kinds_)[i].stripped && start.solids[i] > 0) marked_ = true;
  if (input.moisture_adjusts && volume_ > 0) {
    const double around = water.Density(start.y);
    const double excess = kGravity * (mass_ / volume_ - around) / around;
    inflow_ = Inflow_Factor(start.moisture, excess, start.radius);
    drag_ = inflow_ * drag_ + (1 - inflow_);
  }
}

Integrator::Values Faller::Start() const {
  Integrator::Values state(kFirstFallen + start_.solids.size(), 0);
  state[kDown] = start_.y;
  state[kFluid] = start_.fluid_volume;
  state[kFluidMass] = start_.fluid_mass;
  state[kMomentumX] = mass_factor_ * mass_ * start_.velocity_x;
  state[kMomentumZ] = mass_factor_ * mass_ * start_.velocity_z;
  state[kMomentumDown] = mass_factor_ * mass_ * start_.downward;
  return state;
}

Integrator::Values Faller::Floors() const {
  Integrator::Values floors(kFirstFallen + start_.solids.size(), 1);
  floors[kX] = floors[kZ] = floors[kDown] = std::max(start_.radius, 1e-3);
  floors[kFluid] = volume_;
  floors[kFluidMass] = mass_;
  floors[kMomentumX] = floors[kMomentumZ] = floors[kMomentumDown] =
      mass_factor_ * mass_ * kSpeedFloor;
  return floors;
}

Faller::View Faller::Look(double time, const Integrator::Values& state) const {
  View view;
  Cloud& cloud = view.cloud;
  cloud.batch = start_.batch;
  cloud.cloud = start_.cloud;
  cloud.number = number_;
  cloud.time = time;
  cloud.x = start_.x + state[kX];
  cloud.z = start_.z + state[kZ];
  cloud.y = state[kDown];
  cloud.fluid_volume = std::max(0.0, state[kFluid]);
  cloud.fluid_mass = std::max(0.0, state[kFluidMass]);
  cloud.length = start_.length;
  cloud.axis_x = start_.axis_x;
  cloud.axis_z = start_.axis_z;
  cloud.inflow_factor = inflow_;
  cloud.tracer = Left_Of(start_.tracer, state[kWashed]);
  cloud.solids.resize(start_.solids.size());
  for (std::size_t i = 0; i < cloud.solids.size(); ++i)
    cloud.solids[i] = Left_Of(
        start_.solids[i], state[kFirstFallen + i] + ((*kinds_)[i].stripped ? state[kWashed] : 0));
  view.volume = cloud.Volume();
  view.mass = Cloud_Mass(cloud.fluid_mass, *kinds_, cloud.solids);
  view.density = view.volume > 0 ? view.mass / view.volume : 0;
  cloud.radius = Radius_Of_Volume(view.volume, cloud.length);
  cloud.height = 2 * cloud.radius;
  if (view.mass > 0) {
    const double inertia = mass_factor_ * view.mass;
    cloud.velocity_x = state[kMomentumX] / inertia;
    cloud.velocity_z = state[kMomentumZ] / inertia;
    cloud.downward = state[kMomentumDown] / inertia;
  }
  view.water_density = water_.Density(cloud.y);
  view.current = water_.Current(cloud.x, cloud.z, cloud.y, time);
  const double dx = cloud.velocity_x - view.current.x, dz = cloud.velocity_z - view.current.z;
  view.through = std::sqrt(dx * dx + dz * dz + cloud.downward * cloud.downward);
  return view;
}

void Faller::Rates(double time, const Integrator::Values& state, Integrator::Values& rates) {
  const View view = Look(time, state);
  const Cloud& cloud = view.cloud;
  std::fill(rates.begin(), rates.end(), 0.0);
  rates[kX] = cloud.velocity_x;
  rates[kZ] = cloud.velocity_z;
  rates[kDown] = cloud.downward;
  if (!(view.volume > 0)) return;
  const double r = cloud.radius, l = cloud.length, q = view.through;
  const double skin = 2 * kPi * r * (l + 2 * r), face = r * (2 * l + kPi * r);
  const double inflow = inflow_ * coefficients_.ALPHA0 * skin * q;
  const double washing = marked_ ? coefficients_.CSTRIP * skin * q / view.volume : 0;
  const double excess = kGravity * (view.density / view.water_density - 1);
  const double outrun = std::max(cloud.downward, std::sqrt(std::max(0.0, excess * r)));
  double share = 0;
  for (const double solid : cloud.solids) share += solid;
  const double hindrance = Hindrance(share / view.volume);
  double lost_mass = washing * cloud.fluid_mass;
  rates[kWashed] = washing;
  for (std::size_t i = 0; i < cloud.solids.size(); ++i) {
    const Solid& kind = (*kinds_)[i];
    const double settling = kind.fall_velocity * hindrance;
    const double leaving =
        coefficients_.BETA * settling + (1 - coefficients_.BETA) * std::max(0.0, settling - outrun);
    const double falling = std::max(0.0, face * leaving / view.volume);
    rates[kFirstFallen + i] = falling;
    lost_mass += (falling + (kind.stripped ? washing : 0)) * kind.sg * cloud.solids[i];
  }
  rates[kFluid] = inflow - washing * cloud.fluid_volume;
  rates[kFluidMass] = inflow * view.water_density - washing * cloud.fluid_mass;
  const double drag = 0.5 * view.water_density * drag_ * face * q;
  const double carried = mass_factor_ * view.water_density * inflow;
  const double lost = mass_factor_ * lost_mass;
  rates[kMomentumX] = -drag * (cloud.velocity_x - view.current.x) + carried * view.current.x -
                      lost * cloud.velocity_x;
  rates[kMomentumZ] = -drag * (cloud.velocity_z - view.current.z) + carried * view.current.z -
                      lost * cloud.velocity_z;
  rates[kMomentumDown] =
      (view.mass - view.water_density * view.volume) * kGravity - (drag + lost) * cloud.downward;
}

Ending Faller::Over(const View& view) const {
  const Cloud& cloud = view.cloud;
  Ending ending;
  ending.Consider(cloud.y + cloud.radius - water_.Bed(cloud.x, cloud.z), "bed");
  ending.Consider(kWashedAway - view.volume / volume_, "washed away");
  ending.Consider(view.water_density - view.density, "neutral");
  const double excess = kGravity * (view.density - view.water_density);
  ending.Consider(std::min(kCalmSpeed - view.through, kCalmExcess - excess), "calm");
  return ending;
}

bool Faller::Light_At(const View& view) const {
  return water_.Squared_Frequency(0, view.cloud.y + view.cloud.radius) <= 0;
}

Cloud_State Faller::Row(const View& view) const {
  const Cloud& cloud = view.cloud;
  Cloud_State row;
  row.t = cloud.time;
  row.x = cloud.x;
  row.z = cloud.z;
  row.y = cloud.y;
  row.radius = cloud.radius;
  row.height = cloud.height;
  row.speed = std::sqrt(cloud.velocity_x * cloud.velocity_x + cloud.velocity_z * cloud.velocity_z);
  row.downward = cloud.downward;
  row.density = view.density;
  row.volume = view.volume;
  row.solids = cloud.solids;
  return row;
}

/// Parts what left in a step between the skin and the foot, by how fast each took.
void Share_Out(const std::vector<Solid>& kinds, const Integrator::Values& before,
               const Integrator::Values& after, const std::vector<double>& had,
               const std::vector<double>& has, Phase& phase) {
  const double washing = after[kWashed] - before[kWashed];
  for (std::size_t i = 0; i < had.size(); ++i) {
    const double amount = had[i] - has[i];
    const bool solid = i < kinds.size();
    const double washed = !solid || kinds[i].stripped ? washing : 0;
    const double fallen = solid ? after[kFirstFallen + i] - before[kFirstFallen + i] : 0;
    const double both = washed + fallen;
    if (!(both > 0)) continue;
    const double off = amount * (washed / both);
    phase.washed[i] += off;
    phase.fallen[i] += amount - off;
  }
}

}  // namespace

Fall Fall_Of(const Model_Input& input, const Water& water, const Cloud_Start& start,
             std::size_t number, double until, const std::vector<double>& stops, double tolerance,
             const Tell_Falling& tell, std::vector<Source>& sources) {
  Faller faller(input, water, start, number);
  const bool with_tracer = input.Has_Tracer();
  Fall fall;
  Phase& phase = fall.phase;
  phase.batch = start.batch;
  phase.cloud = start.cloud;
  phase.washed.assign(input.Species(), 0);
  phase.fallen = phase.settled = phase.washed;

  Integrator integrator([&faller](double time, const Integrator::Values& state,
                                  Integrator::Values& rates) { faller.Rates(time, state, rates); },
                        tolerance, faller.Floors());
  integrator.Rise_From(kWashed);
  integrator.Start(start.time, faller.Start());
  Faller::View view = faller.Look(start.time, integrator.Now());
  std::vector<double> amounts = view.cloud.Amounts(with_tracer);
  Trail trail(number);
  trail.Begin(view.cloud, amounts);
  Row_Keeper rows;
  rows.Add(faller.Row(view));

  const double way = water.Bed(start.x, start.z) - start.y;
  int part = 1;
  std::size_t stop = static_cast<std::size_t>(
      std::lower_bound(stops.begin(), stops.end(), start.time) - stops.begin());
  std::string why;
  const auto past = [&](double time, const Integrator::Values& state) {
    const double ending = faller.Over(faller.Look(time, state)).past;
    if (part >= kPartsOfFall) return ending;
    return std::max(ending, state[kDown] - (start.y + way * part / kPartsOfFall));
  };
  if (view.density <= view.water_density) {
    why = "light";
    fall.light = true;
  } else if (const Ending ending = faller.Over(view); ending.Over()) {
    why = ending.why;
  }
  while (why.empty()) {
    if (stop < stops.size() && stops[stop] <= integrator.Time()) {
      trail.Leave_Sources(water.Bed(view.cloud.x, view.cloud.z), sources);
      tell(stop++, view.cloud);
    }
    if (integrator.Time() >= until) {
      why = "time";
      fall.in_motion = true;
      break;
    }
    const double limit = stop < stops.size() ? std::min(stops[stop], until) : until;
    const Integrator::Values before = integrator.Now();
    integrator.Step(limit, past);
    view = faller.Look(integrator.Time(), integrator.Now());
    std::vector<double> now = view.cloud.Amounts(with_tracer);
    Share_Out(faller.Kinds(), before, integrator.Now(), amounts, now, phase);
    amounts = std::move(now);
    trail.Pass(view.cloud, amounts);
    rows.Add(faller.Row(view));
    if (const Ending ending = faller.Over(view); ending.Over())
      why = ending.why;
    else if (integrator.Exhausted())
      why = "steps";
    if (part < kPartsOfFall && view.cloud.y >= start.y + way * part / kPartsOfFall) {
      trail.Leave_Sources(water.Bed(view.cloud.x, view.cloud.z), sources);
      ++part;
    }
  }
  trail.Leave_Sources(water.Bed(view.cloud.x, view.cloud.z), sources);
  if (why == "neutral" && faller.Light_At(view)) {
    why = "light";
    fall.light = true;
  }
  phase.end = why;
  phase.rows = rows.Take();
  phase.left = amounts;
  fall.end = std::move(view.cloud);
  return fall;
}

double Fall_Time(const Model_Input& input, const Water& water, const Cloud_Start& start,
                 double tolerance) {
  std::vector<Source> none;
  const Fall fall = Fall_Of(
      input, water, start, 0, start.time + kEndless, {}, tolerance,
      [](std::size_t, const Cloud&) {}, none);
  return fall.end.time - start.time;
}

}  // namespace companion
