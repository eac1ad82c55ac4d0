#include "core/record_fields.h"

#include <gtest/gtest.h>

#include <memory>
#include <regex>
#include <sstream>

#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

// The names of the struct's fields, read from its declaration.
std::vector<std::string> Declared_Fields() {
  const std::string header = Read_Text(std::string(BARVON_SOURCE) + "/src/core/project_record.h");
  const auto begin = header.find("struct ProjectRecord {");
  std::istringstream body(header.substr(begin, header.find("\n};", begin) - begin));
  std::vector<std::string> names;
  std::string line;
  std::getline(body, line);
  // A type, then names with or without an initialiser, then a semicolon.
  const std::regex declaration(R"(^ +[A-Za-z_:0-9]+(<.*>)? +([A-Z][^;(]*);)");
  const std::regex name(R"((^|, *)([A-Za-z]\w*))");
  while (std::getline(body, line)) {
    std::smatch found;
    if (!std::regex_search(line, found, declaration)) continue;
    const std::string list = found[2];
    for (std::sregex_iterator at(list.begin(), list.end(), name), end; at != end; ++at) {
      names.push_back((*at)[2]);
    }
  }
  return names;
}

const Record_Field& Field_Named(const std::string& name) {
  for (const Record_Field& field : Record_Fields()) {
    if (name == field.name) return field;
  }
  throw std::runtime_error("no field " + name);
}

TEST(RecordFields, Are_Those_That_The_Record_Declares_In_Its_Order) {
  std::vector<std::string> listed;
  for (const Record_Field& field : Record_Fields()) {
    if (std::string(field.name) != "TracerName") listed.emplace_back(field.name);
  }
  EXPECT_EQ(listed, Declared_Fields());
  EXPECT_GE(listed.size(), 190u);
}

TEST(RecordFields, Cover_The_Record_To_Its_Last_Bytes) {
  // What the fields take, index 0 of the arrays included, leaves only padding unaccounted for.
  std::size_t bytes = 0;
  for (const Record_Field& field : Record_Fields()) {
    if (std::string(field.name) == "TracerName") continue;
    const std::size_t count = field.count == 0 ? 1 : static_cast<std::size_t>(field.count) + 1;
    const std::size_t across = field.across == 0 ? 1 : static_cast<std::size_t>(field.across) + 1;
    std::size_t element = sizeof(double);
    if (field.type == Field_Type::Text) element = sizeof(std::string);
    if (field.type == Field_Type::Integer) element = sizeof(std::int16_t);
    if (field.type == Field_Type::Character) element = sizeof(char);
    bytes += count * across * element;
  }
  EXPECT_NEAR(static_cast<double>(bytes), static_cast<double>(sizeof(ProjectRecord)), 700.0);
}

TEST(RecordFields, Give_Extents_Without_The_Unused_Index) {
  EXPECT_EQ(Field_Named("DX0").count, 0);
  EXPECT_EQ(Field_Named("Densities").count, 5);
  EXPECT_EQ(Field_Named("Densities").across, 0);
  EXPECT_EQ(Field_Named("LayerSolidFraction").count, 4);
  EXPECT_EQ(Field_Named("LayerSolidFraction").across, 6);
  EXPECT_EQ(Field_Named("DepthGrid").count, 96);
  EXPECT_EQ(Field_Named("DepthGrid").across, 96);
}

TEST(RecordFields, Give_Types) {
  EXPECT_EQ(Field_Named("ProjectTitle").type, Field_Type::Text);
  EXPECT_EQ(Field_Named("DataSaved").type, Field_Type::Integer);
  EXPECT_EQ(Field_Named("HelpContextToShow").type, Field_Type::Integer);
  EXPECT_EQ(Field_Named("TidalVelX").type, Field_Type::Real);
  EXPECT_EQ(Field_Named("SectionStatus").type, Field_Type::Character);
}

TEST(RecordFields, Give_Values_By_The_Fields_Own_Subscripts) {
  const auto record = std::make_unique<ProjectRecord>();
  record->DepthGrid[3][7] = 12.5;
  record->LayerSolidFraction[2][5] = 0.25;
  record->DataSaved = kTrue;
  record->SolidNames[5] = "Dye";
  record->SectionStatus[6] = '\xC4';
  EXPECT_EQ(Field_Named("DepthGrid").number(*record, 3, 7), 12.5);
  EXPECT_EQ(Field_Named("DepthGrid").number(*record, 7, 3), 0);
  EXPECT_EQ(Field_Named("LayerSolidFraction").number(*record, 2, 5), 0.25);
  EXPECT_EQ(Field_Named("DataSaved").number(*record, 0, 0), -1);
  EXPECT_EQ(Field_Named("SolidNames").text(*record, 5, 0), "Dye");
  EXPECT_EQ(Field_Named("TracerName").text(*record, 0, 0), "Dye");
  EXPECT_EQ(Field_Named("SectionStatus").text(*record, 6, 0), "\xC3\x84");
}

TEST(RecordFields, Give_A_32_Bit_Value_As_Its_Own_Shortest_Text_Says) {
  const auto record = std::make_unique<ProjectRecord>();
  record->TidalDepth = 0.1F;
  EXPECT_EQ(Field_Named("TidalDepth").number(*record, 0, 0), 0.1);
}

TEST(RecordDifferences, Name_The_Fields_That_Differ_Bit_For_Bit) {
  const auto a = std::make_unique<ProjectRecord>();
  const auto b = std::make_unique<ProjectRecord>();
  EXPECT_TRUE(Differing_Fields(*a, *b).empty());
  b->DX0 = -0.0;
  b->VelocityFieldZ[96][96] = 1;
  b->DiluteBulkRemark[500] = "x";
  EXPECT_EQ(Differing_Fields(*a, *b),
            (std::vector<std::string>{"DX0", "VelocityFieldZ", "DiluteBulkRemark"}));
  EXPECT_EQ(Differing_Fields(*a, *b, {"DX0", "DiluteBulkRemark"}),
            std::vector<std::string>{"VelocityFieldZ"});
}

}  // namespace
}  // namespace barvon::testing
