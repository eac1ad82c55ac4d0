#pragma once

#include <string>
#include <vector>

#include "due_fields.h"

namespace echo {

/// One line of the listing: a value, or a heading when it has no name.
struct Entry {
  std::string name;
  std::string unit;
  std::string text;  // as it stands in the input
};

/// What was read: every value in the order of the input, and those that the outputs restate.
struct Model_Input {
  std::vector<Entry> entries;
  std::string title;
  int points_x = 0, points_z = 0;       // grid points, top to bottom and left to right
  double spacing_x = 0, spacing_z = 0;  // ft
  bool constant_depth = true;
  double depth = 0;                         // ft
  std::vector<std::vector<double>> depths;  // [row][column], from 0
  std::vector<double> profile_depths, profile_densities, output_depths;
  double duration = 0;              // seconds
  std::vector<double> print_times;  // seconds; empty: quarterly
};

/// The model input's name from the marker's bytes. Throws Refusal.
std::string Read_Marker(const std::string& file, const std::string& bytes);

/// Reads the hopper or the barge section from the input's bytes, the whole of it. Throws Refusal.
Model_Input Read_Model_Input(const std::string& file, const std::string& bytes);

}  // namespace echo
