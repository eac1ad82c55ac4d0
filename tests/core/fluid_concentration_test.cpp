#include "core/fluid_concentration.h"

#include <gtest/gtest.h>

#include <memory>

namespace barvon {
namespace {

/// Two solids whose fluid holds 10 x (2 x 0.25 + 4 x 0.5) = 25.
std::unique_ptr<ProjectRecord> Mixed_Load() {
  auto record = std::make_unique<ProjectRecord>();
  record->KEY3 = 4;
  record->NumSolids = 2;
  record->SedimentConcentration = 10;
  record->SolidSG = {0, 2, 4, 8};
  record->SolidVolFraction = {0, 0.25, 0.5, 0.5};
  return record;
}

/// 10 x (2 x (0.5 x 30 + 0.25 x 10) + 4 x 0.25 x 30) / 40 = 10 x 65 / 40 = 16.25.
std::unique_ptr<ProjectRecord> Layered_Load() {
  auto record = Mixed_Load();
  record->LAYERS = 2;
  record->LayerVolume = {0, 30, 10, 1000};
  record->LayerSolidFraction[1] = {0, 0.5, 0.25, 0.5};
  record->LayerSolidFraction[2] = {0, 0.25, 0, 0.5};
  return record;
}

constexpr double kUntouched = -7;

double Plain(const ProjectRecord& record) {
  double result = kUntouched;
  EXPECT_EQ(Fluid_Concentration_Plain(record, result), Failure::None);
  return result;
}

double Layered(const ProjectRecord& record) {
  double result = kUntouched;
  EXPECT_EQ(Fluid_Concentration_Layered(record, result), Failure::None);
  return result;
}

TEST(FluidConcentration, Plain_Sums_The_Solids_Of_The_Project) {
  EXPECT_EQ(Plain(*Mixed_Load()), 25);
}

TEST(FluidConcentration, Plain_Passes_Over_Solids_That_Are_Next_To_Nothing) {
  auto record = Mixed_Load();
  record->SolidVolFraction[1] = 0.0001;
  EXPECT_EQ(Plain(*record), 20);
  record->SolidSG[2] = 0.01;
  EXPECT_EQ(Plain(*record), 0);
}

TEST(FluidConcentration, Layered_Weighs_By_The_Volume_Of_The_Layers) {
  EXPECT_EQ(Layered(*Layered_Load()), 16.25);
}

TEST(FluidConcentration, Layered_Passes_Over_What_Is_Next_To_Nothing) {
  auto record = Layered_Load();
  record->LayerSolidFraction[2][1] = 0.0001;
  EXPECT_EQ(Layered(*record), 8.75);
  record->SolidSG[1] = 0.01;
  EXPECT_EQ(Layered(*record), 0);
}

TEST(FluidConcentration, A_Negative_Layer_Counts_In_The_Total_Only) {
  auto record = Layered_Load();
  record->LayerVolume[2] = -10;
  // 10 x (2 x 0.5 x 30 + 4 x 0.25 x 30) / 20
  EXPECT_EQ(Layered(*record), 30);
}

TEST(FluidConcentration, Other_Evaluations_Leave_The_Result_Alone) {
  auto record = Layered_Load();
  for (const int key3 : {0, 1, 2, 3, 5, 6, 8}) {
    record->KEY3 = static_cast<std::int16_t>(key3);
    EXPECT_EQ(Plain(*record), kUntouched) << key3;
    EXPECT_EQ(Layered(*record), kUntouched) << key3;
  }
  record->KEY3 = 7;
  EXPECT_EQ(Plain(*record), 25);
  EXPECT_EQ(Layered(*record), 16.25);
}

TEST(FluidConcentration, No_Solids_Or_A_Clean_Sediment_Carry_Nothing) {
  auto record = Layered_Load();
  record->NumSolids = 0;
  EXPECT_EQ(Plain(*record), 0);
  EXPECT_EQ(Layered(*record), 0);
  record = Layered_Load();
  record->SedimentConcentration = 0.0001;
  EXPECT_EQ(Plain(*record), 0);
  EXPECT_EQ(Layered(*record), 0);
}

TEST(FluidConcentration, Layers_Without_Volume_Carry_Nothing) {
  auto record = Layered_Load();
  record->LayerVolume = {};
  EXPECT_EQ(Layered(*record), 0);
}

TEST(FluidConcentration, Layers_That_Cancel_Out_Are_A_Division_By_Zero) {
  auto record = Layered_Load();
  record->LayerVolume = {0, 30, -30};
  double result = kUntouched;
  EXPECT_EQ(Fluid_Concentration_Layered(*record, result), Failure::Division_By_Zero);
  EXPECT_EQ(result, kUntouched);
}

TEST(FluidConcentration, Counts_Beyond_The_Arrays_Fail_And_Leave_The_Result_Alone) {
  auto record = Mixed_Load();
  record->LAYERS = 6;
  record->NumSolids = 5;
  double result = kUntouched;
  EXPECT_EQ(Fluid_Concentration_Plain(*record, result), Failure::None);
  result = kUntouched;
  EXPECT_EQ(Fluid_Concentration_Layered(*record, result), Failure::Subscript);
  record->NumSolids = 6;
  EXPECT_EQ(Fluid_Concentration_Plain(*record, result), Failure::Subscript);
  EXPECT_EQ(Sediment_Tracer_Concentration(*record, result), Failure::Subscript);
  record->NumSolids = 4;
  record->LAYERS = 7;
  EXPECT_EQ(Fluid_Concentration_Layered(*record, result), Failure::Subscript);
  EXPECT_EQ(result, kUntouched);
}

TEST(FluidConcentration, The_Tracer_Sum_Has_No_Guards) {
  auto record = Mixed_Load();
  record->KEY3 = 0;
  record->SedimentConcentration = 0.0001;
  record->SolidSG = {0, 1, 1};
  record->SolidVolFraction = {0, 0.00005, -1};
  double result = kUntouched;
  EXPECT_EQ(Sediment_Tracer_Concentration(*record, result), Failure::None);
  EXPECT_DOUBLE_EQ(result, 0.0001 * 0.00005 - 0.0001);
  record->NumSolids = -1;
  EXPECT_EQ(Sediment_Tracer_Concentration(*record, result), Failure::None);
  EXPECT_EQ(result, 0);
}

}  // namespace
}  // namespace barvon
