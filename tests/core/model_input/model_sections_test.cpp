#include <gtest/gtest.h>

#include "core/model_input/model_examples.h"
#include "core/model_input/model_input.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

std::string Expected_File(const std::string& name) {
  const std::string text = Read_Text(std::string(BARVON_TEST_DATA) + "/model_input/" + name);
  EXPECT_FALSE(text.empty()) << name;
  return text;
}

/// The line that begins with the name, of which there is one.
std::string Line_Of(const std::vector<std::string>& lines, const std::string& name) {
  std::string found;
  for (const auto& line : lines) {
    if (line.rfind(name, 0) != 0) continue;
    EXPECT_TRUE(found.empty()) << name;
    found = line;
  }
  return found;
}

/// One opening or layer, no solids, distinct concentrations; the fluid is the last line.
ProjectRecord Fluid_Project(int method, int key3) {
  ProjectRecord r = method == 1 ? Hopper_Example() : Barge_Example();
  r.KEY3 = static_cast<std::int16_t>(key3);
  r.ZidFlag = 0;
  r.NOPENS = r.LAYERS = 1;
  r.NumSolids = 1;
  r.SolidNames[kSolidEntries] = "Tracer";
  r.SolidSG[1] = 2, r.SolidVolFraction[1] = 0.5;  // the fluid holds what the sediment holds
  r.SiteDensity = 1.5;
  r.TracerConcentration = 11, r.BackgroundConcentration = 12, r.CriterionConcentration = 13;
  r.ToxicityDilution = 14, r.ZidToxicityDilution = 15, r.ZCRIT = 16;
  r.SedimentConcentration = 17.123456789;
  return r;
}

std::string Fluid_Line(int method, int key3) {
  return Line_Of(Written_Lines(Fluid_Project(method, key3)), "Tracer");
}

TEST(ModelSections, Hopper_With_Two_Openings_Is_The_Expected_File) {
  ProjectRecord record = Hopper_Example();
  EXPECT_EQ(Written(record), Expected_File("hopper_with_two_openings.due"));
}

TEST(ModelSections, Barge_With_Separation_Is_The_Expected_File) {
  ProjectRecord record = Barge_Example();
  EXPECT_EQ(Written(record), Expected_File("barge_with_separation_in_three_layers.due"));
}

TEST(ModelSections, Hopper_Fluid_Line_Follows_The_Evaluation) {
  const std::string head = "Tracer           1.5";
  EXPECT_EQ(Fluid_Line(1, 0), head + "        11        12");
  EXPECT_EQ(Fluid_Line(1, 1), head + "        11        12");
  EXPECT_EQ(Fluid_Line(1, 2), head + "        11        12        13");
  EXPECT_EQ(Fluid_Line(1, 3), head + "         0         0        14");
  EXPECT_EQ(Fluid_Line(1, 4), head + "17.1234567" + "        12" + "17.123456789" + "        15");
  EXPECT_EQ(Fluid_Line(1, 5), head + "        11        12        13        15");
  EXPECT_EQ(Fluid_Line(1, 6), head + "         0         0        14        15");
  EXPECT_EQ(Fluid_Line(1, 7),
            head + "17.1234567" + "        12" + "17.123456789" + "        13        16");
}

TEST(ModelSections, Barge_Fluid_Line_Follows_The_Evaluation) {
  const std::string head = "Tracer           1.5";
  EXPECT_EQ(Fluid_Line(3, 0), head + "        11        12");
  EXPECT_EQ(Fluid_Line(3, 1), head + "        11        12");
  EXPECT_EQ(Fluid_Line(3, 2), head + "        11        12        13");
  EXPECT_EQ(Fluid_Line(3, 3), head + "        11        12        14");
  EXPECT_EQ(Fluid_Line(3, 4), head + "17.1234567" + "        12" + "17.123456789" + "        15");
  EXPECT_EQ(Fluid_Line(3, 5), head + "        11        12        13        15");
  EXPECT_EQ(Fluid_Line(3, 6), head + "        11        12        14        15");
  EXPECT_EQ(Fluid_Line(3, 7),
            head + "17.1234567" + "        12" + "17.123456789" + "        13        16");
}

TEST(ModelSections, An_Evaluation_Beyond_The_Table_Adds_Nothing_To_The_Fluid) {
  EXPECT_EQ(Fluid_Line(1, 8), "Tracer           1.5");
  EXPECT_EQ(Fluid_Line(1, -1), "Tracer           1.5");
  EXPECT_EQ(Fluid_Line(3, 8), "Tracer           1.5        11        12");
}

