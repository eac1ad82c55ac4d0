#include "batch/json_record.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <nlohmann/json.hpp>

namespace barvon::testing {
namespace {

TEST(JsonRecord, Leaves_Out_The_Unused_Index_And_Nests_Grids_By_Their_First_Subscript) {
  const auto record = std::make_unique<ProjectRecord>();
  record->Densities[0] = 99;
  record->Densities[1] = 1.021;
  record->LayerSolidFraction[2][3] = 0.25;
  const auto json = nlohmann::json::parse(Json_Of(*record));
  EXPECT_EQ(json["Densities"], (nlohmann::json{1.021, 0.0, 0.0, 0.0, 0.0}));
  ASSERT_EQ(json["LayerSolidFraction"].size(), 4u);
  EXPECT_EQ(json["LayerSolidFraction"][1], (nlohmann::json{0.0, 0.0, 0.25, 0.0, 0.0, 0.0}));
}

TEST(JsonRecord, Flags_And_Integers_Are_Whole_Numbers) {
  const auto record = std::make_unique<ProjectRecord>();
  record->DataSaved = kTrue;
  record->SectionFlags[3] = 9999;
  const auto json = nlohmann::json::parse(Json_Of(*record));
  EXPECT_TRUE(json["DataSaved"].is_number_integer());
  EXPECT_EQ(json["DataSaved"], -1);
  EXPECT_EQ(json["SectionFlags"][2], 9999);
}

TEST(JsonRecord, What_Is_No_Finite_Number_Is_A_Text) {
  const auto record = std::make_unique<ProjectRecord>();
  record->DX0 = std::numeric_limits<double>::quiet_NaN();
  record->DZ0 = std::numeric_limits<double>::infinity();
  record->DEPC0 = -std::numeric_limits<double>::infinity();
  const auto json = nlohmann::json::parse(Json_Of(*record));
  EXPECT_EQ(json["DX0"], "nan");
  EXPECT_EQ(json["DZ0"], "inf");
  EXPECT_EQ(json["DEPC0"], "-inf");
}

TEST(JsonRecord, Numbers_Come_Back_Bit_For_Bit) {
  const auto record = std::make_unique<ProjectRecord>();
  record->DX0 = 0.1 + 0.2;
  record->TidalDepth = 0.1F;
  const auto json = nlohmann::json::parse(Json_Of(*record));
  EXPECT_EQ(json["DX0"].get<double>(), 0.1 + 0.2);
  EXPECT_EQ(json["TidalDepth"].get<double>(), 0.1);
}

TEST(JsonRecord, Texts_Are_Escaped_And_Always_Utf_8) {
  const auto record = std::make_unique<ProjectRecord>();
  record->ProjectTitle = "say \"\xC3\xA4\"\n";
  record->ProjectFileName = "/\xFF.DUI";
  record->SectionStatus[1] = '\xE4';
  const auto json = nlohmann::json::parse(Json_Of(*record));
  EXPECT_EQ(json["ProjectTitle"], "say \"\xC3\xA4\"\n");
  EXPECT_EQ(json["ProjectFileName"], "/\xEF\xBF\xBD.DUI");
  EXPECT_EQ(json["SectionStatus"][0], "\xC3\xA4");
}

TEST(JsonRecord, A_Field_Stands_On_A_Line_Of_Its_Own) {
  const auto record = std::make_unique<ProjectRecord>();
  record->DX0 = 12.5;
  EXPECT_NE(Json_Of(*record).find("\n\"DX0\": 12.5,\n"), std::string::npos);
}

}  // namespace
}  // namespace barvon::testing
