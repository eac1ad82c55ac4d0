#include "solver/det_math.h"

#include <gtest/gtest.h>

#include <cmath>

namespace companion {
namespace {

TEST(DetMath, The_Cube_Root_Of_A_Negative_Number_Is_Negative) { EXPECT_DOUBLE_EQ(Cbrt(-27), -3); }

}  // namespace
}  // namespace companion
