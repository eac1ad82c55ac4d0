#include "material/barge_data.h"

#include <gtest/gtest.h>

#include "material/material_screen_data.h"

namespace barvon::testing {
namespace {

using Fields = std::vector<std::string>;

class BargeData : public Material_Screen_Data {
 protected:
  BargeData() {
    record_.LAYERS = 6;
    for (std::size_t j = 1; j <= 6; ++j) {
      record_.LayerVolume[j] = 100.00003 * static_cast<double>(j);
      record_.LayerVelX[j] = 0.1000007 * static_cast<double>(j);
      record_.LayerVelZ[j] = -0.2000007 * static_cast<double>(j);
      record_.LayerMoisture[j] = static_cast<double>(j) / 3;
      for (std::size_t i = 1; i <= 4; ++i) record_.LayerSolidFraction[i][j] = 0.1 / (i + j * 1.0);
    }
    record_.MoistureContent = record_.LayerMoisture[1];
  }
  void Open() {
    entry_ = Open_Barge(record_);
    Fill(Barge_Fields(), entry_.texts);
    Fill(Water_Fields(), entry_.water);
    Fill_Layer_Table(record_, layers_);
    Open_Solids(kBargeLibrary, entry_.separated ? kSeparatedLoad : kWholeLoad, record_, state_,
                solids_);
    Open_Composition(record_, state_, moisture_);
    Note_Record();
  }
  bool Save() { return Save_Barge_Data(entry_, layers_, moisture_, state_, solids_, record_); }

