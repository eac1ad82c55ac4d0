#include "material/frm_mat_barge.h"

#include <QApplication>
#include <QClipboard>
#include <random>
#include <string>
#include <tuple>

#include "core/keys.h"
#include "material/material_screen.h"
#include "material/open_hopper_boxes.h"

namespace barvon::testing {
namespace {

const Fields kOfEveryOK = {"DataSaved", "ScreenDataSupplied"};

Reply Ok() { return Press(QMessageBox::Ok); }

class BargeScreen : public Material_Screen<frmMatBarge> {
 protected:
  BargeScreen() : Material_Screen("frmMatBarge") {
    record.DisposalMethod = record.PreviousDisposalMethod = kBarge;
    record.LAYERS = 2;
    record.LayerVolume[1] = 100;
  }
  /// A load of four fractions in so many layers, no number of which is what the screen shows.
  void Fill(int layers, bool separated, bool with_jbfc) {
    Set_Solids(record, 4);
    record.LAYERS = static_cast<std::int16_t>(layers);
    record.SeparationFlag = separated ? 1 : 0;
    record.JBFCFlag = with_jbfc ? 1 : 0;
    record.MoistureContent = 2.0 / 3;
    for (std::size_t j = 1; j <= kMaxLayers; ++j) {
      const auto layer = static_cast<double>(j);
      record.LayerVolume[j] = 1000 / (2 + layer);
      record.LayerVelX[j] = 1 / (2 + layer);
      record.LayerMoisture[j] = j == 1 && !separated ? 2.0 / 3 : 4 / (2 + layer);
      for (std::size_t i = 1; i <= kMaxSolids; ++i) {
        record.LayerSolidFraction[i][j] = 0.1 / (2 + layer + static_cast<double>(i));
      }
    }
  }
  Spreadsheet_Table& Composition() { return Book("F1Book1(1)")->table(); }
  Spreadsheet_Table& Solids() { return Book("F1Book1(2)")->table(); }
  Spreadsheet_Table& Layers() { return Book("F1Book1(0)")->table(); }
};

/// For each combination of the two check boxes, with one layer and with six.
class BargeCombinations : public BargeScreen,
                          public ::testing::WithParamInterface<std::tuple<int, bool, bool>> {
 protected:
  BargeCombinations() { Fill(layers, separated, with_jbfc); }
  const int layers = std::get<0>(GetParam());
  const bool separated = std::get<1>(GetParam()), with_jbfc = std::get<2>(GetParam());
};

INSTANTIATE_TEST_SUITE_P(All, BargeCombinations,
                         ::testing::Combine(::testing::Values(1, 6), ::testing::Bool(),
                                            ::testing::Bool()));

TEST_P(BargeCombinations, Opened_And_Accepted_Untouched_Every_Value_Stays) {
  for (int page = 0; page < 4; ++page) {
    Open();
    if (Tabs()->isTabEnabled(page)) Go_To(page);
    Accept();
    ASSERT_FALSE(Is_Open());
    for (const std::string& field : Changed()) {
      EXPECT_TRUE(field == "DataSaved" || field == "ScreenDataSupplied") << field << page;
    }
  }
}

TEST_P(BargeCombinations, The_Boxes_And_The_Tab_Follow_The_Project) {
  Open();
  EXPECT_EQ(Box("SSCheck1(0)")->isChecked(), separated);
  EXPECT_EQ(Box("SSCheck1(0)")->isEnabled(), layers != 1);
  EXPECT_EQ(Box("SSCheck1(1)")->isChecked(), with_jbfc);
  EXPECT_EQ(Tabs()->isTabEnabled(2), separated || with_jbfc);
  EXPECT_EQ(Solids().MaxCol(), separated ? 7 : 8);
  EXPECT_EQ(Layers().MaxRow(), layers);
  if (!Tabs()->isTabEnabled(2)) return;
  Go_To(2);
  EXPECT_EQ(Book("F1Book1(1)")->isVisible(), separated);
  EXPECT_EQ(Line("Text2")->isVisible(), !separated);
  EXPECT_EQ(Composition().MaxCol(), layers);
  EXPECT_EQ(Composition().MaxRow(), with_jbfc ? 5 : 4);
  const int last = Composition().MaxRow();
  EXPECT_EQ(Composition().RowText(last), with_jbfc ? "Moisture Content" : "Sand4");
}

TEST_P(BargeCombinations, What_Is_Edited_Is_Stored_And_The_Rest_Stays) {
  Open();
  Type_Into_Cell(*Book("F1Book1(0)"), layers, 3, "1.5");
  if (separated) {
    Go_To(2);
    Type_Into_Cell(*Book("F1Book1(1)"), 4, layers, "0.25");
    if (with_jbfc) Type_Into_Cell(*Book("F1Book1(1)"), 5, layers, "3.5");
  } else if (with_jbfc) {
    Go_To(2);
    Enter("Text2", "3.5");
  }
  Accept();
  ASSERT_FALSE(Is_Open());
  const auto last = static_cast<std::size_t>(layers);
  EXPECT_EQ(record.LayerVelZ[last], 1.5);
  record.LayerVelZ[last] = before->LayerVelZ[last];
  if (separated) {
    EXPECT_EQ(record.LayerSolidFraction[4][last], 0.25);
    record.LayerSolidFraction[4][last] = before->LayerSolidFraction[4][last];
    if (with_jbfc) {
      EXPECT_EQ(record.LayerMoisture[last], 3.5);
    }
    record.LayerMoisture[last] = before->LayerMoisture[last];
  } else if (with_jbfc) {
    EXPECT_EQ(record.MoistureContent, 3.5);
    record.MoistureContent = before->MoistureContent;
  }
  EXPECT_EQ(Changed(), kOfEveryOK);
}

TEST_P(BargeCombinations, Cancel_Brings_Everything_Back) {
  Open();
  if (layers != 1) Box("SSCheck1(0)")->click();
  Box("SSCheck1(1)")->click();
  Type_Into_Cell(*Book("F1Book1(0)"), 1, 1, "7");
  Go_To(3);
  Box("SSCheck2")->click();
  Enter("Text3(1)", "35");
  Enter("Text3(2)", "20");
  EXPECT_NEAR(record.SiteDensity, 1.02506, 5e-6);
  Press("Command1(1)");
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(BargeScreen, Captions_Stand_As_They_Are_Told) {
  Open();
  EXPECT_EQ(Screen()->windowTitle(), "Material Description Data - Barge Dredge");
  const char* tabs[] = {"Material Volume and Velocity", "Material Properties",
                        "Volumetric Fraction and Moisture Content", "Dredging Site Water Density"};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(Tabs()->tabText(i), tabs[i]);
  EXPECT_EQ(Child<QLabel>("Label1(0)")->text(),
            "Number of Layers Used To Model Vessel Contents. Maximum of 6 Allowed.");
  EXPECT_EQ(Child<QLabel>("Label1(3)")->text(),
            "Number of Solid Fractions in the Material.  (Maximum of 4 Allowed).");
  EXPECT_EQ(Child<QLabel>("Label3")->text(), "Moisture Content of Dredged Material");
  EXPECT_EQ(Layers().ColText(1), "Volume\n (Cu. Yd.)");
  EXPECT_EQ(Layers().ColText(2), "Velocity X-Dir\n(Ft/Sec)");
  EXPECT_EQ(Layers().ColText(3), "Velocity Z-Dir\n (Ft/Sec)");
  EXPECT_EQ(Layers().RowText(2), "Layer 2");
}

TEST_F(BargeScreen, Layers_Are_Brought_In_As_It_Opens) {
  record.LAYERS = 0;
  record.NumSolids = 9;
  Open();
  EXPECT_EQ(Line("Text1(0)")->text(), "1");
  EXPECT_EQ(Line("Text1(1)")->text(), "4");
  Press("Command1(1)");
  record.LAYERS = 9;
  Open();
  EXPECT_EQ(Line("Text1(0)")->text(), "6");
}

TEST_F(BargeScreen, A_Hoppers_Volume_Is_Offered_For_Layer_1_And_Stored_By_OK_Alone) {
  record.TotalVolume = 500;
  record.LayerVolume[1] = 0;
  Open();
  EXPECT_EQ(Layers().NumberRC(1, 1), 500);
  Press("Command1(1)");
  EXPECT_EQ(record.LayerVolume[1], 0);
  Open();
  Accept();
  EXPECT_EQ(record.LayerVolume[1], 500);
  record.LayerVolume[1] = 2;
  Open();
  EXPECT_EQ(Layers().NumberRC(1, 1), 2);
}

TEST_F(BargeScreen, A_Number_Of_Layers_Shapes_The_Table_And_Gates_Separation) {
  Open();
  Modal_Replies replies({Ok(), Ok()});
  Enter("Text1(0)", "7");
  EXPECT_EQ(Layers().MaxRow(), 2);
  EXPECT_EQ(replies.seen.at(0).text, "Number of Layers Must Be Between 1 and 6");
  Enter("Text1(0)", "4");
  EXPECT_EQ(Layers().MaxRow(), 4);
  EXPECT_EQ(Layers().RowText(4), "Layer 4");
  EXPECT_TRUE(Box("SSCheck1(0)")->isEnabled());
  Box("SSCheck1(0)")->click();
  Enter("Text1(0)", "1");
  EXPECT_FALSE(Box("SSCheck1(0)")->isEnabled());
  EXPECT_TRUE(Box("SSCheck1(0)")->isChecked());
  Enter("Text1(1)", "5");
  EXPECT_EQ(replies.seen.at(1).text, "Number of Solids Fractions Must Be Between 1 and 4");
}

TEST_F(BargeScreen, Fewer_Layers_And_More_Again_At_A_Later_Opening_Lose_Nothing) {
  Fill(6, true, true);
  Open();
  Enter("Text1(0)", "2");
  Accept();
  ASSERT_FALSE(Is_Open());
  EXPECT_EQ(record.LAYERS, 2);
  const auto first = std::make_unique<ProjectRecord>(*before);
  Open();
  EXPECT_EQ(Layers().MaxRow(), 2);
  Enter("Text1(0)", "6");
  Go_To(2);
  Accept();
  for (const std::string& field : Differing_Fields(*first, record)) {
    EXPECT_TRUE(field == "DataSaved" || field == "ScreenDataSupplied") << field;
  }
}

TEST_F(BargeScreen, A_Layer_That_Never_Held_Anything_Is_Empty) {
  Open();
  Enter("Text1(0)", "4");
  EXPECT_TRUE(Layers().IsEmptyRC(3, 1));
  EXPECT_EQ(Layers().NumberRC(1, 1), 100);
}

TEST_F(BargeScreen, Without_Separation_An_Untouched_OK_Keeps_The_Moisture_Of_Layer_1) {
  Fill(6, false, true);
  record.LayerMoisture[1] = 5;
  Open();
  Go_To(2);
  Accept();
  EXPECT_EQ(Changed(), kOfEveryOK);
}

TEST_F(BargeScreen, Volumes_That_Separation_Hides_Are_Told_Before_OK_Leaves_Them_Out) {
  Fill(2, false, false);
  Open();
  Go_To(1);
  Type_Into_Cell(*Book("F1Book1(2)"), 9, 3, "0.5");
  Box("SSCheck1(0)")->click();
  Modal_Replies replies({barvon::testing::Press(QMessageBox::Cancel)});
  Accept();
  EXPECT_TRUE(Is_Open());
  EXPECT_TRUE(replies.seen.at(0).text.startsWith(
      "Fraction 1, Volumetric Fraction: 0.5 is not stored, because each layer has its own."));
  Box("SSCheck1(0)")->click();
  Accept();
  EXPECT_EQ(record.SolidVolFraction[1], 0.5);
}

TEST_F(BargeScreen, The_Prompt_Stands_There_From_The_Opening) {
  Fill(2, true, false);
  Open();
  Go_To(2);
  EXPECT_TRUE(Child<QPlainTextEdit>("Text4(1)")->toPlainText().startsWith("Enter the volumetric"));
}

TEST_F(BargeScreen, The_Prompt_Says_What_The_Boxes_Ask_For) {
  Open();
  Go_To(1);
  Box("SSCheck1(0)")->click();
  Go_To(2);
  auto* prompt = Child<QPlainTextEdit>("Text4(1)");
  EXPECT_TRUE(prompt->toPlainText().startsWith("Enter the volumetric concentration for each"));
  EXPECT_FALSE(prompt->toPlainText().contains("moisture"));
  Go_To(1);
  Box("SSCheck1(1)")->click();
  Go_To(2);
  EXPECT_TRUE(prompt->toPlainText().contains("layer.\nThe moisture content is expressed as a "));
  Go_To(1);
  Box("SSCheck1(0)")->click();
  Go_To(2);
  EXPECT_TRUE(prompt->toPlainText().startsWith("The moisture content is expressed as a mulitple"));
}

TEST_F(BargeScreen, Without_Separation_The_Limit_Stands_Over_A_Column) {
  Set_Solids(record, 2);
  record.JBFCFlag = 1;
  record.MoistureContent = 2.5;
  Open();
  EXPECT_EQ(Composition().ColText(3), "Liquid Limit");
  EXPECT_EQ(Composition().TextRC(3, 1), "2.5");
  EXPECT_EQ(Line("Text2")->text(), "2.5");
  EXPECT_EQ(record.LayerMoisture[1], 0);
}

TEST_F(BargeScreen, Without_A_Fraction_The_Composition_Has_One_Row) {
  record.SeparationFlag = 1;
  record.SolidNames.fill("");
  Open();
  Go_To(2);
  EXPECT_EQ(Composition().MaxRow(), 1);
  EXPECT_EQ(Composition().RowText(1), "Param 1");
}

TEST_F(BargeScreen, Typed_Values_Stand_Again_After_The_Tab_Was_Left) {
  Set_Solids(record, 1);
  record.SeparationFlag = 1;
  Open();
  Go_To(2);
  Type_Into_Cell(*Book("F1Book1(1)"), 1, 2, "0.125");
  Go_To(1);
  Go_To(2);
  EXPECT_EQ(Composition().TextRC(1, 2), "0.125");
}

TEST_F(BargeScreen, The_Picture_Of_The_Load_Follows_What_Is_Typed) {
  Set_Solids(record, 1);
  record.SeparationFlag = 1;
  Open();
  Go_To(2);
  auto* picture = Child<Bar_Picture>("LoadStack");
  Type_Into_Cell(*Book("F1Book1(1)"), 1, 2, "0.25");
  EXPECT_EQ(Bar_Words(picture->Drawn().chart.bars.at(1)), "Layer 2: Sand1 0.25, water 0.25 to 1");
  const Modal_Replies none({});
  Type_Into_Cell(*Book("F1Book1(1)"), 1, 2, "1.5");
  EXPECT_TRUE(picture->Drawn().chart.bars.at(1).warned);
  Accept();
  EXPECT_EQ(record.LayerSolidFraction[1][2], 1.5);
}

TEST_F(BargeScreen, A_Fraction_Cleared_By_Hand_Does_Not_Come_Back) {
  Set_Solids(record, 1);
  Open();
  Go_To(1);
  Solids().SelectRange({9, 1, 9, 8});
  Book("F1Book1(2)")->Clear();
  Accept();
  ASSERT_FALSE(Is_Open());
  EXPECT_EQ(record.NumSolids, 0);
  Open();
  EXPECT_EQ(Solids().TextRC(9, 1), "");
  Press("Command1(1)");
  EXPECT_EQ(record.SolidNames[1], "");
}

TEST_F(BargeScreen, A_Refused_Number_Of_Layers_Is_Shown_Before_OK_Brings_It_In) {
  Set_Solids(record, 1);
  record.LAYERS = 4;
  Open();
  Modal_Replies replies({Ok(), barvon::testing::Press(QMessageBox::Cancel), Ok()});
  Enter("Text1(0)", "7");
  Accept();
  EXPECT_TRUE(Is_Open());
  EXPECT_EQ(record.LAYERS, 4);
  ASSERT_EQ(replies.seen.size(), 2U);
  EXPECT_TRUE(replies.seen[1].text.contains("Number of layers: \"7\" is stored as 6."));
  Accept();
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.LAYERS, 6);
}

TEST_F(BargeScreen, A_Discard_Goes_Back_To_The_Opening_Wherever_The_User_Was_Meanwhile) {
  Set_Solids(record, 1);
  Open();
  Box("SSCheck1(1)")->click();
  EXPECT_EQ(record.JBFCFlag, 1) << "written at once";
  bench.main().activateWindow();
  ASSERT_TRUE(Has_Keyboard(&bench.main()));
  Screen()->activateWindow();
  ASSERT_TRUE(Has_Keyboard(Screen()));
  Modal_Replies yes({barvon::testing::Press(QMessageBox::Yes)});
  EXPECT_TRUE(Port().board.close_input_screens());
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.JBFCFlag, 0);
}

TEST_F(BargeScreen, Salinity_And_Temperature_Move_The_Density_Within_Its_Limits) {
  Open();
  Go_To(3);
  Box("SSCheck2")->click();
  Enter("Text3(2)", "4");
  EXPECT_EQ(Line("Text3(0)")->text(), "1.0200");
  Enter("Text3(1)", "90");
  EXPECT_EQ(record.SiteDensity, 1.05);
  EXPECT_EQ(Line("Text3(0)")->text(), "1.0500");
}

TEST_F(BargeScreen, Its_Button_Computes_From_The_Hoppers_Boxes) {
  Open();
  Go_To(3);
  Box("SSCheck2")->click();
  Enter("Text3(1)", "30");
  Set_Open_Hopper_Boxes(Hopper_Boxes{35, 20});
  Press("Command1(3)");
  Set_Open_Hopper_Boxes({});
  EXPECT_EQ(record.SiteSalinity, 35);
  EXPECT_EQ(Line("Text3(0)")->text(), "1.0251");
  EXPECT_EQ(Line("Text3(1)")->text(), "30");
  record.SiteSalinity = 0;
  record.SiteTemperature = 20;
  Press("Command1(3)");
  EXPECT_EQ(Line("Text3(0)")->text(), "0.9983");
  EXPECT_NE(Child<QPushButton>("Command1(3)")->toolTip(), "");
}

TEST_F(BargeScreen, A_Density_At_The_Limit_Is_Stored_And_One_Beyond_Is_Refused_As_Supplied) {
  Open();
  Go_To(3);
  Enter("Text3(0)", "1.0501");
  Modal_Replies replies({Ok()});
  Accept();
  EXPECT_TRUE(Is_Open());
  EXPECT_EQ(replies.seen.at(0).text,
            "Maximum Allowable Dredging Site Water Density is 1.05 g/cc.  Please Correct.");
  EXPECT_EQ(record.ScreenDataSupplied[7], kTrue);
  EXPECT_EQ(status, Fields{"3 Data Supplied"});
  EXPECT_TRUE(marks.empty());
  Enter("Text3(0)", "1.05");
  Accept();
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.SiteDensity, 1.05);
  EXPECT_EQ(marks, std::vector<int>{4});
}

