#include "core/field_table.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/keys.h"
#include "core/number_text.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

bool Is_Hopper(const ProjectRecord& record) { return record.DisposalMethod == 1; }
bool Is_Barge(const ProjectRecord& record) { return record.DisposalMethod == 3; }

/// A field for each way of reading and each type of member.
constexpr std::array<Field_Row, 11> kEach = {{
    {.control = {"Text1", 0}, .pattern = "####0.00", .member = &ProjectRecord::DX0},
    {.control = {"Text1", 1},
     .pattern = "#######0",
     .reads = Reads::Whole,
     .member = &ProjectRecord::NBINS},
    {.control = {"Text1", 2},
     .pattern = "#######0",
     .reads = Reads::Cut,
     .member = &ProjectRecord::NumSolids},
    {.control = {"Text1", 3}, .pattern = "###0.00", .member = &ProjectRecord::TidalDepth},
    {.control = {"Text2"}, .reads = Reads::Text, .member = &ProjectRecord::ProjectTitle},
    {.control = {"Text8", 1},
     .pattern = "##0.00",
     .member = Element<&ProjectRecord::OutputDepths, 2>()},
    {.control = {"Text8", 5},
     .pattern = "#######0",
     .reads = Reads::Whole,
     .member = &ProjectRecord::NumOutputDepths,
     .held = Count_Limits{1, 5}},
    {.control = {"Text4", 2},
     .pattern = "@@@@@@@",
     .reads = Reads::Text,
     .member = Element<&ProjectRecord::SolidNames, 5>()},
    {.control = {"Text9", 1}, .member = Element<&ProjectRecord::TidalVelX, 26>()},
    {.control = {"Text9", 2},
     .pattern = "0",
     .reads = Reads::Whole,
     .member = Element<&ProjectRecord::SolidCohesive, 1>()},
    {.control = {"Text5"},
     .pattern = "####.00",
     .reads = Reads::Nothing,
     .member = &ProjectRecord::DistZ},
}};

/// Controls that mean something else by the method.
constexpr std::array<Field_Row, 5> kByMethod = {{
    {.control = {"Text1", 2},
     .label = "Length of Bin",
     .unit = "ft",
     .pattern = "0.0",
     .member = &ProjectRecord::BINL,
     .shown_for = Is_Hopper},
    {.control = {"Text1", 2},
     .label = "Length of Barge",
     .unit = "ft",
     .pattern = "0.00",
     .member = &ProjectRecord::BargeLength,
     .shown_for = Is_Barge},
    {.control = {"Text1", 8},
     .label = "Bins",
     .pattern = "0",
     .reads = Reads::Whole,
     .member = &ProjectRecord::NBINS,
     .shown_for = Is_Hopper},
    {.control = {"Text1", 0}, .label = "Place", .pattern = "0.0", .member = &ProjectRecord::XBARGE},
    {.control = {"Text1", 6},
     .label = "Slope",
     .pattern = "0.0",
     .member = &ProjectRecord::SLOPEX0,
     .enabled_for = Is_Hopper},
}};

class FieldTable : public ::testing::Test {
 protected:
  const Field_Row* Read(const Field_Texts& texts, Field_Table table = kEach) {
    *before = record;
    return Read_Fields(table, texts, record);
  }
  const Field_Row* Read_One(std::string_view array, int index, const std::string& text) {
    Field_Texts texts;
    texts(array, index) = text;
    return Read(texts);
  }
  Names Changed() const { return Differing_Fields(*before, record); }

  std::unique_ptr<ProjectRecord> owner = std::make_unique<ProjectRecord>();
  ProjectRecord& record = *owner;
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
};

