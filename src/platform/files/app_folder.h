#pragma once

#include <string>
#include <vector>

namespace barvon {

/// The folder of the running program, as the operating system tells it: that of the file itself,
/// not of a link to it.
std::string Program_Folder();

/// The application directory: where BARVON.INI, the database and the files of a run are. It is the
/// program's folder until Set_Application_Folder names another.
const std::string& Application_Folder();
void Set_Application_Folder(std::string folder);

/// The folder of what came with the program and is only read: help, tips, the database as it was
/// delivered, a solver. It is the application directory until Set_Delivered_Folder names another;
/// "" takes that back.
const std::string& Delivered_Folder();
void Set_Delivered_Folder(std::string folder);

/// Where the program's own files go: into its folder where that can be written, so that a copy that
/// is carried about has everything with it; else, and for a program in a folder for all users
/// ("/usr/lib", "/usr/local/lib"), which root may write too, into the user's folder. Without a
/// user's folder, into the program's all the same: each file that can't be written is told of then.
std::string Folder_For_Own_Files(const std::string& program_folder);

/// Makes Folder_For_Own_Files the application directory and `program_folder` the delivered one.
void Take_Program_Folder(const std::string& program_folder);

/// A file of the application directory; where it has none of that name, the delivered one's path.
std::string Own_Or_Delivered(const std::string& name);

/// Copies a delivered file into the application directory where that has none of that name. 0, also
/// when there is nothing to copy, or an errno value; no part of a file stays after a failure.
int Copy_If_Not_Own(const std::string& name);

/// A file that was not copied and why, as an errno value; 0 when all are.
struct Copies_Made {
  int error = 0;
  std::string failed;
};

/// Copies delivered files into the application directory, which has none of these names: all of
/// them, or none when one fails. A name that is a link to nowhere fails with EEXIST. What another
/// window puts under a name meanwhile stays as it is.
Copies_Made Copy_Together(const std::vector<std::string>& names);

/// Makes the folder the current one. False when it can't be entered.
bool Change_Current_Folder(const std::string& folder);

}  // namespace barvon
