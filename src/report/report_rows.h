#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/failure.h"
#include "core/field_table.h"
#include "core/project_record.h"
#include "platform/table/spreadsheet_table.h"
#include "report/report_document.h"
#include "report/run_results.h"

namespace barvon {

/// A report while it is made of a record. A value that has been told by its field is not told
/// again.
class Report_Maker {
 public:
  explicit Report_Maker(const ProjectRecord& record, Run_Results run = {});

  const ProjectRecord& record;
  const Run_Results run;
  /// The record with what making its model input derives; only in part when that fails.
  const std::unique_ptr<ProjectRecord> prepared;
  const Failure failure;  // of the model input
  Report_Document document;

  void Heading(int level, const std::string& text);
  void Paragraph(const std::string& text);
  /// A paragraph in red.
  void Warning(const std::string& text);
  /// A picture that has nothing to show is left out.
  void Picture(Shape_List picture);
  void Table(Report_Table table);
  /// Headings, row headings as far as they are not mere numbers, and cells of a table as its screen
  /// shows it, but for the columns `without`; numbers with all their digits.
  void Table(const std::string& caption, const Spreadsheet_Table& table,
             const std::set<int>& without = {});

  // Rows of values. They go into one table until something else is put or a new caption is given.
  /// A group that is joined to the one before it stays on its page.
  void Group(const std::string& text, bool joined = false);
  /// The rows of the table that the record shows, under their frames. A row without a member is
  /// left out, and so is one whose value the model input does not hold.
  void Fields(Field_Table table);
  /// The row of a control, as long as it is shown.
  void Field(Field_Table table, const Control_Name& control);
  /// The row that holds the value, shown or not, unless it has been told or the model input does
  /// not hold it.
  void Field_Of(Field_Table table, const double& value);
  void Field_Of(Field_Table table, const std::string& value);
  /// The row of a value that the model input does not hold.
  void Kept(Field_Table table, const double& value);
  void Number(const std::string& label, double value, const std::string& pattern,
              const std::string& unit);
  void Words(const std::string& label, const std::string& words);
  /// The label and the unit of a row whose value its screen fills by itself.
  void Number_Of_Row(Field_Table table, const Control_Name& control, double value);
  /// Tells of a count that there is no room for, as a file can have it, how many are shown.
  void Shown_Of(int shown, double count);
  void Yes_Or_No(const std::string& label, bool yes);

 private:
  bool Tell_Once(const void* value) { return told_.insert(value).second; }
  Report_Table& Values();
  void Put_Row(std::vector<std::string> cells);
  void Put_If_Held(const Field_Row& row);
  void Put(const Field_Row& row);
  const Field_Row* Row_Of(Field_Table table, const void* value) const;

  std::set<const void*> told_;
  std::string frame_;      // the group that rows go into
  bool by_field_ = false;  // it is a field's frame: a field without one ends it
};

/// A label without the unit that has a column of its own, and without the point at its end.
std::string Label_Without_Unit(const std::string& label, const std::string& unit);

}  // namespace barvon
