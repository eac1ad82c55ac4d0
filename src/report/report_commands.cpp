#include "report/report_commands.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <string_view>
#include <system_error>

#include "core/desk/analysis_keys.h"
#include "core/desk/load_record.h"
#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/project_file/project_guard.h"
#include "platform/ask/busy_cursor.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/message_box.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/qt/printed_file.h"
#include "platform/qt/session_printer.h"
#include "platform/text/letter_case.h"
#include "report/project_report.h"
#include "report/report_html.h"
#include "report/report_pages.h"
#include "report/report_printer.h"

namespace barvon {
namespace {

constexpr int kWritten = 0, kNotWritten = 2;  // exit codes

bool Ends_In(const std::string& path, std::string_view ending) {
  return path.size() >= ending.size() &&
         Equal_Ignoring_Case(path.substr(path.size() - ending.size()), std::string(ending));
}

bool Is_Page(const std::string& path) { return Ends_In(path, ".html") || Ends_In(path, ".htm"); }

std::string With_Ending(const std::string& path) {
  return Is_Page(path) || Ends_In(path, ".pdf") ? path : path + ".pdf";
}

/// The report of what the boards show; nothing, and told, where there is no model project.
std::optional<Report_Document> Make_Report(ProjectRecord& record) {
  if (!Is_Model_Project(record)) {
    Show_Message({"There Is No Project to Report on.  Please Open a Project First."});
    return std::nullopt;
  }
  Show_Project(record);
  return Project_Report(record, Facts_Of(record));
}

std::string Bytes_For(const std::string& path, const Report_Document& report) {
  if (Is_Page(path)) return Report_Html(report);
  return Report_Pdf(report, Session_Printer().pageLayout()).toStdString();
}

constexpr char kIsAProject[] = "it is a project file";

bool Is_A_Project(const std::string& path, const ProjectRecord& record) {
  return Leads_To_A_Project(path, {record.ProjectFileName});
}

void Tell_Failure(const std::string& path, const std::string& reason) {
  Show_Critical("The report was not saved as " + path + ": " + reason +
                ".\nA file that was there before is unchanged.");
}

}  // namespace

void Save_Project_Report(ProjectRecord& record) {
  const auto report = Make_Report(record);
  if (!report) return;
  const auto chosen = Ask_Save_File(
      {.title = "Save Project Report",
       .filters = {{"PDF Documents (*.pdf)", "*.pdf"}, {"Web Pages (*.html)", "*.html"}},
       .name = Report_Name(record.ProjectFileName, "pdf"),
       .complete = With_Ending,
       .ending = Ending::To_Others});
  if (!chosen) return;
  const std::string path = With_Ending(*chosen);
  if (Is_A_Project(path, record)) return Tell_Failure(path, kIsAProject);
  const Busy_Cursor waiting;
  const std::string bytes = Bytes_For(path, *report);
  if (bytes.empty()) return Tell_Failure(path, "it could not be made");
  if (const int error = Write_Whole_File(path, bytes); error != 0) {
    return Tell_Failure(path, std::generic_category().message(error));
  }
  Port().board.show_note({"Project report written: " + path, {}});
}

void Print_Project_Report(ProjectRecord& record) {
  const auto report = Make_Report(record);
  if (!report) return;
  const auto pages = [&] { return Pages_On(*report, Session_Printer().pageLayout()); };
  QPrinter& printer = Session_Printer();
  // Print to file offers it as the name.
  const std::string& file = record.ProjectFileName;
  printer.setDocName(
      QString::fromStdString(file.empty() ? report->title : Name_Of(Base_Name(file))));
  Offer_Print_File(Report_Name(file, "pdf"));
  if (!Ask_Printer("Print Project Report", static_cast<int>(pages().size()))) return;
  const std::string target = printer.outputFileName().toStdString();
  if (!target.empty() && Is_A_Project(target, record)) return Tell_Failure(target, kIsAProject);
  const Busy_Cursor waiting;
  // The dialog may have changed the paper. Without a range both are 0.
  const Page_Range range{printer.fromPage(), printer.toPage(),
                         printer.pageOrder() == QPrinter::LastPageFirst};
  Printed_File printed(printer);
  if (!Paint_Pages(pages(), range, printer) || printed.Keep() != 0) {
    return Show_Critical("The Report Could Not Be Printed.");
  }
  Port().board.show_note({"Project report printed.", {}});
}

int Write_Report_Pdf(const std::string& project, const std::string& target) {
  const Loaded_Record loaded = Load_Record(project);
  if (loaded.record == nullptr) {
    std::fprintf(stderr, "%s: %s\n", project.c_str(), loaded.problem.c_str());
    return kNotWritten;
  }
  if (Is_A_Project(target, *loaded.record)) {
    std::fprintf(stderr, "%s: %s\n", target.c_str(), kIsAProject);
    return kNotWritten;
  }
  Report_Facts facts = Facts_Of(*loaded.record);
  facts.saved = true;
  const QByteArray pdf = Report_Pdf(Project_Report(*loaded.record, facts), Default_Report_Layout());
  const int error = pdf.isEmpty() ? EIO : Write_Whole_File(target, pdf.toStdString());
  if (error == 0) return kWritten;
  std::fprintf(stderr, "%s: %s\n", target.c_str(), std::generic_category().message(error).c_str());
  return kNotWritten;
}

void Register_Project_Report() {
  Register_Screen(Row_Of_Screen("Project_Report"),
                  [](bool, const std::string&) { Save_Project_Report(Project()); });
  Port().report.print = [] { Print_Project_Report(Project()); };
}

}  // namespace barvon
