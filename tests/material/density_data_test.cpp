#include "material/density_data.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "core/number_reading.h"
#include "core/number_text.h"
#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon {
namespace {

using testing::Differing_Fields;
using testing::Scripted_Messages;
using Fields = std::vector<std::string>;

/// A project whose data are saved, with water of 12.5 ppt, 8.25 deg C and 1.01 g/cc.
class DensityData : public ::testing::Test {
 protected:
  DensityData() {
    record.DataSaved = kTrue;
    record.SiteSalinity = 12.5;
    record.SiteTemperature = 8.25;
    record.SiteDensity = 1.01;
    *before = record;
  }

  static Field_Texts Texts(const std::string& salinity, const std::string& temperature,
                           const std::string& density) {
    Field_Texts texts;
    texts("Text3", 0) = salinity;
    texts("Text3", 1) = temperature;
    texts("Text3", 2) = density;
    return texts;
  }

  Fields Changed() const { return Differing_Fields(*before, record); }

  /// "Compute" of these texts, with the box set.
  std::optional<int> Compute(const std::string& salinity, const std::string& temperature) {
    entry = {Texts(salinity, temperature, "1.2345"), true};
    return Compute_Water_Density(entry, record);
  }

  void Expect_Refused(const std::string& salinity, const std::string& temperature, int field,
                      const std::string& text) {
    Scripted_Messages messages({Answer::Ok});
    EXPECT_EQ(Compute(salinity, temperature), field) << text;
    ASSERT_EQ(messages.shown.size(), 1u);
    EXPECT_EQ(messages.shown[0].text, text);
    EXPECT_EQ(messages.shown[0].title, "BARVON");
    EXPECT_EQ(messages.shown[0].icon, Icon::Warning);
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(Changed(), Fields{});
    EXPECT_EQ(entry.texts, Texts(salinity, temperature, "1.2345"));
  }

  void Save(const std::string& salinity, const std::string& temperature,
            const std::string& density) {
    entry = {Texts(salinity, temperature, density), false};
    Save_Data(entry, record);
  }

  void Expect_Told(const std::string& density, const std::string& text, double stored) {
    Scripted_Messages messages({Answer::Ok});
    Save("1", "2", density);
    ASSERT_EQ(messages.shown.size(), 1u) << density;
    EXPECT_EQ(messages.shown[0].text, text);
    EXPECT_EQ(messages.shown[0].title, "BARVON");
    EXPECT_EQ(messages.shown[0].icon, Icon::None);
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(record.SiteDensity, stored);
    EXPECT_EQ(record.SiteSalinity, 1);
    EXPECT_EQ(record.SiteTemperature, 2);
    EXPECT_EQ(record.DataSaved, kFalse);
  }

