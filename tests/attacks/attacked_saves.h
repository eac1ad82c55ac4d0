#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/project_record.h"

namespace barvon::testing {

/// Where saves are attacked: a folder with the program's own ("app") and that of the projects
/// ("bay"), which is the current one. What the program tells a person is written down.
struct Attack_Bench {
  std::string root;
  std::unique_ptr<ProjectRecord> record;
  std::vector<std::string> told;

  std::string In(const std::string& name) const { return root + "/" + name; }
};

/// One save that the program does, over files that are there.
struct Attacked_Save {
  std::string name;
  /// What it writes, from the root. The others of its files are as they were before.
  std::vector<std::string> files;
  /// Lays the files as they are before, the written ones too.
  std::function<void(const Attack_Bench&)> lay;
  /// What comes before the save and is not attacked.
  std::function<void(Attack_Bench&)> prepare;
  std::function<void(Attack_Bench&)> save;
  /// Whether it also saves where none of its files is yet.
  bool makes_new = true;
  /// Settings that could not be written wait for the next that are set.
  bool keeps_settings = true;
  /// Files that are copies of what another program wrote, which may itself have met the fault.
  std::map<std::string, std::string> copies = {};
  /// Those that say something of the first: one of another save beside it is damage, told or not.
  /// They may be missing where it is told.
  std::set<std::string> about_the_first = {};
  /// A lock: that it can't be made is no complaint, and none at all is as good as the former.
  bool is_lock = false;
  /// What the program does at its next start besides clearing what saves left.
  std::function<void(const Attack_Bench&)> start = [](const Attack_Bench&) {};
};

/// Those that need no toolkit; what is kept beside the projects for the windows that come after;
/// those of pages, prints and pictures; those of the graphics program.
std::vector<Attacked_Save> Plain_Saves();
std::vector<Attacked_Save> Kept_Saves();
std::vector<Attacked_Save> Page_Saves();
std::vector<Attacked_Save> Graph_Saves();

/// Makes the bench's folders and hears what the program says from now on. Every choice in a file
/// dialog is `chosen`, every question is answered with Yes.
void Set_Up_Bench(Attack_Bench& bench, const std::string& chosen);

/// The path is what every dialog to save is answered with, and what every print goes to. Of
/// page_saves.cpp: it needs the toolkit.
void Choose_In_Dialogs(const std::string& path);

void Put_File(const std::string& path, const std::string& bytes);
/// A sample's record, with a title of its own, as if it had been opened from bay/a.DUI.
std::unique_ptr<ProjectRecord> Changed_Sample(const Attack_Bench& bench);
std::string Sample_Bytes(const std::string& name);

}  // namespace barvon::testing
