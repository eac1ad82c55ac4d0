#pragma once

#include <string>

namespace companion {

/// The model input's name from the marker's bytes. Throws Refusal.
std::string Read_Marker(const std::string& file, const std::string& bytes);

}  // namespace companion
