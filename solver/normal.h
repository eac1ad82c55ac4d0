#pragma once

#include <vector>

namespace companion {

/// The standard normal distribution from a table of exact values and slopes, cubic between them:
/// 1e-11 off at most and rising everywhere, in a tenth of the time of the function itself.
class Normal {
 public:
  static const Normal& Table();

  /// Share below u.
  double Below(double u) const {
    const double size = u < 0 ? -u : u;
    if (size >= kReach) return u < 0 ? 0 : 1;
    const double place = size * kNodes;
    const int node = static_cast<int>(place);
    const double t = place - node;
    const Node& a = nodes_[static_cast<std::size_t>(node)];
    const Node& b = nodes_[static_cast<std::size_t>(node) + 1];
    const double rise = b.share - a.share;
    const double lower = a.slope - rise, upper = rise - b.slope;
    const double half = a.share + t * (rise + (1 - t) * (lower * (1 - t) + upper * t));
    return u < 0 ? 0.5 - half : 0.5 + half;
  }

  /// Density at u, to 1e-10.
  double Density(double u) const {
    const double size = u < 0 ? -u : u;
    if (size >= kReach) return 0;
    const double place = size * kNodes;
    const int node = static_cast<int>(place);
    const double t = place - node;
    const Node& a = nodes_[static_cast<std::size_t>(node)];
    const Node& b = nodes_[static_cast<std::size_t>(node) + 1];
    const double rise = b.slope - a.slope;
    const double lower = -a.bend - rise, upper = rise + b.bend;
    return kNodes * (a.slope + t * (rise + (1 - t) * (lower * (1 - t) + upper * t)));
  }

 private:
  static constexpr int kNodes = 128;  // of one standard deviation
  static constexpr double kReach = 8.5;
  /// Share between 0 and the node; its slope, and that of minus the slope, over a node's distance.
  struct Node {
    double share = 0, slope = 0, bend = 0;
  };

  Normal();
  std::vector<Node> nodes_;
};

}  // namespace companion