TEST_F(BargeScreen, Six_Layers_With_Separation_Are_Entered_From_Nothing) {
  record.SolidNames.fill("");
  Open();
  Enter("Text1(0)", "6");
  for (int row = 1; row <= 6; ++row) Type_Row("F1Book1(0)", row, {"100", "1", "0.5"});
  Go_To(1);
  Box("SSCheck1(0)")->click();
  Box("SSCheck1(1)")->click();
  Type_Row("F1Book1(2)", 9, {"Sand", "2.7", "0.02", "0.7", "0.015", "N", "Y"});
  Type_Row("F1Book1(2)", 10, {"Clay", "2.65", "0.002", "7", "0.002", " y", "Y"});
  Go_To(2);
  ASSERT_EQ(Composition().MaxRow(), 3);
  for (const int row : {1, 2, 3}) {
    Type_Row("F1Book1(1)", row, {"0.1", "0.2", "0.3", "0.4", "0.5", "0.6"});
  }
  Accept();
  ASSERT_FALSE(Is_Open());
  EXPECT_EQ(record.LAYERS, 6);
  EXPECT_EQ(record.LayerVolume[6], 100);
  EXPECT_EQ(record.LayerVelZ[6], 0.5);
  EXPECT_EQ(record.SeparationFlag, 1);
  EXPECT_EQ(record.JBFCFlag, 1);
  EXPECT_EQ(record.NumSolids, 2);
  EXPECT_EQ(record.SolidCriticalShear[2], 0.002);
  EXPECT_EQ(record.SolidCohesive[2], 1);
  EXPECT_EQ(record.LayerSolidFraction[2][6], 0.6);
  EXPECT_EQ(record.LayerMoisture[6], 0.6);
}

