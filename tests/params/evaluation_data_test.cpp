#include "params/evaluation_data.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/keys.h"
#include "core/project_defaults.h"
#include "core/wizard_answers.h"
#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

constexpr char kCountBox[] =
    "Number of Depths Is Less Than 1 or Greater Than 5.  Please Supply Valid Entry";

class EvaluationData : public ::testing::Test {
 protected:
  EvaluationData() {
    Set_Project_Defaults(record_);
    record_.DataSaved = kTrue;
    record_.TracerName() = "DYE";
    record_.TracerConcentration = 12.3456789;
    record_.BackgroundConcentration = 0.25;
    record_.CriterionConcentration = 0.0048123;
    record_.SedimentConcentration = 80.5;
    record_.ToxicityDilution = 0.6;
    record_.SiteTop = 400.4, record_.SiteLeft = 500, record_.SiteBottom = 1150;
    record_.SiteRight = 2000;
    record_.ZidFlag = 1;
    record_.ZidTop = 410, record_.ZidLeft = 510, record_.ZidBottom = 600, record_.ZidRight = 700;
    record_.ZCRIT = 0.0096;
    record_.ZidToxicityDilution = 2.5;
    record_.NumOutputDepths = 3;
    for (int i = 1; i <= kMaxOutputDepths; ++i) record_.OutputDepths[i] = 10.125 * i;
  }
  ~EvaluationData() override { Answers_Of_Wizard() = {}; }

  void Evaluate(std::int16_t key3) {
    record_.KEY3 = key3;
    record_.AnalysisType = Analysis_Type_Of_KEY3(key3);
    *before_ = record_;
  }
  Evaluation_Shape Shape(bool led = false) const { return Shape_Of_Evaluation(record_, led); }
  /// The fields as they are filled.
  Evaluation_Input Filled(bool boundary = true) const {
    Evaluation_Input input;
    input.texts = Fill_Fields(Evaluation_Fields(boundary), record_);
    for (const Field_Row& row : Evaluation_Fields(boundary)) {
      const std::string* text = input.texts.Find(row.control);
      if (text != nullptr) input.texts.Set_Filled(row.control, std::string(*text));
    }
    input.texts("Text8", kOutputCount) = Output_Count_Text(record_);
    input.Check3D1 = record_.ZidFlag == 1;
    return input;
  }
  std::string Label(const Control_Name& control) const {
    const Field_Row* row = Find_Row(Evaluation_Fields(Shape().boundary), control, record_);
    return row == nullptr ? "-" : row->label;
  }
  std::string Text(const Control_Name& control) const {
    const Field_Row* row = Find_Row(Evaluation_Fields(Shape().boundary), control, record_);
    return row == nullptr ? "-" : Field_Text(*row, record_);
  }
  Names Changed() const { return Differing_Fields(*before_, record_); }

  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  std::unique_ptr<ProjectRecord> before_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *owner_;
};

TEST_F(EvaluationData, A_Tracer_Hides_The_Boundary) {
  Evaluate(kTracer);
  EXPECT_EQ(Shape().caption, "Water Quality Analysis for General Open Water Disposal");
  EXPECT_TRUE(Shape().tracer);
  EXPECT_FALSE(Shape().boundary);
  EXPECT_FALSE(Shape().zid);
  EXPECT_EQ(Text({"Text4", 2}), "    DYE");
  EXPECT_EQ(Text({"Text4", 0}), "12.345679");
  EXPECT_EQ(Text({"Text4", 1}), "0.250000");
  EXPECT_EQ(Text({"Text", 0}), "-");
  EXPECT_EQ(Text({"Text1", 0}), "-");
}

