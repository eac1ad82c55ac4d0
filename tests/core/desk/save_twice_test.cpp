#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <memory>
#include <string>

#include "core/desk/analysis_keys.h"
#include "core/desk/open_file.h"
#include "core/desk/save_file.h"
#include "core/model_input/model_input.h"
#include "core/model_input/wild_record.h"
#include "support/recorded_workspace.h"

namespace barvon {
namespace {

using namespace barvon::testing;

class SaveTwice : public Recorded_Workspace {
 protected:
  /// The bytes that a save leaves, of the project and of its model input; the latter may be absent.
  struct Saved {
    std::string project, model_input;
    bool operator==(const Saved&) const = default;
  };
  Saved Save(ProjectRecord& record) {
    const Scripted_Messages messages;
    EXPECT_TRUE(Save_File(path_, 2, record));
    return {Read_Text(path_), Exists(extract_) ? Read_Text(extract_) : "none"};
  }
  /// What a run makes of the record before the solver starts.
  static void Prepare_Run(ProjectRecord& record) {
    std::string text;
    Make_Model_Input(record, text);
  }
  void Expect_The_Same_Again(ProjectRecord& record, const char* what) {
    const Saved first = Save(record);
    // Not EXPECT_EQ: a difference would print a quarter of a megabyte.
    EXPECT_TRUE(Save(record) == first) << what << ", second save";
    Prepare_Run(record);
    EXPECT_TRUE(Save(record) == first) << what << ", save behind a run";
  }

  const std::string path_ = folder_ / "site.DUI";
  const std::string extract_ = folder_ / "site.DUE";
};

TEST_F(SaveTwice, A_Tidal_Project_Stays_Tidal_In_The_Record_And_In_The_File) {
  record_.DX0 = record_.DZ0 = 50;
  record_.VelocityProfileType = 5;
  record_.TidalAvgVelX = 0.5F;
  record_.AvgVelocityX = 7;
  record_.AvgVelocityZ = 8;
  record_.AvgVelocityDepth = 9;
  Expect_The_Same_Again(record_, "tidal");
  EXPECT_EQ(record_.VelocityProfileType, 5);
  record_.VelocityProfileType = record_.AvgVelocityX = 0;
  record_.AvgVelocityZ = record_.AvgVelocityDepth = 0;
  ASSERT_TRUE(Open_File(path_, record_));
  EXPECT_EQ(record_.VelocityProfileType, 5);
  EXPECT_EQ(record_.AvgVelocityX, 7);
  EXPECT_EQ(record_.AvgVelocityZ, 8);
  EXPECT_EQ(record_.AvgVelocityDepth, 9);
}

TEST_F(SaveTwice, A_Discharge_From_A_Still_Vessel_Keeps_Its_Contaminant) {
  record_.DX0 = record_.DZ0 = 50;
  record_.DisposalMethod = 2;
  record_.VesselSpeed = 0;
  record_.KEY3 = 2;
  record_.TracerName() = "COPPER";
  record_.TracerConcentration = 1;
  record_.BackgroundConcentration = 2;
  record_.CriterionConcentration = 3;
  record_.SedimentConcentration = 4;
  Expect_The_Same_Again(record_, "still vessel");
  const auto saved = std::make_unique<ProjectRecord>(record_);
  ASSERT_TRUE(Open_File(path_, record_));
  for (const ProjectRecord* record : {saved.get(), &record_}) {
    EXPECT_EQ(record->KEY2, 0);
    EXPECT_EQ(record->TracerName(), "COPPER");
    EXPECT_EQ(record->TracerConcentration, 1);
    EXPECT_EQ(record->BackgroundConcentration, 2);
    EXPECT_EQ(record->CriterionConcentration, 3);
    EXPECT_EQ(record->SedimentConcentration, 4);
  }
}

TEST_F(SaveTwice, What_The_Model_Input_Adds_Is_In_The_First_File_Already) {
  record_.DX0 = 50;
  record_.DZ0 = 0;
  record_.DEPC0 = 80;
  record_.NROA0 = 1;
  record_.Densities[1] = 1.02;
  Expect_The_Same_Again(record_, "added values");
  record_.DZ0 = record_.NROA0 = 0;
  ASSERT_TRUE(Open_File(path_, record_));
  EXPECT_EQ(record_.DZ0, 50);
  EXPECT_EQ(record_.NROA0, 2);
  EXPECT_EQ(record_.DensityDepths[2], 80);
  EXPECT_EQ(record_.Densities[2], 1.02);
}

TEST_F(SaveTwice, A_Save_That_Fails_Puts_Back_What_Was_Entered) {
  record_.DX0 = record_.DZ0 = 50;
  record_.VelocityProfileType = 5;
  record_.NOPENS = 7;  // the model input fails behind the velocities
  Expect_The_Same_Again(record_, "no model input");
  EXPECT_EQ(record_.VelocityProfileType, 5);
}

TEST_F(SaveTwice, Every_Sample_Is_Saved_The_Same_Again) {
  int samples = 0;
  for (const std::string& name : Names_In(BARVON_SAMPLES)) {
    if (!name.ends_with(".DUI")) continue;
    ++samples;
    const std::string sample = std::string(BARVON_SAMPLES) + "/" + name;
    ASSERT_TRUE(Open_Project(sample, record_)) << name;
    Expect_The_Same_Again(record_, name.c_str());
    EXPECT_TRUE(Read_Text(path_) == Read_Text(sample)) << name;
  }
  EXPECT_EQ(samples, 8);
}

bool Same(double a, double b) { return a == b || (a != a && b != b); }

RC_GTEST_FIXTURE_PROP(SaveTwice, Any_Record_Is_Saved_The_Same_Again_With_All_That_Was_Entered, ()) {
  const auto record = Wild_Record();
  const auto before = std::make_unique<ProjectRecord>(*record);
  Refresh_Record(*before);  // a choice that is shown is made
  const Saved first = Save(*record);
  if (*rc::gen::arbitrary<bool>()) Prepare_Run(*record);
  RC_ASSERT(Save(*record) == first);
  RC_ASSERT(Same(record->VelocityProfileType, before->VelocityProfileType));
  RC_ASSERT(Same(record->AvgVelocityX, before->AvgVelocityX));
  RC_ASSERT(Same(record->AvgVelocityZ, before->AvgVelocityZ));
  RC_ASSERT(Same(record->AvgVelocityDepth, before->AvgVelocityDepth));
  RC_ASSERT(record->KEY2 == before->KEY2);
  RC_ASSERT(record->SolidNames == before->SolidNames);
  if (record->KEY3 != 4 && record->KEY3 != 7) {
    RC_ASSERT(Same(record->TracerConcentration, before->TracerConcentration));
  }
  RC_ASSERT(Same(record->BackgroundConcentration, before->BackgroundConcentration));
  RC_ASSERT(Same(record->CriterionConcentration, before->CriterionConcentration));
  RC_ASSERT(Same(record->SedimentConcentration, before->SedimentConcentration));
}

}  // namespace
}  // namespace barvon
