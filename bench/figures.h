#pragma once

#include <time.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace barvon::bench {

/// Milliseconds of a clock: CLOCK_MONOTONIC, or CLOCK_PROCESS_CPUTIME_ID, which does not see what
/// else the machine does.
inline double Now(clockid_t clock) {
  timespec now{};
  ::clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// What a piece of work took, ms.
struct Cost {
  double elapsed = 0;
  double processor = 0;
};

inline Cost Cost_Of(const std::function<void()>& work) {
  const double processor = Now(CLOCK_PROCESS_CPUTIME_ID), begun = Now(CLOCK_MONOTONIC);
  work();
  return {Now(CLOCK_MONOTONIC) - begun, Now(CLOCK_PROCESS_CPUTIME_ID) - processor};
}

/// Of one value at least; of an even count the mean of the middle two.
inline double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return (values[(values.size() - 1) / 2] + values[values.size() / 2]) / 2;
}

/// The medians of both clocks.
inline Cost Median(const std::vector<Cost>& costs) {
  std::vector<double> elapsed, processor;
  for (const Cost& cost : costs) {
    elapsed.push_back(cost.elapsed);
    processor.push_back(cost.processor);
  }
  return {Median(elapsed), Median(processor)};
}

/// Program and limit in turns, in one process. Which goes first changes from round to round:
/// neither always finds the caches warm.
struct Turns {
  Cost program, limit;
};
inline Turns Take_Turns(int rounds, const std::function<void()>& program,
                        const std::function<void()>& limit) {
  std::vector<Cost> programs, limits;
  for (int round = 0; round < rounds; ++round) {
    if (round % 2 == 0) programs.push_back(Cost_Of(program));
    limits.push_back(Cost_Of(limit));
    if (round % 2 != 0) programs.push_back(Cost_Of(program));
  }
  return {Median(programs), Median(limits)};
}

/// The lines of a measurement, and whether a goal was missed.
class Figures {
 public:
  void Note(const char* name, double seen, const char* unit) const {
    std::printf("%-60s %9.2f %s\n", name, seen, unit);
  }
  void Judge(const char* name, double seen, const char* unit, double goal) {
    const bool met = seen <= goal;
    std::printf("%-60s %9.2f %-6s goal %7.2f  %s\n", name, seen, unit, goal,
                met ? "met" : "MISSED");
    std::fflush(stdout);
    missed_ = missed_ || !met;
  }
  int Exit_Code() const { return missed_ ? 1 : 0; }

 private:
  bool missed_ = false;
};

}  // namespace barvon::bench
