#pragma once

#include <functional>

#include "checks/error_entries.h"
#include "core/project_record.h"

namespace barvon {

/// What is asked before faulty data is run or saved: Yes, No, Cancel.
inline constexpr char kErrorsDetected[] =
    "Errors have been detected in the data.  Do You Wish to Fix The Errors?";

/// Tests the whole record: site, material, operation and time rules in this order. All rules run;
/// none changes the record.
Error_List Check_Data(const ProjectRecord& record);

/// The findings of the last Check_Project: what the error list screen shows.
Error_List& Current_Errors();

/// Who shows Current_Errors and wants to know of every Check_Project; an empty one ends it.
void Set_Findings_Listener(std::function<void()> listener);

/// Check_Data into Current_Errors. Returns ErrorsFound.
Flag Check_Project(const ProjectRecord& record);

}  // namespace barvon
