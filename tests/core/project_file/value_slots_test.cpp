#include "core/project_file/value_slots.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "core/project_defaults.h"

namespace barvon {
namespace {

struct Expected_Slots {
  int first, last;
  const char* field;
};

// The slot maps of the format, written down a second time by hand.
const std::vector<Expected_Slots> kExpectedInts = {{1, 4, "SolidCohesive"},
                                                   {5, 5, "ConstantDepthFlag"},
                                                   {6, 6, "VelocityProfileType"},
                                                   {7, 7, "PrintCollapse"},
                                                   {8, 8, "PrintConvectiveDescent"},
                                                   {9, 9, "NumPrintTimes"},
                                                   {10, 10, "SeparationFlag"},
                                                   {11, 11, "DisposalMethod"},
                                                   {12, 12, "ZidFlag"},
                                                   {13, 13, "JBFCFlag"},
                                                   {14, 14, "KEY1"},
                                                   {15, 15, "KEY2"},
                                                   {16, 16, "KEY3"},
                                                   {17, 17, "LAYERS"},
                                                   {18, 18, "SiteTop"},
                                                   {19, 19, "SiteBottom"},
                                                   {20, 20, "MMAX0"},
                                                   {21, 21, "ZidTop"},
                                                   {22, 22, "ZidBottom"},
                                                   {23, 23, "NBINS"},
                                                   {24, 24, "SiteLeft"},
                                                   {25, 25, "SiteRight"},
                                                   {26, 26, "NMAX0"},
                                                   {27, 27, "NOPENS"},
                                                   {28, 28, "NROA0"},
                                                   {29, 29, "NumSolids"},
                                                   {30, 30, "NumOutputDepths"},
                                                   {31, 31, "ZidLeft"},
                                                   {32, 32, "ZidRight"},
                                                   {33, 36, "SolidStripped"},
                                                   {37, 40, "SolidTracerFlag"},
                                                   {41, 41, "PritchardFlag"}};

const std::vector<Expected_Slots> kExpectedReals = {{1, 1, "AKY0"},
                                                    {2, 2, "ALAMDA"},
                                                    {3, 3, "ALPHA0"},
                                                    {4, 4, "ALPHA1"},
                                                    {5, 5, "ALPHA2"},
                                                    {6, 6, "ALPHA3"},
                                                    {7, 7, "ALPHA4"},
                                                    {8, 8, "ALPHAC"},
                                                    {9, 9, "MoistureContent"},
                                                    {10, 15, "LayerMoisture"},
                                                    {16, 16, "DischargeAngle"},
                                                    {17, 17, "BargeLength"},
                                                    {18, 18, "BargeWidth"},
                                                    {19, 19, "PipeRadius"},
                                                    {20, 20, "BETA"},
                                                    {21, 21, "SpareReal21"},
                                                    {22, 22, "BackgroundConcentration"},
                                                    {23, 23, "SedimentConcentration"},
                                                    {24, 24, "CriterionConcentration"},
                                                    {25, 25, "CD"},
                                                    {26, 26, "CD3"},
                                                    {27, 27, "CD4"},
                                                    {28, 28, "CDRAG"},
                                                    {29, 29, "CFRIC"},
                                                    {30, 30, "TracerConcentration"},
                                                    {31, 31, "CM"},
                                                    {32, 35, "SolidVolFraction"},
                                                    {36, 59, "LayerSolidFraction"},
                                                    {60, 60, "CSTRIP"},
                                                    {61, 61, "SpareReal61"},
                                                    {62, 67, "LayerVelX"},
                                                    {68, 68, "SpareReal68"},
                                                    {69, 74, "LayerVelZ"},
                                                    {75, 75, "AvgVelocityDepth"},
                                                    {76, 76, "DBINS"},
                                                    {77, 77, "DEPC0"},
                                                    {78, 78, "DHOLE"},
                                                    {79, 79, "DischargeDepth"},
                                                    {80, 80, "DREL1"},
                                                    {81, 81, "DREL2"},
                                                    {82, 82, "SiteDensity"},
                                                    {83, 83, "LongTermTimeStep"},
                                                    {84, 84, "VelXDepth1"},
                                                    {85, 85, "VelXDepth2"},
                                                    {86, 86, "VelZDepth1"},
                                                    {87, 87, "VelZDepth2"},
                                                    {88, 88, "DX0"},
                                                    {89, 89, "DZ0"},
                                                    {90, 90, "ToxicityDilution"},
                                                    {91, 91, "FRICTN"},
                                                    {92, 92, "GAMA"},
                                                    {93, 93, "RHDA0"},
                                                    {94, 98, "Densities"},
                                                    {99, 102, "SolidSG"},
                                                    {103, 103, "BulkDensity"},
                                                    {104, 104, "MaterialVolumeOption"},
                                                    {105, 105, "VesselCourse"},
                                                    {106, 106, "SLOPEX0"},
                                                    {107, 107, "SLOPEZ0"},
                                                    {108, 111, "SolidCriticalShear"},
                                                    {112, 112, "TDIS"},
                                                    {113, 113, "BINL"},
                                                    {114, 114, "DischargeDuration"},
                                                    {115, 126, "PrintTimes"},
                                                    {127, 127, "BargeEmptyTime"},
                                                    {128, 128, "ContinuousTimeStart"},
                                                    {129, 129, "SimulationDuration"},
                                                    {130, 130, "BINW"},
                                                    {131, 131, "VesselSpeed"},
                                                    {132, 132, "VelX1"},
                                                    {133, 133, "VelX2"},
                                                    {134, 134, "AvgVelocityX"},
                                                    {135, 135, "AvgVelocityZ"},
                                                    {136, 136, "DischargeRate"},
                                                    {137, 140, "SolidFallVelocity"},
                                                    {141, 144, "SolidVoidRatio"},
                                                    {145, 150, "LayerVolume"},
                                                    {151, 151, "TotalVolume"},
                                                    {152, 152, "VelZ1"},
                                                    {153, 153, "VelZ2"},
                                                    {154, 154, "XBARGE"},
                                                    {155, 155, "XHOLE"},
                                                    {156, 160, "DensityDepths"},
                                                    {161, 165, "OutputDepths"},
                                                    {166, 166, "ZBARGE"},
                                                    {167, 167, "ZCRIT"},
                                                    {168, 168, "ZHOLE"},
                                                    {169, 169, "ZidToxicityDilution"}};

void Expect_Rows(std::span<const Slot_Row> rows, const std::vector<Expected_Slots>& expected) {
  ASSERT_EQ(rows.size(), expected.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].first, expected[i].first) << rows[i].field;
    EXPECT_EQ(rows[i].first + rows[i].count - 1, expected[i].last) << rows[i].field;
    EXPECT_STREQ(rows[i].field, expected[i].field);
  }
}

