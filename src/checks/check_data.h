#pragma once

#include <functional>
#include <string>
#include <vector>

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

/// The remarks of the last Check_Project.
const std::vector<std::string>& Current_Remarks();

/// Who shows Current_Errors and wants to know of every Check_Project; an empty one ends it.
void Set_Findings_Listener(std::function<void()> listener);

/// Check_Data into Current_Errors, and the remarks on the record into Current_Remarks. The status
/// area shows how many remarks there are, with the lines as details; the count goes again with the
/// first check that has none. Returns ErrorsFound, which no remark changes.
Flag Check_Project(const ProjectRecord& record);

}  // namespace barvon
