// Every value that goes into the model is in the report, and once. The record's own list of fields
// is gone through: where a change of a value changes the model input, it changes one cell of the
// report. A new field that the model gets and the report does not tell fails here by its name.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "core/desk/load_record.h"
#include "core/keys.h"
#include "core/model_input/model_input.h"
#include "core/record_fields.h"
#include "report/project_report.h"
#include "report/report_cells.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

/// What follows from the values, and what the model input does not hold.
const std::set<std::string> kOtherChapters = {"Check of the Data", "As the Solver Gets It",
                                              "Kept in the Project File, Not Used"};

/// Told for what follows from them, or as what is studied.
const std::set<std::string> kSources = {"AnalysisType",      "DensityComputeFlag",
                                        "DensitySalinities", "DensityTemperatures",
                                        "SiteSalinity",      "SiteTemperature",
                                        "TidalStartTime",    "TidalVelX",
                                        "TidalVelZ",         "KEY4"};

/// What a choice or a count changes beside itself is not counted.
const std::set<std::string> kChoices = {"DisposalMethod",
                                        "KEY2",
                                        "KEY3",
                                        "MMAX0",
                                        "NMAX0",
                                        "NROA0",
                                        "NumPrintTimes",
                                        "NumSolids",
                                        "NumOutputDepths",
                                        "ConstantDepthFlag",
                                        "LAYERS",
                                        "NOPENS",
                                        "SeparationFlag",
                                        "VelocityProfileType",
                                        "ZidFlag"};

/// What is no value of the project: the tag of the file that is written.
const std::set<std::string> kOfTheFile = {"FileTypeTag"};

std::vector<std::string> Samples() {
  std::vector<std::string> samples;
  for (const std::string& name : Names_In(BARVON_SAMPLES)) {
    if (name.ends_with(".DUI")) samples.push_back(name);
  }
  return samples;
}

std::unique_ptr<ProjectRecord> Sample(const std::string& name) {
  auto record = std::move(Load_Record(std::string(BARVON_SAMPLES) + "/" + name).record);
  // As many points as it takes: every cell of a larger grid goes the same way.
  if (record->MMAX0 > 60) record->MMAX0 = record->NMAX0 = 9;
  return record;
}

std::string Model_Of(const ProjectRecord& record) {
  const auto copy = std::make_unique<ProjectRecord>(record);
  std::string text;
  EXPECT_EQ(Make_Model_Input(*copy, text), Failure::None);
  return text;
}

std::multiset<std::string> Told(const ProjectRecord& record) {
  return Cells_Of(Project_Report(record, {"a.DUI", "then", true, "now"}), kOtherChapters);
}

/// A value that nothing in the report has yet.
double Other_Value(const Record_Field& field, const ProjectRecord& record, int i, int j) {
  const double value = field.number(record, i, j);
  if (field.type == Field_Type::Real) return value + 0.8125;
  if (field.type == Field_Type::Text) return 7654;
  return value == 0 || value == 1 ? 1 - value : value + 1;
}

/// Cells that say something else when a value does.
std::size_t Expected_Cells(const std::string& name, int i, const ProjectRecord& record) {
  // A spacing, and the dimension of the grid that follows from it.
  if (name == "DX0" || name == "DZ0") return 2;
  // A speed, and whether the vessel is at rest.
  if (name == "VesselSpeed" && record.VesselSpeed == 0) return 2;
  // A fraction heads a row of the layers' composition too.
  const bool separated = record.DisposalMethod == kBarge && record.SeparationFlag != 0;
  if (name == "SolidNames" && i <= kMaxSolids && separated) return 2;
  return 1;
}

class ReportValues : public ::testing::TestWithParam<std::string> {};

TEST_P(ReportValues, Every_Value_That_Goes_Into_The_Model_Is_Told_Once) {
  const auto record = Sample(GetParam());
  const std::string model = Model_Of(*record);
  const std::multiset<std::string> told = Told(*record);
  const auto changed = std::make_unique<ProjectRecord>(*record);
  int values = 0;
  for (const Record_Field& field : Record_Fields()) {
    const std::string name = field.name;
    if (kOfTheFile.contains(name) || name == "RealSlots" || name == "IntSlots") continue;
    // What the calculator of dilutions holds is no part of the model.
    if (name.starts_with("Dilute")) continue;
    const int step = field.across > 0 ? 4 : 1;
    const int rows = std::min(field.count, 26), columns = std::min(field.across, 13);
    for (int i = field.count > 0 ? 1 : 0; i <= rows; i += step) {
      for (int j = field.across > 0 ? 1 : 0; j <= columns; j += step) {
        *changed = *record;
        field.set(*changed, i, j, Other_Value(field, *record, i, j));
        if (kChoices.contains(name)) continue;
        if (Model_Of(*changed) == model) continue;
        ++values;
        const std::multiset<std::string> now = Told(*changed);
        std::vector<std::string> gone, come;
        std::ranges::set_difference(told, now, std::back_inserter(gone));
        std::ranges::set_difference(now, told, std::back_inserter(come));
        const std::size_t cells = Expected_Cells(name, i, *record);
        EXPECT_EQ(gone.size(), cells) << name << " " << i << " " << j;
        EXPECT_EQ(come.size(), cells) << name << " " << i << " " << j;
      }
    }
  }
  EXPECT_GT(values, 50);
}

