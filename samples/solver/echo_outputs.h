#pragma once

#include <string>

#include "solver/model_input.h"

namespace echo {

using companion::Model_Input;

/// The contents of the four outputs. Each says in its first line that nothing was simulated.
std::string Listing(const Model_Input& input);      // tmpfile.duo: every value
std::string Grid_Lines(const Model_Input& input);   // tmpfile.dup: where the grid points lie
std::string Time_Lines(const Model_Input& input);   // tmpfile.dut: when results would be printed
std::string Depth_Lines(const Model_Input& input);  // tmpfile.duc: depths and the water's profile

/// What the program says about itself, in the outputs and on its standard output.
extern const char kNothingSimulated[];

}  // namespace echo
