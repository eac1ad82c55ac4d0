#include "core/open_file.h"

namespace barvon {

bool Open_File(const std::string&, ProjectRecord&) { return false; }

}  // namespace barvon
