#include "checks/remarks.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <string_view>

#include "core/desk/analysis_keys.h"
#include "core/keys.h"
#include "core/model_input/model_input.h"
#include "core/number_text.h"
#include "core/record_fields.h"
#include "platform/text/counted.h"

namespace barvon {
namespace {

using Remarks = std::vector<std::string>;

/// Fractions are decimals: 0.1, 0.2 and 0.7 add up to more than 1 by their last bit.
constexpr double kRoundingOfASum = 1e-9;

std::string And_More(int others, std::string_view array) {
  if (others == 0) return {};
  return ", and so for " + std::to_string(others) + " more of " + std::string(array);
}

/// A field with two subscripts is a cell of a grid: thousands of them may be too wide.
bool Is_Cell(const Wide_Value& wide) { return wide.field.find(',') != std::string::npos; }

void Add_Wide_Values(const ProjectRecord& record, Remarks& remarks) {
  const auto copy = std::make_unique<ProjectRecord>(record);
  Refresh_Record(*copy);  // as a save does before it writes
  std::string text;
  std::vector<Wide_Value> wide_values;
  // What can't be written is told by who wants it written.
  Write_Model_Input(*copy, text, &wide_values);
  for (std::size_t i = 0; i < wide_values.size(); ++i) {
    const Wide_Value& wide = wide_values[i];
    int others = 0;
    while (Is_Cell(wide) && i + 1 < wide_values.size() && wide_values[i + 1].array == wide.array) {
      ++others;
      ++i;
    }
    remarks.push_back("Line " + std::to_string(wide.line) + " of the model input: " + wide.field +
                      " is " + wide.value + ", wider than its " + std::to_string(wide.columns) +
                      " columns, and moves the rest of the line" + And_More(others, wide.array));
  }
}

std::string Name_Of_Element(const Record_Field& field, int i, int j) {
  std::string name = field.name;
  if (field.count == 0) return name;
  name += "(" + std::to_string(i);
  if (field.across > 0) name += "," + std::to_string(j);
  return name + ")";
}

void Add_Non_Numbers_Of(const Record_Field& field, const ProjectRecord& record, Remarks& remarks) {
  std::string first;
  int others = 0;
  for (int i = 1; i <= std::max(field.count, 1); ++i) {
    for (int j = 1; j <= std::max(field.across, 1); ++j) {
      const double value = field.number(record, i, j);
      if (std::isfinite(value)) continue;
      if (first.empty()) {
        first = Name_Of_Element(field, i, j) +
                (std::isnan(value) ? " is no number" : " is infinite") + " (" +
                Plain_Number(value) + ")";
      } else {
        ++others;
      }
    }
  }
  if (!first.empty()) remarks.push_back(first + And_More(others, field.name));
}

/// The slots are the image of the fields: what is in them is told once, under the field's name.
bool Is_Image(std::string_view name) { return name == "IntSlots" || name == "RealSlots"; }

void Add_Non_Numbers(const ProjectRecord& record, Remarks& remarks) {
  for (const Record_Field& field : Record_Fields()) {
    if (field.type == Field_Type::Real && !Is_Image(field.name)) {
      Add_Non_Numbers_Of(field, record, remarks);
    }
  }
}

void Add_Sum(const std::string& of_what, double sum, Remarks& remarks) {
  if (sum > 1 + kRoundingOfASum) {
    remarks.push_back("The volumetric fractions of " + of_what + " add up to " + Plain_Number(sum) +
                      ", more than 1");
  }
}

void Add_Fractions(const ProjectRecord& record, Remarks& remarks) {
  const int solids = std::min<int>(record.NumSolids, kMaxSolids);
  if (record.DisposalMethod != kBarge || record.SeparationFlag != 1) {
    double sum = 0;
    for (int i = 1; i <= solids; ++i) sum += record.SolidVolFraction[i];
    return Add_Sum("the solids", sum, remarks);
  }
  for (int j = 1; j <= std::min<int>(record.LAYERS, kMaxLayers); ++j) {
    double sum = 0;
    for (int i = 1; i <= solids; ++i) sum += record.LayerSolidFraction[i][j];
    Add_Sum("layer " + std::to_string(j), sum, remarks);
  }
}

}  // namespace

std::vector<std::string> Remarks_On(const ProjectRecord& record) {
  Remarks remarks;
  Add_Wide_Values(record, remarks);
  Add_Non_Numbers(record, remarks);
  Add_Fractions(record, remarks);
  return remarks;
}

std::string Remark_Count(const std::vector<std::string>& remarks) {
  if (remarks.empty()) return {};
  return Counted(remarks.size(), "remark");
}

std::string Remark_Lines(const std::vector<std::string>& remarks) {
  std::string lines;
  for (const std::string& remark : remarks) lines += remark + "\n";
  return lines;
}

}  // namespace barvon
