#include "results/place_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>

#include "support/plain_support.h"

namespace barvon::testing {
namespace {

const Map_Place kPlace = {583960.5, 4507523, -12.5, Place_Unit::metre_survey, "EPSG:32618"};
constexpr char kText[] =
    "[Place]\r\nEasting=583960.5\r\nNorthing=4507523\r\nTurn=-12.5\r\n"
    "Unit=m, US survey foot\r\nSystem=EPSG:32618\r\n";

TEST(PlaceFile, Lies_Beside_The_Outputs) {
  EXPECT_EQ(Place_File_Of("a/b/Site.DUI"), "a/b/Site.place");
  EXPECT_EQ(Place_File_Of("a/b/Site.duc"), "a/b/Site.place");
  const Scratch_Folder folder;
  Write_Text(folder / "SITE.PLACE", kText);
  EXPECT_EQ(Place_File_Of(folder / "Site.DUI"), folder / "SITE.PLACE");
}

TEST(PlaceFile, Keeps_A_Place_As_A_Few_Lines) {
  const Scratch_Folder folder;
  const std::string file = folder / "Site.place";
  EXPECT_EQ(Write_Place(file, kPlace), 0);
  EXPECT_EQ(Read_Text(file), kText);
  EXPECT_EQ(Read_Place(file).place, kPlace);
  EXPECT_EQ(Names_In(folder.path()), std::vector<std::string>{"Site.place"});
}

TEST(PlaceFile, Every_Unit_Reads_Back) {
  const Scratch_Folder folder;
  Map_Place place = kPlace;
  for (const Place_Unit unit : {Place_Unit::metre, Place_Unit::metre_survey, Place_Unit::foot}) {
    place.unit = unit;
    EXPECT_EQ(Write_Place(folder / "Site.place", place), 0);
    EXPECT_EQ(Read_Place(folder / "Site.place").place, place);
  }
}

TEST(PlaceFile, Other_Lines_Stay) {
  const Scratch_Folder folder;
  const std::string file = folder / "Site.place";
  Write_Text(file, "; from the survey of May\n" + std::string(kText) + "[Other]\nKey=1\n");
  Map_Place place = kPlace;
  place.turn = 0;
  EXPECT_EQ(Write_Place(file, place), 0);
  EXPECT_TRUE(Read_Text(file).starts_with("; from the survey of May\n"));
  EXPECT_TRUE(Read_Text(file).ends_with("[Other]\nKey=1\n"));
  EXPECT_EQ(Read_Place(file).place, place);
}

TEST(PlaceFile, No_File_Is_No_Place_And_No_Problem) {
  const Scratch_Folder folder;
  const Kept_Place kept = Read_Place(folder / "Site.place");
  EXPECT_FALSE(kept.place);
  EXPECT_EQ(kept.problem, "");
}

TEST(PlaceFile, A_Damaged_One_Is_Told) {
  const Scratch_Folder folder;
  const std::string file = folder / "Site.place";
  for (const char* text : {"", "no profile", "[Place]\nEasting=1\nNorthing=2\nTurn=3\n",
                           "[Place]\nEasting=1\nNorthing=2\nTurn=3\nUnit=yd\n"}) {
    Write_Text(file, text);
    EXPECT_FALSE(Read_Place(file).place);
    EXPECT_EQ(Read_Place(file).problem, "no unit that is known stands there");
  }
  Write_Text(file, "[Place]\nEasting=1\nNorthing=2x\nTurn=3\nUnit=m\n");
  EXPECT_FALSE(Read_Place(file).place);
  EXPECT_TRUE(Read_Place(file).problem.starts_with("The northing is not a number."));
}

TEST(PlaceFile, What_Cannot_Be_Read_Is_Told) {
  const Scratch_Folder folder;
  ASSERT_EQ(::mkdir((folder / "Site.place").c_str(), 0777), 0);
  EXPECT_EQ(Read_Place(folder / "Site.place").problem, "Is a directory");
  EXPECT_NE(Write_Place(folder / "none/Site.place", kPlace), 0);
}

}  // namespace
}  // namespace barvon::testing
