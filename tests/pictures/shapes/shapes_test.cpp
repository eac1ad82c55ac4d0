#include "pictures/shapes/shapes.h"

#include <gtest/gtest.h>

namespace barvon {
namespace {

TEST(Shapes, A_Moved_Area_Keeps_Its_Rings) {
  const Area_Shape area{
      {{{0, 0}, {2, 0}, {0, 4}}, {{1, 1}, {1.5, 1}, {1, 2}}}, Colour{1, 2, 3}, Stroke{{}, 3}};
  const Shape moved = Moved(area, {10, 20}, 2);
  const auto* seen = std::get_if<Area_Shape>(&moved);
  ASSERT_TRUE(seen);
  EXPECT_EQ(seen->rings, (std::vector<std::vector<Place>>{{{10, 20}, {14, 20}, {10, 28}},
                                                          {{12, 22}, {13, 22}, {12, 24}}}));
  EXPECT_EQ(seen->stroke->width, 6);
  EXPECT_EQ(seen->fill, (Colour{1, 2, 3}));
}

TEST(Shapes, A_Moved_Text_Grows_With_The_Scale) {
  const Shape moved = Moved(Text_Shape{{1, 2}, "A", 10}, {5, 5}, 1.5);
  const auto* seen = std::get_if<Text_Shape>(&moved);
  ASSERT_TRUE(seen);
  EXPECT_EQ(seen->place, (Place{6.5, 8}));
  EXPECT_EQ(seen->size, 15);
}

}  // namespace
}  // namespace barvon
