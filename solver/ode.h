#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <limits>
#include <vector>

namespace companion {

inline constexpr double kEventTime = 1e-9;    // s, to which the moment of an event is found
inline constexpr double kLeastStep = 1e-9;    // s, a step this short may be off by kForcedError
inline constexpr double kForcedError = 1e3;   // of the tolerance
inline constexpr int kMostSteps = 20000;      // of a phase, tries included
inline constexpr double kStepSafety = 0.9;    // of the step that the error would allow
inline constexpr double kLeastChange = 0.2;   // of one step to the next
inline constexpr double kGreatestChange = 5;  // of one step to the next

/// Steps a set of ordinary differential equations on, with the pair of orders 5 and 4 of Dormand
/// and Prince (1980), the fifth carried on.
class Integrator {
 public:
  using Values = std::vector<double>;
  using Rates = std::function<void(double time, const Values& values, Values& rates)>;
  /// How far an event is past: at least 0 from its moment on, below 0 before it, and continuous.
  using Past = std::function<double(double time, const Values& values)>;

  /// The error of a step is held to `tolerance` of each value, or of its floor where the value is
  /// smaller. `floors` has as many as there are values, all above 0.
  Integrator(Rates rates, double tolerance, Values floors);

  /// The values from this one on only rise: where a step's error would let one fall, it stays.
  void Rise_From(std::size_t first) { rising_ = first; }

  void Start(double time, Values values);
  /// One step, to `limit` at the most. Where `past` comes to 0 in it, it ends there, within 1e-9 s
  /// behind that moment, and the answer is yes. Where no step suits, it stays and is exhausted.
  bool Step(double limit, const Past& past);

  double Time() const { return time_; }
  const Values& Now() const { return values_; }
  /// The phase has used up its steps: whoever drives it ends it.
  bool Exhausted() const { return tries_ >= kMostSteps; }

 private:
  void Try(double step, Values& end);
  double Find(double step, double at_end, const Past& past);
  double Error(double step, const Values& end) const;
  double First_Step() const;

  Rates rates_;
  double tolerance_;
  Values floors_;
  double time_ = 0, step_ = 0;
  int tries_ = 0;
  std::size_t rising_ = std::numeric_limits<std::size_t>::max();
  Values values_, trial_, stage_;
  std::array<Values, 7> slopes_;
};

}  // namespace companion
