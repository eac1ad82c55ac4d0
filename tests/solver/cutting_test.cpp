#include "solver/cutting.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "solver/basin.h"
#include "solver/columns.h"
#include "solver/parts.h"
#include "solver/raster.h"
#include "solver/verification.h"

namespace companion {
namespace {

constexpr int kPoints = 96;
constexpr double kSpacing = 50;
constexpr double kTwoPi = 6.283185307179586;

struct Eddies {
  double length = 2400;  // ft
  Velocity At(double x, double z) const {
    const double a = kTwoPi * x / length, b = kTwoPi * z / length;
    return {0.5 + 0.2 * std::sin(a) * std::cos(b), -0.2 * std::cos(a) * std::sin(b)};
  }
};

Model_Input Input_Of(const Eddies& eddies) {
  Model_Input input = Still_Basin();
  input.points_x = input.points_z = kPoints;
  input.spacing_x = input.spacing_z = kSpacing;
  input.vessel_x = 1200;
  input.vessel_z = 2400;
  input.velocity_type = 4;
  for (int i = 0; i < kPoints; ++i) {
    input.field_x.emplace_back();
    input.field_z.emplace_back();
    for (int k = 0; k < kPoints; ++k) {
      const Velocity v = eddies.At(i * kSpacing, k * kSpacing);
      input.field_x.back().push_back(v.x);
      input.field_z.back().push_back(v.z);
    }
  }
  return input;
}

/// Where what is at a place after an hour came from.
void Trace_Back(const Eddies& eddies, double& x, double& z) {
  const double h = -60;
  for (int step = 0; step < 60; ++step) {
    const Velocity a = eddies.At(x, z);
    const Velocity b = eddies.At(x + 0.5 * h * a.x, z + 0.5 * h * a.z);
    const Velocity c = eddies.At(x + 0.5 * h * b.x, z + 0.5 * h * b.z);
    const Velocity d = eddies.At(x + h * c.x, z + h * c.z);
    x += h / 6 * (a.x + 2 * b.x + 2 * c.x + d.x);
    z += h / 6 * (a.z + 2 * b.z + 2 * c.z + d.z);
  }
}

/// Means over cells by tracing points of them back: the current has no divergence.
std::vector<double> Exact(const Eddies& eddies, const Source& source) {
  constexpr int kEach = 3;
  const double variance = source.spread.xx;
  std::vector<double> cells;
  for (int i = 0; i < kPoints; ++i)
    for (int k = 0; k < kPoints; ++k) {
      double sum = 0;
      for (int a = 0; a < kEach; ++a)
        for (int b = 0; b < kEach; ++b) {
          double x = (i + (a - 1.0) / kEach) * kSpacing, z = (k + (b - 1.0) / kEach) * kSpacing;
          if (std::hypot(x - 3000, z - 2400) > 6 * std::sqrt(variance) + 900) continue;
          Trace_Back(eddies, x, z);
          const double dx = x - source.x, dz = z - source.z;
          sum += std::exp(-0.5 * (dx * dx + dz * dz) / variance);
        }
      cells.push_back(source.amount / (kTwoPi * variance) * sum / (kEach * kEach));
    }
  return cells;
}

struct Outcome {
  double peak = 0, difference = 0;  // over the exact ones
  std::size_t columns = 0;
};

Outcome After_An_Hour(double length, double sigma) {
  const Eddies eddies{length};
  const Model_Input input = Input_Of(eddies);
  const Water water(input, {});
  Passive passive(input, water, 1);
  const Source source = Round_Source(input, sigma);
  passive.Add(source);
  passive.Advance(3600);
  EXPECT_NEAR(In_Water(passive), source.amount, 1e-12 * source.amount);

  Raster raster(kPoints, kPoints, kSpacing, kSpacing);
  std::vector<Part> parts;
  Parts_At_Depth(passive.Columns(), 0, 30, parts);
  for (Part& part : parts) part.weight *= input.depth;
  raster.Add(parts);
  const std::vector<double> exact = Exact(eddies, source);
  double off = 0, sum = 0, highest = 0, exact_highest = 0;
  for (std::size_t c = 0; c < exact.size(); ++c) {
    off += std::abs(raster.Values()[c] - exact[c]);
    sum += exact[c];
    highest = std::max(highest, raster.Values()[c]);
    exact_highest = std::max(exact_highest, exact[c]);
  }
  return {highest / exact_highest - 1, off / sum, passive.Columns().size()};
}

TEST(Cutting, A_Cloud_In_Eddies_Keeps_Its_Form) {
  for (const double length : {4800.0, 2400.0})
    for (const double sigma : {75.0, 150.0, 300.0}) {
      const Outcome got = After_An_Hour(length, sigma);
      const std::string name = "eddies of " + std::to_string(static_cast<int>(length)) +
                               " ft, sigma " + std::to_string(static_cast<int>(sigma)) + " ft";
      RecordProperty(name, std::to_string(got.columns));
      Verified(name + ", L1 after an hour", "traced back", got.difference, 0.12);
      Verified(name + ", highest cell", "traced back", got.peak, 0.12);
      EXPECT_LE(got.columns, 201u);
    }
}

}  // namespace
}  // namespace companion
