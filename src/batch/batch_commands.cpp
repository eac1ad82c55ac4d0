#include "batch/batch_commands.h"

#include <algorithm>
#include <cstring>

#include "batch/batch_database.h"
#include "batch/batch_export.h"
#include "batch/batch_findings.h"
#include "batch/batch_output.h"
#include "batch/batch_project.h"
#include "batch/batch_report.h"
#include "batch/batch_run.h"
#include "batch/interrupts.h"
#include "batch/json_record.h"
#include "batch/leftovers.h"
#include "core/desk/load_record.h"
#include "core/desk/project_hold.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "platform/files/known_folders.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"

namespace barvon {
namespace {

int Check(const Batch_Options& options, Known_Folders& folders) {
  int worst = kDone;
  for (const std::string& file : options.files) {
    if (Interrupt_Seen() != 0) return kNotDone;
    const auto record = Open_Project(file, folders);
    worst = std::max(worst, record ? Say_Findings(file, *record) : kNotDone);
    if (record) Say_Remarks(file, *record);
  }
  return worst;
}

int Show(const Batch_Options& options, Known_Folders& folders) {
  const auto record = Open_Project(options.files.front(), folders);
  if (!record) return kNotDone;
  Say_Text(options.json ? Json_Of(*record) : Listing_Of(*record));
  return kDone;
}

int New(const Batch_Options& options) {
  const std::string& file = options.files.front();
  if (!Is_Project_Name(file)) {
    Say_Problem(file, "a project's name ends in .DUI");
    return kNotDone;
  }
  const std::string path = Absolute_Path(file);
  if (const auto existing = Find_Path(path); existing && !options.force) {
    Say_Problem(file, "exists already (--force replaces it)");
    return kNotDone;
  }
  const auto record = Fresh_Record();
  Pack_Slots(*record);
  const std::string target = Path_To_Write(path);
  Lock_File lock;
  if (lock.Take(Lock_Path_Of(target)) == Lock_File::Outcome::Held) {
    Say_Problem(file, "is open in a window: " +
                          (lock.Holder() ? Holder_In_Words(*lock.Holder()) : "nobody knows whose"));
    return kNotDone;
  }
  if (const int error = Write_Whole_File(target, Save_Project(target, *record)); error != 0) {
    Say_Problem(file, std::string("can't be written: ") + std::strerror(error));
    return kNotDone;
  }
  Say({file, "written", target});
  return kDone;
}

}  // namespace

int Do_Batch_Command(const Batch_Options& options) {
  Clear_Leftovers(options);
  Known_Folders folders;
  switch (options.command) {
    case Batch_Command::Check:
      return Check(options, folders);
    case Batch_Command::Export:
      return Export_Projects(options, folders);
    case Batch_Command::Report:
      return Report_Projects(options, folders);
    case Batch_Command::Run:
      return Run_Projects(options, folders);
    case Batch_Command::Show:
      return Show(options, folders);
    case Batch_Command::Check_Database:
      return Check_Database_Files(options);
    case Batch_Command::New:
      break;
  }
  return New(options);
}

}  // namespace barvon