TEST_F(EvaluationData, Ocean_Sites_Speak_Of_The_Disposal_Site) {
  for (const std::int16_t key3 : {2, 3, 4}) {
    Evaluate(key3);
    const Evaluation_Shape shape = Shape();
    EXPECT_EQ(shape.caption, "Water Quality Analysis for Section 103 Regulatory Analysis");
    EXPECT_FALSE(shape.tracer || shape.zid || shape.size_note);
    EXPECT_TRUE(shape.boundary);
    EXPECT_EQ(shape.boundary_caption, "Description of Disposal Site");
    EXPECT_EQ(shape.upper_left, "Specify Location of Upper Left Corner of Disposal Site on Grid");
    EXPECT_EQ(shape.lower_right,
              "Specify Location of Lower Right Corner of  Disposal Site on Grid");
    EXPECT_EQ(shape.zid_note,
              "A Zone of Initial Dilution (ZID) can only be specified under the Clean Water Act "
              "Section 404 Analysis");
    EXPECT_EQ(Text({"Text", 0}), "400");
    EXPECT_EQ(Text({"Text", 3}), "2000");
    EXPECT_EQ(Text({"Text5", 0}), "-");
    EXPECT_EQ(Text({"Text6"}), "-");
  }
}

TEST_F(EvaluationData, Navigable_Waters_Speak_Of_The_Mixing_Zone_And_Offer_A_Zid) {
  for (const std::int16_t key3 : {5, 6, 7}) {
    Evaluate(key3);
    const Evaluation_Shape shape = Shape();
    EXPECT_EQ(shape.caption, "Water Quality Analysis for Section 404(b)(1) Regulatory Analysis");
    EXPECT_TRUE(shape.boundary && shape.zid && shape.size_note);
    EXPECT_EQ(shape.boundary_caption, "Description of Mixing Zone");
    EXPECT_EQ(shape.upper_left,
              "Specify Location of Upper Left Corner of Mixing Zone on Grid. Enter Zeroes if You "
              "Want BARVON to Compute a Mixing Zone.");
    EXPECT_EQ(shape.lower_right,
              "Specify Location of Lower Right Corner of Mixing Zone on Grid. Enter Zeroes if You "
              "Want BARVON to Compute a Mixing Zone.");
    EXPECT_EQ(
        shape.zid_note,
        "Some states may employ a zone of initial dilution (ZID) as part of its CWA 401 water "
        "quality certification. A ZID is a second mixing zone where an acute toxicity "
        "criteria can be exceeded.\n"
        "Enter zeros if you want BARVON to calcualte the size of the ZID for you.");
    EXPECT_EQ(Text({"Text5", 0}), "410");
    EXPECT_EQ(Text({"Text5", 1}), "510");
  }
}

TEST_F(EvaluationData, Water_Quality_Asks_For_The_Concentration_In_The_Fluid) {
  Evaluate(kOceanWaterQuality);
  EXPECT_EQ(Label({"Text1", 0}), "Water Quality Criteria for Contaminant (mg/l)");
  EXPECT_EQ(Text({"Text1", 0}), "0.00481");
  EXPECT_EQ(Label({"Text1", 2}), "Description of Contaminant");
  EXPECT_EQ(Text({"Text1", 2}), "DYE");
  EXPECT_EQ(Label({"Text2"}), "Predicted Initial Concentration in Fluid Fraction (mg/l)");
  EXPECT_EQ(Text({"Text2"}), "12.34568");
  EXPECT_EQ(Label({"Text1", 1}), "-");
  EXPECT_EQ(Label({"Text1", 3}), "Background Concentration at Disposal Site (mg/l)");
  EXPECT_EQ(Text({"Text1", 3}), "0.25000");
  Evaluate(kNavigableWaterQuality);
  EXPECT_EQ(Label({"Text1", 0}),
            "Water Quality Standard at Border of Mixing Zone for Contaminant of Concern (mg/l)");
  EXPECT_EQ(Label({"Text1", 2}), "Contaminant of Concern");
  EXPECT_EQ(Label({"Text6"}), "Water Quality Standard at Border of ZID (mg/l)");
  EXPECT_EQ(Text({"Text6"}), "0.009600");
}

