#include "material/frm_mat_hopper.h"

#include <tuple>

#include "core/keys.h"
#include "material/material_screen.h"
#include "material/open_hopper_boxes.h"

namespace barvon::testing {
namespace {

class HopperScreen : public Material_Screen<frmMatHopper> {
 protected:
  HopperScreen() : Material_Screen("frmMatHopper") {
    record.DisposalMethod = record.PreviousDisposalMethod = kHopper;
  }
};

TEST_F(HopperScreen, Captions_Stand_As_They_Are_Told) {
  Open();
  EXPECT_EQ(Screen()->windowTitle(), "Material Description Data - Hopper Dredge");
  EXPECT_EQ(Tabs()->tabText(0), "General and Site Water Density");
  EXPECT_EQ(Tabs()->tabText(1), "&Material Properties");
  EXPECT_EQ(Child<QLabel>("Label1")->text(),
            "Total Volume of Dredged Material in the Hopper Dredge (cu yd).");
  EXPECT_EQ(Child<QLabel>("Label2")->text(),
            "Number of Distinct Solids Fractions in the Material (Maximum of 4 Allowed).");
  EXPECT_EQ(Child<QLabel>("Label3")->text(),
            "Moisture Content of Dredged Material Expressed as Multiple of Liquid Limit.");
  EXPECT_TRUE(Child<QPlainTextEdit>("Text4(1)")
                  ->toPlainText()
                  .startsWith("The moisture content is expressed as a multiple \nof the liquid"));
  EXPECT_EQ(Child<QPushButton>("Command1(3)")->text(), "&Compute Density");
  EXPECT_EQ(Child<QPushButton>("Command1(1)")->text(), "C&ancel");
}

TEST_F(HopperScreen, Opened_And_Accepted_Untouched_Every_Value_Stays) {
  Set_Solids(record, 4);
  record.TotalVolume = 4000.256;
  record.JBFCFlag = 1;
  record.MoistureContent = 2.56789;
  record.SiteDensity = 1.0234567;
  record.SiteSalinity = 12.3456;
  Open();
  EXPECT_EQ(Line("Text2(0)")->text(), "4000.");
  EXPECT_EQ(Line("Text1")->text(), "2.57");
  EXPECT_EQ(Line("Text3(0)")->text(), "1.0235");
  Accept();
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(),
            (Fields{"DataSaved", "ScreenDataSupplied", "SolidCohesiveText", "SolidStrippedText"}));
  EXPECT_EQ(marks, std::vector<int>{4});
}

/// For each number of fractions, with and without the coefficient.
class HopperCombinations : public HopperScreen,
                           public ::testing::WithParamInterface<std::tuple<int, bool>> {
 protected:
  HopperCombinations() {
    Set_Solids(record, solids);
    record.TotalVolume = 4000.256;
    record.JBFCFlag = with_jbfc ? 1 : 0;
    record.MoistureContent = with_jbfc ? 2.0 / 3 : 0;
    record.SolidCohesiveText = record.SolidStrippedText = {};
  }
  const int solids = std::get<0>(GetParam());
  const bool with_jbfc = std::get<1>(GetParam());
};

INSTANTIATE_TEST_SUITE_P(All, HopperCombinations,
                         ::testing::Combine(::testing::Range(1, 5), ::testing::Bool()));

TEST_P(HopperCombinations, What_Is_Edited_Is_Stored_And_The_Rest_Stays) {
  Open();
  EXPECT_EQ(Box("SSCheck1")->isChecked(), with_jbfc);
  EXPECT_TRUE(Line("Text1")->isVisible()) << "a click on the box hides it, not the opening";
  Enter("Text2(0)", "1234.5");
  if (with_jbfc) Enter("Text1", "3.25");
  Go_To(1);
  Type_Into_Cell(*Book("F1Book1"), 8 + solids, 6, "0.00126");
  Type_Into_Cell(*Book("F1Book1"), 8 + solids, 7, solids % 2 == 0 ? "y" : "N");
  Accept();
  ASSERT_FALSE(Is_Open());
  const auto last = static_cast<std::size_t>(solids);
  EXPECT_EQ(record.NumSolids, solids);
  EXPECT_EQ(record.TotalVolume, 1234.5);
  EXPECT_EQ(record.MoistureContent, with_jbfc ? 3.25 : 0);
  EXPECT_EQ(record.SolidCriticalShear[last], 0.0013) << "four decimals";
  EXPECT_EQ(record.SolidCohesive[last], solids % 2 == 0 ? 1 : 0);
  EXPECT_EQ(record.SolidCohesiveText[last], solids % 2 == 0 ? "y" : "N");
  record.TotalVolume = before->TotalVolume;
  record.MoistureContent = before->MoistureContent;
  record.SolidCriticalShear[last] = before->SolidCriticalShear[last];
  record.SolidCohesive[last] = before->SolidCohesive[last];
  EXPECT_EQ(Changed(),
            (Fields{"DataSaved", "ScreenDataSupplied", "SolidCohesiveText", "SolidStrippedText"}));
}

TEST_P(HopperCombinations, Cancel_Brings_Everything_Back) {
  Open();
  Enter("Text2(0)", "7");
  Box("SSCheck1")->click();
  Box("SSCheck2")->click();
  Enter("Text3(1)", "35");
  Enter("Text3(2)", "20");
  EXPECT_NEAR(record.SiteDensity, 1.02506, 5e-6) << "written at once";
  Go_To(1);
  Type_Into_Cell(*Book("F1Book1"), 9, 1, "Other");
  Press("Command1(1)");
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(HopperScreen, A_Barges_First_Layer_Is_Offered_And_Stored) {
  record.TotalVolume = 0;
  record.LayerVolume[1] = 300;
  Open();
  EXPECT_EQ(Line("Text2(0)")->text(), "300.");
  EXPECT_EQ(record.TotalVolume, 0);
  Accept();
  EXPECT_EQ(record.TotalVolume, 300);
}

TEST_F(HopperScreen, Without_The_Coefficient_The_Moisture_Is_Cleared) {
  record.JBFCFlag = 1;
  record.MoistureContent = 2.5;
  Open();
  Box("SSCheck1")->click();
  EXPECT_FALSE(Line("Text1")->isVisible());
  EXPECT_EQ(record.MoistureContent, 2.5);
  Accept();
  EXPECT_EQ(record.MoistureContent, 0);
  EXPECT_EQ(record.JBFCFlag, 0);
}

TEST_F(HopperScreen, Never_Ticked_The_Moisture_Stays_Unless_It_Is_Typed) {
  record.MoistureContent = 2.56789;
  Open();
  Accept();
  EXPECT_EQ(record.MoistureContent, 2.56789);
  Open();
  Enter("Text1", "3");
  Modal_Replies replies({barvon::testing::Press(QMessageBox::Ok)});
  Accept();
  EXPECT_EQ(record.MoistureContent, 0);
}

TEST_F(HopperScreen, Ticking_The_Coefficient_Shows_The_Stored_Moisture) {
  record.MoistureContent = 2.56789;
  Open();
  EXPECT_EQ(Line("Text1")->text(), "0.0");
  Box("SSCheck1")->click();
  EXPECT_EQ(Line("Text1")->text(), "2.57");
  Accept();
  EXPECT_EQ(record.MoistureContent, 2.56789);
  EXPECT_EQ(record.JBFCFlag, 1);
}

TEST_F(HopperScreen, A_Pipelines_Volume_Is_Hidden_And_Stored_And_Its_Moisture_Cleared) {
  record.DisposalMethod = record.PreviousDisposalMethod = kContinuous;
  record.LayerVolume[1] = 300;
  record.MoistureContent = 2;
  Open();
  for (const char* name : {"Text2(0)", "Text1"}) EXPECT_FALSE(Line(name)->isVisible());
  for (const char* name : {"Label1", "Label3"}) EXPECT_FALSE(Child<QLabel>(name)->isVisible());
  EXPECT_FALSE(Box("SSCheck1")->isVisible());
  Accept();
  EXPECT_EQ(record.TotalVolume, 300);
  EXPECT_EQ(record.MoistureContent, 0);
}

TEST_F(HopperScreen, A_Number_Of_Fractions_Is_Only_Checked_By_Its_Whole_Part) {
  Open();
  Go_To(1);
  Enter("Text2(1)", "4.5");
  Modal_Replies replies(
      {barvon::testing::Press(QMessageBox::Ok), barvon::testing::Press(QMessageBox::Ok)});
  Enter("Text2(1)", "0.5");
  Enter("Text2(1)", "5");
  EXPECT_EQ(replies.seen.at(0).text, "Number of Distinct Solids Fractions Must Be Between 1 and 4");
  EXPECT_EQ(replies.seen.size(), 2U);
  EXPECT_EQ(record.NumSolids, before->NumSolids);
}

// 35 ppt and 20 deg C give 1.025060 g/cc.
TEST_F(HopperScreen, Salinity_And_Temperature_Move_The_Density_At_Once) {
  Open();
  Box("SSCheck2")->click();
  Enter("Text3(1)", "35");
  EXPECT_EQ(record.SiteDensity, 1.02);
  Enter("Text3(2)", "20");
  EXPECT_NEAR(record.SiteDensity, 1.025060, 5e-7);
  EXPECT_EQ(Line("Text3(0)")->text(), "1.0251");
  Enter("Text3(1)", "0");
  EXPECT_EQ(Line("Text3(0)")->text(), "1.0251");
  Press("Command1(1)");
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(HopperScreen, What_Is_Typed_Is_Not_Held_But_Refused_At_OK_And_Counts_As_Supplied) {
  Open();
  Box("SSCheck2")->click();
  Enter("Text3(1)", "90");
  Enter("Text3(2)", "4");
  EXPECT_GT(record.SiteDensity, 1.05);
  Modal_Replies replies({barvon::testing::Press(QMessageBox::Ok)});
  Accept();
  EXPECT_TRUE(Is_Open());
  EXPECT_EQ(replies.seen.at(0).text,
            "Maximum Allowable Dredging Site Water Density is 1.05 g/cc.  Please Correct.");
  EXPECT_EQ(record.ScreenDataSupplied[7], kTrue);
  EXPECT_EQ(status, Fields{"3 Data Supplied"});
  EXPECT_TRUE(marks.empty());
  EXPECT_EQ(record.DataSaved, kTrue);
}

TEST_F(HopperScreen, Compute_Density_Takes_Fresh_Water_And_Holds_The_Limits) {
  Open();
  Box("SSCheck2")->click();
  Enter("Text3(2)", "4");
  Press("Command1(3)");
  EXPECT_EQ(Line("Text3(0)")->text(), "1.0000");
  Enter("Text3(1)", "90");
  Modal_Replies replies({barvon::testing::Press(QMessageBox::Ok)});
  Press("Command1(3)");
  EXPECT_EQ(replies.seen.at(0).text,
            "Maximum Allowable Dredging Site Water Density is 1.05 g/cc.  Site Water Density Will "
            "Be Set to 1.05 g/cc.");
  EXPECT_EQ(record.SiteDensity, 1.05);
  EXPECT_EQ(record.SiteSalinity, 90);
}

TEST_F(HopperScreen, Its_Boxes_Are_Told_While_It_Is_Open) {
  record.SiteSalinity = 12.3456;
  Open();
  EXPECT_EQ(Open_Hopper_Boxes(record).salinity, 12.3456);
  Enter("Text3(1)", "7");
  EXPECT_EQ(Open_Hopper_Boxes(record).salinity, 7);
  Press("Command1(1)");
  EXPECT_EQ(Open_Hopper_Boxes(record).salinity, 12.3456);
}

TEST_F(HopperScreen, Four_Fractions_Are_Entered_From_Nothing) {
  record.SolidNames.fill("");
  Open();
  Go_To(1);
  Type_Row("F1Book1", 9, {"Shells", "2.7", "0.1", "1", "0.5", "99", "N", "N"});
  Type_Row("F1Book1", 10, {"Sand", "2.7", "0.2", "0.02", "0.7", "0.015", "n", "y"});
  Type_Row("F1Book1", 11, {"Mud", "2.65", "0.03", "0.01", "4", "0.008", "Y", "Y"});
  Type_Row("F1Book1", 12, {"Loam", "2.65", "0.01", "0.002", "7", "0.002", "", "Y"});
  Accept();
  ASSERT_FALSE(Is_Open());
  EXPECT_EQ(record.NumSolids, 4);
  EXPECT_EQ(record.SolidNames[4], "Loam");
  EXPECT_EQ(record.SolidVolFraction[2], 0.2);
  EXPECT_EQ(record.SolidCriticalShear[2], 0.015);
  EXPECT_EQ(record.SolidCohesive[2], 0);
  EXPECT_EQ(record.SolidCohesive[4], 1) << "an empty cell counts as cohesive";
  EXPECT_NE(Read_Text(bench.folder / "BARVON.INI")
                .find("[Material Properties Hopper]\r\nListsize=11\r\n"
                      "Fraction8=Shells 2.70 .100 1.000 .5000 99.0000 N N \r\n"),
            std::string::npos);
}

TEST_F(HopperScreen, A_Tick_Fills_A_Row_And_An_Untick_Takes_It) {
  Library(kHopperLibrary, "Listsize=2\r\nFraction2=Clay 2.65 .027 .002 7.0000 .0020 Y Y\r\n");
  Open();
  Go_To(1);
  ASSERT_EQ(List()->count(), 2);
  Tick(1);
  EXPECT_EQ(Book("F1Book1")->table().TextRC(9, 1), "Clay");
  Tick(1, false);
  EXPECT_EQ(Book("F1Book1")->table().TextRC(9, 1), "");
}

TEST_F(HopperScreen, A_Tick_Without_A_Free_Row_Is_Told_And_Taken_Back) {
  Library(kHopperLibrary, "Listsize=2\r\nFraction2=Clay 2.65 .027 .002 7.0000 .0020 Y Y\r\n");
  Set_Solids(record, 4);
  Open();
  Go_To(1);
  const Scripted_Messages messages({Answer::Ok});
  Tick(1);
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text,
            "There Is No Free Row for Another Solids Fraction.  Please Untick One First.");
  EXPECT_EQ(List()->item(1)->checkState(), Qt::Unchecked);
}

TEST_F(HopperScreen, The_Focus_Goes_To_The_First_Row_Of_The_Project) {
  Open();
  Go_To(1);
  Line("Text2(1)")->setFocus();
  Book("F1Book1")->setFocus();
  EXPECT_EQ(Book("F1Book1")->table().Row(), 9);
}

TEST_F(HopperScreen, A_Doubtful_Cell_Is_Shown_Before_OK_Accepts_It) {
  Set_Solids(record, 1);
  Open();
  Go_To(1);
  Type_Into_Cell(*Book("F1Book1"), 9, 2, "2,65");
  EXPECT_EQ(Book("F1Book1")->NumberNoteOf(9, 2), "reads as 2");
  Modal_Replies replies(
      {barvon::testing::Press(QMessageBox::Cancel), barvon::testing::Press(QMessageBox::Ok)});
  Accept();
  EXPECT_TRUE(Is_Open());
  EXPECT_EQ(Changed(), Fields{});
  Accept();
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.SolidSG[1], 2);
}

TEST_F(HopperScreen, A_Moisture_Typed_Without_The_Coefficient_Is_Shown_Before_OK_Drops_It) {
  Set_Solids(record, 1);
  Open();
  Enter("Text1", "2.5");
  Modal_Replies replies({barvon::testing::Press(QMessageBox::Cancel)});
  Accept();
  EXPECT_TRUE(Is_Open());
  EXPECT_TRUE(replies.seen.at(0).text.startsWith(
      "Moisture content: \"2.5\" is stored as 0, because the coefficient is not used."));
  Box("SSCheck1")->click();
  Accept();
  EXPECT_EQ(record.MoistureContent, 2.5);
}

TEST_F(HopperScreen, Cancel_Restores_What_Was_Typed) {
  Set_Solids(record, 2);
  Open();
  Enter("Text2(0)", "77");
  Box("SSCheck1")->click();
  Box("SSCheck2")->click();
  Enter("Text3(1)", "35");
  Enter("Text3(2)", "20");
  Press("Command1(3)");
  Go_To(1);
  Type_Into_Cell(*Book("F1Book1"), 9, 1, "x");
  Press("Command1(1)");
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), Fields{});
}

}  // namespace
}  // namespace barvon::testing
