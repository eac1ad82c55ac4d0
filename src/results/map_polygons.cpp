#include "results/map_polygons.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <numbers>
#include <optional>
#include <set>
#include <utility>

namespace barvon {
namespace {

using Edge = std::pair<Map_Step, Map_Step>;

/// Rounds outlines so that they still do not cross: each line goes through every step that is a
/// corner of any outline and whose square the line passes (snap rounding; J. D. Hobby, "Practical
/// segment intersection with finite precision output", Computational Geometry 13, 1999). Corners
/// alone, rounded one by one, could come to lie on another line or behind it.
class Rounding {
 public:
  explicit Rounding(const std::vector<Map_Outline>& outlines) {
    for (const Map_Outline& outline : outlines) {
      for (const Map_Point& point : outline) corners_.push_back(Rounded_Step(point));
    }
    std::ranges::sort(corners_);
    corners_.erase(std::unique(corners_.begin(), corners_.end()), corners_.end());
  }

  Map_Ring Ring(const Map_Outline& outline) const {
    Map_Ring ring;
    for (std::size_t i = 0; i < outline.size(); ++i) {
      const Map_Point& from = outline[i];
      const Map_Point& to = outline[(i + 1) % outline.size()];
      ring.push_back(Rounded_Step(from));
      for (const auto& [part, step] : Passed(from, to)) ring.push_back(step);
    }
    return ring;
  }

 private:
  using Passage = std::pair<double, Map_Step>;  // a part of the way from 0 to 1

  /// The corners between the line's ends, in its order.
  std::vector<Passage> Passed(const Map_Point& from, const Map_Point& to) const {
    const Map_Step first = Rounded_Step(from), last = Rounded_Step(to);
    const Map_Step low = {std::min(first.east, last.east), std::min(first.north, last.north)};
    const Map_Step high = {std::max(first.east, last.east), std::max(first.north, last.north)};
    std::vector<Passage> passed;
    for (auto at = std::ranges::lower_bound(corners_, low); at != corners_.end(); ++at) {
      if (high < *at) break;
      if (at->north < low.north || at->north > high.north || *at == first || *at == last) continue;
      if (const auto part = Part_Within(from, to, *at)) passed.emplace_back(*part, *at);
    }
    std::ranges::sort(passed);
    return passed;
  }

  /// The middle of the part of a line that is in the square of a step.
  static std::optional<double> Part_Within(const Map_Point& from, const Map_Point& to,
                                           const Map_Step& step) {
    double in = 0, out = 1;
    const auto clip = [&in, &out](double start, double end, long long middle) {
      // The upper side belongs to the next square; this is more than the digits of large
      // coordinates leave unsure.
      constexpr double kUpperSide = 0.5 - 1e-5;
      const double lower = static_cast<double>(middle) - 0.5;
      const double upper = static_cast<double>(middle) + kUpperSide;
      if (start == end) return start >= lower && start <= upper;
      const double to_lower = (lower - start) / (end - start);
      const double to_upper = (upper - start) / (end - start);
      in = std::max(in, std::min(to_lower, to_upper));
      out = std::min(out, std::max(to_lower, to_upper));
      return in <= out;
    };
    if (!clip(from.easting, to.easting, step.east) ||
        !clip(from.northing, to.northing, step.north)) {
      return std::nullopt;
    }
    return (in + out) / 2;
  }

  std::vector<Map_Step> corners_;  // in order, each once
};

/// The edges of the outlines. One that is there both ways bounds nothing, and neither is.
std::vector<Edge> Edges_Of(const std::vector<Map_Outline>& outlines) {
  const Rounding rounding(outlines);
  std::map<Edge, int> count;
  for (const Map_Outline& outline : outlines) {
    const Map_Ring ring = rounding.Ring(outline);
    for (std::size_t i = 0; i < ring.size(); ++i) {
      const Edge edge(ring[i], ring[(i + 1) % ring.size()]);
      if (edge.first == edge.second) continue;
      const auto back = count.find({edge.second, edge.first});
      if (back != count.end() && back->second > 0) {
        --back->second;
      } else {
        ++count[edge];
      }
    }
  }
  std::vector<Edge> edges;
  for (const auto& [edge, times] : count) edges.insert(edges.end(), std::max(times, 0), edge);
  return edges;
}

double Direction(const Map_Step& from, const Map_Step& to) {
  return std::atan2(static_cast<double>(to.north - from.north),
                    static_cast<double>(to.east - from.east));
}

/// Walks along edges, and where several go on takes the one most to the left: so it goes round one
/// part of the area, also where two parts touch.
class Walk {
 public:
  explicit Walk(std::vector<Edge> edges) : edges_(std::move(edges)), used_(edges_.size(), false) {
    for (std::size_t i = 0; i < edges_.size(); ++i) from_[edges_[i].first].push_back(i);
  }

