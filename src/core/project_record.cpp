#include "core/project_record.h"

namespace barvon {

ProjectRecord& Project() {
  static ProjectRecord record;
  return record;
}

}  // namespace barvon
