#include "material/hopper_data.h"

#include <gtest/gtest.h>

#include "core/keys.h"
#include "material/material_screen_data.h"

namespace barvon::testing {
namespace {

using Fields = std::vector<std::string>;

class HopperData : public Material_Screen_Data {
 protected:
  HopperData() {
    record_.TotalVolume = 1234.4;
    record_.MoistureContent = 1.23456;
    record_.JBFCFlag = 1;
    record_.DisposalMethod = kHopper;
    // This screen keeps the letters of its cells, too.
    for (std::size_t i = 1; i <= 4; ++i) {
      record_.SolidCohesiveText[i] = i % 2 == 1 ? "Y" : "N";
      record_.SolidStrippedText[i] = i % 2 == 1 ? "N" : "Y";
    }
  }
  void Open() {
    entry_ = Open_Hopper(record_);
    Fill(Hopper_Fields(), entry_.texts);
    Fill(Water_Fields(), entry_.water);
    Open_Solids(kHopperLibrary, kHopperLoad, record_, state_, solids_);
    Note_Record();
  }
  bool Save() { return Save_Data(entry_, state_, solids_, record_); }
  std::string& Volume() { return entry_.texts("Text2", 0); }
  std::string& Moisture() { return entry_.texts("Text1"); }

  Hopper_Entry entry_;
};

TEST_F(HopperData, Opens_By_Its_Patterns) {
  Open();
  EXPECT_EQ(Volume(), "1234.");
  EXPECT_EQ(Moisture(), "1.23");
  EXPECT_EQ(entry_.texts("Text2", 1), "4");
  EXPECT_TRUE(entry_.SSCheck1);
  EXPECT_EQ(Moisture_Text(record_)("Text1"), "1.23");
  record_.JBFCFlag = 0;
  record_.NumSolids = 0;
  Open();
  EXPECT_EQ(Moisture(), "0.0");
  EXPECT_FALSE(entry_.SSCheck1);
  EXPECT_EQ(record_.NumSolids, 1);
}

TEST_F(HopperData, Opened_And_Saved_Untouched_Every_Value_Stays) {
  for (const std::int16_t coefficient : {std::int16_t{1}, std::int16_t{0}}) {
    record_.JBFCFlag = coefficient;
    Open();
    EXPECT_TRUE(Save());
    EXPECT_EQ(Changed(), Fields{}) << coefficient;
    EXPECT_EQ(record_.DataSaved, kFalse);
  }
}

TEST_F(HopperData, A_Barges_First_Layer_Is_Offered_Without_A_Volume) {
  record_.TotalVolume = 0;
  record_.LayerVolume[1] = 300.25;
  Open();
  EXPECT_EQ(Volume(), "300.");
  EXPECT_TRUE(Save());
  EXPECT_EQ(record_.TotalVolume, 300.25);
  record_.TotalVolume = 0;
  record_.LayerVolume[1] = -1;
  Open();
  EXPECT_EQ(Volume(), "0.");
}

TEST_F(HopperData, A_Typed_Volume_Counts) {
  Open();
  Volume() = "700.5 cu yd";
  EXPECT_TRUE(Save());
  EXPECT_EQ(record_.TotalVolume, 700.5);
}

TEST_F(HopperData, Without_The_Coefficient_A_Hopper_Keeps_Only_An_Untouched_Moisture) {
  record_.JBFCFlag = 0;
  Open();
  Moisture() = "2";
  EXPECT_EQ(Moisture_Doubt(entry_, record_),
            "Moisture content: \"2\" is stored as 0, because the coefficient is not used.\n");
  EXPECT_TRUE(Save());
  EXPECT_EQ(record_.MoistureContent, 0);
}

TEST_F(HopperData, Without_The_Coefficient_A_Pipeline_Has_No_Moisture) {
  record_.JBFCFlag = 0;
  record_.DisposalMethod = kContinuous;
  Open();
  EXPECT_TRUE(Save());
  EXPECT_EQ(record_.MoistureContent, 0);
  Moisture() = "2";
  EXPECT_EQ(Moisture_Doubt(entry_, record_), "");
}

TEST_F(HopperData, Taking_The_Coefficient_Away_Takes_The_Moisture) {
  Open();
  entry_.SSCheck1 = false;
  EXPECT_EQ(Moisture_Doubt(entry_, record_), "");
  EXPECT_TRUE(Save());
  EXPECT_EQ(record_.JBFCFlag, 0);
  EXPECT_EQ(record_.MoistureContent, 0);
}

TEST_F(HopperData, With_The_Coefficient_A_Typed_Moisture_Counts) {
  record_.JBFCFlag = 0;
  Open();
  entry_.SSCheck1 = true;
  Moisture() = "2.345";
  EXPECT_EQ(Moisture_Doubt(entry_, record_), "");
  EXPECT_TRUE(Save());
  EXPECT_EQ(record_.JBFCFlag, 1);
  EXPECT_EQ(record_.MoistureContent, 2.345);
}

TEST_F(HopperData, The_Whole_Part_Of_A_Number_Of_Fractions_Counts) {
  {
    Scripted_Messages messages;
    for (const char* can_be : {"1", "4", "4.9"}) Check_Hopper_Solids(can_be);
    EXPECT_TRUE(messages.shown.empty());
  }
  Scripted_Messages messages({Answer::Ok, Answer::Ok, Answer::Ok});
  for (const char* can_not_be : {"0.9", "5", ""}) Check_Hopper_Solids(can_not_be);
  ASSERT_EQ(messages.shown.size(), 3U);
  EXPECT_EQ(messages.shown[0].text, "Number of Distinct Solids Fractions Must Be Between 1 and 4");
}

TEST_F(HopperData, A_Density_Beyond_Its_Limits_Stores_Nothing) {
  Open();
  Volume() = "1";
  entry_.SSCheck1 = false;
  entry_.water("Text3", kLoadDensity) = "0.9";
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Save());
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(Changed(), Fields{});
  EXPECT_EQ(record_.DataSaved, kTrue);
}

}  // namespace
}  // namespace barvon::testing
