#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace companion {

inline constexpr double kGravity = 32.174;          // ft/s2
inline constexpr double kSlugsPerGramCc = 1.94;     // slug/ft3 of 1 g/cc
inline constexpr double kCubicFeetPerYard = 27;     // ft3 of 1 cu yd
inline constexpr double kMilligramsPerLitre = 1e6;  // of 1 g/cc

/// What the model compares the fluid with, by the number in the input.
enum class Evaluation {
  None = 0,
  Tracer = 1,
  Criterion = 2,  // Section 103 and general
  Toxicity = 3,
  Sediment = 4,
  Zone_Criterion = 5,  // Section 404, with a zone of initial dilution
  Zone_Toxicity = 6,
  Zone_Sediment = 7,
};

struct Solid {
  std::string name;
  double sg = 0;             // g/cc
  double fraction = 0;       // volume share of the batch
  double fall_velocity = 0;  // ft/s
  double void_ratio = 0;
  double critical_shear = 0;  // lb/ft2; 0: always deposits
  bool cohesive = false;
  bool stripped = false;
};

/// The line of the water in the load. What the evaluation does not give stays 0.
struct Fluid {
  std::string name;
  double density = 0;        // g/cc
  double concentration = 0;  // mg/l
  double background = 0;     // mg/l
  double sediment = 0;       // mg/kg
  double criterion = 0;      // mg/l
  double dilution = 0;       // %
  double zid_dilution = 0;   // %
  double zid_standard = 0;   // mg/l
};

/// One opening of a hopper's bins, or one layer of a barge.
struct Batch {
  double velocity_x = 0, velocity_z = 0;  // of the vessel, ft/s
  double volume = 0;                      // cu yd
  double moisture = 0;                    // multiple of the liquid limit
  std::vector<Solid> solids;
  Fluid fluid;
};

/// A rectangle by grid points (from 1) and by coordinates, ft.
struct Window {
  int top = 0, bottom = 0, left = 0, right = 0;
  double x_top = 0, x_bottom = 0, z_left = 0, z_right = 0;
  bool Given() const {
    return top > 0 && bottom > 0 && left > 0 && right > 0 &&
           (x_top != 0 || x_bottom != 0 || z_left != 0 || z_right != 0);
  }
};

struct Coefficients {
  double ALPHA0 = 0.235, BETA = 0, CM = 1, CD = 0.5;
  double GAMA = 0.25, CDRAG = 1, CFRIC = 0.01, CD3 = 0.1, CD4 = 1, ALPHAC = 0.1, FRICTN = 0.01;
  double ALAMDA = 0.001, AKY0 = 0.025, CSTRIP = 0.003;
};

/// One line of the input as it stood: for the echo of what was given.
struct Entry {
  std::string name;
  std::string unit;
  std::string text;
  int line = 0;  // of the input, from 1
};

/// Every quantity of the model input, in the units of the input. X runs from top to bottom and is
/// the first subscript, Z from left to right; grid values are [x][z] from 0, depths downward, ft.
struct Model_Input {
  std::vector<Entry> entries;  // headings have no name
  bool barge = false;
  std::string title;
  int points_x = 0, points_z = 0;
  int key1 = 0, key2 = 0;
  Evaluation evaluation = Evaluation::None;
  bool moisture_adjusts = false;  // JBFCFlag
  bool zid_asked = false;         // ZidFlag, with the lines of the zone
  bool pritchard = false;
  Window site, zid;
  bool print_descent = false, print_collapse = false;
  std::vector<double> output_depths;
  double depth = 0, spacing_x = 0, spacing_z = 0;
  bool constant_depth = true;
  std::vector<std::vector<double>> depths;
  double vessel_x = 0, vessel_z = 0;
  double slope_x = 0, slope_z = 0;  // degrees
  double hole_x = 0, hole_z = 0, hole_depth = 0;
  double roughness = 0;                                   // Nikuradse height
  std::vector<double> profile_depths, profile_densities;  // ft, g/cc
  int velocity_type = 1;
  std::vector<std::vector<double>> field_x, field_z;  // ft/s, type 4
  std::array<double, 8> two_point{};  // type 3: depths of X, X, depths of Z, Z as they stand
  double mean_x = 0, mean_z = 0, mean_depth = 0;                  // ft/s, ft: the other types
  double duration = 0, step = 0, emptying = 0;                    // s
  double length = 0, width = 0, draft_full = 0, draft_empty = 0;  // ft
  double load_density = 0;                                        // g/cc
  Coefficients coefficients;
  std::vector<Batch> batches;
  std::vector<double> print_times;  // s; empty: quarters
  std::uint64_t sum = 0;            // Input_Sum of what was read

  std::size_t Solids() const { return batches.empty() ? 0 : batches.front().solids.size(); }
  bool Has_Tracer() const { return evaluation != Evaluation::None; }
  /// Solids, and behind them the tracer where there is one.
  std::size_t Species() const { return Solids() + (Has_Tracer() ? 1 : 0); }
};

}  // namespace companion
