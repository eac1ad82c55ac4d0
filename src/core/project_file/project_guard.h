#pragma once

#include <string>
#include <vector>

namespace barvon {

/// Whether a file that is no project would be written over one: its name, or that of what its
/// symbolic links lead to, ends in .DUI in whatever case, or it is the same file as one of
/// `projects` under another name.
bool Leads_To_A_Project(const std::string& target, const std::vector<std::string>& projects);

}  // namespace barvon
