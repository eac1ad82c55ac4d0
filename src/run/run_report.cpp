#include "run/run_report.h"

#include <string.h>

#include <cstdio>
#include <system_error>

#include "platform/files/paths.h"

namespace barvon {
namespace {

std::string Joined(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) all += (all.empty() ? "" : ", ") + text;
  return all;
}

std::string Seconds(std::chrono::milliseconds duration) {
  const auto tenths = (duration.count() + 50) / 100;
  return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + " s";
}

std::string How_It_Ended(const Process_End& end) {
  if (end.signal != 0) {
    const char* name = sigabbrev_np(end.signal);
    return "was ended by signal " + std::to_string(end.signal) +
           (name == nullptr ? "" : std::string(" (") + name + ")");
  }
  if (end.exit_code == -1) return "ended with a code that the system did not tell";
  return "ended with code " + std::to_string(end.exit_code);
}

std::string Kept_Files(const Run_Report& report) {
  if (report.kept.empty()) return "";
  std::vector<std::string> names;
  for (const std::string& path : report.kept) names.push_back(Name_Of(path));
  return "; kept " + Joined(names) + " in " + Folder_Of(report.kept.front());
}

std::string What_Is_Amiss(const Run_Report& report) {
  const std::size_t kept = report.kept.size() - report.earlier.size();
  std::string text =
      std::to_string(kept) + " of " + std::to_string(kOutputExtensions.size()) + " outputs kept";
  if (!report.not_written.empty()) {
    text += "; not written by this run: " + Joined(report.not_written);
  }
  if (!report.earlier.empty()) {
    text += "; kept from an earlier run: " + Joined(report.earlier);
  }
  if (!report.not_kept.empty()) text += "; could not be kept: " + Joined(report.not_kept);
  return text;
}

/// The line of a solver that ended by itself. It is cut where its window ends, so that what is
/// amiss comes before everything that a good run tells too, and a long path last.
std::string Text_Of_End(const Run_Report& report) {
  const Process_Outcome& outcome = report.outcome;
  const std::string ended = " " + How_It_Ended(outcome.end) + " after " + Seconds(outcome.duration);
  if (report.Succeeded()) return outcome.name + ended + Kept_Files(report) + ".";
  const std::string name = Name_Of(outcome.name);
  const bool well = outcome.end.signal == 0 && outcome.end.exit_code == 0;
  std::string text = well ? What_Is_Amiss(report) + "; " + name + ended
                          : name + ended + "; " + What_Is_Amiss(report);
  text += Kept_Files(report);
  if (name != outcome.name) text += "; the solver was " + outcome.name;
  return text + ".";
}

}  // namespace

bool Run_Report::Succeeded() const {
  return stage == Run_Stage::Ended && outcome.started && !outcome.end.stopped &&
         outcome.end.signal == 0 && outcome.end.exit_code == 0 && not_written.empty() &&
         kept.size() == kOutputExtensions.size();
}

void Run_Report::Add_Outputs(const std::vector<Kept_Output>& outputs) {
  for (const Kept_Output& output : outputs) {
    if (!output.written) not_written.push_back(output.extension);
    if (!output.path.empty()) kept.push_back(output.path);
    if (!output.path.empty() && !output.written) earlier.push_back(output.extension);
    if (output.error != 0) {
      not_kept.push_back(output.extension + " (" + std::generic_category().message(output.error) +
                         ")");
    }
  }
}

std::string Status_Text(const Run_Report& report) {
  const Process_Outcome& outcome = report.outcome;
  const std::string lacking = report.problem.empty() ? "" : "; " + report.problem;
  switch (report.stage) {
    case Run_Stage::Refused:
      return "Not run: another run is under way.";
    case Run_Stage::No_File:
      return "Not run: the project has no file.";
    case Run_Stage::Invalid_Type:
      return "Not run: this type of file can't be run.";
    case Run_Stage::Errors:
      return "Not run: errors in the data are to be fixed first.";
    case Run_Stage::Cancelled:
      return "Not run: cancelled.";
    case Run_Stage::Save_Failed:
      return "Not run: the project could not be saved.";
    case Run_Stage::Input_Failed:
      return "Not run: " + report.problem + ".";
    case Run_Stage::No_Model:
      return "Not run: no model is available for this discharge case" + lacking + ".";
    case Run_Stage::Not_Started:
      return "Not run: " + outcome.problem + ".";
    case Run_Stage::Stopped:
      return outcome.name + " was stopped after " + Seconds(outcome.duration) +
             "; no outputs kept.";
    case Run_Stage::Ended:
      break;
  }
  return Text_Of_End(report);
}

}  // namespace barvon
