#include "core/model_input/entered_values.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/failure.h"
#include "core/model_input/model_examples.h"
#include "core/model_input/model_input.h"

namespace barvon::testing {
namespace {

TEST(EnteredValues, A_Tidal_Project_Is_Tidal_Again_Behind_Its_Model_Input) {
  ProjectRecord record = Hopper_Example();
  record.VelocityProfileType = 5;
  record.TidalAvgVelX = 0.5F;
  record.TidalAvgVelZ = 0.25F;
  record.TidalDepth = 30;
  record.AvgVelocityX = 7;
  record.AvgVelocityZ = 8;
  record.AvgVelocityDepth = 9;
  std::string text, again;
  ASSERT_EQ(Make_Model_Input(record, text), Failure::None);
  EXPECT_EQ(record.VelocityProfileType, 5);
  EXPECT_EQ(record.AvgVelocityX, 7);
  EXPECT_EQ(record.AvgVelocityZ, 8);
  EXPECT_EQ(record.AvgVelocityDepth, 9);
  EXPECT_NE(text.find("\r\n    5\r\n       0.5      0.25        30\r\n"), std::string::npos);
  ASSERT_EQ(Make_Model_Input(record, again), Failure::None);
  EXPECT_EQ(again, text);
}

TEST(EnteredValues, A_Still_Vessel_Keeps_Its_Simulation_Type) {
  for (const std::int16_t key2 : {0, 1, 2}) {
    ProjectRecord record = Hopper_Example();
    record.DisposalMethod = 2;
    record.VesselSpeed = 0;
    record.KEY2 = key2;
    std::string text, again;
    ASSERT_EQ(Make_Model_Input(record, text), Failure::None);
    EXPECT_EQ(record.KEY2, key2);
    ASSERT_EQ(Make_Model_Input(record, again), Failure::None);
    EXPECT_EQ(again, text);
  }
}

TEST(EnteredValues, A_Failure_Half_Way_Puts_Back_Too) {
  ProjectRecord record = Hopper_Example();
  record.VelocityProfileType = 5;
  record.AvgVelocityX = 7;
  record.NOPENS = 7;  // the velocities are written before the openings fail
  std::string text;
  ASSERT_EQ(Make_Model_Input(record, text), Failure::Subscript);
  EXPECT_EQ(record.VelocityProfileType, 5);
  EXPECT_EQ(record.AvgVelocityX, 7);

  record.DisposalMethod = 2;
  record.KEY2 = 1;
  record.NumPrintTimes = 13;
  ASSERT_EQ(Make_Model_Input(record, text), Failure::Subscript);
  EXPECT_EQ(record.KEY2, 1);
}

TEST(EnteredValues, What_The_Model_Input_Adds_Stays) {
  ProjectRecord record = Hopper_Example();
  record.DX0 = 60;
  record.DZ0 = 0;
  record.KEY3 = 4;
  record.NumSolids = 1;
  record.SedimentConcentration = 10;
  record.SolidSG[1] = 2;
  record.SolidVolFraction[1] = 0.5;
  record.TracerConcentration = 99;
  record.NROA0 = 2;
  record.DensityDepths[2] = 40;
  record.Densities[2] = 1.02;
  record.DEPC0 = 55;
  std::string text;
  ASSERT_EQ(Make_Model_Input(record, text), Failure::None);
  EXPECT_EQ(record.DZ0, 60);
  EXPECT_EQ(record.TracerConcentration, 10);
  EXPECT_EQ(record.FluidComputedConcentration, 10);
  EXPECT_EQ(record.NROA0, 3);
  EXPECT_EQ(record.DensityDepths[3], 55);
  EXPECT_EQ(record.Densities[3], 1.02);
}

TEST(EnteredValues, The_Contaminant_Comes_Back_With_Its_Name_And_Its_Flags) {
  auto record = std::make_unique<ProjectRecord>();
  record->TracerName() = "COPPER";
  record->TracerConcentration = 1;
  record->BackgroundConcentration = 2;
  record->CriterionConcentration = 3;
  record->SedimentConcentration = 4;
  record->SolidTracerFlag[2] = 1;
  const auto before = std::make_unique<ProjectRecord>(*record);
  {
    const Entered_Values entered(*record);
    record->TracerName().clear();
    record->TracerConcentration = record->BackgroundConcentration = 0;
    record->CriterionConcentration = record->SedimentConcentration = 0;
    record->SolidTracerFlag.fill(0);
  }
  EXPECT_EQ(record->TracerName(), "COPPER");
  EXPECT_EQ(record->SolidNames, before->SolidNames);
  EXPECT_EQ(record->SolidTracerFlag, before->SolidTracerFlag);
  EXPECT_EQ(record->TracerConcentration, 1);
  EXPECT_EQ(record->BackgroundConcentration, 2);
  EXPECT_EQ(record->CriterionConcentration, 3);
  EXPECT_EQ(record->SedimentConcentration, 4);
}

}  // namespace
}  // namespace barvon::testing
