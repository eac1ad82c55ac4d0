#include "core/path_lookup.h"

namespace barvon {

std::optional<std::string> Find_Path(const std::string&) { return std::nullopt; }
std::string Path_To_Write(const std::string& path) { return path; }
std::vector<std::string> Matching_Files(const std::string&, std::string_view) { return {}; }
bool File_Exist(const std::string&) { return false; }

}  // namespace barvon
