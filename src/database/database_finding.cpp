#include "database/database_finding.h"

namespace barvon {

std::string Finding_Text(const Database_Finding& finding) {
  return finding.file + (finding.line > 0 ? ", line " + std::to_string(finding.line) : "") + ": " +
         (finding.remark ? "remark: " : "") + finding.text;
}

}  // namespace barvon