  std::unique_ptr<ProjectRecord> owner = std::make_unique<ProjectRecord>();
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
  ProjectRecord& record = *owner;
  Density_Entry entry;
};

TEST_F(DensityData, Opens_With_The_Records_Values_And_The_Box_Off) {
  const Density_Entry shown = Open_Density(record);
  EXPECT_EQ(shown.texts, Texts("12.50", "8.25", "1.0100"));
  EXPECT_FALSE(shown.Check3D3);
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(DensityData, Shows_Two_Decimals_Of_Salinity_And_Temperature_And_Four_Of_Density) {
  record.SiteSalinity = 1234567.005;  // half away from zero
  record.SiteTemperature = -0.004;    // a 0 has no sign
  record.SiteDensity = 1.02345;
  EXPECT_EQ(Open_Density(record).texts, Texts("1234567.01", "0.00", "1.0235"));
  EXPECT_EQ(record.SiteDensity, 1.02345);
}

TEST_F(DensityData, Opening_Holds_The_Density_To_Its_Limits_Without_A_Message) {
  Scripted_Messages silent;
  struct Case {
    double density, held;
    const char* shown;
  };
  for (const Case& c :
       {Case{0.9719, 0.972, "0.9720"}, Case{0, 0.972, "0.9720"}, Case{-3, 0.972, "0.9720"},
        Case{0.972, 0.972, "0.9720"}, Case{1.05, 1.05, "1.0500"}, Case{1.0501, 1.05, "1.0500"},
        Case{2650, 1.05, "1.0500"}}) {
    record.SiteDensity = c.density;
    EXPECT_EQ(Open_Density(record).texts("Text3", 2), c.shown) << c.density;
    EXPECT_EQ(record.SiteDensity, c.held) << c.density;
  }
  EXPECT_EQ(record.DataSaved, kTrue);
}

// 35 ppt, 20 deg C: 1.025060 at the surface. The density box is not read.
TEST_F(DensityData, Compute_Takes_The_Density_From_Salinity_And_Temperature) {
  EXPECT_EQ(Compute("35", "20"), std::nullopt);
  EXPECT_EQ(record.SiteSalinity, 35);
  EXPECT_EQ(record.SiteTemperature, 20);
  EXPECT_NEAR(record.SiteDensity, 1.025060, 5e-7);
  EXPECT_EQ(entry.texts, Texts("35", "20", "1.0251"));
  EXPECT_EQ(Changed(), (Fields{"SiteSalinity", "SiteTemperature", "SiteDensity"}));
}

TEST_F(DensityData, Compute_Of_Fresh_Water) {
  EXPECT_EQ(Compute("0", "4"), std::nullopt);
  EXPECT_EQ(entry.texts("Text3", 2), "1.0000");
  EXPECT_NEAR(record.SiteDensity, 1.000038, 5e-7);
}

TEST_F(DensityData, Compute_With_The_Box_Off_Takes_The_Two_Values_And_Shows_The_Old_Density) {
  entry = {Texts("35", "20", "1.2345"), false};
  EXPECT_EQ(Compute_Water_Density(entry, record), std::nullopt);
  EXPECT_EQ(Changed(), (Fields{"SiteSalinity", "SiteTemperature"}));
  EXPECT_EQ(entry.texts("Text3", 2), "1.0100");
  record.SiteDensity = 3;
  Compute_Water_Density(entry, record);
  EXPECT_EQ(record.SiteDensity, 1.05);
}

// S = 100: Cl = 55.385, s0 about 83; S = -100: s0 about -89; both in water of 10 deg C.
TEST_F(DensityData, Compute_Holds_The_Density_To_Its_Limits_Without_A_Message) {
  Scripted_Messages silent;
  EXPECT_EQ(Compute("100", "10"), std::nullopt);
  EXPECT_EQ(record.SiteDensity, 1.05);
  EXPECT_EQ(entry.texts("Text3", 2), "1.0500");
  EXPECT_EQ(Compute("-100", "10"), std::nullopt);
  EXPECT_EQ(record.SiteDensity, 0.972);
  EXPECT_EQ(entry.texts("Text3", 2), "0.9720");
}

TEST_F(DensityData, Compute_Takes_Every_Way_To_Write_One_Number) {
  Scripted_Messages silent;
  for (const char* salinity : {"35", " 35 ", "\t35", "+35", "35.", "35.00", "3.5e1", "3.5E+01",
                               "3.5D1", "350d-1", "0035"}) {
    EXPECT_EQ(Compute(salinity, "10"), std::nullopt) << salinity;
    EXPECT_EQ(record.SiteSalinity, 35) << salinity;
  }
  for (const char* temperature : {"-.5", "-0.5", " -5E-1 "}) {
    EXPECT_EQ(Compute("35", temperature), std::nullopt) << temperature;
    EXPECT_EQ(record.SiteTemperature, -0.5) << temperature;
  }
}

TEST_F(DensityData, Compute_Refuses_A_Text_That_Is_No_Number_And_Names_Field_And_Text) {
  Expect_Refused("abc", "10", 0,
                 "Salinity (ppt): \"abc\" can't be read as a number.\n"
                 "No density has been computed.");
  Expect_Refused("35", "16,5", 1,
                 "Temperature (celsius): \"16,5\" can't be read as a number.\n"
                 "No density has been computed.");
  Expect_Refused("35", "", 1,
                 "Temperature (celsius) is empty.\n"
                 "No density has been computed.");
  Expect_Refused(" ", "10", 0,
                 "Salinity (ppt) is empty.\n"
                 "No density has been computed.");
  Expect_Refused("35 ppt", "ten", 0,
                 "Salinity (ppt): \"35 ppt\" can't be read as a number.\n"
                 "Temperature (celsius): \"ten\" can't be read as a number.\n"
                 "No density has been computed.");
}

// Neither a thousands separator nor a decimal comma: the same text would be 1 to OK.
TEST_F(DensityData, Compute_Refuses_What_Starts_With_A_Number_Only) {
  for (const char* text : {"1,000",
                           "1 000",
                           "35%",
                           "35 ppt",
                           "3O",
                           "1.2.3",
                           "5-",
                           "1e",
                           "1e+",
                           "0x10",
                           "&H10",
                           "nan",
                           "inf",
                           "-",
                           "+",
                           ".",
                           "$5",
                           "(5)",
                           "1e999",
                           "-1e999",
                           "1e-999",
                           "\xC2\xA0"
                           "5",
                           "5\xC2\xA0",
                           "\xEF\xBC\x95"}) {
    Scripted_Messages messages({Answer::Ok, Answer::Ok});
    EXPECT_EQ(Compute(text, "10"), 0) << text;
    EXPECT_EQ(Compute("10", text), 1) << text;
    EXPECT_EQ(messages.shown.size(), 2u) << text;
    EXPECT_EQ(Changed(), Fields{}) << text;
  }
}

TEST_F(DensityData, Compute_With_The_Box_Off_Is_As_Strict) {
  Scripted_Messages messages({Answer::Ok});
  entry = {Texts("35", "x", "1.2345"), false};
  EXPECT_EQ(Compute_Water_Density(entry, record), 1);
  EXPECT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(DensityData, A_Long_Text_Is_Shortened_In_The_Message) {
  std::string typed, shown;
  for (int i = 0; i < 41; ++i) typed += "\xC3\xA4";
  for (int i = 0; i < 40; ++i) shown += "\xC3\xA4";
  Expect_Refused(typed, "10", 0,
                 "Salinity (ppt): \"" + shown +
                     "...\" can't be read as a number.\n"
                     "No density has been computed.");
  Expect_Refused(shown, "10", 0,
                 "Salinity (ppt): \"" + shown +
                     "\" can't be read as a number.\n"
                     "No density has been computed.");
}

TEST_F(DensityData, Compute_Refuses_Water_Without_A_Density_And_Leads_To_What_Is_At_Fault) {
  Expect_Refused("35", "-67.26", 1,
                 "The formula has no result for a salinity of 35 ppt and a temperature of -67.26 "
                 "deg C.\nNo density has been computed.");
  Expect_Refused("1e300", "10", 0,
                 "The formula has no result for a salinity of 1E+300 ppt and a temperature of 10 "
                 "deg C.\nNo density has been computed.");
  Expect_Refused("1e300", "-67.26", 1,
                 "The formula has no result for a salinity of 1E+300 ppt and a temperature of "
                 "-67.26 deg C.\nNo density has been computed.");
}

TEST_F(DensityData, With_The_Box_Off_No_Water_Is_Refused) {
  Scripted_Messages silent;
  entry = {Texts("35", "-67.26", "1.2345"), false};
  EXPECT_EQ(Compute_Water_Density(entry, record), std::nullopt);
  EXPECT_EQ(record.SiteTemperature, -67.26);
}

TEST_F(DensityData, Save_Stores_All_Three_As_Typed) {
  Scripted_Messages silent;
  Save("30.5", "-1.25", "1.0234567");
  EXPECT_EQ(record.SiteSalinity, 30.5);
  EXPECT_EQ(record.SiteTemperature, -1.25);
  EXPECT_EQ(record.SiteDensity, 1.0234567);
  EXPECT_EQ(entry.texts("Text3", 2), "1.0235");
  EXPECT_EQ(Changed(), (Fields{"DataSaved", "SiteSalinity", "SiteTemperature", "SiteDensity"}));
  EXPECT_EQ(record.DataSaved, kFalse);
}

TEST_F(DensityData, An_Empty_Salinity_Is_0_And_The_Density_Stays_As_Typed) {
  Scripted_Messages silent;
  Save("", "8.25", "1.02");
  EXPECT_EQ(record.SiteSalinity, 0);
  EXPECT_EQ(record.SiteDensity, 1.02);
}

TEST_F(DensityData, Save_Reads_The_Number_In_Front_As_Other_Screens_Do) {
  Scripted_Messages silent;
  Save("35 ppt", "about 10", "1.02x");
  EXPECT_EQ(record.SiteSalinity, 35);
  EXPECT_EQ(record.SiteTemperature, 0);
  EXPECT_EQ(record.SiteDensity, 1.02);
}

TEST_F(DensityData, The_Limits_Themselves_Pass_Without_A_Message) {
  Scripted_Messages silent;
  for (const auto& [typed, stored] :
       {std::pair{"0.972", 0.972}, std::pair{"1.05", 1.05}, std::pair{"1.0500", 1.05}}) {
    Save("1", "2", typed);
    EXPECT_EQ(record.SiteDensity, stored);
  }
}

TEST_F(DensityData, A_Density_Outside_The_Limits_Is_Told_And_The_Save_Goes_On) {
  Expect_Told("0.9719", "Minimum Density is 0.972 grams/cc", 0.972);
  EXPECT_EQ(entry.texts("Text3", 2), "0.9720");
  Expect_Told("", "Minimum Density is 0.972 grams/cc", 0.972);
  Expect_Told("-1", "Minimum Density is 0.972 grams/cc", 0.972);
  Expect_Told("1.0501", "Maximum Density is 1.050 grams/cc", 1.05);
  EXPECT_EQ(entry.texts("Text3", 2), "1.0500");
  Expect_Told("2.0", "Maximum Density is 1.050 grams/cc", 1.05);
}

TEST_F(DensityData, Cancel_Brings_Back_The_Density_Alone) {
  const Density_Copy copy = Copy_Density(record);
  Compute("35", "20");
  Reset_Vars(copy, record);
  EXPECT_EQ(Changed(), (Fields{"SiteSalinity", "SiteTemperature"}));
  EXPECT_EQ(record.SiteSalinity, 35);
  EXPECT_EQ(record.SiteTemperature, 20);
}

/// Texts as they come from a keyboard, close to numbers and far from them.
rc::Gen<std::string> Typed() {
  return rc::gen::oneOf(
      rc::gen::map(rc::gen::arbitrary<double>(),
                   [](double number) { return Plain_Number(number); }),
      rc::gen::container<std::string>(rc::gen::elementOf(std::string(" \t+-.,0123456789eEdDnaif"))),
      rc::gen::string<std::string>());
}

RC_GTEST_FIXTURE_PROP(DensityData, Compute_Refuses_Just_What_Would_Be_Marked, ()) {
  std::vector<Message> told;
  const Message_Presenter former = Set_Message_Presenter([&](const Message& message) {
    told.push_back(message);
    return Answer::Ok;
  });
  const std::string salinity = *Typed(), temperature = *Typed();
  *before = record;
  const auto wrong = Compute(salinity, temperature);
  Set_Message_Presenter(former);
  RC_ASSERT(told.size() == (wrong ? 1u : 0u));
  if (!Real_Note(salinity).empty()) {
    RC_ASSERT(wrong == 0);
  } else if (!Real_Note(temperature).empty()) {
    RC_ASSERT(wrong == 1);
  }
  if (wrong) {
    RC_ASSERT(Changed() == Fields{});
    RC_ASSERT(entry.texts("Text3", 2) == "1.2345");
  }
  RC_ASSERT(record.SiteDensity >= 0.972 && record.SiteDensity <= 1.05);
}

RC_GTEST_FIXTURE_PROP(DensityData, Save_Takes_Any_Text_And_Stores_A_Density_Within_The_Limits, ()) {
  const Message_Presenter former = Set_Message_Presenter([](const Message&) { return Answer::Ok; });
  Save(*Typed(), *Typed(), *Typed());
  Set_Message_Presenter(former);
  RC_ASSERT(record.SiteDensity >= 0.972 && record.SiteDensity <= 1.05);
  RC_ASSERT(std::isfinite(record.SiteSalinity) && std::isfinite(record.SiteTemperature));
  // What is stored is shown again when the screen opens, and stored again as it is shown.
  const Density_Entry shown = Open_Density(record);
  RC_ASSERT(shown.texts("Text3", 2) == entry.texts("Text3", 2));
}

}  // namespace
}  // namespace barvon
