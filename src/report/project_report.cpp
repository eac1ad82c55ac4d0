#include "report/project_report.h"

#include <sys/stat.h>

#include <ctime>
#include <memory>
#include <utility>

#include "core/text_tools.h"
#include "platform/files/lock_holder.h"
#include "platform/files/paths.h"
#include "report/report_sections.h"
#include "site/site_data.h"

namespace barvon {
namespace {

constexpr char kNotSaved[] = "not saved";

void Put_File(Report_Maker& report, const Report_Facts& facts) {
  if (facts.file.empty()) {
    report.Words("File", kNotSaved);
  } else {
    report.Words("File", Name_Of(facts.file));
    report.Words("Folder", Folder_Of(facts.file));
    if (!facts.changed.empty()) report.Words("File Date", facts.changed);
    if (!facts.saved) report.Words("Changes Since Then", kNotSaved);
  }
  report.Words("Date of This Report", facts.date);
}

}  // namespace

Report_Facts Facts_Of(const ProjectRecord& record) {
  Report_Facts facts;
  facts.file = record.ProjectFileName;
  facts.saved = record.DataSaved != kFalse;
  facts.date = Time_In_Words(std::time(nullptr));
  struct stat status {};
  if (!facts.file.empty() && ::stat(facts.file.c_str(), &status) == 0) {
    facts.changed = Time_In_Words(status.st_mtime);
  }
  return facts;
}

Report_Document Project_Report(const ProjectRecord& project, const Report_Facts& facts) {
  // A file has no dimensions of the grid: they follow from its counts and spacings.
  const auto record = std::make_unique<ProjectRecord>(project);
  Store_Dimensions(*record);
  Report_Maker report(*record);
  const std::string title = Trimmed(record->ProjectTitle);
  report.document.title = "Project Report";
  report.document.subtitle = title.empty() ? "Untitled Project" : title;
  const std::string name = facts.file.empty() ? kNotSaved : Name_Of(facts.file);
  report.document.running_title =
      facts.file.empty() || facts.saved ? name : name + ", with changes " + kNotSaved;
  report.document.date = facts.date;
  Put_File(report, facts);
  for (const Report_Section& section : kReportSections) section.write(report);
  return std::move(report.document);
}

std::string Report_Name(const std::string& project_file, const std::string& extension) {
  return With_Extension(project_file.empty() ? "UNTITLED" : project_file, extension);
}

}  // namespace barvon
