#include "material/material_library.h"

#include <gtest/gtest.h>

#include "support/recorded_workspace.h"

namespace barvon::testing {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kSeeds[] = {"Clumps", "Fine Sand"};

class MaterialLibrary : public Recorded_Workspace {
 protected:
  void Write(const std::string& settings) { Write_Text(folder_ / "BARVON.INI", settings); }
  /// A fraction of the project with the values of fine sand.
  void Set_Solid(int i, const std::string& name) {
    const auto at = static_cast<std::size_t>(i);
    record_.SolidNames[at] = name;
    record_.SolidSG[at] = 2.7;
    record_.SolidVolFraction[at] = 0.1;
    record_.SolidFallVelocity[at] = 0.02;
    record_.SolidVoidRatio[at] = 0.7;
    record_.SolidCriticalShear[at] = 0.015;
    record_.SolidCohesive[at] = 0;
    record_.SolidStripped[at] = 1;
    record_.NumSolids = static_cast<std::int16_t>(i);
  }
  /// What opening a screen and pressing OK does with the library.
  void Open_And_Accept() {
    Material_Library library = Read_Material_List(kHopperLibrary);
    const Lines lines = Show_Material_List(library, kSeeds);
    Save_New_Materials(record_, lines, library);
  }
  static Lines Shown() {
    Material_Library library = Read_Material_List(kHopperLibrary);
    return Show_Material_List(library, kSeeds);
  }
};

TEST_F(MaterialLibrary, A_Token_Ends_With_The_First_Blank_Before_Any_Other_Delimiter) {
  EXPECT_EQ(Next_Token("a\nb c"), "a\nb ");
  EXPECT_EQ(Next_Token("a\x1b"
                       "b\nc"),
            "a\x1b"
            "b\n");
  EXPECT_EQ(Next_Token("ab\x1b"
                       "c"),
            "ab\x1b");
  EXPECT_EQ(Next_Token(std::string_view("ab\0c", 4)), std::string("ab\0", 3));
  EXPECT_EQ(Next_Token("abc"), std::nullopt);
  EXPECT_EQ(Next_Token(""), std::nullopt);
}

TEST_F(MaterialLibrary, Without_A_File_It_Is_Seeded_And_Nothing_Is_Written) {
  EXPECT_EQ(Shown(), (Lines{"Clumps ", "Fine "}));
  EXPECT_EQ(Names_In(folder_.path()), Lines{});
}

TEST_F(MaterialLibrary, The_First_New_Fraction_Stands_Behind_The_Seeds_That_Are_Not_Written) {
  Set_Solid(1, "Sand");
  Open_And_Accept();
  EXPECT_EQ(Settings(),
            "[Material Properties Hopper]\r\nListsize=3\r\n"
            "Fraction3=Sand 2.70 .100 .020 .7000 .0150 N Y \r\n");
  EXPECT_EQ(Shown(), (Lines{"", "", "Sand "}));
}

TEST_F(MaterialLibrary, The_File_Grows_Through_Its_Life_And_Keeps_The_Rest) {
  Write("; mine\r\n[Recent Files]\r\nRecentFile1=/a.dui\r\n");
  Set_Solid(1, "Sand");
  Open_And_Accept();
  Open_And_Accept();
  Set_Solid(2, " SAND ");
  Set_Solid(3, "Clay");
  record_.SolidCohesive[3] = -1;
  Open_And_Accept();
  EXPECT_EQ(Settings(),
            "; mine\r\n[Recent Files]\r\nRecentFile1=/a.dui\r\n"
            "[Material Properties Hopper]\r\nListsize=4\r\n"
            "Fraction3=Sand 2.70 .100 .020 .7000 .0150 N Y \r\n"
            "Fraction4=Clay 2.70 .100 .020 .7000 .0150 Y Y \r\n");
}

TEST_F(MaterialLibrary, Both_Vessels_Have_Their_Own) {
  Set_Solid(1, "Sand");
  Open_And_Accept();
  EXPECT_TRUE(Read_Material_List(kBargeLibrary).entries.empty());
}

TEST_F(MaterialLibrary, Keys_Are_Found_In_Any_Case) {
  Write("[material properties hopper]\r\nLISTSIZE=1\r\nfraction1=Sand\r\n");
  EXPECT_EQ(Shown(), Lines{"Sand"});
}

TEST_F(MaterialLibrary, Thirty_Are_Read_And_The_Thirty_First_Is_Written) {
  Write("[Material Properties Hopper]\r\nListSize=35\r\nFraction30=Sand\r\nFraction31=Clay\r\n");
  EXPECT_EQ(Shown().size(), 30U);
  EXPECT_EQ(Shown().back(), "Sand");
  Set_Solid(1, "Silt");
  Open_And_Accept();
  EXPECT_EQ(Settings(),
            "[Material Properties Hopper]\r\nListSize=31\r\nFraction30=Sand\r\n"
            "Fraction31=Silt 2.70 .100 .020 .7000 .0150 N Y \r\n");
  EXPECT_EQ(Shown().size(), 30U);
}

TEST_F(MaterialLibrary, A_Count_That_Is_None_Is_Seeded) {
  for (const char* count : {"", "0", "-3", "many"}) {
    Write("[Material Properties Hopper]\r\nListsize=" + std::string(count) + "\r\n");
    EXPECT_EQ(Shown(), (Lines{"Clumps ", "Fine "})) << count;
  }
}

TEST_F(MaterialLibrary, An_Entry_That_Is_Not_Used_Is_Empty) {
  Write(
      "[Material Properties Hopper]\r\nListsize=3\r\nFraction1=Not Used any more\r\n"
      "Fraction2=  Sand 2.6 \r\n");
  EXPECT_EQ(Shown(), (Lines{"", "Sand ", ""}));
}

TEST_F(MaterialLibrary, An_Entrys_Values_Are_Read_To_Its_End) {
  const Material_Record sand = Parse_Material("Sand 2.70 .100 .020 .7000 .0150 N Y");
  EXPECT_EQ(sand.name, "Sand");
  EXPECT_EQ(sand.specific_gravity, 2.7f);
  EXPECT_EQ(sand.volume_fraction, 0.1f);
  EXPECT_EQ(sand.fall_velocity, 0.02f);
  EXPECT_EQ(sand.void_ratio, 0.7f);
  EXPECT_EQ(sand.critical_shear, 0.015f);
  EXPECT_EQ(sand.cohesive, "N");
  EXPECT_EQ(sand.stripped, "Y");
}

TEST_F(MaterialLibrary, A_Seed_Has_Zeros_And_Says_Nothing_Of_The_Flags) {
  const Material_Record seed = Parse_Material("Clumps ");
  EXPECT_EQ(seed.name, "Clumps");
  EXPECT_EQ(seed.specific_gravity, 0);
  EXPECT_EQ(seed.critical_shear, 0);
  EXPECT_EQ(seed.cohesive, "");
  EXPECT_EQ(seed.stripped, "");
}

TEST_F(MaterialLibrary, A_Name_Of_Two_Words_Is_Seen_By_Its_First_With_Its_Values_From_The_End) {
  const Material_Record sand = Parse_Material("Very Fine Sand 2.70 .100 .020 .7000 .0150 N Y");
  EXPECT_EQ(sand.name, "Very");
  EXPECT_EQ(sand.specific_gravity, 2.7f);
  EXPECT_EQ(sand.stripped, "Y");
}

TEST_F(MaterialLibrary, A_Name_Of_Two_Words_Is_Added_Again_Each_Time) {
  Write("[Material Properties Hopper]\r\nListsize=1\r\nFraction1=Clay\r\n");
  Set_Solid(1, "Fine Sand");
  Open_And_Accept();
  Open_And_Accept();
  EXPECT_EQ(Shown(), (Lines{"Clay", "Fine ", "Fine "}));
}

TEST_F(MaterialLibrary, An_Empty_Name_Is_Not_Added) {
  Set_Solid(1, "  ");
  Open_And_Accept();
  EXPECT_EQ(Names_In(folder_.path()), Lines{});
}

TEST_F(MaterialLibrary, A_Line_Break_In_A_Name_Becomes_A_Blank) {
  EXPECT_EQ(Material_Name("a\nb\tc"), "a b c");
  Set_Solid(1, "a\r\nb");
  Open_And_Accept();
  EXPECT_EQ(Shown().back(), "a ");
}

TEST_F(MaterialLibrary, A_Name_That_Does_Not_Come_Back_Is_Marked) {
  EXPECT_EQ(Material_Name_Note("Fine Sand"), "");
  EXPECT_EQ(Material_Name_Note("Sabl\xC3\xA9"), "");
  EXPECT_EQ(Material_Name_Note("\xE7\xA0\x82"), "has a character that the project file can't keep");
  EXPECT_EQ(Material_Name_Note(std::string(255, 'x')), "");
  EXPECT_EQ(Material_Name_Note(std::string(256, 'x')), "is longer than the library keeps");
  EXPECT_EQ(Material_Name_Note("Not Used"), "is taken by the library as an empty line");
}

}  // namespace
}  // namespace barvon::testing
