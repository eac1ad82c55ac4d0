#include "results/drawings/map_drawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "pictures/shapes/inks.h"
#include "pictures/shapes/lettering.h"
#include "results/drawings/map_words.h"

namespace barvon::testing {
namespace {

const Canvas kCanvas{900, 600, 12};

/// 3 x 4 cells of 100 ft, one of 40 in the second row and third column.
Map_Content One_Peak() {
  Map_Content content;
  content.cells = {.rows = 3, .columns = 4, .spacing_x = 100, .spacing_z = 100, .values = {}};
  content.cells.values.assign(12, 0);
  content.cells.values[6] = 40;
  content.title = "SAND at 20 ft, 600 s (10 min)";
  content.quantity = "Concentration";
  content.unit = "mg/l";
  content.scale.levels = {10, 20};
  return content;
}

std::vector<std::string> Letters(const Shape_List& picture) {
  std::vector<std::string> letters;
  for (const Shape& shape : picture.shapes) {
    if (const auto* text = std::get_if<Text_Shape>(&shape)) letters.push_back(text->text);
  }
  return letters;
}

bool Has(const std::vector<std::string>& letters, const std::string& text) {
  return std::ranges::find(letters, text) != letters.end();
}

std::vector<Area_Shape> Areas(const Shape_List& picture) {
  std::vector<Area_Shape> areas;
  for (const Shape& shape : picture.shapes) {
    if (const auto* area = std::get_if<Area_Shape>(&shape)) areas.push_back(*area);
  }
  return areas;
}

template <class Kind>
bool Has_Stroke(const Shape_List& picture, Dash dash, Colour colour) {
  return std::ranges::any_of(picture.shapes, [&](const Shape& shape) {
    const auto* known = std::get_if<Kind>(&shape);
    if (!known) return false;
    const std::optional<Stroke> stroke = known->stroke;
    return stroke && stroke->dash == dash && stroke->colour == colour;
  });
}

TEST(MapDrawing, Says_In_Words_What_It_Shows) {
  const Map_Drawing drawing = Draw_Map(One_Peak());
  EXPECT_EQ(drawing.summary, "Largest 40 mg/l at X 100 ft, Z 200 ft.");
  EXPECT_EQ(drawing.description,
            "Concentration, SAND at 20 ft, 600 s (10 min). Largest 40 mg/l at X 100 ft, Z 200 ft. "
            "Levels: 10 20 mg/l.");
  const auto letters = Letters(Map_Shapes(drawing, kCanvas));
  EXPECT_TRUE(Has(letters, "SAND at 20 ft, 600 s (10 min)"));
  EXPECT_TRUE(Has(letters, drawing.summary));
  EXPECT_TRUE(Has(letters, "X (ft), top to bottom"));
  EXPECT_TRUE(Has(letters, "Z (ft), left to right"));
  EXPECT_TRUE(Has(letters, "mg/l"));
  EXPECT_TRUE(Has(letters, "10"));
  EXPECT_TRUE(Has(letters, "20"));
}

// The peak of 40 falls to 0 within 100 ft: level 10 is 75 ft from it, level 20 50 ft.
TEST(MapDrawing, Fills_Each_Level_Where_The_Contours_Are) {
  const Map_Drawing drawing = Draw_Map(One_Peak());
  const auto areas = Areas(Map_Shapes(drawing, kCanvas));
  ASSERT_EQ(areas.size(), 2);
  EXPECT_EQ(areas[0].fill, Band_Colour(0, 2));
  EXPECT_EQ(areas[1].fill, Band_Colour(1, 2));
  const auto seen = [&](double x, double z, const Area_Shape& area) {
    const Place place = *Map_Place_Of(drawing, kCanvas, {x, z});
    return std::ranges::any_of(area.rings.at(0), [&](const Place& at) {
      return std::hypot(at.x - place.x, at.y - place.y) < 1e-6;
    });
  };
  EXPECT_TRUE(seen(25, 200, areas[0]));
  EXPECT_TRUE(seen(100, 275, areas[0]));
  EXPECT_TRUE(seen(150, 200, areas[1]));
  EXPECT_TRUE(seen(100, 150, areas[1]));
}

TEST(MapDrawing, Places_In_Feet_Are_Found_Again) {
  const Map_Drawing drawing = Draw_Map(One_Peak());
  for (const Result_Point point : {Result_Point{0, 0}, {200, 300}, {-50, 350}, {120, 40}}) {
    const auto place = Map_Place_Of(drawing, kCanvas, point);
    ASSERT_TRUE(place);
    const auto back = Map_Feet_At(drawing, kCanvas, *place, true);
    ASSERT_TRUE(back);
    EXPECT_NEAR(back->x, point.x, 1);
    EXPECT_NEAR(back->z, point.z, 1);
  }
  EXPECT_FALSE(Map_Feet_At(drawing, kCanvas, {0, 0}));
  const auto corner = Map_Feet_At(drawing, kCanvas, {0, 0}, true);
  ASSERT_TRUE(corner);
  EXPECT_EQ(corner->x, -50);
  EXPECT_EQ(corner->z, -50);
}

TEST(MapDrawing, Reads_Between_Cells_As_The_Contours_Lie) {
  const Map_Drawing drawing = Draw_Map(One_Peak());
  EXPECT_EQ(Map_Words_At(drawing, {100, 225}), "X 100 ft, Z 225 ft: 30 mg/l");
  EXPECT_EQ(Map_Words_At(drawing, {25, 200}), "X 25 ft, Z 200 ft: 10 mg/l");
  EXPECT_EQ(Map_Words_At(drawing, {0, 0}), "X 0 ft, Z 0 ft: 0 mg/l");
}

TEST(MapDrawing, Nothing_There_Is_Said_In_The_Picture) {
  Map_Content content;
  content.nothing = "The outputs hold no maps of the deposit.";
  const Map_Drawing drawing = Draw_Map(content);
  EXPECT_EQ(drawing.description, content.nothing);
  EXPECT_TRUE(Has(Letters(Map_Shapes(drawing, kCanvas)), content.nothing));
  EXPECT_FALSE(Map_Feet_At(drawing, kCanvas, {300, 300}, true));
  EXPECT_FALSE(Map_Place_Of(drawing, kCanvas, {0, 0}));
  EXPECT_FALSE(Draw_Map({}).content.nothing.empty());
}

TEST(MapDrawing, Zero_Everywhere_Is_Said_Over_The_Grid) {
  Map_Content content = One_Peak();
  content.cells.values.assign(12, 0);
  content.scale.levels.clear();
  const Map_Drawing drawing = Draw_Map(content);
  EXPECT_EQ(drawing.summary, "0 mg/l everywhere.");
  EXPECT_TRUE(Has(Letters(Map_Shapes(drawing, kCanvas)), "0 mg/l everywhere."));
  EXPECT_TRUE(Areas(Map_Shapes(drawing, kCanvas)).empty());
}

TEST(MapDrawing, Site_Is_Solid_Zid_Dashed_And_Both_Have_Their_Place_In_The_Legend) {
  Map_Content content = One_Peak();
  content.site = Result_Area{0, 0, 200, 300};
  content.zid = Result_Area{50, 50, 150, 250};
  content.disposal = Result_Point{100, 100};
  const Map_Drawing drawing = Draw_Map(content);
  const Shape_List picture = Map_Shapes(drawing, kCanvas);
  EXPECT_TRUE(Has_Stroke<Polygon_Shape>(picture, Dash::solid, {0, 112, 74}));
  EXPECT_TRUE(Has_Stroke<Polygon_Shape>(picture, Dash::dashed, {134, 38, 140}));
  const auto letters = Letters(picture);
  for (const char* word : {"Site", "ZID", "Disposal"}) EXPECT_TRUE(Has(letters, word)) << word;
  EXPECT_NE(drawing.description.find("Site: X 0 to 200 ft, Z 0 to 300 ft."), std::string::npos);
  EXPECT_NE(drawing.description.find("Disposal point: X 100 ft, Z 100 ft."), std::string::npos);
}

TEST(MapDrawing, A_Mixing_Zone_Is_Called_So) {
  Map_Content content = One_Peak();
  content.site = Result_Area{0, 0, 200, 300};
  content.mixing_zone = true;
  const Map_Drawing drawing = Draw_Map(content);
  const auto letters = Letters(Map_Shapes(drawing, kCanvas));
  EXPECT_TRUE(Has(letters, "Mixing zone"));
  EXPECT_FALSE(Has(letters, "Site"));
  EXPECT_NE(drawing.description.find("Mixing zone: X 0 to 200 ft"), std::string::npos);
}

TEST(MapDrawing, What_Reaches_Beyond_The_Grid_Is_Told_Not_Drawn) {
  Map_Content content = One_Peak();
  content.site = Result_Area{0, 0, 200, 9000};
  const Map_Drawing drawing = Draw_Map(content);
  const Shape_List picture = Map_Shapes(drawing, kCanvas);
  EXPECT_FALSE(Has_Stroke<Polygon_Shape>(picture, Dash::solid, {0, 112, 74}));
  EXPECT_FALSE(Has(Letters(picture), "Site"));
  EXPECT_NE(drawing.description.find("It reaches beyond the grid and is not drawn."),
            std::string::npos);
}

TEST(MapDrawing, Less_And_More_Are_Told_Apart_By_Signs_And_Lines) {
  Map_Content content = One_Peak();
  content.cells.values[0] = -30;
  content.scale.two_sides = true;
  content.lines = false;  // a difference has them all the same
  const Map_Drawing drawing = Draw_Map(content);
  EXPECT_EQ(drawing.summary, "From -30 mg/l at X 0 ft, Z 0 ft to +40 mg/l at X 100 ft, Z 200 ft.");
  const Shape_List picture = Map_Shapes(drawing, kCanvas);
  const auto letters = Letters(picture);
  for (const char* word : {"+10", "+20", "-10", "-20"}) EXPECT_TRUE(Has(letters, word)) << word;
  const auto areas = Areas(picture);
  ASSERT_EQ(areas.size(), 4);
  EXPECT_EQ(areas[0].fill, More_Colour(0, 2));
  EXPECT_EQ(areas[2].fill, Less_Colour(0, 2));
  EXPECT_TRUE(Has_Stroke<Line_Shape>(picture, Dash::dashed, {60, 60, 60}));
  EXPECT_EQ(Map_Words_At(drawing, {100, 200}), "X 100 ft, Z 200 ft: +40 mg/l");
}

TEST(MapDrawing, Lines_And_Grid_Come_And_Go) {
  Map_Content content = One_Peak();
  content.lines = content.grid = false;
  const std::size_t plain = Map_Shapes(Draw_Map(content), kCanvas).shapes.size();
  content.lines = true;
  EXPECT_EQ(Map_Shapes(Draw_Map(content), kCanvas).shapes.size(), plain + 2);  // one a level
  content.lines = false;
  content.grid = true;
  EXPECT_EQ(Map_Shapes(Draw_Map(content), kCanvas).shapes.size(), plain + 2 + 3);
}

// All of the picture stays on its canvas, whatever the letters and the section.
TEST(MapDrawing, Everything_Is_Within_The_Canvas) {
  Map_Content content = One_Peak();
  content.site = Result_Area{0, 0, 200, 300};
  content.disposal = Result_Point{100, 100};
  content.scale.levels = {1, 2, 5, 10, 12, 15, 20, 30};
  for (const bool tall : {false, true}) {
    if (tall) content.cells.spacing_x = 400;
    for (const bool cut : {false, true}) {
      if (cut) content.section = Section_Line{{0, 0}, {200, 300}};
      for (const Canvas& canvas :
           {kCanvas, Canvas{1600, 500, 12}, Canvas{420, 380, 12}, Canvas{700, 560, 24}}) {
        const Map_Drawing drawing = Draw_Map(content);
        const Shape_List picture = Map_Shapes(drawing, canvas);
        for (const Shape& shape : picture.shapes) {
          const auto check = [&](const Place& place) {
            EXPECT_GE(place.x, 0);
            EXPECT_GE(place.y, 0);
            EXPECT_LE(place.x, canvas.width) << canvas.width << " " << tall << cut;
            EXPECT_LE(place.y, canvas.height) << canvas.width << " " << tall << cut;
          };
          if (const auto* text = std::get_if<Text_Shape>(&shape)) {
            check(text->place);
          } else if (const auto* line = std::get_if<Line_Shape>(&shape)) {
            for (const Place& place : line->points) check(place);
          } else if (const auto* polygon = std::get_if<Polygon_Shape>(&shape)) {
            for (const Place& place : polygon->points) check(place);
          }
        }
      }
      content.section.reset();
    }
  }
}

/// What a text covers, by the estimate that the picture is laid out with.
Result_Area Cover(const Text_Shape& text) {
  const double width = Text_Width(text.text, text.size), tall = 0.75 * text.size;
  const double before = text.anchor == Anchor::start    ? 0
                        : text.anchor == Anchor::middle ? width / 2
                                                        : width;
  if (text.upwards) {
    return {text.place.y + before - width, text.place.x - tall, text.place.y + before,
            text.place.x};
  }
  return {text.place.y - tall, text.place.x - before, text.place.y, text.place.x - before + width};
}

bool Meet(const Result_Area& a, const Result_Area& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

TEST(MapDrawing, No_Letters_Are_Cut_Nor_Lie_On_Others_Whatever_Their_Size) {
  Map_Content content = One_Peak();
  content.site = Result_Area{0, 0, 100, 100};
  for (const auto& [rows, columns] : {std::pair{3, 4}, {20, 3}, {3, 20}}) {
    content.cells = {
        .rows = rows, .columns = columns, .spacing_x = 500, .spacing_z = 500, .values = {}};
    content.cells.values.assign(static_cast<std::size_t>(rows * columns), 0);
    content.cells.values[6] = 40;
    const Map_Drawing drawing = Draw_Map(content);
    for (const Canvas& canvas :
         {kCanvas, Canvas{420, 380, 12}, Canvas{200, 190, 12}, Canvas{700, 560, 24},
          Canvas{390, 330, 20}, Canvas{300, 384, 24}}) {
      std::vector<Text_Shape> texts;
      for (const Shape& shape : Map_Shapes(drawing, canvas).shapes) {
        if (const auto* text = std::get_if<Text_Shape>(&shape)) texts.push_back(*text);
      }
      for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::string where = texts[i].text + " at " + std::to_string(canvas.width) + ", " +
                                  std::to_string(rows) + " rows";
        const Result_Area box = Cover(texts[i]);
        EXPECT_GE(box.left, 0) << where;
        EXPECT_GE(box.top, 0) << where;
        EXPECT_LE(box.right, canvas.width) << where;
        EXPECT_LE(box.bottom, canvas.height) << where;
        for (std::size_t j = 0; j < i; ++j) {
          EXPECT_FALSE(Meet(box, Cover(texts[j]))) << where << " and " << texts[j].text;
        }
      }
    }
  }
}

// Of 330 pixels a title of 30 and a summary of 27 are less than a quarter, of 200 more.
TEST(MapDrawing, The_Map_Keeps_Its_Room_First_The_Summary_Goes_Then_The_Axis_Titles) {
  Map_Content content = One_Peak();
  content.title = "SAND";
  const Map_Drawing drawing = Draw_Map(content);
  const auto letters = [&](const Canvas& canvas) { return Letters(Map_Shapes(drawing, canvas)); };
  EXPECT_TRUE(Has(letters({900, 330, 20}), drawing.summary));
  EXPECT_TRUE(Has(letters({900, 330, 20}), "Z (ft), left to right"));
  EXPECT_FALSE(Has(letters({900, 200, 20}), drawing.summary));
  EXPECT_FALSE(Has(letters({900, 150, 20}), "Z (ft), left to right"));
  EXPECT_FALSE(Has(letters({900, 150, 20}), "Z (ft)"));
  EXPECT_TRUE(Has(letters({900, 150, 20}), "SAND"));
}

TEST(MapDrawing, Values_Are_Told_In_Five_Figures) {
  EXPECT_EQ(Reading_Words(0.001234567, "ft"), "0.0012346 ft");
  EXPECT_EQ(Reading_Words(123456, "mg/l"), "123460 mg/l");
  EXPECT_EQ(Reading_Words(0.317225, "mg/l"), "0.31723 mg/l");  // as a double a hair less
  EXPECT_EQ(Reading_Words(-2, "ft"), "-2 ft");
  EXPECT_EQ(Reading_Words(0, "ft"), "0 ft");
  EXPECT_EQ(Reading_Words(std::numeric_limits<double>::quiet_NaN(), "ft"), "no value");
}

}  // namespace
}  // namespace barvon::testing