/// What stands in the column of the computed concentration when the sediment holds this.
std::string Computed_Column(int method, double sediment) {
  ProjectRecord record = Fluid_Project(method, 4);
  record.SedimentConcentration = sediment;
  const std::string line = Line_Of(Written_Lines(record), "Tracer");
  EXPECT_EQ(line.substr(30, 10), "        12");
  return line.substr(20, 10);
}

TEST(ModelSections, A_Fluid_Concentration_Is_Cut_In_Its_Decimals) {
  for (const int method : {1, 3}) {
    EXPECT_EQ(Computed_Column(method, 123.456789012345), "123.456789");
    EXPECT_EQ(Computed_Column(method, 123456789.55), "123456789.");
    EXPECT_EQ(Computed_Column(method, 1234567890.5), "1234567890");
    EXPECT_EQ(Computed_Column(method, 0.00123456789), "0.00123456");
    EXPECT_EQ(Computed_Column(method, 25), "        25");
  }
}

TEST(ModelSections, A_Small_Fluid_Concentration_Keeps_Its_Exponent) {
  for (const int method : {1, 3}) {
    ProjectRecord record = Fluid_Project(method, 4);
    record.SedimentConcentration = 0.5;
    record.SolidSG[1] = 0.123456789, record.SolidVolFraction[1] = 0.00012;
    // 0.5 x 0.123456789 x 0.00012 = 7.40740734E-06; its first ten characters are 7.4.
    EXPECT_EQ(Line_Of(Written_Lines(record), "Tracer").substr(20, 10), "7.4074E-06");
  }
}

TEST(ModelSections, A_Fluid_Concentration_Of_More_Than_Ten_Whole_Digits_Keeps_Its_Size) {
  for (const int method : {1, 3}) {
    EXPECT_EQ(Computed_Column(method, 12345678901), "1.2346E+10");
    EXPECT_EQ(Computed_Column(method, 1.23456789e20), "1.2346E+20");
  }
}

TEST(ModelSections, An_Empty_Tracer_Name_Is_Ten_Blanks) {
  ProjectRecord record = Fluid_Project(1, 0);
  record.TracerName().clear();
  EXPECT_EQ(Written_Lines(record)[25], "                 1.5        11        12");
}

TEST(ModelSections, Zid_Lines_Need_An_Evaluation_Above_4_And_The_Flag) {
  ProjectRecord record = Hopper_Example();
  const auto with = Written_Lines(record);
  record.KEY3 = 5;
  EXPECT_EQ(Written_Lines(record)[6], "   12   17   14   19");
  record.KEY3 = 4;
  EXPECT_EQ(Written_Lines(record)[6], with[8]);
  EXPECT_EQ(Written_Lines(record).size(), with.size() - 2);
  record.KEY3 = 7;
  record.ZidFlag = 0;
  EXPECT_EQ(Written_Lines(record)[6], with[8]);
  record.ZidFlag = -1;
  EXPECT_EQ(Written_Lines(record)[6], with[8]);
  record = Barge_Example();
  record.KEY3 = 6;
  record.ZidTop = 100, record.ZidBottom = 200, record.ZidLeft = 150, record.ZidRight = 250;
  EXPECT_EQ(Written_Lines(record)[6], "    3    5    4    6");
  EXPECT_EQ(Written_Lines(record)[7], "       100       200       150       250");
}

TEST(ModelSections, Coefficients_Need_KEY1) {
  for (ProjectRecord record : {Hopper_Example(), Barge_Example()}) {
    const auto with = Written_Lines(record);
    record.KEY1 = 0;
    const auto without = Written_Lines(record);
    ASSERT_EQ(without.size(), with.size() - 3);
    record.KEY1 = -1;
    EXPECT_EQ(Written_Lines(record).size(), with.size());
  }
}

TEST(ModelSections, Print_Times_Stand_Eight_To_A_Line) {
  ProjectRecord record = Hopper_Example();
  const auto nine = Written_Lines(record);
  record.NumPrintTimes = 8;
  const auto eight = Written_Lines(record);
  EXPECT_EQ(eight.size(), nine.size() - 1);
  EXPECT_EQ(eight.back().size(), 80U);
  record.NumPrintTimes = 0;
  const auto none = Written_Lines(record);
  EXPECT_EQ(none.size(), nine.size() - 2);
  EXPECT_EQ(none.back().substr(0, 6), "Copper");
  record.NumPrintTimes = 12;
  EXPECT_EQ(Written_Lines(record).back(), "   14400.0       0.0       0.0       0.0");
}

