#include "run/view_results.h"

#include <optional>
#include <string>

#include "core/desk/settings_keys.h"
#include "core/desk/workspace_port.h"
#include "platform/ask/message_box.h"
#include "platform/files/app_folder.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/process/document_opener.h"
#include "run/create_process.h"

namespace barvon {
namespace {

constexpr char kGraphicsProgram[] = "kv_graph.exe";
constexpr char kNativeGraphicsProgram[] = "kv_graph";
constexpr char kUntitledName[] = "UNTITLED.DUI";

std::optional<std::string> Find_Graphics_Program(const std::string& folder) {
  for (const std::string& place : {folder, Delivered_Folder()}) {
    for (const char* name : {kGraphicsProgram, kNativeGraphicsProgram}) {
      if (auto found = Find_Path(Join_Path(place, name))) return found;
    }
  }
  return std::nullopt;
}

/// GraphFile and SimType: what the graphics program reads.
bool Hand_Over(const ProjectRecord& record, int kind) {
  Settings_Of_Command settings;
  const bool can_be_set =
      Write_Graph_File(record.ProjectFileName) &&
      Write_Setting(kSimulationTypeSection, kSimTypeKey, "Type " + std::to_string(kind));
  return settings.Write() && can_be_set;
}

void Tell_How_It_Ended(const Process_Outcome& outcome) {
  if (!outcome.started) {
    Port().board.show_note({"The graphics program was not started: " + outcome.problem + ".", {}});
  } else if (outcome.end.signal != 0) {
    Port().board.show_note(
        {outcome.program + " was ended by signal " + std::to_string(outcome.end.signal) + ".",
         outcome.last_output});
  } else if (outcome.end.exit_code > 0) {
    Port().board.show_note(
        {outcome.program + " ended with code " + std::to_string(outcome.end.exit_code) + ".",
         outcome.last_output});
  }
}

}  // namespace

bool Graphics_Program_Exists() {
  return File_Exist(kGraphicsProgram) || File_Exist(kNativeGraphicsProgram) ||
         Find_Graphics_Program(Delivered_Folder());
}

void Graph_Command(const ProjectRecord& record, int kind) {
  if (!Find_Path(record.BaseFileName + ".DUI")) {
    Show_Critical("Please Specify a File Before Running Model", "BARVON Error");
    return;
  }
  const std::string& folder = Application_Folder();
  if (!Find_Path(folder)) {
    Show_Warning("Path: " + folder + " Not Found");
    return;
  }
  const bool handed_over = Hand_Over(record, kind);
  if (!Find_Graphics_Program(folder)) {
    Show_Warning("File: " + Join_Path(folder, kGraphicsProgram) + " Not Found");
    return;
  }
  if (!handed_over) {
    Port().board.show_note(
        {"The settings could not be written, so the graphics program would show "
         "another project; it was not started.",
         {}});
    return;
  }
  Create_Viewer_Process(kGraphicsProgram, Tell_How_It_Ended);
}

void View_Output_Command(const ProjectRecord& record) {
  if (record.ProjectFileName.empty() || record.ProjectFileName == kUntitledName) {
    Show_Critical("No File Specified");
    return;
  }
  const std::string name = Base_Name(record.ProjectFileName) + ".duo";
  const std::optional<std::string> found = Find_Path(name);
  if (!found) {
    Show_Warning("File " + name + " Not Found.");
    return;
  }
  if (!Open_Document(*found)) Port().board.show_note({name + " could not be shown.", {}});
}

}  // namespace barvon
