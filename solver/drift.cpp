#include "solver/drift.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "solver/det_math.h"

namespace companion {
namespace {

/// C <- M C M^T, M = 1 + A + A2/2: the strain A over a time to the second order. A place where the
/// current runs together or apart for hours would end in a line or in more than the grid: what is
/// thinner than kThinnest beside its length, or would grow beyond `widest` ft2, keeps its form.
void Deform(Plan_Moments& moments, const std::array<double, 4>& strain, double seconds,
            double widest) {
  const double a = strain[0] * seconds, b = strain[1] * seconds;
  const double c = strain[2] * seconds, d = strain[3] * seconds;
  const double xx = 1 + a + 0.5 * (a * a + b * c), xz = b + 0.5 * b * (a + d);
  const double zx = c + 0.5 * c * (a + d), zz = 1 + d + 0.5 * (b * c + d * d);
  const Plan_Moments& old = moments;
  const double up = xx * old.xx + xz * old.xz, right = xx * old.xz + xz * old.zz;
  const double low = zx * old.xx + zz * old.xz, across = zx * old.xz + zz * old.zz;
  const Plan_Moments later{up * xx + right * xz, up * zx + right * zz, low * zx + across * zz};
  const double determinant = later.xx * later.zz - later.xz * later.xz;
  const bool thin =
      determinant < kThinnest * later.xx * later.zz || determinant < kSmallest * kSmallest;
  const bool wide = later.xx > std::max(widest, old.xx) || later.zz > std::max(widest, old.zz);
  if (!thin && !wide) moments = later;
}

}  // namespace

double Growth(double determinant, double dissipation, double seconds) {
  if (dissipation <= 0) return 0;
  // 4^(4/3)
  constexpr double kPowerOfWidth = 6.3496042078727974;
  static_assert(kDiffusionWidth == 4);
  const double root = Cbrt(std::sqrt(std::max(determinant, 0.0)));
  const double more = 2.0 / 3 * kPowerOfWidth * dissipation * seconds;
  const double later = root + more;
  return more * (later * later + later * root + root * root);
}

Drift::Drift(const Model_Input& input, const Water& water, int layers)
    : input_(input),
      water_(water),
      uniform_(input.constant_depth && input.velocity_type != 4),
      level_(input.constant_depth && !(input.hole_depth > 0)),
      currents_(static_cast<std::size_t>(layers)) {
  for (int l = 0; l < layers; ++l) middles_.push_back(Middle_Share(l, layers));
  const double x = input.points_x * input.spacing_x, z = input.points_z * input.spacing_z;
  widest_ = x * x + z * z;
  Find_Land();
}

/// How many cells each cell is from land, straight or across: two passes over the grid.
void Drift::Find_Land() {
  const int rows = input_.points_x - 1, columns = input_.points_z - 1;
  const int far = rows + columns;
  std::vector<int> cells(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns), far);
  const auto at = [&](int i, int k) -> int& {
    return cells[static_cast<std::size_t>(i) * static_cast<std::size_t>(columns) +
                 static_cast<std::size_t>(k)];
  };
  bool any = false;
  for (int i = 0; i < rows; ++i)
    for (int k = 0; k < columns; ++k)
      if (water_.Land_Point(i, k) && water_.Land_Point(i + 1, k) && water_.Land_Point(i, k + 1) &&
          water_.Land_Point(i + 1, k + 1)) {
        at(i, k) = 0;
        any = true;
      }
  if (!any) return;
  const auto look = [&](int i, int k, int di, int dk) {
    if (i + di < 0 || i + di >= rows || k + dk < 0 || k + dk >= columns) return;
    at(i, k) = std::min(at(i, k), at(i + di, k + dk) + 1);
  };
  for (int i = 0; i < rows; ++i)
    for (int k = 0; k < columns; ++k) {
      for (const int dk : {-1, 0, 1}) look(i, k, -1, dk);
      look(i, k, 0, -1);
    }
  for (int i = rows - 1; i >= 0; --i)
    for (int k = columns - 1; k >= 0; --k) {
      for (const int dk : {-1, 0, 1}) look(i, k, 1, dk);
      look(i, k, 0, 1);
    }
  cells_to_land_ = std::move(cells);
}