TEST(ModelSections, A_Fractional_Print_Time_Has_Two_Points) {
  ProjectRecord record = Hopper_Example();
  record.NumPrintTimes = 2;
  record.PrintTimes[1] = 3600.5;
  EXPECT_EQ(Written_Lines(record).back(), "  3600.5.0    2400.0");
}

TEST(ModelSections, Velocity_Types_Without_A_Profile_Show_The_Average) {
  for (const double type : {0.0, 1.0, 2.0}) {
    ProjectRecord record = Hopper_Example();
    record.VelocityProfileType = type;
    record.AvgVelocityX = 1.5, record.AvgVelocityZ = -2.5, record.AvgVelocityDepth = 33;
    const auto lines = Written_Lines(record);
    EXPECT_EQ(lines[18], "    " + std::to_string(static_cast<int>(type)));
    EXPECT_EQ(lines[19], "       1.5      -2.5        33");
    EXPECT_EQ(lines[20], "     14400       300        90");
  }
}

TEST(ModelSections, A_Velocity_Type_That_Is_No_Whole_Number_Prints_As_It_Is) {
  ProjectRecord record = Hopper_Example();
  record.VelocityProfileType = 1.5;
  EXPECT_EQ(Written_Lines(record)[18], "  1.5");
}

TEST(ModelSections, A_Tidal_Profile_Becomes_Its_Average_For_Good) {
  ProjectRecord record = Barge_Example();
  const std::string first = Written(record);
  EXPECT_EQ(record.VelocityProfileType, 1);
  EXPECT_EQ(record.AvgVelocityX, 0.1);
  EXPECT_EQ(record.AvgVelocityZ, -0.7);
  EXPECT_EQ(record.AvgVelocityDepth, 38.5);
  auto lines = Whole_Lines(first);
  ASSERT_EQ(lines[32], "    5");
  lines[32] = "    1";
  EXPECT_EQ(Whole_Lines(Written(record)), lines);
}

/// 8 rows of 23 columns: not square, and more than two lines to a row.
ProjectRecord Wide_Grid() {
  ProjectRecord r = Hopper_Example();
  r.MMAX0 = 8, r.NMAX0 = 23;
  for (int a = 1; a <= kMaxGridPoints; ++a) {
    for (int b = 1; b <= kMaxGridPoints; ++b) {
      r.DepthGrid[a][b] = 100 * a + b;
      r.VelocityFieldX[a][b] = 100 * a + b + 0.25;
      r.VelocityFieldZ[a][b] = -100 * a - b;
    }
  }
  return r;
}

TEST(ModelSections, Depths_Run_By_Rows_Of_X_With_Every_Row_On_Lines_Of_Its_Own) {
  ProjectRecord record = Wide_Grid();
  record.ConstantDepthFlag = 0;
  const auto lines = Written_Lines(record);
  EXPECT_EQ(lines[12], "    0    0");
  EXPECT_EQ(lines[13], "    101    102    103    104    105    106    107    108    109    110");
  EXPECT_EQ(lines[14], "    111    112    113    114    115    116    117    118    119    120");
  EXPECT_EQ(lines[15], "    121    122    123");
  EXPECT_EQ(lines[16].substr(0, 14), "    201    202");
  EXPECT_EQ(lines[13 + 8 * 3 - 1], "    821    822    823");
  EXPECT_EQ(lines[13 + 8 * 3].substr(0, 20), "      1430      1870");
}

TEST(ModelSections, A_Row_Of_Ten_Has_No_Second_Line) {
  ProjectRecord record = Wide_Grid();
  record.ConstantDepthFlag = 0;
  record.NMAX0 = 10;
  const auto lines = Written_Lines(record);
  EXPECT_EQ(lines[13].size(), 70U);
  EXPECT_EQ(lines[14].substr(0, 7), "    201");
}

TEST(ModelSections, The_Velocity_Field_Is_All_Of_X_And_Then_All_Of_Z) {
  ProjectRecord record = Wide_Grid();
  record.VelocityProfileType = 4;
  const auto lines = Written_Lines(record);
  EXPECT_EQ(lines[18], "    4");
  EXPECT_EQ(lines[19],
            "  101.25  102.25  103.25  104.25  105.25  106.25  107.25  108.25  109.25  110.25");
  EXPECT_EQ(lines[21], "  121.25  122.25  123.25");
  EXPECT_EQ(lines[22].substr(0, 8), "  201.25");
  EXPECT_EQ(lines[19 + 24].substr(0, 16), "    -101    -102");
  EXPECT_EQ(lines[19 + 48 - 1], "    -821    -822    -823");
  EXPECT_EQ(lines[19 + 48], "     14400       300        90");
}

