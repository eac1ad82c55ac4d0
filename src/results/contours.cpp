#include "results/contours.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

#include "results/cell_places.h"

namespace barvon {
namespace {

constexpr double kNoValue = std::numeric_limits<double>::quiet_NaN();

bool Is_Same(const Result_Point& a, const Result_Point& b) { return a.x == b.x && a.z == b.z; }

// Between its neighbours, `b` tells nothing: they go straight past it along an axis, or the way
// goes to it and back, with no area beside it.
bool Is_Idle(const Result_Point& a, const Result_Point& b, const Result_Point& c) {
  return (a.x == b.x && b.x == c.x) || (a.z == b.z && b.z == c.z) || Is_Same(a, c);
}

/// The centres of the cells with two rims around them. The inner one lies on the grid's edge and
/// repeats its neighbours. The outer one has no values and the same places, so that an area that
/// reaches the edge closes along it.
class Node_Net {
 public:
  Node_Net(const Cell_Values& cells, double level)
      : rows_(static_cast<std::size_t>(cells.rows) + 4),
        columns_(static_cast<std::size_t>(cells.columns) + 4),
        level_(level) {
    x_ = Places(rows_, cells.spacing_x);
    z_ = Places(columns_, cells.spacing_z);
    values_.assign(rows_ * columns_, kNoValue);
    for (std::size_t row = 1; row + 1 < rows_; ++row) {
      for (std::size_t column = 1; column + 1 < columns_; ++column) {
        const double value = cells.At(std::clamp(static_cast<int>(row) - 1, 1, cells.rows),
                                      std::clamp(static_cast<int>(column) - 1, 1, cells.columns));
        if (std::isfinite(value)) values_[row * columns_ + column] = value;
      }
    }
  }

  /// Goes along all crossings of the level. `closes`: the outlines of areas, else lines alone.
  std::vector<Contour_Line> Walk(bool closes) {
    Link_All(closes);
    Part_At_Ridges();
    std::vector<Contour_Line> lines;
    if (!closes) {
      std::vector<bool> entered(next_.size(), false);
      for (const std::size_t to : next_) {
        if (to != kNone) entered[to] = true;
      }
      for (std::size_t edge = 0; edge < next_.size(); ++edge) {
        if (next_[edge] != kNone && !entered[edge]) lines.push_back(Line_From(edge, false));
      }
    }
    for (std::size_t edge = 0; edge < next_.size(); ++edge) {
      if (next_[edge] != kNone) lines.push_back(Line_From(edge, true));
    }
    return lines;
  }

 private:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  static std::vector<double> Places(std::size_t count, double spacing) {
    std::vector<double> places(count);
    const double last = static_cast<double>(count) - 5;
    for (std::size_t i = 0; i < count; ++i) {
      places[i] = std::clamp(static_cast<double>(i) - 2, -0.5, last + 0.5) * spacing;
    }
    return places;
  }

  bool Is_Above(std::size_t node) const { return values_[node] >= level_; }  // not so NaN

  // An edge is told by its upper or left node: those to the right first, then those downward.
  std::size_t Right_Of(std::size_t node) const { return node; }
  std::size_t Down_Of(std::size_t node) const { return values_.size() + node; }

  void Link_All(bool closes) {
    next_.assign(2 * values_.size(), kNone);
    for (std::size_t row = 0; row + 1 < rows_; ++row) {
      for (std::size_t column = 0; column + 1 < columns_; ++column) {
        Link_Square(row * columns_ + column, closes);
      }
    }
  }

  void Link_Square(std::size_t node, bool closes) {
    // Clockwise from the upper left one; the edge with the same number comes before its corner.
    const std::array<std::size_t, 4> corners{node, node + 1, node + columns_ + 1, node + columns_};
    std::array<bool, 4> above{};
    int count = 0;
    double sum = 0;
    for (std::size_t i = 0; i < 4; ++i) {
      above[i] = Is_Above(corners[i]);
      count += above[i] ? 1 : 0;
      sum += values_[corners[i]] / 4;
    }
    if (count == 0 || count == 4 || (!closes && std::isnan(sum))) return;
    const std::array<std::size_t, 4> edges{Down_Of(node), Right_Of(node), Down_Of(node + 1),
                                           Right_Of(node + columns_)};
    if (count == 2 && above[0] == above[2]) {
      // Joined corners above leave each corner below alone, else those above are alone.
      const bool joined = sum >= level_;
      for (std::size_t i = 0; i < 4; ++i) {
        if (above[i] == joined) continue;
        const std::size_t before = edges[i], after = edges[(i + 1) % 4];
        next_[joined ? after : before] = joined ? before : after;
      }
      return;
    }
    std::size_t from = 0, to = 0;
    for (std::size_t i = 0; i < 4; ++i) {
      if (above[i] && !above[(i + 3) % 4]) from = edges[i];
      if (above[i] && !above[(i + 1) % 4]) to = edges[(i + 1) % 4];
    }
    next_[from] = to;
  }