TEST_F(BargeScreen, An_Untick_With_Separation_Takes_The_Fractions_Own_Row) {
  Library(kBargeLibrary, "Listsize=1\r\nFraction1=Sand1\r\n");
  Fill(2, true, false);
  Open();
  Go_To(1);
  Tick(0, false);
  Go_To(2);
  EXPECT_EQ(Composition().MaxRow(), 3);
  EXPECT_EQ(Composition().RowText(1), "Sand2");
  Accept();
  EXPECT_EQ(record.NumSolids, 3);
  EXPECT_EQ(record.LayerSolidFraction[1][2], before->LayerSolidFraction[2][2]);
}

// Whatever is ticked, typed and chosen, a row keeps its name, its numbers and its composition
// together: each fraction's number is in all of them.
TEST_F(BargeScreen, Names_Numbers_And_Compositions_Stay_Together) {
  const Message_Presenter former = Set_Message_Presenter([](const Message& message) {
    const bool of_volumes =
        message.text.find("because each layer has its own") != std::string::npos;
    return of_volumes ? Answer::Ok : Answer_On_Close(message);
  });
  std::string library = "Listsize=8\r\n";
  for (int i = 1; i <= 8; ++i) {
    const std::string n = std::to_string(i);
    library += "Fraction" + n + "=Sand" + n + " 2.6" + n + " .0" + n + "0 .0" + n + "0 " + n +
               ".7000 .00" + n + "0 N Y\r\n";
  }
  int accepted = 0;
  std::mt19937 random(7);
  const auto any = [&](unsigned count) { return static_cast<int>(random() % count); };
  for (int round = 0; round < 20; ++round) {
    Library(kBargeLibrary, library);
    Fill(3, round % 2 == 0, round % 3 == 0);
    for (std::size_t i = 1; i <= kMaxSolids; ++i) {
      record.SolidSG[i] = 2.6 + static_cast<double>(i) / 100;
      record.LayerSolidFraction[i][1] = static_cast<double>(i) / 100;
    }
    Open();
    for (int step = 0; step < 25; ++step) {
      const int line = any(8);
      if (any(2) == 0) Tick(line, !List()->Is_Ticked(line));
      if (any(4) == 0) Box(any(2) == 0 ? "SSCheck1(0)" : "SSCheck1(1)")->setChecked(any(2) == 0);
      const int page = any(4);
      if (Tabs()->isTabEnabled(page)) Go_To(page);
      if (any(8) == 0) Enter("Text1(0)", QString::number(1 + any(6)));
    }
    Solids().SetActiveCell(9, 1);
    const bool too_many = !Solids().IsEmptyRC(13, 1);
    Accept();
    if (too_many) {
      EXPECT_TRUE(Is_Open());
      Press("Command1(1)");
      continue;
    }
    ASSERT_FALSE(Is_Open());
    ++accepted;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(record.NumSolids); ++i) {
      const int number = record.SolidNames[i].back() - '0';
      EXPECT_EQ(record.SolidNames[i], "Sand" + std::to_string(number));
      EXPECT_EQ(record.SolidSG[i], 2.6 + number / 100.0);
      const double part = record.LayerSolidFraction[i][1];
      EXPECT_TRUE(part == 0 || part == number / 100.0) << part;
    }
  }
  Set_Message_Presenter(former);
  EXPECT_GE(accepted, 5);
}