TEST_F(FieldTable, Every_Type_Of_Member_Is_Shown_In_Its_Pattern) {
  record.DX0 = 30.666;
  record.NBINS = -3;
  record.NumSolids = 4;
  record.TidalDepth = 0.1f;
  record.ProjectTitle = " as typed ";
  record.OutputDepths[2] = 12.5;
  record.NumOutputDepths = 2;
  record.SolidNames[5] = "Lead";
  record.TidalVelX[26] = 0.1f;
  record.SolidCohesive[1] = 1;
  record.DistZ = 3900;
  const Field_Texts texts = Fill_Fields(kEach, record);
  EXPECT_EQ(texts("Text1", 0), "30.67");
  EXPECT_EQ(texts("Text1", 1), "-3");
  EXPECT_EQ(texts("Text1", 2), "4");
  EXPECT_EQ(texts("Text1", 3), "0.10");
  EXPECT_EQ(texts("Text2"), " as typed ");
  EXPECT_EQ(texts("Text8", 1), "12.50");
  EXPECT_EQ(texts("Text8", 5), "2");
  EXPECT_EQ(texts("Text4", 2), "   Lead");
  EXPECT_EQ(texts("Text9", 1), "0.1") << "the 32-bit value's own shortest text";
  EXPECT_EQ(texts("Text9", 2), "1");
  EXPECT_EQ(texts("Text5"), "3900.00");
}

TEST_F(FieldTable, A_Text_That_Is_As_Filled_Leaves_The_Value_With_All_Its_Digits) {
  record.DX0 = 30.666;
  record.OutputDepths[2] = 12.504;
  Field_Texts texts = Fill_Fields(kEach, record);
  texts.Set_Filled({"Text1", 0}, "30.67");
  texts.Set_Filled({"Text8", 1}, "12.50");
  EXPECT_EQ(Entered_Number(kEach, {"Text1", 0}, texts, record), 30.666);
  EXPECT_EQ(Read(texts), nullptr);
  EXPECT_EQ(record.DX0, 30.666);
  EXPECT_EQ(record.OutputDepths[2], 12.504);
  texts("Text8", 1) = "12.5";
  EXPECT_EQ(Entered_Number(kEach, {"Text8", 1}, texts, record), 12.5);
  EXPECT_EQ(Read(texts), nullptr);
  EXPECT_EQ(record.OutputDepths[2], 12.5) << "typed: what is shown counts";
}

TEST_F(FieldTable, A_Count_Out_Of_Its_Limits_Is_Brought_In_Untouched_Too) {
  record.NumOutputDepths = 9;
  Field_Texts texts = Fill_Fields(kEach, record);
  texts.Set_Filled({"Text8", 5}, "9");
  EXPECT_EQ(Read(texts), nullptr);
  EXPECT_EQ(record.NumOutputDepths, 5);
}

TEST_F(FieldTable, A_Field_That_Cannot_Be_Used_Is_Read_As_0_Untouched_Too) {
  record.DisposalMethod = kBarge;
  record.SLOPEX0 = 2.5;
  Field_Texts texts = Fill_Fields(kByMethod, record);
  texts.Set_Filled({"Text1", 6}, "0");
  EXPECT_EQ(Entered_Number(kByMethod, {"Text1", 6}, texts, record), 0);
  EXPECT_EQ(Read(texts, kByMethod), nullptr);
  EXPECT_EQ(record.SLOPEX0, 0);
}

TEST_F(FieldTable, A_Real_Is_The_Texts_Leading_Number) {
  const std::pair<const char*, double> cases[] = {{"62,5", 62}, {" 62.5 ft", 62.5}, {"1D3", 1000},
                                                  {"", 0},      {"none", 0},        {"-.5", -0.5}};
  for (const auto& [typed, value] : cases) {
    EXPECT_EQ(Read_One("Text1", 0, typed), nullptr);
    EXPECT_EQ(record.DX0, value) << typed;
  }
}

TEST_F(FieldTable, A_Whole_Number_Is_Rounded_Half_To_Even) {
  const std::pair<const char*, int> cases[] = {{"2.5", 2}, {"3.5", 4}, {"-2.6", -3}, {"", 0}};
  for (const auto& [typed, value] : cases) {
    EXPECT_EQ(Read_One("Text1", 1, typed), nullptr);
    EXPECT_EQ(record.NBINS, value) << typed;
  }
}

TEST_F(FieldTable, A_Cut_Number_Loses_Its_Fraction) {
  const std::pair<const char*, int> cases[] = {{"2.9", 2}, {"-2.9", -2}, {"7", 7}};
  for (const auto& [typed, value] : cases) {
    EXPECT_EQ(Read_One("Text1", 2, typed), nullptr);
    EXPECT_EQ(record.NumSolids, value) << typed;
  }
}

