#include "dilution/dilution_report.h"

#include <cmath>
#include <filesystem>
#include <system_error>

#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "core/number_text.h"
#include "core/text_tools.h"
#include "dilution/dilution_rules.h"
#include "platform/ask/message_box.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/files/text_encoding.h"

namespace barvon {
namespace {

constexpr char kFormFeed[] = "\f";
constexpr char kBeyondNumbers[] = "too large";  // no double holds it
constexpr std::size_t kTitleColumn = 22;

/// A line that is printed at columns, which count from 1.
class Print_Line {
 public:
  explicit Print_Line(std::string text = "") : text_(std::move(text)) {}

  void At(std::size_t column, const std::string& text) {
    const std::size_t length = Character_Count(text_);
    if (length < column - 1) {
      text_.append(column - 1 - length, ' ');
    } else if (!text_.empty() && !text_.ends_with(' ') && !text.starts_with(' ')) {
      text_ += ' ';
    }
    text_ += text;
  }
  void At(std::size_t column, double number) {
    if (!std::isfinite(number)) {
      At(column, " " + std::string(kBeyondNumbers) + " ");
      return;
    }
    // In free form a number has room for its sign in front and a blank behind it.
    const std::string text = Plain_Number(number);
    At(column, (text.starts_with('-') ? "" : " ") + text + " ");
  }
  std::string Ended() const { return text_ + "\r\n"; }

 private:
  std::string text_;
};

enum Column : std::size_t {
  kName = 2,
  kBulk = 17,
  kElutriate = 31,
  kCriteria = 45,
  kBackground = 59,
  kBulkDilution = 73,
  kBulkRemark = 89,
  kElutDilution = 105,
  kElutRemark = 121
};

std::string Headings() {
  Print_Line line;
  line.At(kName, "Parameter");
  line.At(kBulk, "Bulk Sediment");
  line.At(kElutriate, "Elutriate");
  line.At(kCriteria, "Criteria");
  line.At(kBackground, "Background");
  line.At(kBulkDilution, "Dilution (Bulk)");
  line.At(kBulkRemark, "Remarks (Bulk)");
  line.At(kElutDilution, "Dilution (Elut)");
  line.At(kElutRemark, "Remarks (Elut)");
  return line.Ended();
}

std::string Parameter_Line(const ProjectRecord& record, std::size_t i) {
  Print_Line line;
  line.At(kName, record.DiluteParameterNames[i]);
  line.At(kBulk, record.DiluteBulk[i]);
  line.At(kElutriate, record.DiluteElutriate[i]);
  line.At(kCriteria, record.DiluteCriteria[i]);
  line.At(kBackground, record.DiluteBackground[i]);
  line.At(kBulkDilution, record.DiluteBulkDilution[i]);
  line.At(kBulkRemark, record.DiluteBulkRemark[i]);
  line.At(kElutDilution, record.DiluteElutDilution[i]);
  line.At(kElutRemark, record.DiluteElutRemark[i]);
  return line.Ended();
}

std::string Report_Path() {
  std::error_code error;
  return Path_To_Write(Join_Path(std::filesystem::current_path(error).string(), kDilutionReport));
}

}  // namespace

std::string Dilution_Report(const ProjectRecord& record) {
  Print_Line title(kFormFeed);
  title.At(kTitleColumn, "Dilutions Required for Bulk Sediment and Elutriate");
  std::string text = title.Ended() + "\r\n" + Headings();
  for (std::size_t i = 1; static_cast<int>(i) <= record.DiluteRowCount; ++i) {
    text += Parameter_Line(record, i);
  }
  return text;
}

void Write_Dilute_Report(ProjectRecord& record) {
  if (record.DiluteRowCount <= 0) {
    Show_Warning("There Are No Parameters to Report.  Enter or Read Them in the Calculator First.");
    return;
  }
  if (!List_Is_Computed(record) && !Compute_Dilutions(record.DiluteSolidsConc, record)) return;
  const std::string path = Report_Path();
  if (Find_Path(path) && Ask("Replace the Report That Is There?\n\n" + path, Buttons::YesNo,
                             Icon::Question) != Answer::Yes) {
    return;
  }
  const int error = Write_Whole_File(path, To_File_Bytes(Dilution_Report(record)));
  if (error != 0) {
    Show_Critical("The report was not written as " + path + ": " +
                  std::generic_category().message(error) + ".");
    return;
  }
  Port().board.show_note({"The dilution report is " + path + ".", {}});
}

void Register_Dilute_Report() {
  Register_Screen(Row_Of_Screen("Write_Dilute_Report"),
                  [](bool, const std::string&) { Write_Dilute_Report(Project()); });
}

}  // namespace barvon
