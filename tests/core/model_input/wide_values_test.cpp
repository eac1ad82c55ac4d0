#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/model_input/model_examples.h"
#include "core/model_input/model_input.h"
#include "core/model_input/wild_record.h"
#include "core/number_text.h"
#include "core/project_file/value_slots.h"
#include "core/record_fields.h"

namespace barvon::testing {
namespace {

/// Names that are none of the record's: two values that are computed from several fields.
const std::set<std::string> kComputed = {"TotalVolume / NOPENS", "Length of the footprint",
                                         "Width of the footprint"};

/// What the record holds in the field of that name; "none" when it has no such field.
std::string Held(const ProjectRecord& record, const Wide_Value& wide) {
  int i = 0, j = 0;
  const auto subscripts = wide.field.find('(');
  if (subscripts != std::string::npos) {
    std::sscanf(wide.field.c_str() + subscripts, "(%d,%d)", &i, &j);
  }
  for (const Record_Field& field : Record_Fields()) {
    if (field.name != wide.array) continue;
    if (field.type == Field_Type::Text) return field.text(record, i, j);
    return Plain_Number(field.number(record, i, j));
  }
  return "none";
}

/// The name and the value of a line are two lists in the writer; here they are held together.
RC_GTEST_PROP(WideValues, Each_Is_The_Value_Of_The_Field_That_It_Names_And_On_Its_Line, ()) {
  const auto record = Wild_Record();
  std::string text;
  std::vector<Wide_Value> wide_values;
  if (Write_Model_Input(*record, text, &wide_values) != Failure::None) return;
  RC_CLASSIFY(!wide_values.empty());
  const std::vector<std::string> lines = Whole_Lines(text);
  for (const Wide_Value& wide : wide_values) {
    RC_ASSERT(wide.line >= 1 && wide.line <= static_cast<int>(lines.size()));
    if (wide.array == "SolidNames" || wide.array == "TracerName") continue;  // wild letters
    RC_ASSERT(lines[static_cast<std::size_t>(wide.line) - 1].find(wide.value) != std::string::npos);
    if (wide.array == "PrintTimes" || kComputed.contains(wide.array)) continue;
    RC_ASSERT(Held(*record, wide) == wide.value);
  }
}

/// A project of that method whose values all fit, and whose profile reaches its bottom whatever
/// one of its values becomes.
ProjectRecord Narrow(std::int16_t method) {
  ProjectRecord r = method == 1 ? Hopper_Example() : Barge_Example();
  r.VelocityProfileType = 1;
  r.DZ0 = 60;
  r.NROA0 = 5;
  r.DensityDepths = {0, 0, 1, 2, 3, 1e6};
  r.Densities = {0, 1, 1, 1, 1, 1};
  r.TotalVolume = 3000;
  r.NumOutputDepths = 5;
  r.NumPrintTimes = 12;
  return r;
}

/// Each value of the record in turn is made wide: the lines that grow are those that are reported,
/// under its name.
TEST(WideValues, Every_Field_That_Makes_A_Line_Longer_Is_Reported) {
  constexpr double kWide = 1234.56789012;
  int reported = 0;
  for (const std::int16_t method : {1, 3}) {
    ProjectRecord narrow = Narrow(method);
    std::string text;
    std::vector<Wide_Value> wide_values;
    ASSERT_EQ(Write_Model_Input(narrow, text, &wide_values), Failure::None);
    ASSERT_TRUE(wide_values.empty()) << wide_values[0].field;
    const std::vector<std::string> before = Whole_Lines(text);
    for (const auto rows : {Int_Slot_Rows(), Real_Slot_Rows()}) {
      for (const Slot_Row& row : rows) {
        const std::string name = row.field;
        if (row.integer || name == "NumOutputDepths" || name == "VelocityProfileType") continue;
        for (int i = 1; i <= row.count; ++i) {
          auto record = std::make_unique<ProjectRecord>(Narrow(method));
          row.set(*record, i, kWide);
          ASSERT_EQ(Write_Model_Input(*record, text, &wide_values), Failure::None) << name;
          const std::vector<std::string> lines = Whole_Lines(text);
          ASSERT_EQ(lines.size(), before.size()) << name;
          std::set<int> longer, told;
          for (std::size_t line = 0; line < lines.size(); ++line) {
            if (lines[line].size() > before[line].size()) longer.insert(static_cast<int>(line) + 1);
          }
          for (const Wide_Value& wide : wide_values) told.insert(wide.line);
          EXPECT_EQ(told, longer) << name << " " << i;
          for (const Wide_Value& wide : wide_values) {
            if (wide.value == "1234.56789012" && !kComputed.contains(wide.field)) {
              EXPECT_EQ(wide.array, name);
              ++reported;
            }
          }
        }
      }
    }
  }
  EXPECT_GT(reported, 100);
}

TEST(WideValues, A_Print_Time_Beyond_Its_Pattern_Is_Reported) {
  ProjectRecord record = Hopper_Example();
  record.PrintTimes[2] = 123456789;
  std::string text;
  std::vector<Wide_Value> wide_values;
  ASSERT_EQ(Write_Model_Input(record, text, &wide_values), Failure::None);
  ASSERT_EQ(wide_values.size(), 1u);
  EXPECT_EQ(wide_values[0].field, "PrintTimes(2)");
  EXPECT_EQ(wide_values[0].value, "123456789.0");
  EXPECT_EQ(wide_values[0].columns, 10u);
}

TEST(WideValues, The_Continuous_Section_Has_No_Columns_To_Leave) {
  ProjectRecord record = Continuous_Example();
  record.DEPC0 = 123456789.125;
  std::string text;
  std::vector<Wide_Value> wide_values;
  ASSERT_EQ(Write_Model_Input(record, text, &wide_values), Failure::None);
  EXPECT_TRUE(wide_values.empty());
}

}  // namespace
}  // namespace barvon::testing
