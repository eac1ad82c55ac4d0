#pragma once

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "pictures/shapes/axis_scale.h"
#include "pictures/shapes/plot_frame.h"
#include "pictures/shapes/shapes.h"

namespace barvon {

/// When a simulation ends, steps and prints, in seconds from the opening of the vessel. NaN stands
/// for an empty cell.
struct Run_Times {
  double duration = 0;
  double time_step = 0;
  bool own_prints = false;     // else the solver prints quarterly
  std::vector<double> prints;  // the user's own, in the order of the table
};

struct Print_Mark {
  double time = 0;        // s
  bool is_taken = false;  // within the duration
};

/// What the time line draws.
struct Time_Drawing {
  std::optional<double> duration;  // s, above 0
  std::optional<double> step;      // s, above 0
  double steps = 0;                // whole ones within the duration
  std::vector<Print_Mark> prints;
  bool own_prints = false;
  int left_out = 0;  // prints with an empty cell or a time that cannot be drawn
  Axis_Scale time;   // s, from 0 or the earliest print
  std::string note;  // what is odd about the times, in words; may be empty
  std::string description;
};

Time_Drawing Draw_Times(const Run_Times& times);

/// The lines of the picture, from top to bottom.
enum class Time_Lane { duration, steps, prints };
inline constexpr int kTimeLanes = 3;

/// Time across; upright a lane is as high as 1.
Plot_Frame Frame_Of(const Time_Drawing& drawing, const Canvas& canvas);
Shape_List Time_Shapes(const Time_Drawing& drawing, const Canvas& canvas);

/// What a lane shows, in words: "Time steps: 36 of 100 s".
std::string Lane_Words(const Time_Drawing& drawing, Time_Lane lane);

}  // namespace barvon
