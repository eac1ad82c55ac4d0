#pragma once

#include <string>

namespace barvon {

/// Kills what a program of this system left behind when it was killed itself, or this one: the
/// processes that carry a mark of Process_Family's and work in the folder or below it. What another
/// living program has started there stays. Not while this one runs anything there.
void Kill_Strays_In(const std::string& folder);

}  // namespace barvon
