#include "batch/batch_report.h"

#include <unistd.h>

#include <chrono>
#include <cstring>
#include <string>
#include <thread>

#include "batch/batch_output.h"
#include "batch/batch_products.h"
#include "batch/batch_project.h"
#include "batch/interrupts.h"
#include "platform/files/app_folder.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/process/process_control.h"
#include "report/project_report.h"
#include "report/report_html.h"

namespace barvon {
namespace {

constexpr char kWindowProgram[] = "barvon";
constexpr std::chrono::milliseconds kPollEvery(10);

/// A project that was just read.
Report_Facts Facts_Of_File(const ProjectRecord& record) {
  Report_Facts facts = Facts_Of(record);
  facts.saved = true;
  return facts;
}

int Write_Html(const std::string& file, const std::string& target, Known_Folders& folders,
               const May_Write& may_write) {
  const auto record = Open_Project(file, folders);
  if (!record) return kNotDone;
  const std::string html = Report_Html(Project_Report(*record, Facts_Of_File(*record)));
  return Write_Product(file, target, html, may_write);
}

/// Runs the window program without a display until it has written the report.
bool Runs_To_The_End(const std::string& program, const std::string& project,
                     const std::string& target) {
  External_Process window;
  Process_Start start;
  start.command = {program, "--report-pdf", project, target};
  start.environment = {"QT_QPA_PLATFORM=offscreen"};
  if (window.Start(start) != 0) return false;
  while (window.Poll()) {
    if (Interrupt_Seen() != 0) window.Stop();
    std::this_thread::sleep_for(kPollEvery);
  }
  const Process_End& end = window.End();
  return end.signal == 0 && end.exit_code == 0 && !end.stopped;
}

int Write_Pdf(const std::string& file, const std::string& target, Known_Folders& folders,
              const May_Write& may_write) {
  const auto record = Open_Project(file, folders);
  if (!record) return kNotDone;
  const std::string program = Join_Path(Program_Folder(), kWindowProgram);
  if (::access(program.c_str(), X_OK) != 0) {
    Say_Problem(file, "no PDF is written: the window program, barvon, is not installed in " +
                          Program_Folder() + " (without --pdf there is a report for a browser)");
    return kNotDone;
  }
  if (!may_write(target)) return kNotDone;
  // What the window program says is not heard here: the reason is found beforehand.
  if (const int error = Safe_File().Open(target); error != 0) {
    Say_Problem(file, target + " can't be written: " + std::strerror(error));
    return kNotDone;
  }
  if (!Runs_To_The_End(program, record->ProjectFileName, target)) {
    Say_Problem(file, target + " can't be written by " + program);
    return kNotDone;
  }
  Say({file, "written", target});
  return kDone;
}

}  // namespace

int Report_Projects(const Batch_Options& options, Known_Folders& folders) {
  constexpr char kToFolder[] = "several reports can only be written into an existing folder";
  if (options.pdf) return Write_Products(options, {"report", "pdf", kToFolder, Write_Pdf}, folders);
  return Write_Products(options, {"report", "html", kToFolder, Write_Html}, folders);
}

}  // namespace barvon
