#include "solver/spreading.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "solver/collapse.h"
#include "solver/det_math.h"
#include "solver/settling.h"

namespace companion {

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

Spreading::Spreading(const Model_Input& the_input, const Water& the_water, Cloud start, bool bed)
    : input(the_input),
      water(the_water),
      coefficients(the_input.coefficients),
      kinds(the_input.batches.front().solids),
      on_bed(bed),
      mass_factor(std::max(the_input.coefficients.CM, kLeastMassFactor)),
      slope_x(Sin(the_input.slope_x * kPi / 180)),
      slope_z(Sin(the_input.slope_z * kPi / 180)),
      origin(std::move(start)) {}

/// A wider one where `origin` would be higher than 0.9 of the depth.
void Spreading::Fit_Under_The_Surface() {
  const double volume = origin.Volume();
  const double highest = kLargestBedHeight * water.Bed(origin.x, origin.z);
  if (volume > highest * Plan_Area(origin.radius, origin.length))
    origin.radius = Plan_Radius(volume / highest, origin.length);
}

Integrator::Values Spreading::State() const {
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
  return state;
}

Integrator::Values Spreading::Floors() const {
  const std::size_t solids = origin.solids.size();
  Integrator::Values floors(kFirstLost + solids, kLossFloor);
  floors[kX] = floors[kZ] = floors[kDown] = floors[kRadius] = std::max(origin.radius, 1e-3);
  floors[kFluid] = std::max(origin.Volume(), 1e-9);
  floors[kFluidMass] = floors[kFluid];
  floors[kSpreading] = floors[kSpeedX] = floors[kSpeedZ] = floors[kDownward] = kSpeedFloor;
  return floors;
}

Spreading::View Spreading::Look(double time, const Integrator::Values& state) const {
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
double Spreading::Push(const View& seen) const {
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
double Spreading::Inflow(const View& seen) const {
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

double Spreading::Spreading_Rate(const View& seen, double inflow) const {
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
void Spreading::Losses(const View& seen, Integrator::Values& rates) const {
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

void Spreading::Rates(double time, const Integrator::Values& state,
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
double Spreading::Turbulence_Wins(const View& seen) const {
  const Cloud& cloud = seen.cloud;
  const double size = kEdgeOfDiffusion * cloud.radius;
  const double diffusion = 4 * coefficients.ALAMDA * size * Cbrt(size) / cloud.radius;
  const double turbulence = kTurbulentSpeeds * water.Shear_Velocity(cloud.x, cloud.z, cloud.time);
  const double least = std::max(diffusion, turbulence);
  const double slower = least - std::max(cloud.spreading, on_bed ? 0 : std::abs(cloud.downward));
  return std::min(slower, -Spreading_Rate(seen, Inflow(seen)));
}

Ending Spreading::Over(const View& seen) const {
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
bool Spreading::Fits_The_Hole(const View& seen) const {
  const Cloud& cloud = seen.cloud;
  if (!on_bed || !water.In_Depression(cloud.x, cloud.z)) return false;
  const double excess = kGravity * (seen.mass / (seen.water_density * seen.volume) - 1);
  if (!(excess > 0)) return false;
  return cloud.height + cloud.spreading * cloud.spreading / (2 * excess) < input.hole_depth;
}

Cloud_State Spreading::Row(const View& seen) const {
  const Cloud& cloud = seen.cloud;
  return {cloud.time,
          cloud.x,
          cloud.z,
          cloud.y,
          cloud.radius,
          cloud.height,
          cloud.spreading,
          on_bed ? 0 : cloud.downward,
          seen.mass / seen.volume,
          seen.volume,
          cloud.solids};
}

}  // namespace companion
