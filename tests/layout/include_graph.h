#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

namespace barvon::testing {

/// The files of src/ by their paths from there, each with what it includes from there.
using Include_Graph = std::map<std::string, std::set<std::string>>;

Include_Graph Read_Includes(const std::string& source_folder);

/// The files that include a header of the toolkit, themselves or through another.
std::set<std::string> Toolkit_Files(const std::string& source_folder, const Include_Graph& graph);

/// "core/x" of "core/x.h" and of "core/x.cpp".
std::string Unit_Of(const std::string& file);

/// The same graph with each header and its source as one unit, by the unit's name.
Include_Graph Units_Of(const Include_Graph& files);

/// One ring of files that include each other, empty when there is none.
std::vector<std::string> Find_Ring(const Include_Graph& graph);

/// "core" of "core/x.h", "platform/qt" of "platform/qt/x.h", the file itself when it stands in no
/// folder.
std::string Room_Of(const std::string& file);

}  // namespace barvon::testing
