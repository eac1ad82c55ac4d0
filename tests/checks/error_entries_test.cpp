#include "checks/error_entries.h"

#include <gtest/gtest.h>

namespace barvon {
namespace {

TEST(ErrorEntries, The_First_Topic_Stands_At_1) {
  Error_List errors;
  errors.Add("one", "a!b", 2490);
  errors.Add("two", "c!d");
  errors.Add("three", "", 3000);
  EXPECT_EQ(errors.ErrorsFound, kTrue);
  EXPECT_EQ(errors.ErrorCount, 3);
  EXPECT_EQ(errors.entries[1].message, "two");
  EXPECT_EQ(errors.entries[1].reference, "c!d");
  EXPECT_EQ(errors.ErrorHelpTopics[0], 0);
  EXPECT_EQ(errors.ErrorHelpTopics[1], 2490);
  EXPECT_EQ(errors.ErrorHelpTopics[2], 0);
  EXPECT_EQ(errors.ErrorHelpTopics[3], 3000);
}

TEST(ErrorEntries, The_Twentieth_Topic_Is_Kept_And_The_Next_Ignored) {
  Error_List errors;
  for (int i = 1; i <= 25; ++i) errors.Add("entry", "", i);
  EXPECT_EQ(errors.ErrorHelpTopics[20], 20);
  EXPECT_EQ(errors.ErrorHelpTopics[0], 0);
  EXPECT_EQ(errors.entries.size(), 25U);
  EXPECT_EQ(errors.ErrorCount, 25);
}

TEST(ErrorEntries, The_Count_Stays_At_32767_And_The_List_Goes_On) {
  Error_List errors;
  for (int i = 0; i < 32770; ++i) errors.Add("", "");
  EXPECT_EQ(errors.ErrorCount, 32767);
  EXPECT_EQ(errors.entries.size(), 32770U);
}

}  // namespace
}  // namespace barvon
