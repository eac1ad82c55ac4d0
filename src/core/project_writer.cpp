#include "core/project_writer.h"

namespace barvon {

std::string Save_Project(const std::string&, ProjectRecord&) { return {}; }

}  // namespace barvon
