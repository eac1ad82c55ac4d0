#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/project_record.h"
#include "database/database_check.h"
#include "database/index_files.h"

namespace barvon {

/// What a list of the database screen has chosen: an entry with its place, from 0, or nothing.
struct List_Choice {
  std::string text;  // "": none
  int place = -1;
};

/// The lists by Database_List.
using Database_Choices = std::array<List_Choice, kDatabaseLists>;
using Database_Lists = std::array<List_Contents, kDatabaseLists>;

/// Copies the database's files from where they were delivered for a user who has none: all seven or
/// none, since the lists and their data belong together. One who has some gets the others only
/// where his are still as delivered, else he is told which are missing; so is a copy that fails.
/// False when something was told.
bool Take_Delivered_Database();

/// The four lists from the program's folder. List files that can't be read are told in one box.
Database_Lists Load_Lists(ProjectRecord& record);

/// Each looks in the program's folder for the record of the project's code and fills the project
/// from it; its category then reads "Data Supplied". What is not found changes nothing and is told,
/// but for a velocity.
bool Assign_Site(ProjectRecord& record);
bool Assign_Velocity(ProjectRecord& record);
bool Assign_Material(ProjectRecord& record);
bool Assign_Disposal(ProjectRecord& record);

/// Applies what each list has chosen and names the lists without a choice in a box. A month goes
/// with the site that was chosen last. When anything was found the project is not saved any more
/// and the main window shows it. A note counts the project's findings.
void Accept_Selection(const Database_Choices& choices, ProjectRecord& record);

/// Puts the records of a report into the columns of the walk, when asked and told to. True when a
/// file was written; a note names the files then, a box one that failed.
bool Mend_Database_Files(const Database_Report& report);

/// Asks, and appends the project's site to the stored ones under the name, when the list of sites
/// was used last; with another list it only asks. A name that is empty or taken, and a list that is
/// full, are refused in words. True when the site was appended.
bool Update_Database(const std::string& name, ProjectRecord& record);

}  // namespace barvon
