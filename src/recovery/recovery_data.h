#pragma once

#include <string>
#include <vector>

#include "core/project_record.h"
#include "recovery/recovery_folder.h"
#include "recovery/recovery_keeper.h"
#include "report/project_differences.h"

namespace barvon {

/// A copy as it is offered.
struct Recovery_Row {
  Left_Copy left;
  std::string name;    // of the project
  std::string state;   // what has become of its file
  std::string column;  // what `one` of the differences is
  std::vector<Project_Difference> differences;

  bool Can_Be_Restored() const { return left.copy.has_value(); }
};

/// The copies that ended windows left. One that gives just what the project's file has is removed
/// and not offered: it was saved before the window ended.
std::vector<Recovery_Row> Recovery_Rows();

/// The project of the copy is the one that is open, under its path and not saved; the window keeps
/// a copy of it from now on and the one that was left is removed. False, and everything as it was,
/// when another window has the project and a person does not want it.
bool Restore_Project(Recovery_Row& row, Recovery_Keeper& keeper, ProjectRecord& record);

/// Asks, and removes the copy. False when it stays.
bool Throw_Copy_Away(Recovery_Row& row);

}  // namespace barvon
