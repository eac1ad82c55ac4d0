#pragma once

#include <optional>
#include <vector>

#include "results/results.h"

namespace barvon {

// What is told of a run in a few numbers.

/// Where a species is at a time, in the unit of its amounts (`Result_Mass`).
struct Species_Balance {
  int species = 0;  // from 1
  double time = 0;
  double released = 0, suspended = 0, on_grid = 0, off_grid = 0;

  /// What was released and is in none of the three places; rounding counts as nothing.
  double Missing() const;
  /// The amount as a part of what was released; 0 where nothing was.
  double Share(double amount) const { return released > 0 ? amount / released : 0; }
};

/// The balance at the last time that the outputs hold, a line a species that has one.
std::vector<Species_Balance> Balance_At_End(const Results& results);

/// The balance at a time: that of an output time, or what lies on the straight line between its
/// neighbours. A species without an output time on both sides has no line.
std::vector<Species_Balance> Balance_At(const Results& results, double time);

/// The times of the balance, ascending.
std::vector<double> Balance_Times(const Results& results);

struct Largest_Value {
  double value = 0, time = 0, depth = 0;
};

/// The largest of a species' maxima by area, at the output times and depths; the earliest and then
/// the first depth of equal ones. Nothing where the outputs have no such area or no row.
struct Largest_Values {
  std::optional<Largest_Value> inside, outside, outside_zid;
};
Largest_Values Largest_Of(const Results& results, int species);

/// The largest of the species' peaks at any point and depth.
std::optional<Result_Peak> Largest_Peak(const Results& results, int species);

/// The run has a site, so that inside and outside are two areas. Outputs that do not tell their
/// areas are taken to have one.
bool Has_Site(const Results& results);

/// The run has a zone of initial dilution. Outputs that do not tell their areas have one when a
/// value outside of it differs from the larger of those inside and outside the site: without a zone
/// it is that of all places.
bool Has_Zid(const Results& results);

/// What the water has of a species anyway, in its unit.
double Background_Of(const Results& results, int species);

/// The value of a column of the maxima.
double Value_In(const Result_Maxima& row, Result_Where where);

struct Timed_Value {
  double time = 0, value = 0;
};

/// The species' largest at each output time, at one output depth or over all of them, ascending in
/// time.
std::vector<Timed_Value> Series_Of(const Results& results, int species, Result_Where where,
                                   std::optional<double> depth);

/// From when to when a series is above a value.
struct Time_Span {
  double from = 0, to = 0;

  bool operator==(const Time_Span&) const = default;
};

/// Where the straight lines between the values of a series are above `limit`. A value that is no
/// number ends a line. Times are ascending.
std::vector<Time_Span> Spans_Above(const std::vector<Timed_Value>& series, double limit);

/// A map of thickness in a few numbers: its largest value and that grid point, what lies on the
/// grid with voids, and how much of it is thicker than a thickness.
struct Deposit_Totals {
  double thickest = 0, x = 0, z = 0;  // ft
  double volume = 0;                  // ft3
};
Deposit_Totals Totals_Of(const Result_Grid& grid, const Result_Map& bed);

/// The last map of thickness of all solids together; null where there is none.
const Result_Map* Last_Bed(const Results& results);

/// The outputs' depths of maxima, ascending.
std::vector<double> Output_Depths(const Results& results);

}  // namespace barvon
