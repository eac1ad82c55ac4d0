#pragma once

#include <string>
#include <string_view>

/// The constants of the modules that are no part of the input, as the listing shows them.
namespace companion {

/// One constant: what it is, its value and its unit, which may be empty.
std::string Constant_Line(std::string_view meaning, double value, std::string_view unit = "");

std::string Assumed_Water_And_Release();
std::string Assumed_Descent_And_Collapse();
std::string Assumed_Settling();
std::string Assumed_Transport();
std::string Assumed_Evaluation();

}  // namespace companion
