#include "batch/batch_database.h"

#include <cstring>
#include <filesystem>
#include <system_error>

#include "batch/batch_output.h"
#include "database/database_check.h"
#include "platform/files/paths.h"

namespace barvon {

int Check_Database_Files(const Batch_Options& options) {
  std::error_code ignored;
  if (!std::filesystem::is_directory(options.folder, ignored)) {
    Say_Problem(options.folder, "is no folder");
    return kNotDone;
  }
  Database_Report report = Check_Database(options.folder);
  int code = kDone;
  if (options.mend && !report.mends.empty()) {
    const Database_Mended mended = Mend_Database(options.folder, report);
    for (const std::string& file : mended.files) Say({file, "mended"});
    if (mended.error != 0) {
      Say_Problem(Join_Path(options.folder, mended.failed),
                  std::string("can't be mended: ") + std::strerror(mended.error));
      code = kNotDone;
    }
    report = Check_Database(options.folder);
  }
  for (const Database_Finding& finding : report.findings) {
    const std::string line = std::to_string(finding.line);
    if (finding.remark) {
      Say({finding.file, line, "remark", finding.text});
    } else {
      Say({finding.file, line, finding.text});
    }
  }
  if (code != kDone) return code;
  return report.Faults() > 0 ? kFindings : kDone;
}

}  // namespace barvon
