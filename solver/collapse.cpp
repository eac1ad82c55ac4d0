#include "solver/collapse.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "solver/det_math.h"
#include "solver/ode.h"
#include "solver/trail.h"

namespace companion {

double Floc_Factor(const Solid& solid, double share) {
  if (!solid.cohesive) return 1;
  return std::clamp(kMilligramsPerLitre * solid.sg * share / kFlocFrom, 1.0, kMostOfFlocs);
}

double Inflow_Share(double richardson) {
  return std::max(0.0, (1 - kHeadRichardson * richardson) / (1 + kTailRichardson * richardson));
}

namespace {

// What the equations step on; places from where the phase began. Solids follow from the logarithms
// of what left, so that they stay positive whatever the step.
enum Index : std::size_t {
  kX,
  kZ,
  kDown,  // at a level
  kRadius,
  kSpreading,
  kFluid,
  kFluidMass,
  kSpeedX,
  kSpeedZ,
  kDownward,   // at a level
  kFirstLost,  // of each fraction, logarithm
};

constexpr double kLossFloor = 10;  // of the logarithm of a loss, which kinks with the speed

/// |speed| without a kink, which would cost a cloud that floats up and down most of its steps.
double Smooth_Size(double speed) {
  const double square = speed * speed;
  return square / std::sqrt(square + kSmoothSpeed * kSmoothSpeed);
}

constexpr double kSpeedFloor = 0.1;  // ft/s, below which a speed's error counts as of this

}  // namespace

struct Collapse::Work {
  /// What a state means.
  struct View {
    Cloud cloud;
    double area = 0, volume = 0, mass = 0;  // ft2, ft3, g/cc ft3
    double water_density = 0, bed = 0;      // on the bed at its middle, at a level over its height
    double squared_frequency = 0;           // 1/s2, at a level
    Velocity current;
  };

  const Model_Input& input;
  const Water& water;
  const Coefficients& coefficients;
  const std::vector<Solid>& kinds;
  const bool on_bed;
  const double until;
  const std::vector<double>& stops;
  const double tolerance;
  const Tell tell;
  std::vector<Source>& sources;
  std::vector<Deposit>& deposits;

  const double mass_factor;
  double slope_x = 0, slope_z = 0;  // sines
  Cloud origin;                     // where the integration began: at the start or the last joining
  std::optional<Integrator> integrator;
  View view;
  std::vector<double> amounts;
  Trail trail;
  Row_Keeper rows;
  Phase phase;
  std::string end;
  double next_radius = 0, hole_radius = 0;
  bool past_hole = true;
  std::size_t stop = 0;

  Work(const Model_Input& the_input, const Water& the_water, Cloud start, bool bed, double last,
       const std::vector<double>& the_stops, double the_tolerance, Tell the_tell,
       std::vector<Source>& the_sources, std::vector<Deposit>& the_deposits)
      : input(the_input),
        water(the_water),
        coefficients(the_input.coefficients),
        kinds(the_input.batches.front().solids),
        on_bed(bed),
        until(last),
        stops(the_stops),
        tolerance(the_tolerance),
        tell(std::move(the_tell)),
        sources(the_sources),
        deposits(the_deposits),
        mass_factor(std::max(the_input.coefficients.CM, kLeastMassFactor)),
        slope_x(Sin(the_input.slope_x * kPi / 180)),
        slope_z(Sin(the_input.slope_z * kPi / 180)),
        origin(std::move(start)),
        trail(origin.number) {}

