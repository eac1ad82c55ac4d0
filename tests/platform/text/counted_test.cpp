#include "platform/text/counted.h"

#include <gtest/gtest.h>

namespace barvon {
namespace {

TEST(Counted, Only_One_Is_Singular) {
  EXPECT_EQ(Counted(1, "row"), "1 row");
  EXPECT_EQ(Counted(0, "row"), "0 rows");
  EXPECT_EQ(Counted(2, "row"), "2 rows");
}

}  // namespace
}  // namespace barvon