TEST_F(EvaluationData, Further_Testing_Asks_For_The_Sediment) {
  Evaluate(kOceanFurtherTesting);
  EXPECT_EQ(Label({"Text1", 0}), "Water Quality Criteria for Contaminant (mg/l)");
  EXPECT_EQ(Label({"Text1", 2}), "Description of Contaminant");
  EXPECT_EQ(Label({"Text1", 1}), "Contaminant Concentration in Sediment (mg/kg)");
  EXPECT_EQ(Text({"Text1", 1}), "80.50000");
  EXPECT_EQ(Label({"Text2"}), "-");
  Evaluate(kNavigableFurtherTesting);
  EXPECT_EQ(Label({"Text1", 0}),
            "Water Quality Standard at Border of Mixing Zone for Contaminant of Concern (mg/l)");
  EXPECT_EQ(Label({"Text1", 2}), "Contaminant of Concern");
  EXPECT_EQ(Text({"Text1", 1}), "80.50000");
  EXPECT_EQ(Text({"Text6"}), "0.009600");
}

TEST_F(EvaluationData, Toxicity_Asks_For_The_Dilution_Alone) {
  for (const std::int16_t key3 : {3, 6}) {
    Evaluate(key3);
    EXPECT_EQ(Text({"Text1", 0}), "0.600000");
    for (const int i : {1, 2, 3}) EXPECT_EQ(Label({"Text1", i}), "-");
    EXPECT_EQ(Label({"Text2"}), "-");
  }
  EXPECT_EQ(Label({"Text6"}), "Dilution required to meet Toxicity Standard at Border of ZID (%)");
  EXPECT_EQ(Text({"Text6"}), "2.500000");
}

TEST_F(EvaluationData, The_Dilution_Is_Called_By_The_Type_Of_Analysis_Or_The_Wizard) {
  const std::string criteria =
      "Enter Dilution Required to Meet Toxicity Criteria (%) (Typically, 1% of LC50)";
  const std::string standard =
      "Enter Dilution Required to Meet Toxicity Standard (%) (Typically, 1% of LC50)";
  for (const std::int16_t key3 : {3, 6}) {
    Evaluate(key3);
    record_.AnalysisType = 2;
    EXPECT_EQ(Label({"Text1", 0}), criteria);
    record_.AnalysisType = 3;
    EXPECT_EQ(Label({"Text1", 0}), standard);
    record_.WizardActive = kTrue;
    Answers_Of_Wizard().analysis_option = 1;
    EXPECT_EQ(Label({"Text1", 0}), criteria);
    Answers_Of_Wizard().analysis_option = 2;
    record_.AnalysisType = 2;
    EXPECT_EQ(Label({"Text1", 0}), standard);
    Answers_Of_Wizard().analysis_option = -1;
    EXPECT_EQ(Label({"Text1", 0}), key3 == 3 ? criteria : standard);
    record_.WizardActive = kFalse;
  }
}

TEST_F(EvaluationData, Without_An_Evaluation_The_Boundary_Shows_And_The_Caption_Follows_The_Type) {
  Evaluate(kNoTracer);
  EXPECT_TRUE(Shape().boundary);
  EXPECT_FALSE(Shape().tracer);
  EXPECT_EQ(Text({"Text", 0}), "400");
  EXPECT_EQ(Shape().boundary_caption, "Mixing Zone");
  for (const auto& [type, caption] : {std::pair<std::int16_t, const char*>{1, "Mixing Zone Data"},
                                      {2, "Disposal Site Data"},
                                      {3, "Mixing Zone Data"}}) {
    record_.WizardActive = kFalse;
    record_.AnalysisType = type;
    EXPECT_EQ(Shape().caption, caption);
    record_.WizardActive = kTrue;
    record_.AnalysisType = kOpenWater;
    Answers_Of_Wizard().analysis_option = type - 1;
    EXPECT_EQ(Shape().caption, caption);
  }
}

