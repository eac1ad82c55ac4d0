#include "batch/batch_findings.h"

#include "batch/batch_options.h"
#include "batch/batch_output.h"
#include "checks/check_data.h"

namespace barvon {

int Say_Findings(const std::string& file, const ProjectRecord& record) {
  const Error_List list = Check_Data(record);
  for (const Error_Entry& entry : list.entries) Say({file, entry.message, entry.reference});
  return list.ErrorsFound != kFalse ? kFindings : kDone;
}

}  // namespace barvon
