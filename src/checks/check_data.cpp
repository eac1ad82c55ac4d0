#include "checks/check_data.h"

#include <utility>

#include "checks/material_rules.h"
#include "checks/operation_rules.h"
#include "checks/site_rules.h"
#include "checks/time_rules.h"

namespace barvon {
namespace {

std::function<void()>& Findings_Listener() {
  static std::function<void()> listener;
  return listener;
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

void Set_Findings_Listener(std::function<void()> listener) {
  Findings_Listener() = std::move(listener);
}

Flag Check_Project(const ProjectRecord& record) {
  Current_Errors() = Check_Data(record);
  if (Findings_Listener()) Findings_Listener()();
  return Current_Errors().ErrorsFound;
}

}  // namespace barvon