TEST(ModelSections, A_Full_Grid_Has_Nine_Lines_Of_Ten_And_One_Of_Six_To_A_Row) {
  ProjectRecord record = Wide_Grid();
  record.ConstantDepthFlag = 0;
  record.MMAX0 = record.NMAX0 = 96;
  const auto lines = Written_Lines(record);
  EXPECT_EQ(lines[13 + 8].size(), 70U);
  EXPECT_EQ(lines[13 + 9], "    191    192    193    194    195    196");
  EXPECT_EQ(lines[13 + 10].substr(0, 7), "    201");
  EXPECT_EQ(lines[13 + 959], "   9691   9692   9693   9694   9695   9696");
}

TEST(ModelSections, Counts_Of_Nothing_Leave_Empty_Lines) {
  ProjectRecord record = Hopper_Example();
  record.NumOutputDepths = 0;
  record.NROA0 = 0;
  record.DEPC0 = 0;
  const auto lines = Written_Lines(record);
  EXPECT_EQ(lines[9], "    0");
  EXPECT_EQ(lines[10], "");
  EXPECT_EQ(lines[15], "    0");
  EXPECT_EQ(lines[16], "");
  EXPECT_EQ(lines[17], "");
}

TEST(ModelSections, No_Openings_And_Negative_Counts_Write_No_Block) {
  ProjectRecord record = Hopper_Example();
  record.NumPrintTimes = 0;
  for (const int openings : {0, -3}) {
    record.NOPENS = static_cast<std::int16_t>(openings);
    EXPECT_EQ(Written_Lines(record).back().size(), 30U) << openings;
  }
}

TEST(ModelSections, Without_Separation_The_Layers_Take_The_Projects_Moisture_And_Fractions) {
  ProjectRecord record = Barge_Example();
  record.SeparationFlag = 0;
  const auto lines = Written_Lines(record);
  const auto first = lines.size() - 12;
  EXPECT_EQ(lines[3], "    1    0    4    0    0    1    0");
  EXPECT_EQ(lines[first], "       1.1      0.15       600       9.9");
  EXPECT_EQ(lines[first + 1].substr(0, 30), "Sand            2.65       0.9");
  EXPECT_EQ(lines[first + 2].substr(0, 30), "Silt             2.7       0.8");
  EXPECT_EQ(lines[first + 8], "       1.3      0.35       100       9.9");
}

TEST(ModelSections, The_Hopper_Title_Keeps_Its_Blanks_And_The_Barge_Title_Does_Not) {
  ProjectRecord record = Hopper_Example();
  record.ProjectTitle = " A ";
  EXPECT_EQ(Written_Lines(record)[1], std::string(58, ' ') + "A ");
  record.DisposalMethod = 3;
  EXPECT_EQ(Written_Lines(record)[1], "A" + std::string(59, ' '));
}

TEST(ModelSections, Texts_Take_One_Column_A_Character_In_The_File) {
  ProjectRecord record = Hopper_Example();
  record.ProjectTitle = "M\u00fcnde \u20ac";
  record.SolidNames[1] = "T\u00f6ne \u4e2d";
  record.NumPrintTimes = 0;
  const auto lines = Written_Lines(record);
  EXPECT_EQ(lines[1], std::string(53, ' ') + "M\xFCnde \x80");
  EXPECT_EQ(lines[26].substr(0, 20), "T\xF6ne ?          2.65");
}

TEST(ModelSections, Control_Characters_In_Texts_Become_Blanks) {
  ProjectRecord record = Hopper_Example();
  record.ProjectTitle = "one\r\ntwo\tthree";
  record.SolidNames[1] = std::string("a\nb\0c\x7F", 6);
  const auto lines = Written_Lines(record);
  EXPECT_EQ(lines[1], std::string(46, ' ') + "one  two three");
  EXPECT_EQ(lines[26].substr(0, 20), "a b c           2.65");
}

TEST(ModelSections, A_Field_That_Does_Not_Fit_Moves_The_Rest_Of_Its_Line) {
  ProjectRecord record = Hopper_Example();
  record.NOPENS = 3;
  record.SolidNames[1] = "Sand and gravel";
  record.XBARGE = 1.0 / 3;
  const auto lines = Written_Lines(record);
  EXPECT_EQ(lines[13].substr(0, 27), "0.333333333333333      1870");
  EXPECT_EQ(lines[25], "       1.5      -0.51666.66666666667       1.7");
  EXPECT_EQ(lines[26].substr(0, 25), "Sand and gravel      2.65");
}

}  // namespace
}  // namespace barvon::testing