class ValueSlots : public ::testing::Test {
 protected:
  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *owner_;
};

TEST_F(ValueSlots, The_Tables_Are_Those_Of_The_Format) {
  Expect_Rows(Int_Slot_Rows(), kExpectedInts);
  Expect_Rows(Real_Slot_Rows(), kExpectedReals);
}

TEST_F(ValueSlots, Each_Row_Reads_And_Writes_The_Field_Of_Its_Name) {
  record_.SiteTop = 11.5;
  record_.SiteLeft = 12.5;
  record_.NMAX0 = 40;
  record_.MMAX0 = 20;
  record_.XBARGE = 1;
  record_.ZBARGE = 2;
  record_.VelZ2 = 0.25;
  record_.SolidStripped[3] = 7;
  record_.LayerVelZ[6] = 0.5;
  Pack_Slots(record_);
  EXPECT_EQ(record_.IntSlots[18], 11.5);
  EXPECT_EQ(record_.IntSlots[24], 12.5);
  EXPECT_EQ(record_.IntSlots[26], 40);
  EXPECT_EQ(record_.IntSlots[20], 20);
  EXPECT_EQ(record_.RealSlots[154], 1);
  EXPECT_EQ(record_.RealSlots[166], 2);
  EXPECT_EQ(record_.RealSlots[153], 0.25);
  EXPECT_EQ(record_.IntSlots[35], 7);
  EXPECT_EQ(record_.RealSlots[74], 0.5);
}

