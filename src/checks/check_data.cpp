#include "checks/check_data.h"

#include <utility>

#include "checks/material_rules.h"
#include "checks/operation_rules.h"
#include "checks/remarks.h"
#include "checks/site_rules.h"
#include "checks/time_rules.h"
#include "core/desk/workspace_port.h"

namespace barvon {
namespace {

std::function<void()>& Findings_Listener() {
  static std::function<void()> listener;
  return listener;
}

std::vector<std::string>& Last_Remarks() {
  static std::vector<std::string> remarks;
  return remarks;
}

void Take_Remarks(const ProjectRecord& record) {
  const bool had_some = !Last_Remarks().empty();
  Last_Remarks() = Remarks_On(record);
  if (!had_some && Last_Remarks().empty()) return;
  Port().board.show_note({Remark_Count(Last_Remarks()), Remark_Lines(Last_Remarks())});
}

}  // namespace

Error_List Check_Data(const ProjectRecord& record) {
  Error_List errors;
  Check_Site(record, errors);
  Check_Material(record, errors);
  Check_Operation(record, errors);
  Check_Time(record, errors);
  return errors;
}

Error_List& Current_Errors() {
  static Error_List errors;
  return errors;
}

const std::vector<std::string>& Current_Remarks() { return Last_Remarks(); }

void Set_Findings_Listener(std::function<void()> listener) {
  Findings_Listener() = std::move(listener);
}

Flag Check_Project(const ProjectRecord& record) {
  Current_Errors() = Check_Data(record);
  if (Findings_Listener()) Findings_Listener()();
  Take_Remarks(record);
  return Current_Errors().ErrorsFound;
}

}  // namespace barvon