TEST_F(FieldTable, A_32_Bit_Member_Takes_The_Nearest_Value_Of_Its_Range) {
  Read_One("Text1", 3, "0.1");
  EXPECT_EQ(record.TidalDepth, 0.1f);
  Read_One("Text1", 3, "-1e300");
  EXPECT_EQ(record.TidalDepth, std::numeric_limits<float>::lowest());
}

TEST_F(FieldTable, A_Text_Loses_The_Blanks_Around_It) {
  Read_One("Text4", 2, "  Lead and Zinc ");
  EXPECT_EQ(record.SolidNames, (OneBased<std::string, 5>{"", "", "", "", "", "Lead and Zinc"}));
}

TEST_F(FieldTable, An_Entry_Of_An_Array_Leaves_Its_Neighbours_Alone) {
  record.OutputDepths = {0, 1, 2, 3, 4, 5};
  Read_One("Text8", 1, "20");
  EXPECT_EQ(record.OutputDepths, (OneBased<double, 5>{0, 1, 20, 3, 4, 5}));
}

TEST_F(FieldTable, A_Held_Count_Is_Brought_Into_Its_Limits_However_Far_Outside) {
  const std::pair<const char*, double> cases[] = {{"0", 1}, {"1.5", 2}, {"0.5", 1},   {"5.5", 5},
                                                  {"6", 5}, {"", 1},    {"1e300", 5}, {"3", 3}};
  for (const auto& [typed, value] : cases) {
    EXPECT_EQ(Read_One("Text8", 5, typed), nullptr);
    EXPECT_EQ(record.NumOutputDepths, value) << typed;
  }
}

TEST_F(FieldTable, A_Number_That_16_Bits_Do_Not_Hold_Names_Its_Field_And_Changes_Nothing) {
  for (const char* typed : {"32768", "-32769", "1e300", "32767.5"}) {
    Field_Texts texts;
    texts("Text1", 0) = "12";
    texts("Text1", 1) = typed;
    EXPECT_EQ(Read(texts), &kEach[1]) << typed;
    EXPECT_EQ(Changed(), Names{}) << typed;
  }
  EXPECT_EQ(Read_One("Text1", 2, "32768"), &kEach[2]);
  EXPECT_EQ(Read_One("Text9", 2, "-32769"), &kEach[9]) << "an entry of an array";
  EXPECT_EQ(Read_One("Text1", 2, "32767.9"), nullptr) << "cut, it fits";
  EXPECT_EQ(record.NumSolids, 32767);
}

TEST_F(FieldTable, A_Field_Without_A_Text_Leaves_The_Record_Alone) {
  record.DX0 = 30.666;
  EXPECT_EQ(Read({}), nullptr);
  EXPECT_EQ(Changed(), Names{});
  Read_One("Text1", 1, "4");
  EXPECT_EQ(Changed(), (Names{"NBINS"}));
}

