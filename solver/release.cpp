#include "solver/release.h"

#include <algorithm>
#include <cmath>

#include "solver/det_math.h"

namespace companion {

namespace {

/// A batch without its clouds: what every part of it has in common.
struct Leaving {
  const Model_Input& input;
  const Water& water;
  const Batch& batch;
  std::size_t number = 0;
  Batch_Start start;
  double volume = 0;        // ft3
  double whole_length = 0;  // ft, of the capsule from end to end
};

Cloud_Start Cloud_Of(const Leaving& leaving, int clouds, std::size_t cloud, double since) {
  const Model_Input& input = leaving.input;
  const Batch& batch = leaving.batch;
  Cloud_Start start;
  start.batch = leaving.number;
  start.cloud = cloud;
  start.time = leaving.start.begin + since;
  start.x = leaving.start.x + batch.velocity_x * since;
  start.z = leaving.start.z + batch.velocity_z * since;
  start.aboard = !(start.time < input.duration);

  const double volume = leaving.volume / clouds;
  double share = 0;
  for (const Solid& solid : batch.solids) {
    start.solids.push_back(volume * solid.fraction);
    share += solid.fraction;
  }
  start.fluid_volume = volume * (1 - share);
  start.fluid_mass = start.fluid_volume * input.load_density;
  start.tracer = Tracer_Amount(input, batch) / clouds;
  start.moisture = input.moisture_adjusts ? batch.moisture : 0;

  start.radius = Capsule_Radius(volume, leaving.whole_length);
  start.length = std::max(0.0, leaving.whole_length - 2 * start.radius);
  const double speed =
      std::sqrt(batch.velocity_x * batch.velocity_x + batch.velocity_z * batch.velocity_z);
  if (speed > 0) {
    start.axis_x = batch.velocity_x / speed;
    start.axis_z = batch.velocity_z / speed;
  }
  if (input.width > input.length) {
    const double along = start.axis_x;
    start.axis_x = -start.axis_z;
    start.axis_z = along;
  }

  const double draft = leaving.start.draft, bed = leaving.water.Bed(start.x, start.z);
  start.y = std::max(std::min(draft + start.radius, bed - start.radius), start.radius / 2);
  start.velocity_x = batch.velocity_x;
  start.velocity_z = batch.velocity_z;
  const double ambient = leaving.water.Density(start.y);
  const double weight = kGravity * (start.Mass(input) / volume - ambient) / ambient;
  if (leaving.start.duration > 0 && weight > 0 && draft > 0) {
    const double freed = std::sqrt(2 * weight * draft);
    const double outflow = leaving.volume / leaving.start.duration;
    const double opening = input.length * input.width;
    start.downward = opening * freed > outflow ? outflow / opening : freed;
  }
  return start;
}

/// As many clouds as are apart in space or in time.
int Clouds_Of(const Leaving& leaving, const Cloud_Start& whole, std::size_t batches) {
  const Batch_Start& start = leaving.start;
  const Velocity current =
      leaving.water.Current(whole.x, whole.z, start.draft, start.begin + start.duration / 2);
  const double x = leaving.batch.velocity_x - current.x, z = leaving.batch.velocity_z - current.z;
  const double way = std::sqrt(x * x + z * z) * start.duration;
  double clouds = std::ceil(way / (whole.length + 2 * whole.radius));
  if (start.fall_time > 0) clouds = std::max(clouds, std::floor(start.duration / start.fall_time));
  const int of_run =
      kCloudsOfARun / static_cast<int>(std::min<std::size_t>(batches, kCloudsOfARun));
  const double most = std::min(kCloudsOfABatch, of_run);
  return static_cast<int>(std::clamp(clouds, 1.0, most));
}

}  // namespace

double Cloud_Start::Volume() const {
  double volume = fluid_volume;
  for (const double solid : solids) volume += solid;
  return volume;
}

double Cloud_Start::Mass(const Model_Input& input) const {
  double mass = fluid_mass;
  for (std::size_t i = 0; i < solids.size(); ++i)
    mass += solids[i] * input.batches[batch].solids[i].sg;
  return mass;
}

double Tracer_Amount(const Model_Input& input, const Batch& batch) {
  const double volume = batch.volume * kCubicFeetPerYard;
  double share = 0;
  for (const Solid& solid : batch.solids) share += solid.fraction;
  const double fluid_volume = volume * (1 - share);
  const Fluid& fluid = batch.fluid;
  switch (input.evaluation) {
    case Evaluation::None:
      return 0;
    case Evaluation::Tracer:
    case Evaluation::Criterion:
    case Evaluation::Zone_Criterion:
      return std::max(0.0, (fluid.concentration - fluid.background) * fluid_volume);
    case Evaluation::Toxicity:
    case Evaluation::Zone_Toxicity:
      return 100 * fluid_volume;
    case Evaluation::Sediment:
    case Evaluation::Zone_Sediment:
      return std::max(0.0, fluid.concentration * volume - fluid.background * fluid_volume);
  }
  return 0;
}

double Capsule_Radius(double volume, double whole) {
  if (!(volume > 0)) return 0;
  const double greatest = whole / 2;
  if (volume >= 4 * kPi / 3 * greatest * greatest * greatest) return Cbrt(volume * 3 / (4 * kPi));
  // pi r2 (whole - 2 r) + 4/3 pi r3 = volume rises and is convex up to whole/2: Newton's steps come
  // down to its root from there.
  double radius = greatest;
  for (int step = 0; step < 100; ++step) {
    const double excess = radius * radius * (whole - radius * 2 / 3) - volume / kPi;
    const double next = radius - excess / (2 * radius * (whole - radius));
    if (!(next < radius)) break;
    radius = next;
  }
  return radius;
}

Release Release_Load(const Model_Input& input, const Water& water,
                     const std::function<double(const Cloud_Start&)>& fall_time) {
  Release release;
  double total = 0;
  for (const Batch& batch : input.batches) total += batch.volume;
  Batch_Start start;
  start.x = input.vessel_x;
  start.z = input.vessel_z;
  double before = 0;  // cu yd
  for (std::size_t number = 0; number < input.batches.size(); ++number) {
    const Batch& batch = input.batches[number];
    const bool any = batch.volume > 0;
    start.duration = any ? input.emptying * (batch.volume / total) : 0;
    start.draft = input.draft_full;
    if (any)
      start.draft += (input.draft_empty - input.draft_full) * ((before + batch.volume / 2) / total);
    start.fall_time = 0;
    start.clouds = 0;
    if (any) {
      Leaving leaving{input,
                      water,
                      batch,
                      number,
                      start,
                      batch.volume * kCubicFeetPerYard,
                      std::max(input.length, input.width)};
      if (start.duration > 0) {
        const Cloud_Start whole = Cloud_Of(leaving, 1, 0, start.duration / 2);
        leaving.start.fall_time = std::max(0.0, fall_time(whole));
        leaving.start.clouds = Clouds_Of(leaving, whole, input.batches.size());
      } else {
        leaving.start.clouds = 1;
      }
      start = leaving.start;
      for (int k = 0; k < start.clouds; ++k)
        release.clouds.push_back(Cloud_Of(leaving, start.clouds, static_cast<std::size_t>(k),
                                          start.duration * (k + 0.5) / start.clouds));
    }
    release.batches.push_back(start);
    before += batch.volume;
    start.begin += start.duration;
    start.x += batch.velocity_x * start.duration;
    start.z += batch.velocity_z * start.duration;
  }
  return release;
}

}  // namespace companion