TEST_F(EvaluationData, The_Error_List_Sees_The_Boundary_Of_A_Tracer_Too) {
  Evaluate(kTracer);
  EXPECT_TRUE(Shape(true).boundary);
  EXPECT_TRUE(Shape(true).tracer);
  Evaluation_Input input = Filled(true);
  input.texts("Text", kCornerTop) = "77";
  input.texts("Text4", kTracerBackground) = "3";
  Save_Evaluation(input, true, record_);
  EXPECT_EQ(Changed(), (Names{"DataSaved", "BackgroundConcentration", "SiteTop"}));
}

TEST_F(EvaluationData, Untouched_Fields_Leave_The_Record_Alone) {
  for (const std::int16_t key3 : {0, 1, 2, 5}) {
    record_.DataSaved = kTrue;
    Evaluate(key3);
    const bool boundary = Shape().boundary;
    Save_Evaluation(Filled(boundary), boundary, record_);
    EXPECT_EQ(Changed(), Names{"DataSaved"}) << key3;
  }
}

/// Every text as if it had been typed: what no field of the evaluation holds stays.
TEST_F(EvaluationData, OK_Stores_What_The_Evaluation_Shows_And_Nothing_Else) {
  const Names corners = {"SiteTop", "SiteLeft", "SiteBottom", "SiteRight"};
  const Names zid = {"ZidFlag", "ZidTop", "ZidLeft", "ZidBottom", "ZidRight"};
  const Names depths = {"NumOutputDepths", "OutputDepths"};
  const auto all = [](std::vector<Names> groups) {
    std::set<std::string> names = {"DataSaved"};
    for (const Names& group : groups) names.insert(group.begin(), group.end());
    return names;
  };
  const Names contaminant = {"BackgroundConcentration", "CriterionConcentration",
                             "TracerConcentration", "SolidNames", "TracerName"};
  const Names toxic = {"BackgroundConcentration", "ToxicityDilution", "TracerConcentration",
                       "SolidNames", "TracerName"};
  const std::set<std::string> stored[] = {
      all({corners, depths}),
      all({{"BackgroundConcentration", "TracerConcentration", "SolidNames", "TracerName"}, depths}),
      all({corners, contaminant, depths}),
      all({corners, toxic, depths}),
      all({corners, contaminant, {"SedimentConcentration"}, depths}),
      all({corners, contaminant, zid, {"ZCRIT"}, depths}),
      all({corners, toxic, zid, {"ZidToxicityDilution"}, depths}),
      all({corners, contaminant, {"SedimentConcentration"}, zid, {"ZCRIT"}, depths}),
  };
  const ProjectRecord fresh = record_;
  for (std::int16_t key3 = 0; key3 <= 7; ++key3) {
    record_ = fresh;
    Evaluate(key3);
    const bool boundary = Shape().boundary;
    Evaluation_Input input = Filled(boundary);
    for (const Field_Row& row : Evaluation_Fields(boundary)) {
      if (input.texts.Find(row.control) != nullptr) input.texts.Set(row.control, "4");
    }
    input.Check3D1 = false;
    Save_Evaluation(input, boundary, record_);
    const Names changed = Changed();
    EXPECT_EQ(std::set<std::string>(changed.begin(), changed.end()), stored[key3]) << key3;
    EXPECT_EQ(record_.NumOutputDepths, 4);
    EXPECT_EQ(record_.OutputDepths[2], 4);
  }
}

TEST_F(EvaluationData, A_Name_Is_Stored_Without_The_Blanks_Around_It) {
  Evaluate(kTracer);
  Evaluation_Input input = Filled(false);
  input.texts("Text4", kTracerName) = "  SALT ";
  Save_Evaluation(input, false, record_);
  EXPECT_EQ(record_.TracerName(), "SALT");
  Evaluate(kOceanWaterQuality);
  input = Filled();
  input.texts("Text1", kContaminantName) = " Cu ";
  Save_Evaluation(input, true, record_);
  EXPECT_EQ(record_.TracerName(), "Cu");
}

