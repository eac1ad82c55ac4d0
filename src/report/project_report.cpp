#include "report/project_report.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <fstream>
#include <memory>
#include <utility>

#include "core/text_tools.h"
#include "platform/files/lock_holder.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/text_encoding.h"
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
  if (facts.listing.empty()) return;
  report.Words("Output of the Last Run", facts.listing + ", " + facts.listing_date);
  report.Words("It Begins With", facts.listing_begins);
}

/// The first line of a file as text that can be shown, whatever wrote it.
std::string First_Line(const std::string& path) {
  constexpr std::size_t kMostShown = 200;
  std::string bytes(kMostShown, '\0');
  std::ifstream file(path, std::ios::binary);
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  bytes.resize(std::min(bytes.size(), bytes.find_first_of("\r\n")));
  std::erase_if(bytes, [](char c) { return static_cast<unsigned char>(c) < ' '; });
  return Trimmed(From_File_Bytes(bytes));
}

void Look_At_Listing(const std::string& base_name, Report_Facts& facts) {
  const auto path = Find_Path(base_name + ".duo");
  struct stat status {};
  if (!path || ::stat(path->c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return;
  facts.listing = Name_Of(*path);
  facts.listing_date = Time_In_Words(status.st_mtime);
  facts.listing_begins = First_Line(*path);
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
  if (!facts.file.empty()) Look_At_Listing(Base_Name(facts.file), facts);
  facts.run = Results_Beside(record);
  return facts;
}

Report_Document Project_Report(const ProjectRecord& project, const Report_Facts& facts) {
  // A file has no dimensions of the grid: they follow from its counts and spacings.
  const auto record = std::make_unique<ProjectRecord>(project);
  Store_Dimensions(*record);
  Report_Maker report(*record, facts.run);
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