int Drift::Cells_To_Land(double x, double z) const {
  const int rows = input_.points_x - 1, columns = input_.points_z - 1;
  const auto held = [](double place, int cells) {
    return place > 0 ? static_cast<int>(std::min<double>(place, cells - 1)) : 0;
  };
  return cells_to_land_[static_cast<std::size_t>(held(x / input_.spacing_x, rows)) *
                            static_cast<std::size_t>(columns) +
                        static_cast<std::size_t>(held(z / input_.spacing_z, columns))];
}

void Drift::Drift_Uniform(Column& column, double time, double seconds) {
  const double middle = time + 0.5 * seconds;
  const bool steady = input_.velocity_type != 5;
  if (known_time_ < 0 || (!steady && known_time_ != middle)) {
    known_time_ = middle;
    for (std::size_t l = 0; l < currents_.size(); ++l)
      currents_[l] = water_.Current_At_Share(0, 0, middles_[l], middle);
  }
  for (std::size_t l = 0; l < currents_.size(); ++l) {
    column.layers[l].x += currents_[l].x * seconds;
    column.layers[l].z += currents_[l].z * seconds;
  }
}

void Drift::Drift_Layer(Layer& layer, double share, double time, double seconds) {
  int parts = 1;
  for (int part = 0; part < parts; ++part) {
    const int to_land = cells_to_land_.empty() ? 1 : Cells_To_Land(layer.x, layer.z);
    if (to_land == 0) return;
    const double length = seconds / parts;
    const double start = time + part * length;
    const Velocity first = water_.Current_At_Share(layer.x, layer.z, share, start);
    const double x = layer.x + 0.5 * length * first.x, z = layer.z + 0.5 * length * first.z;
    std::array<double, 4> strain{};
    if (water_.Strains()) strain = water_.Strain(x, z, share, start + 0.5 * length);
    if (parts == 1) {
      double most = 0;
      for (const double entry : strain) most = std::max(most, std::abs(entry) * seconds);
      double wanted = most / kGreatestTurn;
      const double cells = std::max(std::abs(first.x) * seconds / input_.spacing_x,
                                    std::abs(first.z) * seconds / input_.spacing_z);
      // Land that may be reached must not be stepped over; a current may double on its way there.
      if (!cells_to_land_.empty() && 2 * cells + 1 >= to_land) wanted = std::max(wanted, 2 * cells);
      if (wanted > 1) {
        parts = wanted < kMostParts ? static_cast<int>(std::ceil(wanted)) : kMostParts;
        part = -1;
        continue;
      }
    }
    const Velocity middle = water_.Current_At_Share(x, z, share, start + 0.5 * length);
    layer.x += length * middle.x;
    layer.z += length * middle.z;
    if (water_.Strains()) Deform(layer.spread, strain, length, widest_);
  }
}

void Drift::Move(Column& column, double time, double seconds) {
  const double dissipation = input_.coefficients.ALAMDA;
  const bool moves = !column.held;
  if (moves && uniform_) Drift_Uniform(column, time, seconds);
  for (std::size_t l = 0; l < column.layers.size(); ++l) {
    Layer& layer = column.layers[l];
    if (layer.amount <= 0) continue;
    // Half the diffusion before the strain and half behind it.
    Plan_Moments& s = layer.spread;
    const double half = 0.5 * Growth(s.xx * s.zz - s.xz * s.xz, dissipation, seconds);
    s.xx += half;
    s.zz += half;
    if (moves && !uniform_) Drift_Layer(layer, middles_[l], time, seconds);
    s.xx += half;
    s.zz += half;
  }
  if (!moves || level_) return;
  const Layer whole = Whole(column);
  if (whole.amount <= 0 || water_.Land_Cell(whole.x, whole.z)) return;
  column.depth = water_.Bed(whole.x, whole.z);
}

}  // namespace companion
