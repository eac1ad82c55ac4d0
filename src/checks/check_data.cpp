#include "checks/check_data.h"

#include "checks/material_rules.h"
#include "checks/operation_rules.h"
#include "checks/site_rules.h"
#include "checks/time_rules.h"

namespace barvon {

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

Flag Check_Project(const ProjectRecord& record) {
  Current_Errors() = Check_Data(record);
  return Current_Errors().ErrorsFound;
}

}  // namespace barvon
