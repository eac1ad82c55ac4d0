#include "wizard/grid_picks.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "core/number_text.h"
#include "core/velocity_types.h"

namespace barvon {
namespace {

constexpr int kFewestPoints = 8;

float Larger_Size(double one, double other) {
  return static_cast<float>(std::max(std::fabs(one), std::fabs(other)));
}

std::size_t Points_Of(int count) {
  return static_cast<std::size_t>(std::clamp(count, 0, kMaxGridPoints));
}

int Points_For(double extent, double spacing) {
  const double points = 1 + Int(extent / spacing);
  return static_cast<int>(std::clamp<double>(points, kFewestPoints, kMaxGridPoints));
}

/// The point, from 1 to `points`, that is nearest to a distance from the first.
int Nearest(double distance, double spacing, int points) {
  if (spacing <= 0 || distance <= 0) return 1;
  const double interval = std::floor(distance / spacing);
  const bool beyond_middle = distance > (interval + 0.5) * spacing;
  return static_cast<int>(std::clamp<double>(interval + 1 + (beyond_middle ? 1 : 0), 1, points));
}

double Upstream(float velocity, int first, int last) {
  if (velocity < 0) return last - 1;
  if (velocity > 0) return first - 1;
  return (last - 1 + first - 1) * 0.5;
}

}  // namespace

Largest_Velocity Largest_Velocity_Of(const ProjectRecord& record) {
  const double type = record.VelocityProfileType;
  if (type == kTwoPointVelocity) {
    return {Larger_Size(record.VelX1, record.VelX2), Larger_Size(record.VelZ1, record.VelZ2)};
  }
  if (type == kSingleVelocity || type == kLogarithmicVelocity || type == kUnsteadyVelocity) {
    return {static_cast<float>(record.AvgVelocityX), static_cast<float>(record.AvgVelocityZ)};
  }
  Largest_Velocity largest;
  if (type != kVelocityField) return largest;
  const auto across = Points_Of(record.NMAX0), down = Points_Of(record.MMAX0);
  for (std::size_t i = 1; i <= across; ++i) {
    for (std::size_t j = 1; j <= down; ++j) {
      largest.MaxVelX = Larger_Size(largest.MaxVelX, record.VelocityFieldX[i][j]);
      largest.MaxVelZ = Larger_Size(largest.MaxVelZ, record.VelocityFieldZ[i][j]);
    }
  }
  return largest;
}

double Spacing_For(float velocity) {
  if (velocity < 0.1F) return 35;
  if (velocity <= 0.3F) return 95;
  if (velocity <= 0.7F) return 200;
  if (velocity <= 1.5F) return 350;
  return 700;
}

Constructed_Grid Construct_Grid(Picture_Point upper_left, double width, double height,
                                const Largest_Velocity& velocity) {
  Constructed_Grid grid;
  grid.upper_left = upper_left;
  grid.points_x = Points_For(height, Spacing_For(velocity.MaxVelX));
  grid.points_z = Points_For(width, Spacing_For(velocity.MaxVelZ));
  grid.spacing_x = height / (grid.points_x - 1);
  grid.spacing_z = width / (grid.points_z - 1);
  return grid;
}

Grid_Pick Nearest_Point(const Constructed_Grid& grid, Picture_Point place) {
  return {Nearest(place.x - grid.upper_left.x, grid.spacing_z, grid.points_z),
          Nearest(place.y - grid.upper_left.y, grid.spacing_x, grid.points_x)};
}

Picture_Point Place_Of(const Constructed_Grid& grid, Grid_Pick pick) {
  return {(pick.column - 1) * grid.spacing_z + grid.upper_left.x,
          (pick.row - 1) * grid.spacing_x + grid.upper_left.y};
}

Picture_Point Vessel_Between(const Constructed_Grid& grid, Grid_Pick first, Grid_Pick last,
                             const Largest_Velocity& velocity) {
  return {
      Upstream(velocity.MaxVelZ, first.column, last.column) * grid.spacing_z + grid.upper_left.x,
      Upstream(velocity.MaxVelX, first.row, last.row) * grid.spacing_x + grid.upper_left.y};
}

}  // namespace barvon
