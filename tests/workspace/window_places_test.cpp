#include "workspace/window_places.h"

#include <gtest/gtest.h>

namespace barvon {
namespace {

constexpr Window_Place kRoom{600, 0, 640, 1000};
using Places = std::vector<Window_Place>;

TEST(WindowPlaces, Tiled_Horizontally_They_Stand_Above_Each_Other) {
  EXPECT_EQ(Places_For(Arrangement::Tile_Horizontal, 2, kRoom),
            (Places{{600, 0, 640, 500}, {600, 500, 640, 500}}));
}

TEST(WindowPlaces, Tiled_Vertically_They_Stand_Beside_Each_Other) {
  EXPECT_EQ(Places_For(Arrangement::Tile_Vertical, 2, kRoom),
            (Places{{600, 0, 320, 1000}, {920, 0, 320, 1000}}));
}

TEST(WindowPlaces, Many_Tiles_Cover_The_Room_In_Columns_Without_A_Gap) {
  for (const Arrangement how : {Arrangement::Tile_Horizontal, Arrangement::Tile_Vertical}) {
    for (int count = 1; count < 20; ++count) {
      const Places places = Places_For(how, count, kRoom);
      ASSERT_EQ(places.size(), static_cast<std::size_t>(count));
      int area = 0;
      for (const Window_Place& place : places) area += place.width * place.height;
      EXPECT_EQ(area, 640 * 1000) << count;
    }
  }
  EXPECT_EQ(Places_For(Arrangement::Tile_Horizontal, 5, kRoom).back(),
            (Window_Place{920, 500, 320, 500}));
}

TEST(WindowPlaces, A_Cascade_Steps_Down_And_Starts_Anew_Before_It_Leaves_The_Room) {
  const Places places = Places_For(Arrangement::Cascade, 8, kRoom);
  EXPECT_EQ(places[0], (Window_Place{600, 0, 480, 750}));
  EXPECT_EQ(places[1], (Window_Place{632, 32, 480, 750}));
  EXPECT_EQ(places[5], (Window_Place{760, 160, 480, 750})) << "160 of the 160 pixels to spare";
  EXPECT_EQ(places[6], places[0]);
  EXPECT_TRUE(Places_For(Arrangement::Cascade, 0, kRoom).empty());
}

TEST(WindowPlaces, Texts_Have_Their_Room_Beside_The_Main_Window_Or_All_Of_A_Small_Display) {
  EXPECT_EQ(Room_Beside({0, 0, 627, 735}, {0, 0, 1280, 1024}), (Window_Place{627, 0, 653, 1024}));
  EXPECT_EQ(Room_Beside({0, 0, 627, 735}, {0, 0, 1024, 768}), (Window_Place{0, 0, 1024, 768}));
  EXPECT_EQ(Room_Beside({-300, 0, 200, 735}, {0, 0, 1280, 1024}), (Window_Place{0, 0, 1280, 1024}));
}

}  // namespace
}  // namespace barvon
