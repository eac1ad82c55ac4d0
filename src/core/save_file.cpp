#include "core/save_file.h"

namespace barvon {

bool Save_File(const std::string&, int, ProjectRecord&) { return false; }

}  // namespace barvon
