#include "batch/batch_findings.h"

#include "batch/batch_options.h"
#include "batch/batch_output.h"
#include "checks/check_data.h"
#include "checks/remarks.h"

namespace barvon {

int Say_Findings(const std::string& file, const ProjectRecord& record) {
  const Error_List list = Check_Data(record);
  for (const Error_Entry& entry : list.entries) Say({file, entry.message, entry.reference});
  return list.ErrorsFound != kFalse ? kFindings : kDone;
}

void Say_Remarks(const std::string& file, const ProjectRecord& record) {
  for (const std::string& remark : Remarks_On(record)) Say({file, "remark", remark});
}

}  // namespace barvon
