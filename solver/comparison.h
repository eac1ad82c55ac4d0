#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "solver/additions.h"
#include "solver/model_input.h"

namespace companion {

/// Where a value counts. Without a site every place is outside it, without a zone of initial
/// dilution every place is outside that.
enum class Area { Inside, Outside, Outside_Zid, Anywhere };
inline constexpr std::size_t kAreas = 4;

/// A value with its time and place.
struct Spot {
  bool found = false;
  double value = 0;  // mg/l or %, the background included
  double time = 0;   // s
  double x = 0, z = 0, depth = 0;
};

/// Takes over what is larger.
void Raise(Spot& kept, const Spot& found);

/// What the tracer is held against, and what came of it.
struct Comparison {
  std::string of;    // "criterion outside the disposal site"
  double value = 0;  // mg/l or %
  Area area = Area::Outside;
  double from = 0;        // s, earlier times do not count
  double background = 0;  // mg/l, in the water anyway
  bool ever = false;
  double first = 0, last = 0;  // s, when it was exceeded
  Spot worst{};

  void Look(double time, const Spot& largest);
  /// "exceeded from t1 to t2, worst v at (X, Z)" or "not exceeded at the times looked at".
  std::string Verdict(const std::string& unit) const;
};

/// The grid's points and the areas among them.
class Areas {
 public:
  explicit Areas(const Model_Input& input);

  bool Has_Site() const { return has_site_; }
  bool Has_Zid() const { return has_zid_; }
  /// The grid point (from 0) counts in the area.
  bool Counts(Area area, int i, int k) const;
  /// The point of the grid that is nearest to a place, from 0; it may lie off the grid.
  int Row(double x) const;
  int Column(double z) const;
  bool On_Grid(int i, int k) const;

 private:
  const Model_Input& input_;
  bool has_site_, has_zid_;
};

/// It is one of section 404: the site is a mixing zone.
bool Zone_Evaluation(const Model_Input& input);
/// The program is asked to compute it: a zone for the evaluations of section 404 that has none.
bool Mixing_Zone_Asked(const Model_Input& input);
bool Zid_Asked(const Model_Input& input);

/// The limits that the tracer is held against: 0 where there is none.
double Limit_Of_Site(const Model_Input& input, const Additions& additions);
double Limit_Of_Zid(const Model_Input& input, const Additions& additions);

/// What is compared in this run; where something is missing a sentence goes to the notes.
std::vector<Comparison> Comparisons(const Model_Input& input, const Additions& additions,
                                    std::vector<std::string>& notes);

/// Unit of the tracer: "mg/l", or "%" of the load's own water.
std::string Tracer_Unit(const Model_Input& input);
/// What is added to the excess: the background, mg/l; 0 for a solid.
double Base_Of(const Model_Input& input, std::size_t species);
/// The species' name as it stands in the input.
std::string Species_Name(const Model_Input& input, std::size_t species);
/// mg/l of a volume share of 1 of a solid; 1 for the tracer.
double Unit_Factor(const Model_Input& input, std::size_t species);

/// A rectangle of cells, by grid points from 1.
struct Zone {
  bool any = false;  // a cell passes the value at all
  bool at_edge = false;
  int top = 0, bottom = 0, left = 0, right = 0;
};

/// The smallest rectangle of cells around the disposal point outside which no cell ever passes the
/// value. `most` holds the largest values over time by cells, one map for each output depth.
Zone Smallest_Zone(const Model_Input& input, const std::vector<std::vector<double>>& most,
                   double value);

}  // namespace companion