TEST_F(ValueSlots, Every_Slot_Comes_Back_From_Its_Own_Field) {
  for (int i = 1; i <= kIntSlots; ++i) record_.IntSlots[i] = i + 100;
  for (int i = 1; i <= kFullFileRealSlots; ++i) record_.RealSlots[i] = i + 1000;
  const auto slots = record_.RealSlots;
  const auto ints = record_.IntSlots;
  ASSERT_EQ(Unpack_Slots(record_), Failure::None);
  EXPECT_EQ(record_.PritchardFlag, 141);
  EXPECT_EQ(record_.DischargeDuration, 1114);
  record_.RealSlots.fill(-1);
  record_.IntSlots.fill(-1);
  Pack_Slots(record_);
  for (int i = 1; i <= kIntSlots; ++i) EXPECT_EQ(record_.IntSlots[i], ints[i]) << i;
  for (int i = 1; i <= kFullFileRealSlots; ++i) EXPECT_EQ(record_.RealSlots[i], slots[i]) << i;
}

TEST_F(ValueSlots, Layer_Fractions_Stand_Layer_By_Layer_With_Their_Solids) {
  // Slot 35 + 4(j - 1) + i for solid i in layer j.
  for (int j = 1; j <= 6; ++j) {
    for (int i = 1; i <= 4; ++i) record_.LayerSolidFraction[i][j] = 10 * j + i;
  }
  Pack_Slots(record_);
  EXPECT_EQ(record_.RealSlots[36], 11);
  EXPECT_EQ(record_.RealSlots[39], 14);
  EXPECT_EQ(record_.RealSlots[40], 21);
  EXPECT_EQ(record_.RealSlots[59], 64);
}

TEST_F(ValueSlots, Depth_Slots_Run_Down_The_First_Subscript) {
  record_.DepthGrid[1][1] = 1.5;
  record_.DepthGrid[2][1] = 2.5;
  record_.DepthGrid[1][2] = 3.5;
  record_.DepthGrid[96][96] = 4.5;
  Pack_Slots(record_);
  EXPECT_EQ(record_.RealSlots[170], 1.5);
  EXPECT_EQ(record_.RealSlots[171], 2.5);
  EXPECT_EQ(record_.RealSlots[170 + 96], 3.5);
  EXPECT_EQ(record_.RealSlots[9385], 4.5);
}

TEST_F(ValueSlots, The_Short_Layout_Has_45_Depths_A_Side) {
  record_.OldGridFile = 1;
  record_.RealSlots[170 + 45] = 7;  // a = 1, b = 2
  record_.RealSlots[2194] = 9;      // a = 45, b = 45
  ASSERT_EQ(Unpack_Slots(record_), Failure::None);
  EXPECT_EQ(record_.DepthGrid[1][2], 7);
  EXPECT_EQ(record_.DepthGrid[45][45], 9);
}

TEST_F(ValueSlots, Integer_Fields_Round_Half_To_Even_And_Discharge_Duration_Is_Cut) {
  record_.IntSlots[20] = 32.5;
  record_.IntSlots[26] = 33.5;
  record_.RealSlots[114] = 600.9;
  ASSERT_EQ(Unpack_Slots(record_), Failure::None);
  EXPECT_EQ(record_.MMAX0, 32);
  EXPECT_EQ(record_.NMAX0, 34);
  EXPECT_EQ(record_.DischargeDuration, 600);
}

TEST_F(ValueSlots, Corners_In_Integer_Slots_Keep_Their_Fractions) {
  record_.IntSlots[18] = 1250.5;
  ASSERT_EQ(Unpack_Slots(record_), Failure::None);
  EXPECT_EQ(record_.SiteTop, 1250.5);
}

TEST_F(ValueSlots, A_Value_Beyond_Sixteen_Bits_Is_An_Overflow) {
  record_.IntSlots[20] = 40000;
  EXPECT_EQ(Unpack_Slots(record_), Failure::Overflow);
  record_.IntSlots[20] = 32;
  record_.RealSlots[114] = -32769;
  EXPECT_EQ(Unpack_Slots(record_), Failure::Overflow);
}

}  // namespace
}  // namespace barvon