TEST_F(EvaluationData, Toxicity_Has_A_Fluid_Of_100) {
  for (const std::int16_t key3 : {3, 6}) {
    record_.TracerName() = "Ammonia";
    Evaluate(key3);
    Save_Evaluation(Filled(), true, record_);
    EXPECT_EQ(record_.TracerName(), "FLUID");
    EXPECT_EQ(record_.TracerConcentration, 100);
    EXPECT_EQ(record_.BackgroundConcentration, 0);
    EXPECT_EQ(record_.ToxicityDilution, 0.6);
  }
}

// 2.5 x 80 x 0.0625 = 12.5 and 2.75 x 80 x 0.125 = 27.5, together 40.
TEST_F(EvaluationData, The_Sediment_Makes_The_Concentration_In_The_Fluid) {
  for (const std::int16_t key3 : {4, 7}) {
    record_.NumSolids = 2;
    record_.SedimentConcentration = 80;
    record_.SolidSG = {0, 2.5, 2.75, 9};
    record_.SolidVolFraction = {0, 0.0625, 0.125, 9};
    Evaluate(key3);
    Save_Evaluation(Filled(), true, record_);
    EXPECT_EQ(record_.TracerConcentration, 40);
    EXPECT_EQ(record_.SedimentConcentration, 80);
  }
}

// 1 x 1 x 0.1234567891 has more decimals than the field.
TEST_F(EvaluationData, The_Concentration_Is_Rounded_As_Its_Field_Shows_It) {
  record_.NumSolids = 1;
  record_.SolidSG[1] = record_.SedimentConcentration = 1;
  record_.SolidVolFraction[1] = 0.1234567891;
  EXPECT_EQ(Derived_Concentration(record_), "0.123457");
  Evaluate(kOceanFurtherTesting);
  Save_Evaluation(Filled(), true, record_);
  EXPECT_EQ(record_.TracerConcentration, 0.123457);
}

// In single precision 16777216 + 1 is 16777216 again.
TEST_F(EvaluationData, The_Concentration_Is_Added_Up_In_Single_Precision) {
  record_.NumSolids = 2;
  record_.SedimentConcentration = 1;
  record_.SolidSG = {0, 1, 1};
  record_.SolidVolFraction = {0, 16777216, 1};
  EXPECT_EQ(Derived_Concentration(record_), "16777216.000000");
}

TEST_F(EvaluationData, Without_Solids_The_Concentration_Is_0) {
  record_.NumSolids = 0;
  record_.SolidSG[1] = record_.SolidVolFraction[1] = 1;
  Evaluate(kOceanFurtherTesting);
  Save_Evaluation(Filled(), true, record_);
  EXPECT_EQ(record_.TracerConcentration, 0);
}

TEST_F(EvaluationData, A_Number_Of_Solids_Beyond_The_Entries_Ends_With_Them) {
  record_.NumSolids = std::numeric_limits<std::int16_t>::max();
  record_.SedimentConcentration = 1;
  record_.SolidSG = {0, 1, 1, 1, 1, 1};
  record_.SolidVolFraction = {0, 1, 1, 1, 1, 1};
  EXPECT_EQ(Derived_Concentration(record_), "4.000000");
}

TEST_F(EvaluationData, A_Number_Of_Depths_From_A_File_Is_Brought_In) {
  for (const auto& [stored, held] : {std::pair{-3.0, 1.0},
                                     {0.0, 1.0},
                                     {0.3, 1.0},
                                     {1.0, 1.0},
                                     {3.0, 3.0},
                                     {3.5, 4.0},
                                     {5.0, 5.0},
                                     {6.0, 5.0},
                                     {1e300, 5.0},
                                     {std::numeric_limits<double>::quiet_NaN(), 1.0}}) {
    record_.NumOutputDepths = stored;
    Hold_Output_Count(record_);
    EXPECT_EQ(record_.NumOutputDepths, held) << stored;
  }
  EXPECT_EQ(Output_Count_Text(record_), "1");
}

