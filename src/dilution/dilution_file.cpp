#include "dilution/dilution_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "core/desk/file_kinds.h"
#include "core/number_text.h"
#include "core/text_tools.h"
#include "platform/files/text_encoding.h"
#include "platform/text/counted.h"

namespace barvon {
namespace {

constexpr char kDilutionTag[] = "   DUD    0";
constexpr std::size_t kCountWidth = 5;
constexpr std::size_t kNumberWidth = 15;
constexpr std::size_t kTitleWidth = kTitleLength;
constexpr int kMostDigits = 15;  // that a field can hold
constexpr int kAllDigits = 17;   // of a double

std::string Number_Field(double value) {
  return Right_Justified(Number_To_Fit(value, kNumberWidth), kNumberWidth);
}

/// The number of these digits in all ways to write it, those that are read most easily first.
std::vector<std::string> Forms_Of(const Decimal_Digits& decimal) {
  const std::string sign = decimal.negative ? "-" : "";
  const auto digits = static_cast<int>(decimal.digits.size());
  std::vector<std::string> forms;
  std::string bare;  // a part of 1 without the 0 in front
  if (decimal.exponent <= 0) {
    bare = "." + std::string(static_cast<std::size_t>(-decimal.exponent), '0') + decimal.digits;
    forms = {"0" + bare};
  } else if (digits <= decimal.exponent) {
    forms = {decimal.digits +
             std::string(static_cast<std::size_t>(decimal.exponent - digits), '0')};
  } else {
    forms = {decimal.digits};
    forms[0].insert(static_cast<std::size_t>(decimal.exponent), ".");
  }
  std::string mantissa = decimal.digits.substr(0, 1);
  if (digits > 1) mantissa += "." + decimal.digits.substr(1);
  forms.push_back(mantissa + "E" + std::to_string(decimal.exponent - 1));
  // With less of the rest there is room for more digits.
  if (!bare.empty()) forms.push_back(bare);
  forms.push_back(decimal.digits + "E" + std::to_string(decimal.exponent - digits));
  for (std::string& form : forms) form.insert(0, sign);
  return forms;
}

/// The value with so many significant digits: rounded, and cut for a value that would be rounded
/// beyond every number.
std::array<Decimal_Digits, 2> Digits_Of(double value, int count) {
  Decimal_Digits cut = To_Decimal(value, kAllDigits);
  cut.digits.resize(std::min(cut.digits.size(), static_cast<std::size_t>(count)));
  return {To_Decimal(value, count), cut};
}

/// The lines of a file that ends them by CR LF or LF; the last one needs no end.
class Lines {
 public:
  explicit Lines(std::string_view bytes) : rest_(bytes) {}

  std::string_view Next() {
    if (rest_.empty()) throw Run_Time_Failure{Failure::Input_Past_End};
    const std::size_t end = std::min(rest_.find('\n'), rest_.size());
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
  }

