#pragma once

#include <string>

#include "core/project_record.h"
#include "report/report_document.h"
#include "report/run_results.h"

namespace barvon {

/// What a report says about the project's file, and when it was made.
struct Report_Facts {
  std::string file;     // its path; empty: there is none
  std::string changed;  // when the file was written, in words; empty where that is not known
  bool saved = true;    // false: the project has changes that the file does not have
  std::string date;     // of the report
  // The listing of a run that lies beside the file: its name, when it was written, and how it
  // begins, which says what solver wrote it. Empty where there is none.
  std::string listing{}, listing_date{}, listing_begins{};
  Run_Results run{};
};

/// The facts about the record's file, at this hour.
Report_Facts Facts_Of(const ProjectRecord& record);

/// The report of a project: every value that goes into the model, by category, with the pictures
/// of its site and its water and what the check of the data finds. The record stays as it is.
Report_Document Project_Report(const ProjectRecord& record, const Report_Facts& facts);

/// The name that a report of the project is offered under: that of its file with another extension.
std::string Report_Name(const std::string& project_file, const std::string& extension);

}  // namespace barvon