  void Fit_Under_The_Surface();
  void Begin();
  View Look(double time, const Integrator::Values& state) const;
  void Rates(double time, const Integrator::Values& state, Integrator::Values& rates) const;
  double Push(const View& view) const;
  double Spreading_Rate(const View& view, double inflow) const;
  double Inflow(const View& view) const;
  void Losses(const View& view, Integrator::Values& rates) const;
  double Turbulence_Wins(const View& view) const;
  Ending Over(const View& view) const;
  bool Fits_The_Hole(const View& view) const;
  Cloud_State Row() const;
  void Leave();
  void Advance(double time);
};

/// A wider one where `origin` would be higher than 0.9 of the depth.
void Collapse::Work::Fit_Under_The_Surface() {
  const double volume = origin.Volume();
  const double highest = kLargestBedHeight * water.Bed(origin.x, origin.z);
  if (volume > highest * Plan_Area(origin.radius, origin.length))
    origin.radius = Plan_Radius(volume / highest, origin.length);
}

/// Sets the equations off from `origin`.
void Collapse::Work::Begin() {
  const std::size_t solids = origin.solids.size();
  Integrator::Values state(kFirstLost + solids, 0);
  state[kDown] = origin.y;
  state[kRadius] = origin.radius;
  state[kSpreading] = origin.spreading;
  state[kFluid] = origin.fluid_volume;
  state[kFluidMass] = origin.fluid_mass;
  state[kSpeedX] = origin.velocity_x;
  state[kSpeedZ] = origin.velocity_z;
  state[kDownward] = on_bed ? 0 : origin.downward;
  Integrator::Values floors(kFirstLost + solids, kLossFloor);
  floors[kX] = floors[kZ] = floors[kDown] = floors[kRadius] = std::max(origin.radius, 1e-3);
  floors[kFluid] = std::max(origin.Volume(), 1e-9);
  floors[kFluidMass] = floors[kFluid];
  floors[kSpreading] = floors[kSpeedX] = floors[kSpeedZ] = floors[kDownward] = kSpeedFloor;
  integrator.emplace([this](double time, const Integrator::Values& values,
                            Integrator::Values& rates) { Rates(time, values, rates); },
                     tolerance, std::move(floors));
  integrator->Start(origin.time, std::move(state));
  view = Look(origin.time, integrator->Now());
  amounts = view.cloud.Amounts(input.Has_Tracer());
}

Collapse::Work::View Collapse::Work::Look(double time, const Integrator::Values& state) const {
  View seen;
  Cloud& cloud = seen.cloud;
  cloud = origin;
  cloud.time = time;
  cloud.x = origin.x + state[kX];
  cloud.z = origin.z + state[kZ];
  cloud.radius = std::max(state[kRadius], 1e-9);
  cloud.spreading = state[kSpreading];
  cloud.fluid_volume = std::max(0.0, state[kFluid]);
  cloud.fluid_mass = std::max(0.0, state[kFluidMass]);
  cloud.velocity_x = state[kSpeedX];
  cloud.velocity_z = state[kSpeedZ];
  cloud.downward = state[kDownward];
  for (std::size_t i = 0; i < cloud.solids.size(); ++i)
    cloud.solids[i] = Left_Of(origin.solids[i], state[kFirstLost + i]);
  seen.volume = cloud.Volume();
  seen.mass = Cloud_Mass(cloud.fluid_mass, kinds, cloud.solids);
  seen.area = Plan_Area(cloud.radius, cloud.length);
  cloud.height = seen.volume / seen.area;
  seen.bed = water.Bed(cloud.x, cloud.z);
  cloud.y = on_bed ? std::max(seen.bed - cloud.height / 2, seen.bed / 2) : state[kDown];
  if (on_bed) {
    seen.water_density = water.Density(cloud.y);
  } else {
    const double half = cloud.height / 2;
    const Layering layering = Layering_Of(input, cloud.y - half, cloud.y + half);
    seen.water_density = layering.density;
    seen.squared_frequency = layering.squared_frequency;
  }
  seen.current = water.Current(cloud.x, cloud.z, cloud.y, time);
  return seen;
}

/// g/cc ft4/s2, on the whole rim.
double Collapse::Work::Push(const View& seen) const {
  const Cloud& cloud = seen.cloud;
  const double rim = 2 * (kPi * cloud.radius + cloud.length), h = cloud.height;
  if (on_bed) {
    const double excess = kGravity * (seen.mass - seen.water_density * seen.volume);
    return rim * 0.5 * excess / seen.volume * h * h;
  }
  return rim * seen.water_density * seen.squared_frequency * (1 - coefficients.GAMA) * h * h * h /
         12;
}

/// ft3/s that the rim and the faces in the water take in; on the bed while there is water over it.
double Collapse::Work::Inflow(const View& seen) const {
  const Cloud& cloud = seen.cloud;
  const double u = cloud.spreading, h = cloud.height;
  if (!(u > 0)) return 0;
  const double rim = 2 * (kPi * cloud.radius + cloud.length);
  const double squared =
      on_bed ? std::max(0.0, kGravity * (seen.mass / (seen.water_density * seen.volume) - 1) * h)
             : seen.squared_frequency * h * h / 4;
  const double faces = on_bed ? 1 : 2;
  const double over =
      on_bed ? std::clamp((1 - h / seen.bed) / (1 - kLargestBedHeight), 0.0, 1.0) : 1;
  return over * cloud.inflow_factor * coefficients.ALPHAC * u *
         (rim * h + faces * (2.0 / 3) * seen.area * Inflow_Share(squared / (u * u)));
}

double Collapse::Work::Spreading_Rate(const View& seen, double inflow) const {
  const Cloud& cloud = seen.cloud;
  const double u = cloud.spreading;
  const double rim = 2 * (kPi * cloud.radius + cloud.length);
  const double faces = on_bed ? coefficients.CFRIC + coefficients.FRICTN : 2 * coefficients.CFRIC;
  const double resistance = 0.5 * seen.water_density *
                            (coefficients.CDRAG * rim * cloud.height + faces * seen.area / 2) *
                            std::abs(u) * u;
  return (Push(seen) - resistance - kSpreadingInertia * u * seen.water_density * inflow) /
         (kSpreadingInertia * seen.mass);
}

/// Grains that leave by the foot, or come to rest on the bed, 1/s of each fraction.
void Collapse::Work::Losses(const View& seen, Integrator::Values& rates) const {
  const Cloud& cloud = seen.cloud;
  double share = 0;
  for (const double solid : cloud.solids) share += solid;
  const double hindrance = Hindrance(share / seen.volume);
  const double along = cloud.velocity_x * cloud.velocity_x + cloud.velocity_z * cloud.velocity_z;
  const double stress = 0.5 * kSlugsPerGramCc * seen.water_density * coefficients.FRICTN *
                        (cloud.spreading * cloud.spreading / 2 + along);
  for (std::size_t i = 0; i < cloud.solids.size(); ++i) {
    const Solid& kind = kinds[i];
    double leaving = kind.fall_velocity * hindrance;
    if (on_bed) {
      leaving *= Floc_Factor(kind, cloud.solids[i] / seen.volume);
      if (kind.critical_shear > 0) leaving *= std::max(0.0, 1 - stress / kind.critical_shear);
    } else {
      leaving = coefficients.BETA * leaving +
                (1 - coefficients.BETA) * std::max(0.0, leaving - Smooth_Size(cloud.downward));
    }
    rates[kFirstLost + i] = std::max(0.0, leaving / cloud.height);
  }
}

void Collapse::Work::Rates(double time, const Integrator::Values& state,
                           Integrator::Values& rates) const {
  const View seen = Look(time, state);
  const Cloud& cloud = seen.cloud;
  std::fill(rates.begin(), rates.end(), 0.0);
  rates[kX] = cloud.velocity_x;
  rates[kZ] = cloud.velocity_z;
  rates[kRadius] = cloud.spreading;
  if (!(seen.mass > 0)) return;
  const double inflow = Inflow(seen);
  rates[kSpreading] = Spreading_Rate(seen, inflow);
  rates[kFluid] = inflow;
  rates[kFluidMass] = inflow * seen.water_density;
  Losses(seen, rates);

  const double weight = (seen.mass - seen.water_density * seen.volume) * kGravity;
  const double half = 0.5 * seen.water_density;
  const double dx = cloud.velocity_x - seen.current.x, dz = cloud.velocity_z - seen.current.z;
  const double faces = on_bed ? 1 : 2;
  const double drag = half *
                          (coefficients.CD3 * (2 * cloud.radius + cloud.length) * cloud.height +
                           faces * coefficients.CFRIC * seen.area) *
                          std::sqrt(dx * dx + dz * dz) +
                      seen.water_density * inflow;
  rates[kSpeedX] = -drag * dx;
  rates[kSpeedZ] = -drag * dz;
  if (on_bed) {
    const double rubbing =
        half * coefficients.FRICTN * seen.area *
        std::sqrt(cloud.velocity_x * cloud.velocity_x + cloud.velocity_z * cloud.velocity_z);
    rates[kSpeedX] += weight * slope_x - rubbing * cloud.velocity_x;
    rates[kSpeedZ] += weight * slope_z - rubbing * cloud.velocity_z;
  } else {
    rates[kDown] = cloud.downward;
    rates[kDownward] = (weight - half * coefficients.CD4 * seen.area * Smooth_Size(cloud.downward) *
                                     cloud.downward) /
                           (mass_factor * seen.mass) -
                       seen.water_density * inflow * cloud.downward / seen.mass;
  }
  rates[kSpeedX] /= seen.mass;
  rates[kSpeedZ] /= seen.mass;
}

/// At least 0 once the spreading slows down and is below what diffusion, or the current's
/// turbulence, makes of a cloud of that size.
double Collapse::Work::Turbulence_Wins(const View& seen) const {
  const Cloud& cloud = seen.cloud;
  const double size = kEdgeOfDiffusion * cloud.radius;
  const double diffusion = 4 * coefficients.ALAMDA * size * Cbrt(size) / cloud.radius;
  const double turbulence = kTurbulentSpeeds * water.Shear_Velocity(cloud.x, cloud.z, cloud.time);
  const double least = std::max(diffusion, turbulence);
  const double slower = least - std::max(cloud.spreading, on_bed ? 0 : std::abs(cloud.downward));
  return std::min(slower, -Spreading_Rate(seen, Inflow(seen)));
}

Ending Collapse::Work::Over(const View& seen) const {
  const Cloud& cloud = seen.cloud;
  Ending ending;
  if (on_bed) {
    ending.Consider(seen.water_density - seen.mass / seen.volume, "light");
  } else {
    const double half = cloud.height / 2;
    ending.Consider(cloud.y + half - seen.bed, "bed");
    ending.Consider(std::min(half - cloud.y, -cloud.downward), "surface");
  }
  ending.Consider(Turbulence_Wins(seen), "spread");
  return ending;
}

/// Too low, and too slow to rise over the rim of the depression.
bool Collapse::Work::Fits_The_Hole(const View& seen) const {
  const Cloud& cloud = seen.cloud;
  if (!on_bed || !water.In_Depression(cloud.x, cloud.z)) return false;
  const double excess = kGravity * (seen.mass / (seen.water_density * seen.volume) - 1);
  if (!(excess > 0)) return false;
  return cloud.height + cloud.spreading * cloud.spreading / (2 * excess) < input.hole_depth;
}

Cloud_State Collapse::Work::Row() const {
  const Cloud& cloud = view.cloud;
  return {cloud.time,
          cloud.x,
          cloud.z,
          cloud.y,
          cloud.radius,
          cloud.height,
          cloud.spreading,
          on_bed ? 0 : cloud.downward,
          view.mass / view.volume,
          view.volume,
          cloud.solids};
}

void Collapse::Work::Leave() {
  if (on_bed)
    trail.Leave_Deposits(deposits);
  else
    trail.Leave_From_Foot(view.bed, sources);
}

void Collapse::Work::Advance(double time) {
  const auto past = [this](double when, const Integrator::Values& state) {
    const View seen = Look(when, state);
    double nearest = std::max(Over(seen).past, seen.cloud.radius - next_radius);
    if (!past_hole) nearest = std::max(nearest, seen.cloud.radius - hole_radius);
    return nearest;
  };
  const auto tell_stop = [this] {
    if (stop >= stops.size() || stops[stop] > integrator->Time()) return;
    Leave();
    tell(stop++, view.cloud);
  };
  while (end.empty() && integrator->Time() < time) {
    tell_stop();
    const double limit = stop < stops.size() ? std::min(stops[stop], time) : time;
    integrator->Step(limit, past);
    view = Look(integrator->Time(), integrator->Now());
    std::vector<double> now = view.cloud.Amounts(input.Has_Tracer());
    std::vector<double>& lost = on_bed ? phase.settled : phase.fallen;
    for (std::size_t i = 0; i < now.size(); ++i) lost[i] += amounts[i] - now[i];
    amounts = std::move(now);
    trail.Pass(view.cloud, amounts);
    rows.Add(Row());
    if (view.cloud.radius >= next_radius) {
      Leave();
      next_radius = view.cloud.radius * kRadiusStep;
    }
    if (const Ending ending = Over(view); ending.Over()) end = ending.why;
    if (!past_hole && view.cloud.radius >= hole_radius) {
      past_hole = true;
      if (end.empty() && Fits_The_Hole(view)) end = "held";
    }
    if (end == "spread" && !past_hole && Fits_The_Hole(view)) end = "held";
    if (end.empty() && integrator->Exhausted()) end = "steps";
  }
  if (end.empty() && integrator->Time() >= until) {
    tell_stop();
    end = "time";
  }
  if (!end.empty()) Leave();
}

Collapse::Collapse(const Model_Input& input, const Water& water, Cloud start, bool on_bed,
                   double until, const std::vector<double>& stops, double tolerance, Tell tell,
                   std::vector<Source>& sources, std::vector<Deposit>& deposits)
    : work_(std::make_unique<Work>(input, water, std::move(start), on_bed, until, stops, tolerance,
                                   std::move(tell), sources, deposits)) {
  Work& work = *work_;
  if (on_bed) work.Fit_Under_The_Surface();
  const Cloud& cloud = work.origin;
  work.Begin();
  work.phase.kind = on_bed ? Phase_Kind::Bed_Collapse : Phase_Kind::Level_Collapse;
  work.phase.batch = cloud.batch;
  work.phase.cloud = cloud.cloud;
  work.phase.washed.assign(input.Species(), 0);
  work.phase.fallen = work.phase.settled = work.phase.washed;
  work.trail.Begin(work.view.cloud, work.amounts);
  work.rows.Add(work.Row());
  work.next_radius = cloud.radius * kRadiusStep;
  work.stop = static_cast<std::size_t>(std::lower_bound(stops.begin(), stops.end(), cloud.time) -
                                       stops.begin());
  work.hole_radius = std::sqrt(std::max(0.0, input.hole_x * input.hole_z) / kPi);
  work.past_hole =
      !on_bed || !water.In_Depression(cloud.x, cloud.z) || cloud.radius >= work.hole_radius;
  if (const Ending ending = work.Over(work.view); ending.Over()) work.end = ending.why;
  if (work.end == "spread" && !work.past_hole && work.Fits_The_Hole(work.view)) work.end = "held";
}

Collapse::~Collapse() = default;
Collapse::Collapse(Collapse&&) noexcept = default;

void Collapse::Advance(double time) { work_->Advance(std::min(time, work_->until)); }

void Collapse::Join(const Cloud& landing) {
  Work& work = *work_;
  work.Leave();
  Cloud joined = work.view.cloud;
  const double own = work.view.mass;
  const double added = Cloud_Mass(landing.fluid_mass, work.kinds, landing.solids);
  if (!(own + added > 0)) return;
  const double share = added / (own + added);
  const auto mix = [share](double& value, double other) { value += share * (other - value); };
  mix(joined.spreading, landing.spreading * std::min(1.0, landing.radius / joined.radius));
  mix(joined.x, landing.x);
  mix(joined.z, landing.z);
  mix(joined.velocity_x, landing.velocity_x);
  mix(joined.velocity_z, landing.velocity_z);
  joined.fluid_volume += landing.fluid_volume;
  joined.fluid_mass += landing.fluid_mass;
  joined.tracer += landing.tracer;
  for (std::size_t i = 0; i < joined.solids.size(); ++i) joined.solids[i] += landing.solids[i];
  work.origin = std::move(joined);
  work.Fit_Under_The_Surface();
  work.Begin();
  work.trail.Begin(work.view.cloud, work.amounts);
  work.rows.Add(work.Row());
  if (const Ending ending = work.Over(work.view); ending.Over()) work.end = ending.why;
}

const std::string& Collapse::End() const { return work_->end; }
const Cloud& Collapse::Now() const { return work_->view.cloud; }

Phase Collapse::Take_Phase() {
  Phase phase = std::move(work_->phase);
  phase.end = work_->end;
  phase.rows = work_->rows.Take();
  phase.left = work_->amounts;
  return phase;
}

}  // namespace companion