  Barge_Entry entry_;
  Layer_Moisture moisture_;
  Spreadsheet_Table layers_{kBookNumbers};
};

TEST_F(BargeData, Counts_Beyond_Their_Limits_Are_Brought_In_When_It_Opens) {
  record_.LAYERS = 0;
  record_.NumSolids = 9;
  Open();
  EXPECT_EQ(record_.LAYERS, 1);
  EXPECT_EQ(record_.NumSolids, 4);
  EXPECT_EQ(entry_.texts("Text1", 0), "1");
  EXPECT_EQ(entry_.texts("Text1", 1), "4");
  record_.LAYERS = 7;
  record_.NumSolids = -1;
  Open();
  EXPECT_EQ(entry_.texts("Text1", 0), "6");
  EXPECT_EQ(entry_.texts("Text1", 1), "1");
}

TEST_F(BargeData, Opened_And_Saved_Untouched_Every_Value_Stays) {
  for (const std::int16_t separation : {std::int16_t{-1}, std::int16_t{0}, std::int16_t{1}}) {
    for (const std::int16_t coefficient : {std::int16_t{0}, std::int16_t{1}}) {
      record_.SeparationFlag = separation;
      record_.JBFCFlag = coefficient;
      Open();
      EXPECT_TRUE(Save());
      EXPECT_EQ(Changed(), Fields{}) << separation << coefficient;
      EXPECT_EQ(record_.DataSaved, kFalse);
    }
  }
}

TEST_F(BargeData, The_Check_Boxes_Become_The_Flags) {
  record_.SeparationFlag = -1;
  record_.JBFCFlag = 0;
  Open();
  EXPECT_TRUE(entry_.separated);
  entry_.separated = false;
  entry_.with_jbfc = true;
  EXPECT_TRUE(Save());
  EXPECT_EQ(record_.SeparationFlag, 0);
  EXPECT_EQ(record_.JBFCFlag, 1);
  entry_.separated = true;
  entry_.with_jbfc = false;
  EXPECT_TRUE(Save());
  EXPECT_EQ(record_.SeparationFlag, 1);
  EXPECT_EQ(record_.JBFCFlag, 0);
}

TEST_F(BargeData, A_Hoppers_Volume_Is_Offered_For_Layer_1_Without_One) {
  record_.LayerVolume[1] = 0;
  record_.TotalVolume = 500;
  Open();
  EXPECT_EQ(layers_.NumberRC(1, 1), 500);
  EXPECT_EQ(record_.LayerVolume[1], 0);
  EXPECT_TRUE(Save());
  EXPECT_EQ(record_.LayerVolume[1], 500);
  record_.TotalVolume = 600;
  Open();
  EXPECT_EQ(layers_.NumberRC(1, 1), 500);
}

TEST_F(BargeData, More_Layers_Show_What_They_Held_Before_There_Were_Fewer) {
  record_.LAYERS = 2;
  record_.LayerVolume[4] = record_.LayerVelX[4] = record_.LayerVelZ[4] = 0;
  record_.LayerVolume[5] = record_.LayerVelX[5] = 0;
  Open();
  EXPECT_EQ(layers_.MaxRow(), 2);
  Define_Layer_Table(6, layers_);
  EXPECT_EQ(layers_.RowText(6), "Layer 6");
  EXPECT_DOUBLE_EQ(layers_.NumberRC(3, 1), 300.00009);
  EXPECT_EQ(layers_.TextRC(4, 1), "");
  EXPECT_DOUBLE_EQ(layers_.NumberRC(5, 3), -1.0000035);
  // Layers beyond the project's are not stored.
  layers_.NumberRC(3, 1, 1);
  EXPECT_TRUE(Save());
  EXPECT_DOUBLE_EQ(record_.LayerVolume[3], 300.00009);
}

TEST_F(BargeData, A_Number_Of_Layers_Is_Rounded_Half_To_Even_And_Brought_In) {
  EXPECT_EQ(Layers_Of("2.5"), 2);
  EXPECT_EQ(Layers_Of("3.5"), 4);
  EXPECT_EQ(Layers_Of("0.4"), 1);
  EXPECT_EQ(Layers_Of("-3"), 1);
  EXPECT_EQ(Layers_Of("1E99"), 6);
  EXPECT_EQ(Layers_Of("many"), 1);
  EXPECT_EQ(Layers_Doubt("3"), "");
  EXPECT_EQ(Layers_Doubt("2.5"), "Number of layers: \"2.5\" is stored as 2.\n");
}

TEST_F(BargeData, Counts_That_Can_Not_Be_Are_Told) {
  EXPECT_TRUE(Check_Barge_Layers("6"));
  EXPECT_TRUE(Check_Barge_Layers("0.1"));
  EXPECT_TRUE(Check_Barge_Solids("4"));
  Scripted_Messages messages({Answer::Ok, Answer::Ok, Answer::Ok, Answer::Ok});
  EXPECT_FALSE(Check_Barge_Layers("0"));
  EXPECT_FALSE(Check_Barge_Layers("6.1"));
  EXPECT_FALSE(Check_Barge_Solids("0"));
  EXPECT_FALSE(Check_Barge_Solids("4.1"));
  ASSERT_EQ(messages.shown.size(), 4U);
  EXPECT_EQ(messages.shown[1].text, "Number of Layers Must Be Between 1 and 6");
  EXPECT_EQ(messages.shown[3].text, "Number of Solids Fractions Must Be Between 1 and 4");
}

TEST_F(BargeData, The_Prompt_Is_Of_What_The_Composition_Asks_For) {
  const std::string concentration = Composition_Prompt(true, false);
  const std::string moisture = Composition_Prompt(false, true);
  EXPECT_TRUE(concentration.starts_with("Enter the volumetric concentration"));
  EXPECT_TRUE(moisture.starts_with("The moisture content is expressed"));
  EXPECT_EQ(Composition_Prompt(true, true), concentration + "\n" + moisture);
  EXPECT_EQ(Composition_Prompt(false, false), "");
}

TEST_F(BargeData, A_Density_Beyond_Its_Limits_Stores_Nothing) {
  Open();
  entry_.texts("Text1", 0) = "3";
  entry_.water("Text3", kLoadDensity) = "1.06";
  entry_.with_jbfc = true;
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Save());
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(Changed(), Fields{});
  EXPECT_EQ(record_.DataSaved, kTrue);
}

TEST_F(BargeData, Typed_Fields_Become_The_Records) {
  Open();
  entry_.texts("Text1", 0) = "2.5";
  entry_.texts("Text2") = "1.75";
  entry_.water("Text3", kLoadSalinity) = "30";
  EXPECT_TRUE(Save());
  EXPECT_EQ(record_.LAYERS, 2);
  EXPECT_EQ(record_.MoistureContent, 1.75);
  EXPECT_EQ(record_.SiteSalinity, 30);
  EXPECT_EQ(record_.SiteTemperature, 17.0001);
}

TEST_F(BargeData, A_New_Fraction_Goes_To_The_Library) {
  Open();
  EXPECT_TRUE(Save());
  const std::string settings = Settings();
  EXPECT_NE(settings.find("[Material Properties Barge]"), std::string::npos);
  EXPECT_NE(settings.find("Sand4"), std::string::npos);
}

}  // namespace
}  // namespace barvon::testing
