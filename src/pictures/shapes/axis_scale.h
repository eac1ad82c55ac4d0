#pragma once

#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace barvon {

/// Beyond this a value is not drawn: pixels could no longer tell it from its neighbours.
inline constexpr double kLargestDrawn = 1e12;

/// The value is a number that a picture can place: finite and not beyond kLargestDrawn.
inline bool Can_Be_Drawn(double value) { return std::abs(value) <= kLargestDrawn; }

struct Value_Range {
  double low = 0, high = 0;
};

/// The range of the values that can be drawn; nothing when there are none.
std::optional<Value_Range> Range_Of(const std::vector<double>& values);

/// An axis from `low` to `high`, both whole multiples of `step`, which is 1, 2 or 5 times a power
/// of ten. `decimals` tell two neighbouring steps apart. A logarithmic one goes from one power of
/// ten to another, and its step is the factor 10.
struct Axis_Scale {
  double low = 0, high = 1, step = 0.2;
  int decimals = 1;
  bool logarithmic = false;
};

/// The scale that holds the range in about five steps. Ranges below `least_span` (above 0) are
/// widened to it around their middle, so that equal values are in the middle of an axis.
Axis_Scale Scale_Over(Value_Range range, double least_span);

/// Below this a value has no place on a logarithmic axis.
inline constexpr double kSmallestOnLog = 1e-12;

/// The logarithmic scale over those of the values that have a place on one, a decade at least; 1 to
/// 10 when none has.
Axis_Scale Log_Scale_Over(const std::vector<double>& values);

/// How far along the axis a value lies: 0 at `low`, 1 at `high`. NaN for a value that has no place:
/// one that cannot be drawn, and on a logarithmic axis one below kSmallestOnLog.
double Part_Of_Axis(const Axis_Scale& scale, double value);

/// The value that lies so far along the axis.
double Value_On_Axis(const Axis_Scale& scale, double part);

/// The values that get a label, ascending: the multiples of `stride` (at least 1) steps within the
/// axis; on a logarithmic one every so many powers of ten from its low end.
std::vector<double> Labels_Of(const Axis_Scale& scale, int stride);

/// The label at a value of the axis.
std::string Label_Text(const Axis_Scale& scale, double value);

/// How many grid points or steps go to one label when `count` of them share `pixels` and a label
/// needs `label_pixels`: 1, 2, 5, 10, 20, 50, ...
int Label_Stride(int count, double pixels, double label_pixels);

/// The largest of 1, 2, 5 times a power of ten that is not above the value; 0 for values that are
/// not above 0.
double Round_Value_Below(double value);

/// The number with so many decimals, "." as the point and no minus before a zero; "no number" for
/// what is not finite.
std::string Fixed_Text(double value, int decimals);

/// The number in up to six digits: "40", "0.25", "1.5e+09"; "no number" for what is not finite.
std::string Short_Text(double value);

}  // namespace barvon
