#include "pictures/shapes/svg_writer.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace barvon {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

Shape_List One_Of_Each() {
  Shape_List picture{200, 100.5, "A & B", "Salt < \"sea\"", {}};
  picture.shapes.push_back(Polygon_Shape{Rectangle({10, 20}, {30, 40}), Colour{1, 2, 255}, {}});
  picture.shapes.push_back(
      Polygon_Shape{{{0, 0}, {5, 0}, {0, 5}}, {}, Stroke{{0, 0, 0}, 1.25, Dash::solid}});
  picture.shapes.push_back(
      Line_Shape{{{0.5, 1}, {-2.126, 3.999}}, {{16, 32, 48}, 2, Dash::dashed}});
  picture.shapes.push_back(Line_Shape{{{0, 0}, {9, 0}}, {{16, 32, 48}, 1, Dash::dotted}});
  picture.shapes.push_back(
      Circle_Shape{{7, 8}, 3.5, Colour{255, 255, 255}, Stroke{{11, 94, 168}, 1.4, Dash::solid}});
  picture.shapes.push_back(
      Area_Shape{{{{0, 0}, {9, 0}, {0, 9}}, {{1, 1}, {2.5, 1}, {1, 3}}}, Colour{1, 2, 255}, {}});
  picture.shapes.push_back(Text_Shape{{12, 34}, "1 < 2", 11, {45, 52, 61}});
  picture.shapes.push_back(Text_Shape{{50, 60}, "up", 11, {0, 0, 0}, Anchor::middle, true});
  picture.shapes.push_back(Text_Shape{{50, 60}, "end", 11, {0, 0, 0}, Anchor::end});
  return picture;
}

// Written by hand from the rules: a line for each shape, two decimals at most.
constexpr char kOneOfEach[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"200\" height=\"100.5\""
    " viewBox=\"0 0 200 100.5\" role=\"img\" font-family=\"sans-serif\">\n"
    "<title>A &amp; B</title>\n"
    "<desc>Salt &lt; &quot;sea&quot;</desc>\n"
    "<rect width=\"200\" height=\"100.5\" fill=\"#ffffff\"/>\n"
    "<polygon points=\"10,20 30,20 30,40 10,40\" fill=\"#0102ff\"/>\n"
    "<polygon points=\"0,0 5,0 0,5\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1.25\"/>\n"
    "<polyline points=\"0.5,1 -2.13,4\" fill=\"none\" stroke=\"#102030\" stroke-width=\"2\""
    " stroke-dasharray=\"6 4\"/>\n"
    "<polyline points=\"0,0 9,0\" fill=\"none\" stroke=\"#102030\" stroke-width=\"1\""
    " stroke-dasharray=\"1 3\"/>\n"
    "<circle cx=\"7\" cy=\"8\" r=\"3.5\" fill=\"#ffffff\" stroke=\"#0b5ea8\""
    " stroke-width=\"1.4\"/>\n"
    "<path d=\"M0,0 9,0 0,9ZM1,1 2.5,1 1,3Z\" fill-rule=\"evenodd\" fill=\"#0102ff\"/>\n"
    "<text x=\"12\" y=\"34\" font-size=\"11\" fill=\"#2d343d\">1 &lt; 2</text>\n"
    "<text x=\"50\" y=\"60\" font-size=\"11\" fill=\"#000000\" text-anchor=\"middle\""
    " transform=\"rotate(-90 50 60)\">up</text>\n"
    "<text x=\"50\" y=\"60\" font-size=\"11\" fill=\"#000000\" text-anchor=\"end\">end</text>\n"
    "</svg>\n";

TEST(SvgWriter, Writes_Each_Kind_Of_Shape) { EXPECT_EQ(Svg_Text(One_Of_Each()), kOneOfEach); }

TEST(SvgWriter, The_Point_Is_A_Point_Whatever_The_Desktop_Says) {
  const std::string former = std::setlocale(LC_ALL, nullptr);
  for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "nl_NL.UTF-8"}) {
    std::setlocale(LC_ALL, name);
    EXPECT_EQ(Svg_Text(One_Of_Each()), kOneOfEach) << name;
  }
  std::setlocale(LC_ALL, former.c_str());
}

TEST(SvgWriter, What_Has_No_Place_Is_Left_Out) {
  Shape_List picture{10, 10, "", "", {}};
  picture.shapes.push_back(Line_Shape{{{0, 0}, {kNan, 1}}, {}});
  picture.shapes.push_back(Line_Shape{{{0, 0}, {1, kInfinity}}, {}});
  picture.shapes.push_back(Line_Shape{{{0, 0}}, {}});
  picture.shapes.push_back(Polygon_Shape{{{0, 0}, {1, 1}}, {}, {}});
  picture.shapes.push_back(Polygon_Shape{{{0, 0}, {1, 1}, {2e6, 0}}, {}, {}});
  picture.shapes.push_back(Area_Shape{});
  picture.shapes.push_back(Area_Shape{{{{0, 0}, {1, 0}, {0, 1}}, {{0, 0}, {1, 1}}}, {}, {}});
  picture.shapes.push_back(Area_Shape{{{{0, 0}, {1, 0}, {kNan, 1}}}, {}, {}});
  picture.shapes.push_back(Circle_Shape{{1, 1}, 0, {}, {}});
  picture.shapes.push_back(Circle_Shape{{1, 1}, kNan, {}, {}});
  picture.shapes.push_back(Text_Shape{{1, 1}, ""});
  picture.shapes.push_back(Text_Shape{{1, -kInfinity}, "text"});
  for (const Shape& shape : picture.shapes) EXPECT_FALSE(Has_Places(shape));
  const std::string text = Svg_Text(picture);
  EXPECT_TRUE(text.ends_with("fill=\"#ffffff\"/>\n</svg>\n")) << text;
}

TEST(SvgWriter, Letters_Beyond_Ascii_Go_Through_And_Others_Do_No_Harm) {
  EXPECT_EQ(Svg_Escaped("caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x8C\x8A"),
            "caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x8C\x8A");
  // A byte of another encoding, a cut character, a long form of "/", half of a pair.
  EXPECT_EQ(Svg_Escaped("caf\xE9!"), "caf?!");
  EXPECT_EQ(Svg_Escaped("\xE2\x82"), "??");
  EXPECT_EQ(Svg_Escaped("\xC0\xAF"), "??");
  EXPECT_EQ(Svg_Escaped("\xED\xA0\x80"), "???");
  // Control characters have no place in such a file; a line break has.
  EXPECT_EQ(Svg_Escaped(std::string("a\x01") + '\0' + "\x1B b\nc"), "a b\nc");
  EXPECT_EQ(Svg_Escaped("\xEF\xBF\xBF-\xEF\xBF\xBD"), "-\xEF\xBF\xBD");
}

TEST(SvgWriter, Bold_Letters_Are_Named_So) {
  Shape_List picture{9, 9, "", "", {}};
  picture.shapes.push_back(Text_Shape{{1, 2}, "B", 8, {0, 0, 0}, Anchor::start, false, true});
  EXPECT_NE(Svg_Text(picture).find("<text x=\"1\" y=\"2\" font-size=\"8\" fill=\"#000000\""
                                   " font-weight=\"bold\">B</text>"),
            std::string::npos);
}

}  // namespace
}  // namespace barvon
