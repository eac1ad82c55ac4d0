#include "core/keys.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>

namespace barvon {
namespace {

/// The values from -1 to 8 of a field for which a question is answered with yes.
template <class Field>
std::set<int> Yes_For(Field ProjectRecord::*field, bool (*question)(const ProjectRecord&),
                      std::int16_t zid_flag = 0) {
  auto record = std::make_unique<ProjectRecord>();
  record->ZidFlag = zid_flag;
  std::set<int> yes;
  for (int value = -1; value <= 8; ++value) {
    (*record).*field = static_cast<Field>(value);
    if (question(*record)) yes.insert(value);
  }
  return yes;
}

using Numbers = std::set<int>;

TEST(Keys, A_Hopper_And_A_Barge_Are_Vessels) {
  EXPECT_EQ(Yes_For(&ProjectRecord::DisposalMethod, Has_Vessel), (Numbers{1, 3}));
}

TEST(Keys, A_File_Of_Kind_2_Or_3_Is_A_Model_Project) {
  EXPECT_EQ(Yes_For(&ProjectRecord::FileKind, Is_Model_Project), (Numbers{2, 3}));
}

// Without a Section's own evaluation a number beyond the table counts as navigable waters.
TEST(Keys, Each_Question_Of_KEY3_Has_Its_Evaluations) {
  EXPECT_EQ(Yes_For(&ProjectRecord::KEY3, Is_Regulatory), (Numbers{2, 3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(Yes_For(&ProjectRecord::KEY3, Speaks_Of_Disposal_Site), (Numbers{2, 3, 4}));
  EXPECT_EQ(Yes_For(&ProjectRecord::KEY3, Contaminant_Is_In_The_Sediment), (Numbers{4, 7}));
  EXPECT_EQ(Yes_For(&ProjectRecord::KEY3, Offers_Zid), (Numbers{5, 6, 7}));
  EXPECT_EQ(Yes_For(&ProjectRecord::KEY3, Compares_Toxicity), (Numbers{3, 6}));
}

TEST(Keys, Only_Navigable_Waters_With_The_Flag_Have_A_Zid) {
  EXPECT_EQ(Yes_For(&ProjectRecord::KEY3, Has_Zid, 1), (Numbers{5, 6, 7, 8}));
  EXPECT_EQ(Yes_For(&ProjectRecord::KEY3, Has_Zid, 0), Numbers{});
  EXPECT_EQ(Yes_For(&ProjectRecord::KEY3, Has_Zid, -1), Numbers{});
}

TEST(Keys, Open_Water_Offers_Two_Evaluations_And_The_Sections_Three) {
  const int counts[] = {0, 2, 3, 3, 0};
  for (std::int16_t type = 0; type <= 4; ++type) EXPECT_EQ(Evaluations_Of(type), counts[type]);
  const int key3[3][3] = {{0, 1, -1}, {4, 2, 3}, {7, 5, 6}};
  for (std::int16_t type = 1; type <= 3; ++type) {
    for (int option = 0; option < Evaluations_Of(type); ++option) {
      EXPECT_EQ(KEY3_Of(type, option), key3[type - 1][option]) << type << option;
    }
    EXPECT_EQ(KEY3_Of(type, -1), std::nullopt);
    EXPECT_EQ(KEY3_Of(type, Evaluations_Of(type)), std::nullopt);
  }
  EXPECT_EQ(KEY3_Of(-1, 0), std::nullopt);
}

TEST(Keys, KEY3_Shows_As_Its_Evaluation_Of_Its_Type) {
  const int shown[] = {0, 1, 1, 2, 0, 1, 2, 0};
  const int types[] = {1, 1, 2, 2, 2, 3, 3, 3};
  for (std::int16_t key3 = 0; key3 <= 7; ++key3) {
    EXPECT_EQ(Evaluation_Option(key3), shown[key3]);
    EXPECT_EQ(Analysis_Type_Of_KEY3(key3), types[key3]);
  }
  for (const std::int16_t none : {-1, 8}) {
    EXPECT_EQ(Evaluation_Option(none), -1);
    EXPECT_EQ(Analysis_Type_Of_KEY3(none), 0);
  }
}

TEST(Keys, KEY4_Crosses_Type_And_Method) {
  for (std::int16_t type = 1; type <= 3; ++type) {
    EXPECT_EQ(KEY4_Of(type, 1), 2 * type - 1);
    EXPECT_EQ(KEY4_Of(type, 3), 2 * type);
    for (const std::int16_t no_vessel : {-1, 0, 2, 4}) {
      EXPECT_EQ(KEY4_Of(type, no_vessel), std::nullopt);
    }
  }
  EXPECT_EQ(KEY4_Of(0, 1), std::nullopt);
  EXPECT_EQ(KEY4_Of(4, 3), std::nullopt);
}

TEST(Keys, KEY4_Stands_For_A_Type_Of_Analysis) {
  const std::int16_t types[] = {0, 1, 1, 2, 2, 3, 3, 0};
  for (std::int16_t key4 = 0; key4 <= 7; ++key4) {
    EXPECT_EQ(Analysis_Type_Of_KEY4(key4), types[key4]) << key4;
  }
  EXPECT_EQ(Analysis_Type_Of_KEY4(-1), 0);
}

}  // namespace
}  // namespace barvon
