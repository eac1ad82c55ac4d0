#include "core/field_table.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/format_pattern.h"
#include "core/number_reading.h"
#include "core/number_text.h"
#include "core/text_tools.h"

namespace barvon {
namespace {

constexpr char kDisabledText[] = "0";

bool Is_Shown(const Field_Row& row, const ProjectRecord& record) {
  return row.shown_for == nullptr || row.shown_for(record);
}

bool Is_Enabled(const Field_Row& row, const ProjectRecord& record) {
  return row.enabled_for == nullptr || row.enabled_for(record);
}

bool Has_Member(const Field_Row& row) {
  return !std::holds_alternative<std::monostate>(row.member);
}

std::string Shown_Value(double value, const char* pattern) {
  return *pattern == '\0' ? Plain_Number(value) : Format_Number(value, pattern);
}
std::string Shown_Value(float value, const char* pattern) {
  return Shown_Value(Widen(value), pattern);
}
std::string Shown_Value(std::int16_t value, const char* pattern) {
  return Shown_Value(static_cast<double>(value), pattern);
}
std::string Shown_Value(const std::string& value, const char* pattern) {
  return *pattern == '\0' ? value : Format_Text(value, pattern);
}

/// Whether the value has to be a whole number of 16 bits.
bool Is_Narrow(const Field_Row& row) {
  return row.reads == Reads::Whole || row.reads == Reads::Cut ||
         std::holds_alternative<std::int16_t ProjectRecord::*>(row.member) ||
         std::holds_alternative<Record_Element<std::int16_t>>(row.member);
}

/// Whether the record's value stays what it is: what the field shows of it may be rounded.
bool Stays(const Field_Row& row, const Field_Texts& texts, const ProjectRecord& record) {
  return texts.Is_Untouched(row.control) && Is_Enabled(row, record) && !row.held;
}

double Number_Of(const Field_Row& row, const std::string& text) {
  double number = Lenient_Number(text);
  // Rounding makes negative zeros.
  if (row.reads == Reads::Whole) number = Round_Half_Even(number) + 0.0;
  if (row.reads == Reads::Cut) number = std::trunc(number) + 0.0;
  if (row.held) number = std::clamp(number, row.held->least, row.held->greatest);
  return number;
}

bool Fits(const Field_Row& row, const std::string& text) {
  if (!Is_Narrow(row)) return true;
  using Limits = std::numeric_limits<std::int16_t>;
  const double number = Number_Of(row, text);
  return number >= Limits::min() && number <= Limits::max();
}

void Store(const Field_Row& row, const std::string& text, ProjectRecord& record) {
  With_Member(row.member, record, [&](auto& value) {
    using Value = std::remove_reference_t<decltype(value)>;
    if constexpr (std::is_same_v<Value, std::string>) {
      value = Trimmed(text);
    } else if constexpr (std::is_same_v<Value, float>) {
      constexpr double kLargest = std::numeric_limits<float>::max();
      value = static_cast<float>(std::clamp(Number_Of(row, text), -kLargest, kLargest));
    } else {
      value = static_cast<Value>(Number_Of(row, text));
    }
  });
}

Field_Kind Kind_Of(Reads reads) {
  if (reads == Reads::Text) return Field_Kind::Text;
  return reads == Reads::Nothing ? Field_Kind::Shown : Field_Kind::Number;
}

Field_Face Face_Of(const Field_Row& row, const ProjectRecord& record) {
  Field_Face face{row.control, row.label_name, row.label, row.frame, row.tag, Kind_Of(row.reads)};
  face.note = [reads = row.reads](const std::string& typed) { return Field_Note(reads, typed); };
  face.max_length = row.max_length;
  face.shown = Is_Shown(row, record);
  if (row.enabled_for != nullptr) face.enabled = row.enabled_for(record);
  return face;
}

}  // namespace

const Field_Row* Find_Row(Field_Table table, const Control_Name& control,
                          const ProjectRecord& record) {
  const auto found = std::find_if(table.begin(), table.end(), [&](const Field_Row& row) {
    return row.control == control && Is_Shown(row, record);
  });
  return found == table.end() ? nullptr : &*found;
}

std::string Field_Text(const Field_Row& row, const ProjectRecord& record) {
  if (!Is_Enabled(row, record)) return kDisabledText;
  std::string text;
  With_Member(row.member, record,
              [&](const auto& value) { text = Shown_Value(value, row.pattern); });
  return text;
}

Field_Texts Fill_Fields(Field_Table table, const ProjectRecord& record) {
  Field_Texts texts;
  for (const Field_Row& row : table) {
    if (!Has_Member(row) || Find_Row(table, row.control, record) != &row) continue;
    texts.Set(row.control, Field_Text(row, record));
  }
  return texts;
}

const Field_Row* Read_Fields(Field_Table table, const Field_Texts& texts, ProjectRecord& record) {
  std::vector<const Field_Row*> rows;
  for (const Field_Row& row : table) {
    if (!Has_Member(row) || row.reads == Reads::Nothing || texts.Find(row.control) == nullptr ||
        Find_Row(table, row.control, record) != &row || Stays(row, texts, record)) {
      continue;
    }
    if (!Fits(row, *texts.Find(row.control))) return &row;
    rows.push_back(&row);
  }
  // Which rows are shown must not depend on what is being written.
  for (const Field_Row* row : rows) Store(*row, *texts.Find(row->control), record);
  return nullptr;
}

double Member_Number(const Field_Row& row, const ProjectRecord& record) {
  double number = 0;
  With_Member(row.member, record, [&](const auto& value) {
    using Value = std::decay_t<decltype(value)>;
    if constexpr (std::is_same_v<Value, float>) {
      number = Widen(value);
    } else if constexpr (std::is_arithmetic_v<Value>) {
      number = value;
    }
  });
  return number;
}

double Entered_Number(Field_Table table, const Control_Name& control, const Field_Texts& texts,
                      const ProjectRecord& record) {
  const Field_Row* row = Find_Row(table, control, record);
  if (row != nullptr && Is_Enabled(*row, record) && texts.Is_Untouched(control)) {
    return Member_Number(*row, record);
  }
  const std::string* text = texts.Find(control);
  return text == nullptr ? 0 : Lenient_Number(*text);
}

std::string Field_Note(Reads reads, const std::string& typed) {
  switch (reads) {
    case Reads::Real:
      return Real_Note(typed);
    case Reads::Whole:
      return Whole_Note(typed);
    case Reads::Cut:
      return Cut_Note(typed);
    case Reads::Text:
    case Reads::Nothing:
      break;
  }
  return "";
}

std::vector<Field_Face> Faces_Of(Field_Table table, const ProjectRecord& record) {
  std::vector<Field_Face> faces;
  for (const Field_Row& row : table) {
    const auto same = [&](const Field_Face& face) { return face.control == row.control; };
    if (std::any_of(faces.begin(), faces.end(), same)) continue;
    const Field_Row* shown = Find_Row(table, row.control, record);
    faces.push_back(Face_Of(shown == nullptr ? row : *shown, record));
  }
  return faces;
}

}  // namespace barvon
