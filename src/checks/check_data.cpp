#include "checks/check_data.h"

namespace barvon {

Error_List Check_Data(const ProjectRecord&) { return {}; }

Error_List& Current_Errors() {
  static Error_List errors;
  return errors;
}

Flag Check_Project(const ProjectRecord& record) {
  Current_Errors() = Check_Data(record);
  return Current_Errors().ErrorsFound;
}

}  // namespace barvon
