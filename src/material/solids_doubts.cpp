#include "material/solids_doubts.h"

#include <algorithm>

#include "core/number_reading.h"
#include "core/number_text.h"
#include "core/text_tools.h"
#include "material/material_library.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

constexpr int kShownDoubts = 15;              // lines of a question
constexpr std::size_t kShownCharacters = 40;  // of a text that is quoted

std::string In_One_Line(std::string heading) {
  std::ranges::replace(heading, '\n', ' ');
  return heading;
}

std::string Quoted(const std::string& text) {
  const std::string shown = First_Characters(text, kShownCharacters);
  return "\"" + (shown.size() < text.size() ? shown + "..." : shown) + "\"";
}

std::string Text_Of(const Cell_Value& value) {
  const auto* text = std::get_if<std::string>(&value);
  if (text != nullptr) return Real_Note(*text).empty() ? *text : Quoted(*text);
  const auto* number = std::get_if<double>(&value);
  return number == nullptr ? "\"\"" : Plain_Number(*number);
}

/// As many lines as a box on a small display has room for.
std::string First_Lines(const std::string& doubts) {
  std::size_t end = 0;
  for (int line = 0; line < kShownDoubts && end < doubts.size(); ++line) {
    end = doubts.find('\n', end) + 1;
  }
  const auto more =
      std::count(doubts.begin() + static_cast<std::ptrdiff_t>(end), doubts.end(), '\n');
  return more == 0 ? doubts : doubts.substr(0, end) + "And " + std::to_string(more) + " more.\n";
}

bool Holds_Values(const Spreadsheet_Table& table, int row) {
  for (int col = 2; col <= table.MaxCol(); ++col) {
    if (!table.IsEmptyRC(row, col)) return true;
  }
  return false;
}

}  // namespace

std::string Number_Doubts(const Spreadsheet_Table& table, const Cell_Range& range,
                          const std::string& row_name, int rows_above) {
  std::string doubts;
  for (int row = range.row1; row <= range.row2; ++row) {
    for (int col = range.col1; col <= range.col2; ++col) {
      if (table.IsEmptyRC(row, col) || table.IsNumberRC(row, col)) continue;
      const std::string text = table.TextRC(row, col);
      const std::string note = Real_Note(text);
      if (note.empty()) continue;
      doubts += row_name.empty() ? In_One_Line(table.RowText(row))
                                 : row_name + std::to_string(row - rows_above);
      doubts += ", " + In_One_Line(table.ColText(col)) + ": " + Quoted(text) + " " + note + ".\n";
    }
  }
  return doubts;
}

std::string Solids_Doubts(Solids_Layout layout, const Spreadsheet_Table& table) {
  const int last = kRowBase + Filled_Solids(table);
  std::string doubts;
  for (int row = kRowBase + 1; row <= kSolidsRows; ++row) {
    const std::string name = Trimmed(table.TextRC(row, 1));
    const std::string number = "Fraction " + std::to_string(row - kRowBase);
    if (name.empty()) {
      if (row <= last) {
        doubts.append(number).append(": is stored without a name.\n");
      } else if (Holds_Values(table, row)) {
        doubts.append(number).append(": is lost, because it has no name.\n");
      }
      continue;
    }
    const std::string called = number + ", " + Quoted(name);
    const std::string note = Material_Name_Note(name);
    if (!note.empty()) doubts.append(called).append(": the name ").append(note).append(".\n");
    if (row > last) {
      doubts.append(called).append(": is lost, because a row above it has no name.\n");
    }
  }
  return doubts + Number_Doubts(table,
                                {kRowBase + 1, Column_Of(Solids_Field::Gravity, layout), last,
                                 Column_Of(Solids_Field::Shear, layout)},
                                "Fraction ", kRowBase);
}

std::string Volume_Doubts(const Solids_State& state, const Spreadsheet_Table& table,
                          const ProjectRecord& record) {
  std::string doubts;
  if (state.layout != kSeparatedLoad) return doubts;
  for (int i = 1; i <= Filled_Solids(table); ++i) {
    const Solids_Row& row = state.Row(kRowBase + i);
    const bool is_new = row.solid == 0 || row.solid > record.NumSolids;
    const double stored = is_new ? 0 : record.SolidVolFraction[static_cast<std::size_t>(row.solid)];
    const bool is_none = row.saved_volume == Cell_Value() && stored == 0;
    if (!row.volume_was_shown || is_none || row.saved_volume == Cell_Of(stored)) continue;
    doubts.append("Fraction " + std::to_string(i) + ", Volumetric Fraction: ")
        .append(Text_Of(row.saved_volume))
        .append(" is not stored, because each layer has its own.\n");
  }
  return doubts;
}

bool Accept_Doubts(const std::string& doubts) {
  if (doubts.empty()) return true;
  return Ask(First_Lines(doubts) + "\nOK Stores the Material All the Same.", Buttons::OkCancel,
             Icon::Warning) == Answer::Ok;
}

}  // namespace barvon
