#pragma once

#include <optional>
#include <string>
#include <vector>

#include "pictures/shapes/axis_scale.h"
#include "pictures/shapes/plot_frame.h"
#include "pictures/shapes/shapes.h"
#include "results/results.h"
#include "results/summary.h"

namespace barvon {

/// What is shown of the maxima over time.
struct Maxima_Choice {
  int species = 1;                   // of the own results, from 1
  std::optional<double> depth = {};  // ft; none: the largest over the output depths at each time
  bool logarithmic = false;
  bool inside = true, outside = true, outside_zid = true, limits = true;
  std::optional<double> held_against =
      {};  // a value in the species' unit that curves are held against
};

/// A curve of the maxima. Without a site there is one for all places.
struct Maxima_Curve {
  std::string name;  // "inside the site", the project in front where two are shown
  Result_Where where = Result_Where::outside;
  bool of_other = false;
  std::vector<Timed_Value> values;  // ascending in time
};

/// A value that curves are held against: one of the solver's limits, or a typed one.
struct Maxima_Limit {
  std::string name;   // "criterion outside the disposal site, 2 mg/l"
  std::string words;  // the same with what came of it
  double value = 0;
  double from = 0;  // earlier times do not count
  Result_Where where = Result_Where::outside;
  bool of_other = false;
  std::vector<Time_Span> exceeded;
};

/// What the picture of the maxima draws.
struct Maxima_Drawing {
  std::string title;  // "Sand at 20 ft"
  std::string unit;
  std::vector<Maxima_Curve> curves;
  std::vector<Maxima_Limit> limits;
  Axis_Scale time;   // s
  Axis_Scale value;  // in the unit
  int left_out = 0;  // values without a place on the axis
  std::string note;
  std::string description;
};

/// Below the largest value a logarithmic axis goes down by so many powers of ten at most.
inline constexpr int kMostDecades = 8;

/// `other`, which may be null, is drawn into the same picture: the species of the same name and
/// unit at the same depth.
///
/// When a limit of the solver's is exceeded is told from the times that the solver looked at, which
/// are more than the outputs hold. For a typed value the curves are all there is: it is exceeded
/// where the straight lines between output times are above it.
Maxima_Drawing Draw_Maxima(const Results& own, const Results* other, const Maxima_Choice& choice);

/// Time across, the value upright.
Plot_Frame Frame_Of(const Maxima_Drawing& drawing, const Canvas& canvas);
/// The pixels of height from which on the legend names every curve, on a canvas of this width and
/// size of text.
double Least_Height(const Maxima_Drawing& drawing, const Canvas& canvas);
Shape_List Maxima_Shapes(const Maxima_Drawing& drawing, const Canvas& canvas);

/// The times at which a curve has a value, ascending.
std::vector<double> Reading_Times(const Maxima_Drawing& drawing);
/// The nearest of them, the earlier of two; nothing when there are none.
std::optional<double> Nearest_Reading(const Maxima_Drawing& drawing, double time);

/// The curve's value at a time, between output times on the straight line from one to the next;
/// nothing beyond its ends.
std::optional<double> Value_At(const Maxima_Curve& curve, double time);

/// "600 s (10 min): inside the site 12 mg/l, outside the site 0.5 mg/l". A value between output
/// times has "about" in front; a curve without one is passed over.
std::string Reading_Words(const Maxima_Drawing& drawing, double time);

/// The line through the plot at a time that is read, with a mark on each curve.
Shape_List Reading_Shapes(const Maxima_Drawing& drawing, const Canvas& canvas, double time);

/// Time and curves as a table for other programs; a cell stays empty where a curve has no value.
std::string Maxima_Csv(const Maxima_Drawing& drawing);

}  // namespace barvon
