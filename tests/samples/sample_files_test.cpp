#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "checks/check_data.h"
#include "checks/remarks.h"
#include "core/desk/analysis_keys.h"
#include "core/model_input/model_input.h"
#include "core/project_defaults.h"
#include "core/project_file/project_reader.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "platform/files/paths.h"
#include "sample_projects.h"
#include "support/plain_support.h"
#include "support/record_differences.h"
#include "support/run_program.h"

namespace barvon::testing {
namespace {

using samples::Sample;

std::string Path_Of(const Sample& sample) { return Join_Path(BARVON_SAMPLES, sample.file); }

std::unique_ptr<ProjectRecord> Filled(const Sample& sample) {
  auto record = std::make_unique<ProjectRecord>();
  Fill_Sample(sample, *record);
  Pack_Slots(*record);
  return record;
}

std::unique_ptr<ProjectRecord> Loaded(const Sample& sample) {
  auto record = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*record);
  record->FileKind = 2;
  const Scripted_Messages no_boxes;
  const Load_Result result = Load_Project(Path_Of(sample), Read_Text(Path_Of(sample)), *record);
  EXPECT_EQ(result.failure, Failure::None) << sample.file;
  EXPECT_EQ(result.remark, "") << sample.file;
  return record;
}

TEST(SampleFiles, Are_What_The_Program_Makes_Byte_For_Byte) {
  for (const Sample& sample : samples::Samples()) {
    const auto record = Filled(sample);
    // Not EXPECT_EQ: a difference would print a quarter of a megabyte.
    EXPECT_TRUE(Read_Text(Path_Of(sample)) == Save_Project(sample.file, *record))
        << sample.file << " is not what make_samples writes";
  }
}

TEST(SampleFiles, Give_No_Cause_For_A_Remark) {
  for (const Sample& sample : samples::Samples()) {
    EXPECT_EQ(Remarks_On(*Loaded(sample)), std::vector<std::string>{}) << sample.file;
  }
}

TEST(SampleFiles, Are_All_That_The_Folder_Holds) {
  std::set<std::string> expected;
  for (const Sample& sample : samples::Samples()) expected.insert(sample.file);
  std::set<std::string> found;
  for (const std::string& name : Names_In(BARVON_SAMPLES)) {
    if (name.ends_with(".DUI")) found.insert(name);
  }
  EXPECT_EQ(found, expected);
}

TEST(SampleFiles, Load_Back_To_The_Record_That_They_Were_Made_From) {
  for (const Sample& sample : samples::Samples()) {
    const auto made = Filled(sample);
    Save_Project(sample.file, *made);
    // What the file does not store, and the marks of the load itself.
    const std::vector<std::string> not_stored = {"DataSaved",       "FileTypeTag",
                                                 "OldGridFile",     "AnalysisType",
                                                 "DistX",           "DistZ",
                                                 "SolidsMassSum",   "PreviousDisposalMethod",
                                                 "SolidsVolumeSum", "FluidComputedConcentration"};
    EXPECT_EQ(Differing_Fields(*made, *Loaded(sample), not_stored), std::vector<std::string>{})
        << sample.file;
  }
}

TEST(SampleFiles, Stay_As_They_Are_When_They_Are_Shown) {
  for (const Sample& sample : samples::Samples()) {
    const auto loaded = Loaded(sample);
    const auto shown = Loaded(sample);
    shown->AnalysisType = Filled(sample)->AnalysisType;
    loaded->AnalysisType = shown->AnalysisType;
    Compute_Site_Density_From_Bulk(*shown);
    Refresh_Record(*shown);
    EXPECT_EQ(Differing_Fields(*loaded, *shown,
                               {"PreviousDisposalMethod", "SolidsVolumeSum", "SolidsMassSum"}),
              std::vector<std::string>{})
        << sample.file;
  }
}

TEST(SampleFiles, Pass_Validation) {
  for (const Sample& sample : samples::Samples()) {
    for (const Error_Entry& entry : Check_Data(*Loaded(sample)).entries) {
      ADD_FAILURE() << sample.file << ": " << entry.message << " " << entry.reference;
    }
  }
}

/// The fastest current of the project in X and in Z, ft/s, each with its sign.
std::pair<double, double> Fastest_Current(const ProjectRecord& record) {
  double x = record.AvgVelocityX, z = record.AvgVelocityZ;
  const auto take = [&](double other_x, double other_z) {
    if (std::abs(other_x) > std::abs(x)) x = other_x;
    if (std::abs(other_z) > std::abs(z)) z = other_z;
  };
  take(record.TidalAvgVelX, record.TidalAvgVelZ);
  take(record.VelX1, record.VelZ1);
  for (int a = 1; a <= record.MMAX0; ++a) {
    for (int b = 1; b <= record.NMAX0; ++b) {
      take(record.VelocityFieldX[a][b], record.VelocityFieldZ[a][b]);
    }
  }
  return {x, z};
}

TEST(SampleFiles, Keep_Their_Cloud_On_The_Grid_For_As_Long_As_They_Run) {
  for (const Sample& sample : samples::Samples()) {
    const auto record = Filled(sample);
    if (record->DisposalMethod == 2) continue;  // a plume that goes on may leave at the far edge
    const auto [x, z] = Fastest_Current(*record);
    const double end_x = record->XBARGE + x * record->SimulationDuration;
    const double end_z = record->ZBARGE + z * record->SimulationDuration;
    EXPECT_TRUE(end_x > 0 && end_x < record->DistX) << sample.file << " X " << end_x;
    EXPECT_TRUE(end_z > 0 && end_z < record->DistZ) << sample.file << " Z " << end_z;
  }
}

TEST(SampleFiles, Export_And_The_Input_Echo_Reads_What_A_Solver_Would_Get) {
  for (const Sample& sample : samples::Samples()) {
    const Scratch_Folder folder;
    const auto record = Loaded(sample);
    record->FileTypeTag = "DUE";
    std::string text;
    ASSERT_EQ(Write_Model_Input(*record, text), Failure::None) << sample.file;
    ASSERT_FALSE(text.empty()) << sample.file;
    if (record->DisposalMethod == 2) continue;  // no solver reads it
    Write_Text(folder / "Tmpfile.Due", text);
    Write_Text(folder / "KOLBREE.TMP",
               "DUE   , ,                            ,                                     ,"
               "TmpFile ,                           ,\r\n");
    const Program_Result echo = Run_Program({{BARVON_ECHO_SOLVER}, folder.path(), {}, {}});
    EXPECT_EQ(echo.code, 0) << sample.file << ": " << echo.err;
    EXPECT_NE(Read_Text(folder / "tmpfile.duo").find(record->ProjectTitle), std::string::npos);
  }
}

TEST(SampleFiles, Export_What_The_Companions_Tests_Read) {
  for (const Sample& sample : samples::Samples()) {
    const auto record = Loaded(sample);
    record->FileTypeTag = "DUE";
    std::string text;
    ASSERT_EQ(Write_Model_Input(*record, text), Failure::None) << sample.file;
    const std::string name = sample.file;
    const std::string kept =
        BARVON_SOURCE "/tests/solver/inputs/" + name.substr(0, name.rfind('.')) + ".due";
    EXPECT_TRUE(Read_Text(kept) == text) << kept << " is no longer what the sample exports";
  }
}

TEST(SampleFiles, Show_Every_Kind_Of_Project) {
  std::set<int> key3;
  std::set<double> velocity_types;
  std::set<int> methods;
  bool zid = false, six_openings = false, four_layers = false, largest = false;
  for (const Sample& sample : samples::Samples()) {
    const auto record = Filled(sample);
    key3.insert(record->KEY3);
    velocity_types.insert(record->VelocityProfileType);
    methods.insert(record->DisposalMethod);
    zid |= record->ZidFlag == 1;
    six_openings |= record->DisposalMethod == 1 && record->NOPENS == 6;
    four_layers |= record->SeparationFlag == 1 && record->LAYERS == 4;
    largest |= record->MMAX0 == 96 && record->NMAX0 == 96 && record->ConstantDepthFlag == 0;
  }
  EXPECT_EQ(methods, (std::set<int>{1, 2, 3}));
  EXPECT_EQ(velocity_types, (std::set<double>{1, 2, 3, 4, 5}));
  EXPECT_TRUE(key3.contains(2) && key3.contains(5) && key3.contains(7));
  EXPECT_TRUE(zid && six_openings && four_layers && largest);
}

}  // namespace
}  // namespace barvon::testing