TEST_F(EvaluationData, A_Number_Out_Of_Range_Goes_Nowhere_While_It_Is_Typed) {
  Evaluate(kTracer);
  Evaluation_Copy copy;
  for (const char* typed : {"0", "6", "-1", "", "x", "0.4", "1e9"}) {
    EXPECT_FALSE(Entered_Output_Count(typed)) << typed;
    Take_Output_Count(typed, copy, record_);
    EXPECT_EQ(Changed(), Names{}) << typed;
  }
  Take_Output_Count("5", copy, record_);
  EXPECT_EQ(record_.NumOutputDepths, 5);
  Take_Output_Count("2.5", copy, record_);
  EXPECT_EQ(record_.NumOutputDepths, 2);
  Reset_Vars(copy, record_);
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(EvaluationData, OK_Brings_The_Number_In_And_Stores_0) {
  for (const auto& [typed, stored] :
       {std::pair{"6", 5}, {"-1", 1}, {"0", 0}, {"", 0}, {"4", 4}, {"-0.2", 0}}) {
    Evaluate(kTracer);
    Evaluation_Input input = Filled(false);
    input.texts("Text8", kOutputCount) = typed;
    Save_Evaluation(input, false, record_);
    EXPECT_EQ(record_.NumOutputDepths, stored) << typed;
  }
}

TEST_F(EvaluationData, A_Depth_Is_In_The_Record_At_Once_And_Keeps_Its_Digits) {
  Evaluate(kTracer);
  Evaluation_Input input = Filled(false);
  Evaluation_Copy copy;
  EXPECT_EQ(input.texts("Text8", 0), "10.13");
  Take_Output_Depth(0, input.texts, copy, record_);
  EXPECT_EQ(Changed(), Names{});
  input.texts("Text8", 0) = "10.1";
  Take_Output_Depth(0, input.texts, copy, record_);
  EXPECT_EQ(record_.OutputDepths[1], 10.1);
  input.texts("Text8", 0) = "10.13";
  Take_Output_Depth(0, input.texts, copy, record_);
  EXPECT_EQ(record_.OutputDepths[1], 10.125);
  input.texts("Text8", 4) = "7";
  Take_Output_Depth(4, input.texts, copy, record_);
  EXPECT_EQ(record_.OutputDepths[5], 7);
  Reset_Vars(copy, record_);
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(EvaluationData, The_Choice_Of_A_Zid_Is_Taken_Back_To_What_It_Was) {
  record_.ZidFlag = -1;
  Evaluate(kNavigableToxicity);
  Evaluation_Copy copy;
  Choose_Zid(true, copy, record_);
  EXPECT_EQ(record_.ZidFlag, 1);
  Choose_Zid(false, copy, record_);
  EXPECT_EQ(record_.ZidFlag, 0);
  Reset_Vars(copy, record_);
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(EvaluationData, Cancel_After_A_Save_Leaves_Something_To_Save) {
  Evaluate(kNavigableToxicity);
  Evaluation_Copy copy;
  record_.DataSaved = kTrue;
  Reset_Vars(copy, record_);
  EXPECT_EQ(record_.DataSaved, kTrue);
  Take_Output_Count("5", copy, record_);
  record_.DataSaved = record_.SavedUnderScreens = kTrue;  // the file has 5 depths
  Reset_Vars(copy, record_);
  EXPECT_EQ(record_.DataSaved, kFalse);
}

TEST_F(EvaluationData, Cancel_Leaves_What_The_Screen_Has_Not_Written) {
  Evaluate(kNavigableToxicity);
  const Evaluation_Copy copy;
  record_.ZidFlag = 0, record_.NumOutputDepths = 2, record_.OutputDepths[1] = 4;
  Reset_Vars(copy, record_);
  EXPECT_EQ(Changed(), (Names{"ZidFlag", "NumOutputDepths", "OutputDepths"}));
}

TEST_F(EvaluationData, The_Box_For_The_Number_Of_Depths_Has_No_Icon) {
  Scripted_Messages messages({Answer::Ok});
  Tell_Output_Count();
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, kCountBox);
  EXPECT_EQ(messages.shown[0].icon, Icon::None);
  EXPECT_EQ(messages.shown[0].title, "BARVON");
}

}  // namespace
}  // namespace barvon::testing
