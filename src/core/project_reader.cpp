#include "core/project_reader.h"

namespace barvon {

Load_Result Load_Project(const std::string&, std::string_view, ProjectRecord&) { return {}; }

}  // namespace barvon
