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

/// The edges of the outlines. One that is there both ways bounds nothing, and neither is.
std::vector<Edge> Edges_Of(const std::vector<Map_Ring>& outlines) {
  std::map<Edge, int> count;
  for (const Map_Ring& ring : outlines) {
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

/// By the odd-even rule.
bool Holds(const Map_Ring& ring, const Map_Step& step) {
  bool inside = false;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Map_Step& a = ring[i];
    const Map_Step& b = ring[(i + 1) % ring.size()];
    if ((a.north > step.north) == (b.north > step.north)) continue;
    const double part =
        static_cast<double>(step.north - a.north) / static_cast<double>(b.north - a.north);
    const double crossing =
        static_cast<double>(a.east) + part * static_cast<double>(b.east - a.east);
    if (static_cast<double>(step.east) < crossing) inside = !inside;
  }
  return inside;
}

/// The smallest polygon around a hole. A corner of it may touch the outline, so all have a voice.
Map_Polygon* Around(std::vector<Map_Polygon>& polygons, const Map_Ring& hole) {
  Map_Polygon* around = nullptr;
  for (Map_Polygon& polygon : polygons) {
    const auto inside = std::ranges::count_if(
        hole, [&](const Map_Step& step) { return Holds(polygon.outer, step); });
    if (2 * static_cast<std::size_t>(inside) > hole.size() &&
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

std::vector<Map_Polygon> Polygons_Within(const std::vector<Map_Ring>& outlines) {
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
