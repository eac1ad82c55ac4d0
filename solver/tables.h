#pragma once

#include <string>

#include "solver/additions.h"
#include "solver/model_input.h"
#include "solver/outcome.h"

namespace companion {

inline constexpr char kVersion[] = COMPANION_VERSION;  // set beside the programs that name it
inline constexpr char kLineEnd[] = "\r\n";

/// First line of every output and of standard output.
std::string Label();
/// Two lines: the label, and what it is of which project.
std::string Head(const Model_Input& input, const std::string& what);

std::string Phase_Table(const Model_Input& input, const Outcome& outcome);  // .dup
std::string Series_Table(const Model_Input& input, const Additions& additions,
                         const Outcome& outcome);                         // .dut
std::string Map_Table(const Model_Input& input, const Outcome& outcome);  // .duc

/// The table with a line more at the end of its head: the check sum of all lines behind that, so
/// that who reads it knows that none was lost or changed on its way.
std::string Sealed(std::string table);

}  // namespace companion
