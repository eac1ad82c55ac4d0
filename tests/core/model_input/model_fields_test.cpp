#include <gtest/gtest.h>

#include <string>

#include "core/model_input/model_examples.h"
#include "core/model_input/model_input.h"
#include "core/project_defaults.h"

// Every field of the model input by itself: given a value that stands nowhere else, it shows in
// the place the tables give it, and no other line changes.

namespace barvon::testing {
namespace {

/// One opening or layer, one solid, one output depth, one print time, two profile points,
/// coefficients and ZID lines present.
ProjectRecord Base(int method) {
  ProjectRecord r;
  Set_Project_Defaults(r);
  r.FileTypeTag = "DUE";
  r.DisposalMethod = static_cast<std::int16_t>(method);
  r.KEY1 = 1, r.KEY3 = 5, r.ZidFlag = 1;
  r.MMAX0 = 40, r.NMAX0 = 50;
  r.DX0 = r.DZ0 = 1000;
  r.SiteTop = r.SiteLeft = r.ZidTop = r.ZidLeft = 9000;
  r.SiteBottom = r.SiteRight = r.ZidBottom = r.ZidRight = 19000;
  r.DensityDepths = {0, 0, 5000};
  r.NumPrintTimes = 1;
  r.SolidNames = {"", "solid", "", "", "", "fluid"};
  return r;
}

using Setter = void (*)(ProjectRecord&);

struct Place {
  const char* field;
  Setter set;
  std::size_t line;    // from 1
  std::size_t column;  // from 0
  std::size_t width;
  const char* shown;
  int method = 0;        // 0 hopper and barge
  std::size_t also = 0;  // another line that may change, from 1
};

#define REAL(field, line, place, ...)                                                   \
  Place {                                                                               \
#field, [](ProjectRecord & r) { r.field = 12.75; }, line, 10 * (place), 10,         \
                                                     "12.75" __VA_OPT__(, ) __VA_ARGS__ \
  }
#define WHOLE(field, line, place, ...)                                            \
  Place {                                                                         \
#field, [](ProjectRecord & r) { r.field = 77; }, line, 5 * (place), 5,        \
                                                  "77" __VA_OPT__(, ) __VA_ARGS__ \
  }

const Place kPlaces[] = {
    {"FileTypeTag", [](ProjectRecord& r) { r.FileTypeTag = "TAG"; }, 1, 0, 7, "TAG"},
    {"NMAX0", [](ProjectRecord& r) { r.NMAX0 = 77; }, 3, 0, 5, "77"},
    {"MMAX0", [](ProjectRecord& r) { r.MMAX0 = 77; }, 3, 5, 5, "77"},
    WHOLE(NBINS, 3, 4, 1),
    WHOLE(KEY1, 4, 0),
    WHOLE(KEY2, 4, 1),
    WHOLE(JBFCFlag, 4, 3),
    WHOLE(SeparationFlag, 4, 4, 3),
    WHOLE(PritchardFlag, 4, 6),
    {"SiteTop", [](ProjectRecord& r) { r.SiteTop = 8200; }, 6, 0, 10, "8200", 0, 5},
    {"SiteBottom", [](ProjectRecord& r) { r.SiteBottom = 18200; }, 6, 10, 10, "18200", 0, 5},
    {"SiteLeft", [](ProjectRecord& r) { r.SiteLeft = 8200; }, 6, 20, 10, "8200", 0, 5},
    {"SiteRight", [](ProjectRecord& r) { r.SiteRight = 18200; }, 6, 30, 10, "18200", 0, 5},
    {"SiteGridTop", [](ProjectRecord& r) { r.SiteTop = 11600; }, 5, 0, 5, "13", 0, 6},
    {"SiteGridBottom", [](ProjectRecord& r) { r.SiteBottom = 21600; }, 5, 5, 5, "23", 0, 6},
    {"SiteGridLeft", [](ProjectRecord& r) { r.SiteLeft = 11600; }, 5, 10, 5, "13", 0, 6},
    {"SiteGridRight", [](ProjectRecord& r) { r.SiteRight = 21600; }, 5, 15, 5, "23", 0, 6},
    {"ZidTop", [](ProjectRecord& r) { r.ZidTop = 8200; }, 8, 0, 10, "8200", 0, 7},
    {"ZidBottom", [](ProjectRecord& r) { r.ZidBottom = 18200; }, 8, 10, 10, "18200", 0, 7},
    {"ZidLeft", [](ProjectRecord& r) { r.ZidLeft = 8200; }, 8, 20, 10, "8200", 0, 7},
    {"ZidRight", [](ProjectRecord& r) { r.ZidRight = 18200; }, 8, 30, 10, "18200", 0, 7},
    {"ZidGridTop", [](ProjectRecord& r) { r.ZidTop = 11600; }, 7, 0, 5, "13", 0, 8},
    {"ZidGridBottom", [](ProjectRecord& r) { r.ZidBottom = 21600; }, 7, 5, 5, "23", 0, 8},
    {"ZidGridLeft", [](ProjectRecord& r) { r.ZidLeft = 11600; }, 7, 10, 5, "13", 0, 8},
    {"ZidGridRight", [](ProjectRecord& r) { r.ZidRight = 21600; }, 7, 15, 5, "23", 0, 8},
    WHOLE(PrintConvectiveDescent, 9, 0),
    WHOLE(PrintCollapse, 9, 1),
    REAL(OutputDepths[1], 11, 0),
    REAL(DEPC0, 12, 0),
    {"DX0", [](ProjectRecord& r) { r.DX0 = 1001; }, 12, 10, 10, "1001"},
    {"DZ0", [](ProjectRecord& r) { r.DZ0 = 1001; }, 12, 20, 10, "1001"},
    WHOLE(ConstantDepthFlag, 13, 0),
    REAL(XBARGE, 14, 0),
    REAL(ZBARGE, 14, 1),
    REAL(SLOPEX0, 14, 2),
    REAL(SLOPEZ0, 14, 3),
    REAL(XHOLE, 14, 4),
    REAL(ZHOLE, 14, 5),
    REAL(DHOLE, 14, 6),
    REAL(RHDA0, 15, 0),
    REAL(DensityDepths[1], 17, 0),
    REAL(DensityDepths[2], 17, 1),
    REAL(Densities[1], 18, 0),
    REAL(Densities[2], 18, 1),
    REAL(AvgVelocityX, 20, 0),
    REAL(AvgVelocityZ, 20, 1),
    REAL(AvgVelocityDepth, 20, 2),
    REAL(SimulationDuration, 21, 0),
    REAL(LongTermTimeStep, 21, 1),
    REAL(TDIS, 21, 2, 1),
    REAL(BargeEmptyTime, 21, 2, 3),
    REAL(BargeLength, 22, 0, 3),
    REAL(BargeWidth, 22, 1, 3),
    REAL(DREL1, 22, 2),
    REAL(DREL2, 22, 3),
    REAL(SiteDensity, 22, 4, 0, 28),
    REAL(SiteDensity, 28, 1, 0, 22),
    REAL(DBINS, 22, 5, 1),
    REAL(BINL, 22, 6, 1),
    REAL(BINL, 22, 0, 1),
    REAL(BINW, 22, 7, 1),
    REAL(BINW, 22, 1, 1),
    REAL(ALPHA0, 23, 0),
    REAL(BETA, 23, 1),
    REAL(CM, 23, 2),
    REAL(CD, 23, 3),
    REAL(GAMA, 24, 0),
    REAL(CDRAG, 24, 1),
    REAL(CFRIC, 24, 2),
    REAL(CD3, 24, 3),
    REAL(CD4, 24, 4),
    REAL(ALPHAC, 24, 5),
    REAL(FRICTN, 24, 6),
    REAL(ALAMDA, 25, 0),
    REAL(AKY0, 25, 1),
    REAL(CSTRIP, 25, 2),
    REAL(LayerVelX[1], 26, 0),
    REAL(LayerVelZ[1], 26, 1),
    REAL(TotalVolume, 26, 2, 1),
    REAL(LayerVolume[1], 26, 2, 3),
    REAL(MoistureContent, 26, 3),
    REAL(SolidSG[1], 27, 1),
    REAL(SolidVolFraction[1], 27, 2),
    REAL(SolidFallVelocity[1], 27, 3),
    REAL(SolidVoidRatio[1], 27, 4),
    REAL(SolidCriticalShear[1], 27, 5),
    WHOLE(SolidCohesive[1], 27, 12),
    WHOLE(SolidStripped[1], 27, 14),
    REAL(TracerConcentration, 28, 2),
    REAL(BackgroundConcentration, 28, 3),
    REAL(CriterionConcentration, 28, 4),
    REAL(ZidToxicityDilution, 28, 5),
    {"PrintTimes[1]", [](ProjectRecord& r) { r.PrintTimes[1] = 777; }, 29, 0, 10, "777.0"},
};
#undef REAL
#undef WHOLE

void Check_Place(const Place& place, int method) {
  SCOPED_TRACE(std::string(place.field) + (method == 1 ? ", hopper" : ", barge"));
  const ProjectRecord base = Base(method);
  ProjectRecord changed = base;
  place.set(changed);
  const auto before = Written_Lines(base);
  const auto after = Written_Lines(changed);
  ASSERT_EQ(before.size(), 29U);
  ASSERT_EQ(after.size(), before.size());
  const std::string cell = after[place.line - 1].substr(place.column, place.width);
  EXPECT_EQ(cell, std::string(place.width - std::string(place.shown).size(), ' ') + place.shown);
  EXPECT_NE(before[place.line - 1], after[place.line - 1]);
  EXPECT_EQ(before[place.line - 1].size(), after[place.line - 1].size());
  for (std::size_t i = 0; i < after.size(); ++i) {
    if (i + 1 == place.line || i + 1 == place.also) continue;
    EXPECT_EQ(after[i], before[i]) << i + 1;
  }
}

TEST(ModelFields, Every_Field_Shows_In_Its_Place_And_Nowhere_Else) {
  for (const Place& place : kPlaces) {
    for (const int method : {1, 3}) {
      if (place.method == 0 || place.method == method) Check_Place(place, method);
    }
  }
}

TEST(ModelFields, Fields_Of_The_Other_Method_Change_Nothing) {
  for (const Place& place : kPlaces) {
    if (place.method == 0) continue;
    const ProjectRecord base = Base(4 - place.method);
    ProjectRecord changed = base;
    place.set(changed);
    EXPECT_EQ(Written_Lines(changed), Written_Lines(base)) << place.field;
  }
}

TEST(ModelFields, Names_And_Title_Stand_Where_They_Belong) {
  for (const int method : {1, 3}) {
    ProjectRecord record = Base(method);
    record.ProjectTitle = "title";
    record.SolidNames[1] = "a";
    record.TracerName() = "b";
    const auto lines = Written_Lines(record);
    EXPECT_EQ(lines[1],
              method == 1 ? std::string(55, ' ') + "title" : "title" + std::string(55, ' '));
    EXPECT_EQ(lines[26].substr(0, 11), "a          ");
    EXPECT_EQ(lines[27].substr(0, 11), "b          ");
  }
}

TEST(ModelFields, Counts_Stand_Where_They_Belong) {
  ProjectRecord hopper = Base(1);
  hopper.NumSolids = 3, hopper.NOPENS = 4, hopper.LAYERS = 6;
  hopper.NumPrintTimes = 7, hopper.NumOutputDepths = 2, hopper.NROA0 = 5;
  const auto of_hopper = Written_Lines(hopper);
  EXPECT_EQ(of_hopper[2].substr(10, 10), "    3    4");
  EXPECT_EQ(of_hopper[8], "    0    0    7    0");
  EXPECT_EQ(of_hopper[9], "    2");
  EXPECT_EQ(of_hopper[15], "    5");
  EXPECT_EQ(of_hopper.size(), 25U + 4U * (1 + 3 + 1) + 1U);
  ProjectRecord barge = Base(3);
  barge.NumSolids = 4, barge.LAYERS = 6, barge.NOPENS = 2, barge.NBINS = 9;
  const auto of_barge = Written_Lines(barge);
  EXPECT_EQ(of_barge[2], "   50   40    4    6    0    0    0");
  EXPECT_EQ(of_barge.size(), 25U + 6U * (1 + 4 + 1) + 1U);
}

TEST(ModelFields, The_Two_Point_Profile_Stands_X_Before_Z_And_Depths_Before_Velocities) {
  for (const int method : {1, 3}) {
    ProjectRecord record = Base(method);
    record.VelocityProfileType = 3;
    record.VelXDepth1 = 1, record.VelXDepth2 = 2, record.VelX1 = 3, record.VelX2 = 4;
    record.VelZDepth1 = 5, record.VelZDepth2 = 6, record.VelZ1 = 7, record.VelZ2 = 8;
    EXPECT_EQ(Written_Lines(record)[19],
              "         1         2         3         4         5         6         7         8");
  }
}

// ---- The continuous section has no columns: the value shows in the line's text at its turn.

struct Continuous_Place {
  const char* field;
  Setter set;
  std::size_t line;  // from 1
  const char* line_text;
};

ProjectRecord Continuous_Base() {
  ProjectRecord r;
  Set_Project_Defaults(r);
  r.FileTypeTag = "DUE";
  r.DisposalMethod = 2;
  r.KEY2 = 2;
  r.DX0 = r.DZ0 = 1;
  r.NumOutputDepths = 0;
  r.NROA0 = 1;
  r.BETA = r.CM = r.CD = r.CDRAG = r.CFRIC = r.CD3 = r.CD4 = r.FRICTN = r.ALAMDA = 0;
  r.AKY0 = r.GAMA = r.ALPHA1 = r.ALPHA2 = r.ALPHA3 = r.ALPHA4 = 0;
  r.VelocityProfileType = 3;
  return r;
}

#define FIELD(field, line, text)                                \
  Continuous_Place {                                            \
#field, [](ProjectRecord & r) { r.field = 77; }, line, text \
  }

const Continuous_Place kContinuousPlaces[] = {
    FIELD(NMAX0, 3, "77321"),
    FIELD(MMAX0, 3, "32771"),
    FIELD(KEY1, 4, "772"),
    FIELD(PrintConvectiveDescent, 5, "77"),
    FIELD(PrintCollapse, 5, "77"),
    FIELD(ConstantDepthFlag, 7, "77     .1.1."),
    FIELD(DX0, 7, "1     .77.1."),
    FIELD(DZ0, 7, "1     .1.77."),
    FIELD(SimulationDuration, 8, ".77..."),
    FIELD(LongTermTimeStep, 8, "..77.."),
    FIELD(DischargeDuration, 8, "...77."),
    FIELD(DischargeRate, 9, "77......"),
    FIELD(PipeRadius, 9, ".77....."),
    FIELD(DischargeDepth, 9, "..77...."),
    FIELD(DischargeAngle, 9, "...77..."),
    FIELD(BulkDensity, 9, "....77.."),
    FIELD(MaterialVolumeOption, 9, ".....77."),
    FIELD(XBARGE, 10, "77...."),
    FIELD(ZBARGE, 10, ".77..."),
    FIELD(VesselCourse, 10, "..77.."),
    FIELD(VesselSpeed, 10, "...77."),
    FIELD(SolidSG[1], 11, "          77...."),
    FIELD(SolidVolFraction[1], 11, "          .77..."),
    FIELD(SolidFallVelocity[1], 11, "          ..77.."),
    FIELD(SolidVoidRatio[1], 11, "          ...77."),
    FIELD(SolidCohesive[1], 11, "          ....77"),
    FIELD(TracerConcentration, 12, "          77.."),
    FIELD(BackgroundConcentration, 12, "          .77."),
    FIELD(ToxicityDilution, 14, "77..."),
    FIELD(SedimentConcentration, 14, ".77.."),
    FIELD(CriterionConcentration, 14, "..77."),
    FIELD(ALPHA1, 15, "77..............."),
    FIELD(ALPHA2, 15, ".77.............."),
    FIELD(BETA, 15, "..77............."),
    FIELD(CD, 15, "...77............"),
    FIELD(CM, 15, "....77..........."),
    FIELD(GAMA, 15, ".....77.........."),
    FIELD(CDRAG, 15, "......77........."),
    FIELD(CFRIC, 15, ".......77........"),
    FIELD(CD3, 15, "........77......."),
    FIELD(CD4, 15, ".........77......"),
    FIELD(ALPHA3, 15, "..........77....."),
    FIELD(ALPHA4, 15, "...........77...."),
    FIELD(FRICTN, 15, "............77..."),
    FIELD(ALAMDA, 15, ".............77.."),
    FIELD(AKY0, 15, "..............77."),
    FIELD(DensityDepths[1], 17, "77."),
    FIELD(Densities[1], 18, "77."),
    FIELD(VelXDepth1, 19, "377........"),
    FIELD(VelXDepth2, 19, "3.77......."),
    FIELD(VelX1, 19, "3..77......"),
    FIELD(VelX2, 19, "3...77....."),
    FIELD(VelZDepth1, 19, "3....77...."),
    FIELD(VelZDepth2, 19, "3.....77..."),
    FIELD(VelZ1, 19, "3......77.."),
    FIELD(VelZ2, 19, "3.......77."),
};
#undef FIELD

TEST(ModelFields, Every_Continuous_Field_Shows_At_Its_Turn_And_Nowhere_Else) {
  for (const Continuous_Place& place : kContinuousPlaces) {
    SCOPED_TRACE(place.field);
    const ProjectRecord base = Continuous_Base();
    ProjectRecord changed = base;
    place.set(changed);
    const auto before = Written_Lines(base);
    const auto after = Written_Lines(changed);
    ASSERT_EQ(before.size(), 20U);
    ASSERT_EQ(after.size(), before.size());
    EXPECT_EQ(after[place.line - 1], place.line_text);
    for (std::size_t i = 0; i < after.size(); ++i) {
      if (i + 1 == place.line) continue;
      EXPECT_EQ(after[i], before[i]) << i + 1;
    }
  }
}

TEST(ModelFields, The_Continuous_Depth_Stands_With_The_Spacings_And_With_The_Profile) {
  ProjectRecord record = Continuous_Base();
  record.DEPC0 = 77;
  record.DensityDepths[1] = 80;
  const auto lines = Written_Lines(record);
  EXPECT_EQ(lines[6], "1     77.1.1.");
  EXPECT_EQ(lines[15], "177.");
}

}  // namespace
}  // namespace barvon::testing