 private:
  std::string_view rest_;
};

std::string_view Columns(std::string_view line, std::size_t first, std::size_t width) {
  return line.substr(std::min(first, line.size()), width);
}

struct Parameter {
  std::string name;
  std::array<double, 4> values{};  // in the order of their fields
};

struct Dilution_List {
  std::string title;
  std::int16_t count = 0;
  double solids = 0;
  std::vector<Parameter> parameters;
};

Dilution_List Read_List(std::string_view bytes) {
  Lines lines(bytes);
  Dilution_List list;
  lines.Next();  // the tag: the file has been told by its extension
  list.title = From_File_Bytes(Columns(lines.Next(), 0, kTitleWidth));
  const std::string_view sizes = lines.Next();
  list.count = To_Int16(Column_Number(Columns(sizes, 0, kCountWidth)));
  if (list.count < 0 || list.count > kMaxDilutionRows) throw Run_Time_Failure{Failure::Subscript};
  list.solids = Column_Number(Columns(sizes, kCountWidth, kNumberWidth));
  for (int i = 1; i <= list.count; ++i) {
    Parameter parameter;
    parameter.name = From_File_Bytes(Columns(lines.Next(), 0, kDilutionNameLength));
    const std::string_view values = lines.Next();
    std::size_t column = 0;
    for (double& value : parameter.values) {
      value = Column_Number(Columns(values, column, kNumberWidth));
      column += kNumberWidth;
    }
    list.parameters.push_back(std::move(parameter));
  }
  return list;
}

void Store_List(const Dilution_List& list, ProjectRecord& record) {
  record.ProjectTitle = list.title;
  record.DiluteRowCount = list.count;
  record.DiluteSolidsConc = list.solids;
  if (list.parameters.empty()) return;
  record.DiluteParameterNames = {};
  record.DiluteBulk = record.DiluteElutriate = {};
  record.DiluteCriteria = record.DiluteBackground = {};
  record.DiluteBulkWaterConc = record.DiluteBulkDilution = record.DiluteElutDilution = {};
  record.DiluteBulkRemark = record.DiluteElutRemark = {};
  std::size_t at = 0;
  for (const Parameter& parameter : list.parameters) {
    ++at;
    record.DiluteParameterNames[at] = parameter.name;
    record.DiluteBulk[at] = parameter.values[0];
    record.DiluteElutriate[at] = parameter.values[1];
    record.DiluteCriteria[at] = parameter.values[2];
    record.DiluteBackground[at] = parameter.values[3];
  }
}

}  // namespace

std::string Number_To_Fit(double value, std::size_t width) {
  std::string text = Plain_Number(value);
  if (text.size() <= width || !std::isfinite(value)) return text;
  std::string closest;
  double distance = 0;
  for (int count = kMostDigits; count > 0; --count) {
    for (const Decimal_Digits& decimal : Digits_Of(value, count)) {
      for (std::string& form : Forms_Of(decimal)) {
        if (form.size() > width) continue;
        const double off = std::abs(Lenient_Number(form) - value);
        if (!closest.empty() && off >= distance) continue;
        closest = std::move(form);
        distance = off;
      }
    }
  }
  return closest;
}

std::string Write_Dilution_File(const ProjectRecord& record) {
  std::string text = kDilutionTag;
  text += "\r\n" + Right_Justified(record.ProjectTitle, kTitleWidth) + "\r\n";
  text += Right_Justified(Plain_Number(record.DiluteRowCount), kCountWidth);
  text += Number_Field(record.DiluteSolidsConc) + "\r\n";
  for (std::size_t i = 1; static_cast<int>(i) <= record.DiluteRowCount; ++i) {
    text += record.DiluteParameterNames[i] + "\r\n";
    text += Number_Field(record.DiluteBulk[i]) + Number_Field(record.DiluteElutriate[i]) +
            Number_Field(record.DiluteCriteria[i]) + Number_Field(record.DiluteBackground[i]) +
            "\r\n";
  }
  return To_File_Bytes(text);
}

Failure Read_Dilution_File(std::string_view bytes, ProjectRecord& record) {
  try {
    Store_List(Read_List(bytes), record);
    return Failure::None;
  } catch (const Run_Time_Failure& stopped) {
    return stopped.failure;
  }
}

void Register_Dilution_File() {
  Register_File_Kind(kDilutionLetters,
                     {[](const std::string&, std::string_view bytes, ProjectRecord& record) {
                        return Read_Dilution_File(bytes, record);
                      },
                      Write_Dilution_File});
}

std::string Dilution_Name_Note(const std::string& typed) {
  return Fits_File_Encoding(typed) ? "" : "has a character that the dilution file can't keep";
}

std::string Lost_Letters_Note(const ProjectRecord& record) {
  std::size_t cut = 0, foreign = 0;
  for (std::size_t i = 1; static_cast<int>(i) <= record.DiluteRowCount; ++i) {
    const std::string& name = record.DiluteParameterNames[i];
    if (Character_Count(name) > static_cast<std::size_t>(kDilutionNameLength)) ++cut;
    if (!Dilution_Name_Note(name).empty()) ++foreign;
  }
  std::string note;
  if (cut > 0) note = Counted(cut, "name") + " of more than 20 letters: the first 20 are read back";
  if (foreign > 0) {
    if (!note.empty()) note += "; ";
    note += Counted(foreign, "name") + " with letters that the file can't keep: saved as ?";
  }
  return note;
}

}  // namespace barvon