TEST_F(BargeScreen, Looking_Through_The_Tabs_Is_No_Unsaved_Input) {
  Fill(6, true, true);
  Open();
  for (const int page : {1, 2, 3, 0}) Go_To(page);
  EXPECT_FALSE(Screen()->Holds_Unsaved_Input());
  Type_Into_Cell(*Book("F1Book1(0)"), 1, 1, "7");
  EXPECT_TRUE(Screen()->Holds_Unsaved_Input());
}

TEST_F(BargeScreen, A_Name_With_Letters_That_The_File_Does_Not_Keep_Is_Shown_Before_OK) {
  Set_Solids(record, 1);
  Open();
  Go_To(1);
  Solids().SelectRange({9, 1, 9, 1});
  QApplication::clipboard()->setText(QStringLiteral("\u03b1-Sand"));
  Book("F1Book1(2)")->Paste();
  EXPECT_EQ(Solids().TextRC(9, 1), "\xCE\xB1-Sand");
  EXPECT_NE(Book("F1Book1(2)")->NumberNoteOf(9, 1), "");
  Modal_Replies replies({barvon::testing::Press(QMessageBox::Cancel)});
  Accept();
  EXPECT_TRUE(Is_Open());
  EXPECT_TRUE(replies.seen.at(0).text.contains("has a character that the project file can't keep"));
}

TEST_F(BargeScreen, The_Focus_Goes_To_The_First_Cell_Of_A_Table) {
  Set_Solids(record, 1);
  Open();
  Go_To(1);
  Solids().SetActiveCell(10, 2);
  Line("Text1(1)")->setFocus();
  Book("F1Book1(2)")->setFocus();
  EXPECT_EQ(Solids().Row(), 1);
  Type_Into_Cell(*Book("F1Book1(2)"), 9, 2, "2.7");
  EXPECT_EQ(Solids().Row(), 10) << "the end of typing is no new focus";
}

TEST_F(BargeScreen, A_Name_Missing_Under_The_Cursor_Keeps_It_Open_And_Nothing_Is_Supplied) {
  Open();
  Go_To(1);
  Solids().TextRC(9, 2, "2.65");
  Solids().SetActiveCell(9, 2);
  Modal_Replies replies({Ok()});
  Accept();
  EXPECT_TRUE(Is_Open());
  EXPECT_TRUE(status.empty());
}

}  // namespace
}  // namespace barvon::testing
