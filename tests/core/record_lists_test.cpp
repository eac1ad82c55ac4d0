// Lists that must name every field of the record, held to the record itself: a field that is
// forgotten in one of them is told here by its name.
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/project_defaults.h"
#include "core/project_file/project_image.h"
#include "core/project_file/project_reader.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "core/record_fields.h"
#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

/// Every element of every field gets a value that no default has; neighbours differ.
std::unique_ptr<ProjectRecord> Filled_Record() {
  auto record = std::make_unique<ProjectRecord>();
  int value = 0;
  for (const Record_Field& field : Record_Fields()) {
    for (int i = field.count > 0 ? 1 : 0; i <= field.count; ++i) {
      for (int j = field.across > 0 ? 1 : 0; j <= field.across; ++j) {
        value = value % 59 + 1;
        field.set(*record, i, j, 34 + value);
      }
    }
  }
  return record;
}

TEST(RecordLists, A_Filled_Record_Differs_From_A_New_One_In_Every_Field) {
  const auto blank = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*blank);
  Names all;
  for (const Record_Field& field : Record_Fields()) all.emplace_back(field.name);
  EXPECT_EQ(Differing_Fields(*Filled_Record(), *blank), all);
}

TEST(RecordLists, Every_Field_Has_A_Default_But_For_Those_That_Outlive_A_Project) {
  const auto used = Filled_Record();
  Set_Project_Defaults(*used);
  const auto fresh = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*fresh);
  // What belongs to the program, and what no default is told for.
  const Names kProgram = {"WizardHelpOn",  "AlwaysSaveBeforeRun", "WizardAtStart",
                          "WizardActive",  "LegacyKeyRebuild",    "WizardAccepted",
                          "OutputsCopied", "HelpContextToShow",   "GridPointRadius"};
  const Names kUntold = {"BaseFileName",
                         "FileKind",
                         "ShowMode",
                         "FileTypeTag",
                         "DistX",
                         "DistZ",
                         "TidalStartTime",
                         "TidalVelX",
                         "TidalVelZ",
                         "FluidComputedConcentration",
                         "SolidCohesiveText",
                         "SolidStrippedText",
                         "SiteSalinity",
                         "SiteTemperature",
                         "DiluteBulkWaterConc",
                         "DiluteBulkRemark",
                         "DiluteElutRemark",
                         "DiluteRowCount"};
  EXPECT_EQ(Differing_Fields(*used, *fresh, kProgram), kUntold);
  EXPECT_EQ(Differing_Fields(*used, *fresh).size(), kProgram.size() + kUntold.size());
}

bool Is_Same(const Record_Field& field, const ProjectRecord& a, const ProjectRecord& b, int i,
             int j) {
  return field.number(a, i, j) == field.number(b, i, j) &&
         field.text(a, i, j) == field.text(b, i, j);
}

/// The fields of which not even the first element came back.
Names Lost_Fields(const ProjectRecord& saved, const ProjectRecord& loaded) {
  Names lost;
  for (const Record_Field& field : Record_Fields()) {
    const int i = field.count > 0 ? 1 : 0;
    const int j = field.across > 0 ? 1 : 0;
    if (!Is_Same(field, saved, loaded, i, j)) lost.emplace_back(field.name);
  }
  return lost;
}

TEST(RecordLists, Every_Field_Is_In_The_File_But_For_Those_That_Are_Not_Of_It) {
  const auto saved = Filled_Record();
  saved->KEY3 = 5;  // with others the fluid's concentration is computed
  Pack_Slots(*saved);
  const auto loaded = std::make_unique<ProjectRecord>();
  ASSERT_EQ(Load_Project("site.dui", Save_Project("site.dui", *saved), *loaded).failure,
            Failure::None);
  // The program's state, what is typed on the way to a stored value, the dilution tables, which
  // have a file of their own, and what is computed for the model input.
  const Names kNotOfTheFile = {"ProjectFileName",
                               "BaseFileName",
                               "FileKind",
                               "DataSaved",
                               "SavedUnderScreens",
                               "ShowMode",
                               "FileTypeTag",
                               "AnalysisType",
                               "OldGridFile",
                               "OldGridRetry",
                               "ScreenDataSupplied",
                               "WizardHelpOn",
                               "AlwaysSaveBeforeRun",
                               "WizardAtStart",
                               "WizardActive",
                               "LegacyKeyRebuild",
                               "WizardAccepted",
                               "OutputsCopied",
                               "HelpContextToShow",
                               "GridPointRadius",
                               "PreviousDisposalMethod",
                               "DistX",
                               "DistZ",
                               "DEPTHI",
                               "DensitySalinities",
                               "DensityTemperatures",
                               "DensityComputeFlag",
                               "ConstVelocityX",
                               "ConstVelocityZ",
                               "FluidComputedConcentration",
                               "SolidCohesiveText",
                               "SolidStrippedText",
                               "SiteSalinity",
                               "SiteTemperature",
                               "SelectedSiteCode",
                               "SelectedMonth",
                               "SelectedMaterialCode",
                               "SelectedVesselCode",
                               "SiteFound",
                               "MaterialFound",
                               "VesselFound",
                               "ActiveDatabaseList",
                               "DiluteParameterNames",
                               "DiluteBulk",
                               "DiluteElutriate",
                               "DiluteCriteria",
                               "DiluteBackground",
                               "DiluteBulkWaterConc",
                               "DiluteBulkDilution",
                               "DiluteElutDilution",
                               "DiluteBulkRemark",
                               "DiluteElutRemark",
                               "DiluteSolidsConc",
                               "DiluteRowCount",
                               "SolidsVolumeSum",
                               "SolidsMassSum",
                               "SiteGridTop",
                               "SiteGridBottom",
                               "SiteGridLeft",
                               "SiteGridRight",
                               "ZidGridTop",
                               "ZidGridBottom",
                               "ZidGridLeft",
                               "ZidGridRight",
                               "CohesiveCount",
                               "StrippedCount",
                               "TracerSolidCount",
                               "DepthGridFlagOut"};
  EXPECT_EQ(Lost_Fields(*saved, *loaded), kNotOfTheFile);
}

TEST(RecordLists, The_Page_Of_File_Formats_Names_Every_Exact_Value) {
  const std::string page = Read_Text(BARVON_SOURCE "/docs/file-formats.md");
  std::set<std::string> names{"SolidNames"};
  for (const Image_Number& number : Image_Numbers()) {
    const std::string name = Name_Of_Number(number);
    names.insert(name.substr(0, name.find('(')));
  }
  EXPECT_GE(names.size(), 10U);
  for (const std::string& name : names) {
    EXPECT_NE(page.find("`" + name), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace barvon::testing