/// Whether some other value of the field makes another model input: a small change may leave a
/// grid point or a column of figures as it was.
bool Counts_In_The_Model(const Record_Field& field, const ProjectRecord& record, int i, int j) {
  const std::string model = Model_Of(record);
  const double value = field.number(record, i, j);
  const auto changed = std::make_unique<ProjectRecord>(record);
  for (const double other :
       {Other_Value(field, record, i, j), value + 1000, value + 4 * record.DX0, value / 2, 0.0}) {
    *changed = record;
    field.set(*changed, i, j, other);
    std::string text;
    if (Make_Model_Input(*changed, text) != Failure::None || text != model) return true;
  }
  return false;
}

void Expect_To_Be_In_The_Model(const ProjectRecord& record, const std::string& which) {
  const std::multiset<std::string> told = Told(record);
  const auto changed = std::make_unique<ProjectRecord>(record);
  for (const Record_Field& field : Record_Fields()) {
    const std::string name = field.name;
    if (kSources.contains(name) || kChoices.contains(name)) continue;
    if (name.starts_with("Wizard")) continue;
    if (name == "RealSlots" || name == "IntSlots" || name.starts_with("Dilute")) continue;
    const int i = field.count > 0 ? 1 : 0, j = field.across > 0 ? 1 : 0;
    *changed = record;
    field.set(*changed, i, j, Other_Value(field, record, i, j));
    if (Told(*changed) == told) continue;
    EXPECT_TRUE(Counts_In_The_Model(field, record, i, j)) << which << " " << name;
  }
}

TEST_P(ReportValues, What_Is_Told_As_In_The_Model_Input_Is_In_It) {
  Expect_To_Be_In_The_Model(*Sample(GetParam()), GetParam());
}

/// By method and KEY3: the lines of the fluid are others for each.
class ReportVariants : public ::testing::TestWithParam<std::tuple<std::int16_t, std::int16_t>> {};

TEST_P(ReportVariants, Tells_What_Its_Model_Input_Has) {
  const auto record = Sample("Section_404_Zid.DUI");
  record->NOPENS = record->LAYERS = 2;
  // Room for the corners to move.
  record->MMAX0 = record->NMAX0 = 16;
  record->DX0 = record->DZ0 = 100;
  record->SiteTop = record->SiteLeft = 400;
  record->SiteBottom = record->SiteRight = 800;
  record->TracerConcentration = 11;
  record->BackgroundConcentration = 12;
  record->CriterionConcentration = 13;
  record->SedimentConcentration = 14;
  record->ToxicityDilution = 15;
  record->ZidToxicityDilution = 16;
  record->ZCRIT = 17;
  const std::set<std::string> fluid = {"TracerConcentration",
                                       "BackgroundConcentration",
                                       "CriterionConcentration",
                                       "SedimentConcentration",
                                       "ToxicityDilution",
                                       "ZidToxicityDilution",
                                       "ZCRIT"};
  std::tie(record->DisposalMethod, record->KEY3) = GetParam();
  const std::string which =
      std::to_string(record->DisposalMethod) + ", " + std::to_string(record->KEY3);
  Expect_To_Be_In_The_Model(*record, which);
  const std::string model = Model_Of(*record);
  const std::multiset<std::string> told = Told(*record);
  for (const Record_Field& field : Record_Fields()) {
    if (!fluid.contains(field.name)) continue;
    const auto changed = std::make_unique<ProjectRecord>(*record);
    field.set(*changed, 0, 0, Other_Value(field, *record, 0, 0));
    EXPECT_EQ(Told(*changed) != told, Model_Of(*changed) != model) << which << " " << field.name;
  }
}

INSTANTIATE_TEST_SUITE_P(Evaluations, ReportVariants,
                         ::testing::Combine(::testing::Values(std::int16_t{kHopper},
                                                              std::int16_t{kContinuous},
                                                              std::int16_t{kBarge}),
                                            ::testing::Range(std::int16_t{0}, std::int16_t{9})));

TEST_P(ReportValues, Choices_And_Counts_Are_Told_By_What_They_Show) {
  const auto record = Sample(GetParam());
  const std::multiset<std::string> told = Told(*record);
  const auto changed = std::make_unique<ProjectRecord>(*record);
  for (const Record_Field& field : Record_Fields()) {
    if (!kChoices.contains(field.name)) continue;
    *changed = *record;
    field.set(*changed, 0, 0, field.number(*record, 0, 0) == 1 ? 0 : 1);
    if (Model_Of(*changed) == Model_Of(*record)) continue;
    EXPECT_NE(Told(*changed), told) << field.name;
  }
}

TEST_P(ReportValues, The_Record_Stays_As_It_Is_And_Names_Of_Fields_Are_Not_Told) {
  const auto record = Sample(GetParam());
  const auto before = std::make_unique<ProjectRecord>(*record);
  const std::multiset<std::string> told = Told(*record);
  for (const Record_Field& field : Record_Fields()) {
    for (int i = field.count > 0 ? 1 : 0; i <= std::min(field.count, 30); ++i) {
      const int j = field.across > 0 ? 1 : 0;
      EXPECT_EQ(field.text(*record, i, j), field.text(*before, i, j)) << field.name;
      EXPECT_EQ(field.number(*record, i, j), field.number(*before, i, j)) << field.name;
    }
  }
  for (const std::string& cell : told) {
    for (const char* inside : {"frm", "Text1(", "KEY", "!", "_"}) {
      if (cell == "a.DUI") continue;
      EXPECT_EQ(cell.find(inside), std::string::npos) << cell;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, ReportValues, ::testing::ValuesIn(Samples()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                           return info.param.substr(0, info.param.find('.'));
                         });

}  // namespace
}  // namespace barvon::testing
