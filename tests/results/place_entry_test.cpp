#include "results/place_entry.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace barvon {
namespace {

Place_Entry Typed() { return {"583960.5", "4507523", "-12.5", Place_Unit::metre, "EPSG:32618"}; }

Place_Fault Fault_Of(const Place_Entry& entry) {
  const Place_Reading read = Read_Place_Entry(entry);
  EXPECT_FALSE(read.place);
  return read.fault;
}

TEST(PlaceEntry, What_Is_Typed_Is_Taken) {
  const Place_Reading read = Read_Place_Entry(Typed());
  ASSERT_TRUE(read.place);
  EXPECT_EQ(*read.place, (Map_Place{583960.5, 4507523, -12.5, Place_Unit::metre, "EPSG:32618"}));
}

TEST(PlaceEntry, Blanks_Around_Are_No_Part_Of_It) {
  const Place_Reading read =
      Read_Place_Entry({" 1 ", "\t2", "3 ", Place_Unit::foot, "  State plane  "});
  ASSERT_TRUE(read.place);
  EXPECT_EQ(*read.place, (Map_Place{1, 2, 3, Place_Unit::foot, "State plane"}));
}

TEST(PlaceEntry, The_First_Fault_Is_Told_With_Its_Field) {
  Place_Entry entry = Typed();
  entry.northing = "4,507,523";
  Place_Fault fault = Fault_Of(entry);
  EXPECT_EQ(fault.field, Place_Field::northing);
  EXPECT_EQ(fault.words,
            "The northing is not a number.  Digits and one decimal point are, without any other "
            "mark: 583960.5");
  entry.easting = " ";
  fault = Fault_Of(entry);
  EXPECT_EQ(fault.field, Place_Field::easting);
  EXPECT_EQ(fault.words, "The easting is missing.");
}

TEST(PlaceEntry, A_Place_Far_From_Any_Map_Is_Refused) {
  Place_Entry entry = Typed();
  entry.easting = "100000001";
  EXPECT_EQ(Fault_Of(entry).words, "The easting is beyond 100000000.");
  entry = Typed();
  entry.turn = "361";
  EXPECT_EQ(Fault_Of(entry).field, Place_Field::turn);
  EXPECT_EQ(Fault_Of(entry).words, "The turn is beyond 360.");
}

TEST(PlaceEntry, A_System_Of_Degrees_Is_Refused) {
  Place_Entry entry = Typed();
  entry.system = "epsg:4326";
  EXPECT_EQ(Fault_Of(entry).field, Place_Field::system);
  EXPECT_NE(Fault_Of(entry).words.find("EPSG:4326 has degrees."), std::string::npos);
}

TEST(PlaceEntry, A_System_That_A_File_Would_Not_Give_Back_Is_Refused) {
  Place_Entry entry = Typed();
  for (const std::string& system :
       {std::string("\"quoted\""), std::string("two\nlines"), std::string(201, 'x')}) {
    entry.system = system;
    EXPECT_EQ(Fault_Of(entry).field, Place_Field::system);
  }
}

TEST(PlaceEntry, Degrees_Are_Noticed_But_Not_The_Corner_Of_A_System) {
  EXPECT_TRUE(Looks_Like_Degrees({-74.0, 40.5, 0, Place_Unit::metre, ""}));
  EXPECT_FALSE(Looks_Like_Degrees({0, 0, 0, Place_Unit::metre, ""}));
  EXPECT_FALSE(Looks_Like_Degrees({583960, 40.5, 0, Place_Unit::metre, ""}));
}

TEST(PlaceEntry, The_Corner_Points_Are_Told) {
  // 3 rows of 100 ft and 5 columns of 50 ft, both 200 ft long: 60.96 m.
  EXPECT_EQ(Corners_In_Words({1000, 2000, 0, Place_Unit::metre, ""}, {3, 5, 100, 50}),
            "Row 1, column 1: easting 1000, northing 2000\n"
            "Row 1, column 5: easting 1060.96, northing 2000\n"
            "Row 3, column 1: easting 1000, northing 1939.04\n"
            "Row 3, column 5: easting 1060.96, northing 1939.04");
}

TEST(PlaceEntry, A_Place_Reads_Back_From_Its_Texts) {
  EXPECT_TRUE(rc::check([] {
    const Map_Place place{*rc::gen::inRange(-1000000000, 1000000000) / 13.0,
                          *rc::gen::inRange(-1000000000, 1000000000) / 17.0,
                          *rc::gen::inRange(-3600, 3600) / 10.0,
                          static_cast<Place_Unit>(*rc::gen::inRange(0, 3)), "UTM 18"};
    RC_ASSERT(Read_Place_Entry(Entry_Of(place)).place == place);
  }));
}

}  // namespace
}  // namespace barvon
