#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "core/project_defaults.h"
#include "core/project_file/project_reader.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "core/record_bytes.h"
#include "core/record_fields.h"
#include "core/text_tools.h"

namespace barvon {
namespace {

/// Values of every kind: plain ones, wide ones, tiny and huge ones, special ones.
class Value_Source {
 public:
  explicit Value_Source(std::uint64_t seed) : random_(seed) {}

  double Real() {
    switch (random_() % 12) {
      case 0:
        return 0;
      case 1:
        return static_cast<double>(random_() % 2000) / 8 - 100;
      case 2:
        return static_cast<double>(random_() % 100000);
      case 3:
        return 1.0 / static_cast<double>(1 + random_() % 1000);
      case 4:
        return std::bit_cast<double>(std::uint64_t{random_()});
      case 5:
        return -0.0;
      case 6:
        return std::numeric_limits<double>::infinity();
      case 7:
        return std::ldexp(static_cast<double>(random_() % 1000),
                          static_cast<int>(random_() % 2000) - 1000);
      default:
        return static_cast<double>(random_() % 1000) / 10;
    }
  }
  float Narrow() {
    return random_() % 4 == 0 ? std::bit_cast<float>(static_cast<std::uint32_t>(random_()))
                              : static_cast<float>(random_() % 1000) / 100;
  }
  std::int16_t Integer() {
    return random_() % 3 == 0 ? static_cast<std::int16_t>(random_())
                              : static_cast<std::int16_t>(random_() % 100);
  }
  std::string Text(std::size_t longest) {
    static const std::vector<std::string> kLetters = {
        "a", "Z", "7", " ", "\"", "\\", ";", "\xC3\xA9", "\xE2\x82\xAC", "="};
    std::string text;
    for (std::size_t i = random_() % (longest + 1); i > 0; --i) {
      text += kLetters[random_() % kLetters.size()];
    }
    return text;
  }
  bool Rarely() { return random_() % 8 == 0; }
  char Letter() { return static_cast<char>(0x20 + random_() % 0x5F); }