  // Between two neighbours at the level with all beside them below, an outline goes there and back
  // with no area in between. It turns round at either of them instead, so that areas which only
  // such a ridge joins are apart.
  void Part_At_Ridges() {
    for (std::size_t node = columns_ + 1; node + columns_ + 1 < values_.size(); ++node) {
      Part(Down_Of(node - columns_ + 1), Down_Of(node - columns_), Down_Of(node),
           Down_Of(node + 1));
      Part(Right_Of(node - 1), Right_Of(node + columns_ - 1), Right_Of(node + columns_),
           Right_Of(node));
    }
  }

  // From `a` to `b` on one side of two cells, from `c` to `d` back on the other.
  void Part(std::size_t a, std::size_t b, std::size_t c, std::size_t d) {
    if (next_[a] != b || next_[c] != d) return;
    if (!Is_Same(Crossing(a), Crossing(d)) || !Is_Same(Crossing(b), Crossing(c))) return;
    std::swap(next_[a], next_[c]);
  }

  Result_Point Crossing(std::size_t edge) const {
    std::size_t above = edge % values_.size();
    std::size_t below = edge < values_.size() ? above + 1 : above + columns_;
    if (!Is_Above(above)) std::swap(above, below);
    const double high = values_[above], low = values_[below];
    // Halves, so that the largest numbers do not run over.
    double part = std::isfinite(low) ? (high / 2 - level_ / 2) / (high / 2 - low / 2) : 0.5;
    part = part >= 0 ? std::min(part, 1.0) : 0;
    const auto way = [&](double from, double to) { return from + part * (to - from); };
    return {way(x_[above / columns_], x_[below / columns_]),
            way(z_[above % columns_], z_[below % columns_])};
  }

  static void Add(std::vector<Result_Point>& points, const Result_Point& point) {
    while (points.size() >= 2 && Is_Idle(points[points.size() - 2], points.back(), point)) {
      points.pop_back();
    }
    if (points.empty() || !Is_Same(points.back(), point)) points.push_back(point);
  }

  static void Close(std::vector<Result_Point>& points) {
    std::size_t first = 0;
    while (points.size() - first >= 2) {
      const std::size_t last = points.size() - 1;
      if (Is_Same(points[last], points[first]) ||
          Is_Idle(points[last - 1], points[last], points[first])) {
        points.pop_back();
      } else if (Is_Idle(points[last], points[first], points[first + 1])) {
        ++first;
      } else {
        break;
      }
    }
    points.erase(points.begin(), points.begin() + static_cast<std::ptrdiff_t>(first));
  }

  Contour_Line Line_From(std::size_t edge, bool closed) {
    Contour_Line line;
    line.closed = closed;
    std::size_t at = edge;
    while (at != kNone) {
      Add(line.points, Crossing(at));
      at = std::exchange(next_[at], kNone);
      if (at == edge) break;
    }
    if (closed) Close(line.points);
    return line;
  }

  std::size_t rows_, columns_;
  double level_;
  std::vector<double> x_, z_;
  std::vector<double> values_;
  std::vector<std::size_t> next_;  // from the crossing of an edge to the next one
};

std::vector<Contour_Line> Walk(const Cell_Values& values, double level, bool closes) {
  if (!Is_Whole(values) || !std::isfinite(level)) return {};
  return Node_Net(values, level).Walk(closes);
}

}  // namespace

std::vector<Contour_Ring> Regions_Above(const Cell_Values& values, double level) {
  std::vector<Contour_Ring> rings;
  for (Contour_Line& line : Walk(values, level, true)) {
    const double area = Signed_Area(line.points);
    if (area != 0) rings.push_back({std::move(line.points), area < 0});
  }
  return rings;
}

std::vector<Contour_Line> Contour_Lines(const Cell_Values& values, double level) {
  std::vector<Contour_Line> lines = Walk(values, level, false);
  std::erase_if(
      lines, [](const Contour_Line& line) { return line.points.size() < (line.closed ? 3 : 2); });
  return lines;
}

double Signed_Area(const std::vector<Result_Point>& ring) {
  double twice = 0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    // From the first point on, so that far places do not blur a small area.
    const Result_Point& a = ring[i];
    const Result_Point& b = ring[(i + 1) % ring.size()];
    const Result_Point& origin = ring.front();
    twice += (a.x - origin.x) * (b.z - origin.z) - (b.x - origin.x) * (a.z - origin.z);
  }
  return twice / 2;
}

}  // namespace barvon