  std::vector<Map_Ring> Rings() {
    std::vector<Map_Ring> rings;
    for (std::size_t start = 0; start < edges_.size(); ++start) {
      if (used_[start]) continue;
      Map_Ring ring;
      for (std::optional<std::size_t> at = start; at; at = Next(*at, start)) {
        used_[*at] = true;
        ring.push_back(edges_[*at].first);
      }
      rings.push_back(std::move(ring));
    }
    return rings;
  }

 private:
  /// Nothing where the ring is closed.
  std::optional<std::size_t> Next(std::size_t edge, std::size_t start) const {
    const auto& [before, here] = edges_[edge];
    const auto out = from_.find(here);
    if (out == from_.end()) return std::nullopt;
    std::optional<std::size_t> best;
    double least = 0;
    for (const std::size_t candidate : out->second) {
      if (used_[candidate] && candidate != start) continue;
      double turn = Direction(here, before) - Direction(here, edges_[candidate].second);
      if (turn <= 0) turn += 2 * std::numbers::pi;
      if (!best || turn < least) {
        best = candidate;
        least = turn;
      }
    }
    return best == start ? std::nullopt : best;
  }

  std::vector<Edge> edges_;
  std::vector<bool> used_;
  std::map<Map_Step, std::vector<std::size_t>> from_;
};

/// The ring in parts none of which comes to a position twice.
std::vector<Map_Ring> Parts_Of(const Map_Ring& ring) {
  std::vector<Map_Ring> parts;
  Map_Ring walked;
  std::set<Map_Step> seen;
  for (const Map_Step& step : ring) {
    if (!seen.insert(step).second) {
      const auto first = std::ranges::find(walked, step);
      parts.emplace_back(first, walked.end());
      for (auto left = first + 1; left != walked.end(); ++left) seen.erase(*left);
      walked.erase(first, walked.end());
    }
    walked.push_back(step);
  }
  parts.push_back(std::move(walked));
  return parts;
}

/// Whether the middle of an edge is in a ring that does not have the edge, by the odd-even rule.
/// Rings meet in positions alone, so that the middle is on none of the ring's edges.
bool Holds_Middle(const Map_Ring& ring, const Edge& edge) {
  const auto [east, north] = std::pair(edge.first.east + edge.second.east,
                                       edge.first.north + edge.second.north);  // twice
  bool inside = false;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Map_Step& a = ring[i];
    const Map_Step& b = ring[(i + 1) % ring.size()];
    if ((2 * a.north > north) == (2 * b.north > north)) continue;
    // Above 0 where the edge upward passes on the right of the middle.
    const long double side =
        static_cast<long double>(b.east - a.east) * static_cast<long double>(north - 2 * a.north) -
        static_cast<long double>(b.north - a.north) * static_cast<long double>(east - 2 * a.east);
    if ((side > 0) == (b.north > a.north)) inside = !inside;
  }
  return inside;
}

/// The smallest polygon around a hole. Corners of a hole may be corners of the outline around it,
/// and of polygons that lie in the hole; the middle of one of its edges is inside of the former and
/// outside of the latter.
Map_Polygon* Around(std::vector<Map_Polygon>& polygons, const Map_Ring& hole) {
  Map_Polygon* around = nullptr;
  for (Map_Polygon& polygon : polygons) {
    if (Holds_Middle(polygon.outer, {hole[0], hole[1]}) &&
        (around == nullptr || Twice_Area_Of(polygon.outer) < Twice_Area_Of(around->outer))) {
      around = &polygon;
    }
  }
  return around;
}

}  // namespace

long double Twice_Area_Of(const Map_Ring& ring) {
  long double twice = 0;
  for (std::size_t i = 1; i + 1 < ring.size(); ++i) {
    const auto away = [&ring](const Map_Step& step) {
      return std::pair(static_cast<long double>(step.east - ring.front().east),
                       static_cast<long double>(step.north - ring.front().north));
    };
    const auto [east, north] = away(ring[i]);
    const auto [next_east, next_north] = away(ring[i + 1]);
    twice += east * next_north - next_east * north;
  }
  return twice;
}

Map_Step Rounded_Step(const Map_Point& point) {
  const auto steps = [](double way) { return static_cast<long long>(std::floor(way + 0.5)); };
  return {steps(point.easting), steps(point.northing)};
}

std::vector<Map_Polygon> Polygons_Within(const std::vector<Map_Outline>& outlines) {
  std::vector<Map_Polygon> polygons;
  std::vector<Map_Ring> holes;
  for (const Map_Ring& ring : Walk(Edges_Of(outlines)).Rings()) {
    for (Map_Ring& part : Parts_Of(ring)) {
      const long double area = Twice_Area_Of(part);
      if (area > 0) {
        polygons.push_back({std::move(part), {}});
      } else if (area < 0) {
        holes.push_back(std::move(part));
      }
    }
  }
  for (Map_Ring& hole : holes) {
    if (Map_Polygon* around = Around(polygons, hole)) around->holes.push_back(std::move(hole));
  }
  return polygons;
}

}  // namespace barvon