 private:
  std::mt19937_64 random_;
};

/// NaN is not equal to itself, and one NaN is as good as another.
bool Same(double a, double b) {
  return (std::isnan(a) && std::isnan(b)) ||
         std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

void Fill_At_Random(ProjectRecord& record, Value_Source& values) {
  for (const Slot_Row& row : Int_Slot_Rows()) {
    for (int i = 1; i <= row.count; ++i) {
      row.set(record, i, row.integer ? values.Integer() : values.Real());
    }
  }
  for (const Slot_Row& row : Real_Slot_Rows()) {
    for (int i = 1; i <= row.count; ++i) {
      row.set(record, i, row.integer ? values.Integer() : values.Real());
    }
  }
  // Most of a grid is plain in life; a wild field now and then.
  const bool wild = values.Rarely();
  for (int a = 1; a <= kMaxGridPoints; ++a) {
    for (int b = 1; b <= kMaxGridPoints; ++b) {
      if (wild || values.Rarely()) record.DepthGrid[a][b] = values.Real();
      if (wild) record.VelocityFieldX[a][b] = values.Real();
      if (wild || values.Rarely()) record.VelocityFieldZ[a][b] = values.Integer() / 100;
    }
  }
  for (float* value :
       {&record.TidalStartTime, &record.TidalDepth, &record.TidalAvgVelX, &record.TidalAvgVelZ}) {
    *value = values.Narrow();
  }
  for (int i = 1; i <= kTidalRows; ++i) {
    record.TidalVelX[i] = values.Narrow();
    record.TidalVelZ[i] = values.Narrow();
  }
  // The title has a line of its own, which ends with its last letter.
  record.ProjectTitle = Trimmed_Right(values.Text(kTitleLength));
  for (int i = 1; i <= kSolidEntries; ++i) record.SolidNames[i] = values.Text(12);
  for (int i = 1; i <= 6; ++i) record.SectionStatus[i] = values.Letter();
  for (int i = 1; i <= 18; ++i) record.SectionFlags[i] = values.Integer();
  record.KEY4 = values.Integer();
  record.KEY3 = static_cast<std::int16_t>(record.KEY3 == 4 || record.KEY3 == 7 ? 5 : record.KEY3);
}

/// An element of a field of the record.
struct Element {
  const Record_Field* field = nullptr;
  int i = 0, j = 0;

  bool Is_Text() const {
    return field->type == Field_Type::Text || field->type == Field_Type::Character;
  }
  bool Is_Same(const ProjectRecord& a, const ProjectRecord& b) const {
    return Is_Text() ? field->text(a, i, j) == field->text(b, i, j)
                     : Same(field->number(a, i, j), field->number(b, i, j));
  }
  std::string Name() const {
    return std::string(field->name) + (i == 0 ? "" : "(" + std::to_string(i)) +
           (j == 0 ? "" : "," + std::to_string(j)) + (i == 0 ? "" : ")");
  }
};

std::vector<Element> All_Elements() {
  std::vector<Element> elements;
  for (const Record_Field& field : Record_Fields()) {
    for (int i = field.count == 0 ? 0 : 1; i <= field.count; ++i) {
      for (int j = field.across == 0 ? 0 : 1; j <= field.across; ++j) {
        elements.push_back({&field, i, j});
      }
    }
  }
  return elements;
}

/// Every element that comes back from a file, told by the file and not by a list: each is given a
/// value of its own, saved and loaded.
std::vector<Element> Find_Stored_Elements() {
  const auto blank = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*blank);
  const auto given = std::make_unique<ProjectRecord>(*blank);
  int value = 0;
  for (const Element& element : All_Elements()) {
    value = value % 30000 + 1;
    if (element.field->type == Field_Type::Character) {
      element.field->set_text(*given, element.i, element.j, "Q");
    } else {
      element.field->set(*given, element.i, element.j, value);
    }
  }
  given->KEY3 = 5;  // with others the save computes concentrations
  Pack_Slots(*given);
  const auto loaded = std::make_unique<ProjectRecord>(*blank);
  const Failure failure =
      Load_Project("site.dui", Save_Project("site.dui", *given), *loaded).failure;
  EXPECT_EQ(failure, Failure::None);
  std::vector<Element> stored;
  for (const Element& element : All_Elements()) {
    if (element.Is_Same(*given, *loaded) && !element.Is_Same(*given, *blank)) {
      stored.push_back(element);
    }
  }
  return stored;
}

const std::vector<Element>& Stored_Elements() {
  static const std::vector<Element> stored = Find_Stored_Elements();
  return stored;
}

/// The first difference between what two records store, empty when there is none.
std::string First_Difference(const ProjectRecord& a, const ProjectRecord& b) {
  for (const Element& element : Stored_Elements()) {
    if (!element.Is_Same(a, b)) return element.Name();
  }
  return {};
}

#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t kRandomRecords = 60;  // each takes ten times as long under the sanitizer
#else
constexpr std::uint64_t kRandomRecords = 600;
#endif

/// A number of the environment, for the long form of the test.
std::uint64_t Setting(const char* name, std::uint64_t otherwise) {
  const char* const value = std::getenv(name);
  return value == nullptr ? otherwise : std::strtoull(value, nullptr, 10);
}

TEST(RandomRecords, Come_Back_Bit_For_Bit_And_Are_Saved_The_Same_Again) {
  const auto blank = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*blank);
  const auto saved = std::make_unique<ProjectRecord>();
  const auto loaded = std::make_unique<ProjectRecord>();
  const std::uint64_t first = Setting("BARVON_SEED", 1);
  const std::uint64_t count = Setting("BARVON_RANDOM_RECORDS", kRandomRecords);
  std::cout << "seeds " << first << " to " << first + count - 1 << std::endl;
  for (std::uint64_t seed = first; seed < first + count; ++seed) {
    Value_Source values(seed);
    *saved = *blank;
    Fill_At_Random(*saved, values);
    Pack_Slots(*saved);
    const std::string text = Save_Project("site.dui", *saved);
    *loaded = *blank;
    ASSERT_EQ(Load_Project("site.dui", text, *loaded).failure, Failure::None) << "seed " << seed;
    ASSERT_EQ(First_Difference(*saved, *loaded), "") << "seed " << seed;
    Pack_Slots(*loaded);
    // Not ASSERT_EQ: a difference would print half a megabyte.
    ASSERT_TRUE(Save_Project("site.dui", *loaded) == text) << "seed " << seed;
  }
}

TEST(RandomRecords, What_A_Person_Enters_Is_Stored_But_For_These) {
  std::set<std::string> kept;
  for (const Element& element : Stored_Elements()) kept.insert(element.field->name);
  std::vector<std::string> not_kept;
  for (const Record_Field& field : Record_Fields()) {
    if (Is_Project_Data(field) && !kept.contains(field.name)) not_kept.push_back(field.name);
  }
  EXPECT_EQ(not_kept, std::vector<std::string>({"GridPointRadius",
                                                "PreviousDisposalMethod",
                                                "DistX",
                                                "DistZ",
                                                "DEPTHI",
                                                "DensitySalinities",
                                                "DensityTemperatures",
                                                "DensityComputeFlag",
                                                "ConstVelocityX",
                                                "ConstVelocityZ",
                                                "FluidComputedConcentration",
                                                "SolidCohesiveText",
                                                "SolidStrippedText",
                                                "SiteSalinity",
                                                "SiteTemperature",
                                                "SelectedSiteCode",
                                                "SelectedMonth",
                                                "SelectedMaterialCode",
                                                "SelectedVesselCode",
                                                "SiteFound",
                                                "MaterialFound",
                                                "VesselFound"}));
}

TEST(RandomRecords, Every_Element_That_Is_Stored_Is_Filled) {
  const auto blank = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*blank);
  Pack_Slots(*blank);
  std::vector<Element> unfilled = Stored_Elements();
  for (std::uint64_t seed = 1; seed <= 200 && !unfilled.empty(); ++seed) {
    const auto filled = std::make_unique<ProjectRecord>(*blank);
    Value_Source values(seed);
    Fill_At_Random(*filled, values);
    Pack_Slots(*filled);
    std::erase_if(unfilled,
                  [&](const Element& element) { return !element.Is_Same(*filled, *blank); });
  }
  for (const Element& element : unfilled) ADD_FAILURE() << element.Name() << " is never filled";
}

}  // namespace
}  // namespace barvon