TEST_F(FieldTable, A_Field_That_Only_Shows_Is_Not_Read) {
  Read_One("Text5", kNoIndex, "12");
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(FieldTable, A_Control_Means_What_The_Projects_Keys_Say) {
  record.BINL = 11;
  record.BargeLength = 33;
  record.DisposalMethod = 1;
  EXPECT_EQ(Fill_Fields(kByMethod, record)("Text1", 2), "11.0");
  record.DisposalMethod = 3;
  EXPECT_EQ(Fill_Fields(kByMethod, record)("Text1", 2), "33.00");
  EXPECT_EQ(Find_Row(kByMethod, {"Text1", 2}, record), &kByMethod[1]);

  Field_Texts texts;
  texts("Text1", 2) = "44";
  texts("Text1", 8) = "5";
  Read(texts, kByMethod);
  EXPECT_EQ(Changed(), (Names{"BargeLength"})) << "a barge has no bins";
}

TEST_F(FieldTable, A_Field_That_The_Project_Has_Not_Gets_No_Text) {
  record.DisposalMethod = 2;
  const Field_Texts texts = Fill_Fields(kByMethod, record);
  EXPECT_EQ(texts.Find({"Text1", 2}), nullptr);
  EXPECT_EQ(texts.Find({"Text1", 8}), nullptr);
  EXPECT_NE(texts.Find({"Text1", 0}), nullptr);
  EXPECT_EQ(Find_Row(kByMethod, {"Text1", 8}, record), nullptr);
}

TEST_F(FieldTable, A_Field_Out_Of_Use_Shows_0_And_Is_Read_As_That) {
  record.SLOPEX0 = 0.5;
  record.DisposalMethod = 2;
  const Field_Texts texts = Fill_Fields(kByMethod, record);
  EXPECT_EQ(texts("Text1", 6), "0");
  Read(texts, kByMethod);
  EXPECT_EQ(record.SLOPEX0, 0);
  record.SLOPEX0 = 0.5;
  record.DisposalMethod = 1;
  EXPECT_EQ(Fill_Fields(kByMethod, record)("Text1", 6), "0.5");
}

TEST_F(FieldTable, Each_Way_Of_Reading_Has_Its_Note) {
  EXPECT_EQ(Field_Note(Reads::Real, "62.4"), "");
  EXPECT_EQ(Field_Note(Reads::Real, "62,4"), "reads as 62");
  EXPECT_EQ(Field_Note(Reads::Whole, "62.6"), "reads as 63");
  EXPECT_EQ(Field_Note(Reads::Cut, "62.6"), "reads as 62");
  EXPECT_EQ(Field_Note(Reads::Text, "62,6"), "");
  EXPECT_EQ(Field_Note(Reads::Nothing, "62,6"), "");
}

TEST_F(FieldTable, A_Face_For_Each_Control_In_The_Order_Of_The_Table) {
  record.DisposalMethod = 3;
  const auto faces = Faces_Of(kByMethod, record);
  ASSERT_EQ(faces.size(), 4u);
  EXPECT_EQ(faces[0].label, "Length of Barge");
  EXPECT_TRUE(faces[0].shown);
  EXPECT_EQ(faces[0].enabled, std::nullopt);
  EXPECT_EQ(faces[1].control.Reference(), "Text1(8)");
  EXPECT_FALSE(faces[1].shown);
  EXPECT_EQ(faces[1].note("2.6"), "reads as 3");
  EXPECT_EQ(faces[2].label, "Place");
  EXPECT_EQ(faces[3].enabled, false);
  record.DisposalMethod = 1;
  EXPECT_EQ(Faces_Of(kByMethod, record)[3].enabled, true);
}

TEST_F(FieldTable, A_Face_Is_Of_The_Kind_That_Its_Reading_Asks_For) {
  const auto faces = Faces_Of(kEach, record);
  ASSERT_EQ(faces.size(), kEach.size());
  EXPECT_EQ(faces[1].kind, Field_Kind::Number);
  EXPECT_EQ(faces[4].kind, Field_Kind::Text);
  EXPECT_EQ(faces[4].control.Reference(), "Text2");
  EXPECT_EQ(faces[10].kind, Field_Kind::Shown);
}

RC_GTEST_PROP(FieldTableProperty, What_The_Patterns_Show_Exactly_Comes_Back, ()) {
  const auto cents = [] { return *rc::gen::inRange(-9999999, 9999999) / 100.0; };
  const auto record = std::make_unique<ProjectRecord>();
  record->DX0 = cents();
  record->NBINS = *rc::gen::arbitrary<std::int16_t>();
  record->NumSolids = *rc::gen::arbitrary<std::int16_t>();
  record->TidalDepth = static_cast<float>(*rc::gen::inRange(-9999, 9999) / 100.0);
  record->ProjectTitle = Plain_Number(cents());
  record->OutputDepths[2] = cents();
  record->NumOutputDepths = *rc::gen::inRange(1, 6);
  record->SolidNames[5] = Plain_Number(*rc::gen::arbitrary<int>());
  record->TidalVelX[26] = static_cast<float>(cents());
  record->SolidCohesive[1] = *rc::gen::arbitrary<std::int16_t>();
  const auto same = std::make_unique<ProjectRecord>();
  RC_ASSERT(Read_Fields(kEach, Fill_Fields(kEach, *record), *same) == nullptr);
  RC_ASSERT(Differing_Fields(*record, *same).empty());
}

}  // namespace
}  // namespace barvon::testing
