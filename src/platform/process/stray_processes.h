#pragma once

#include <string>

namespace barvon {

/// Kills what a program of this system left behind when it was killed itself: the processes that
/// carry a mark of Process_Family's and work in the folder or below it. Only for a folder that
/// nobody alive runs anything in.
void Kill_Strays_In(const std::string& folder);

}  // namespace barvon
