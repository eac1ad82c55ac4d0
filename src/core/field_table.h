#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/project_record.h"
#include "core/record_member.h"
#include "platform/fields/field_face.h"
#include "platform/fields/field_texts.h"

namespace barvon {

/// How a field's text becomes its value.
enum class Reads {
  Real,     // by its leading number
  Whole,    // the same, rounded to 16 bits, half to even
  Cut,      // the same, its fraction cut
  Text,     // without the blanks around it
  Nothing,  // the field only shows
};

/// What a count is held to, without a word, when its field is read.
struct Count_Limits {
  double least = 0, greatest = 0;
};

/// A field of a screen. From a table of them come the texts that fill the screen, what is read back
/// into the record, the notes of misread numbers, labels, tags and units:
///
///     {.control = {"Text1", 2},
///      .label = "Length of Disposal Vessel Bin (ft)",
///      .unit = "ft",
///      .pattern = "#####0.0",
///      .member = &ProjectRecord::BINL,
///      .shown_for = Is_Hopper}
///
/// A control that means something else by the project's keys has a row for each meaning, and of
/// them the first that is shown for the record counts.
struct Field_Row {
  Control_Name control;
  const char* label = "";
  const char* unit = "";     // of the value, also where the label does not name it
  const char* pattern = "";  // Format_Number's, a text's Format_Text's; "": as it is
  Reads reads = Reads::Real;
  Record_Member member = {};  // empty: the screen fills and reads the field by itself
  const char* frame = "";     // the caption of its frame, which completes the label
  const char* tag = "";
  Control_Name label_name = {};  // of its label, when that has a name
  std::optional<Count_Limits> held = {};
  int max_length = 0;  // of a text; 0: no limit
  /// For which projects the field is there at all; nullptr: all.
  bool (*shown_for)(const ProjectRecord&) = nullptr;
  /// For which it can be used; nullptr: whenever it is there. For all others it shows "0", is
  /// disabled, and is read as what it shows.
  bool (*enabled_for)(const ProjectRecord&) = nullptr;
};
using Field_Table = std::span<const Field_Row>;

/// The row that counts for a control; nullptr when none is shown for the record.
const Field_Row* Find_Row(Field_Table table, const Control_Name& control,
                          const ProjectRecord& record);

/// What a field shows for the record; "" without a member.
std::string Field_Text(const Field_Row& row, const ProjectRecord& record);

/// The texts of all fields that are shown for the record and have a member.
Field_Texts Fill_Fields(Field_Table table, const ProjectRecord& record);

/// Writes the texts to the record. A field without a text, one that is not shown for the record and
/// one without a member leave it alone; so does one whose text is untouched, as long as it can be
/// used and is no count that has to be brought in. The result is the first field whose number does
/// not fit 16 bits where it has to; the record is unchanged then. Otherwise nullptr.
const Field_Row* Read_Fields(Field_Table table, const Field_Texts& texts, ProjectRecord& record);

/// The record's number behind a row; 0 when its member is none.
double Member_Number(const Field_Row& row, const ProjectRecord& record);

/// The number that a field stands for: the record's own while its text is untouched, else the
/// leading number of the text. The field must have a row with a number.
double Entered_Number(Field_Table table, const Control_Name& control, const Field_Texts& texts,
                      const ProjectRecord& record);

/// What to say about a text of the field that is not read as it is written, else "".
std::string Field_Note(Reads reads, const std::string& typed);

/// How the fields look for the record, a face for each control in the order of the table.
std::vector<Field_Face> Faces_Of(Field_Table table, const ProjectRecord& record);

}  // namespace barvon
