#include "workspace/data_board_fixture.h"
#include "workspace/option_events.h"

namespace barvon {
namespace {

using namespace barvon::testing;

constexpr char kTwoPointQuestion[] =
    "To Use Two-Point Velocity Profile Variable Depth Must Be Disabled. Do You Wish To Disable "
    "Variable Depth Specification Now?";

TEST_F(DataBoard, Every_Caption_Has_Its_Wording) {
  const std::pair<const char*, const char*> frames[] = {
      {"Frame3D7", "Program Options"},       {"Frame3D8", "Simulation Type"},
      {"Frame3D13", "Evaluation Type"},      {"Frame3D9", "Output Options"},
      {"Frame3D11", "Material Description"}, {"Frame3D14", "Velocity Data"},
      {"Frame3D10", "Site Description"},     {"Frame3D12", "Disposal Operation"}};
  for (const auto& [name, title] : frames) EXPECT_EQ(bench.Child<QGroupBox>(name)->title(), title);
  const std::pair<const char*, const char*> captions[] = {
      {"SSOption3(0)", "Descent and Collapse"},
      {"SSOption3(1)", "Descent, Collapse and Diffusion"},
      {"Option3D1(0)", "Single Depth Averaged Velocity"},
      {"Option3D1(1)", "2-Point Velocity Profile For Constant Depth"},
      {"Option3D1(2)", "Variable Velocity Field"},
      {"Option3D1(3)", "Unsteady Velocity Profile"},
      {"Check3D1", "Use a Logarithmic Velocity Profile ?"},
      {"SSCheck4", "Use JBFC Coefficient?"},
      {"SSPanel5(0)", "Enter/Edit &Coefficients"},
      {"SSPanel5(1)", "Enter/Edit &Evaluation"},
      {"SSPanel5(2)", "Enter/Edit O&ptions"},
      {"SSCheck2(0)", "Print Convective Descent?"},
      {"SSCheck2(1)", "Print Collapse Phase?"},
      {"SSCheck2(2)", "Specify Own Print Times?"},
      {"SSCheck3", "Specify Depression Dumping?"}};
  for (const auto& [name, caption] : captions) {
    ASSERT_NE(bench.Child<QAbstractButton>(name), nullptr) << name;
    EXPECT_EQ(bench.Child<QAbstractButton>(name)->text(), caption);
  }
}

TEST_F(DataBoard, Coefficients_And_Options_Open_As_ShowMode_Says_And_Refresh) {
  Show_Board_Of(1);
  on_open = [this] { record.ProjectTitle += "+"; };
  c.SSPanel5(0)->click();
  c.SSPanel5(2)->click();
  record.ShowMode = 0;
  c.SSPanel5(2)->click();
  EXPECT_EQ(opened, (Names{"frmCoefficients blocking", "frmSimulation blocking", "frmSimulation"}));
  EXPECT_EQ(c.Title_Box->text(), "+++");
}

TEST_F(DataBoard, Velocity_Options_Set_Their_Type_And_The_Logarithmic_Box) {
  Show_Board_Of(1);
  const double types[] = {1, 3, 4, 5};
  for (const int i : {1, 2, 3, 0}) {
    c.Option3D1(i)->click();
    EXPECT_EQ(record.VelocityProfileType, types[i]);
    EXPECT_EQ(c.Check3D1->isEnabled(), i == 0);
    Expect_Blue(c.Option3D1, i);
  }
  c.Check3D1->click();
  EXPECT_EQ(record.VelocityProfileType, 2);
  c.Option3D1(2)->click();
  EXPECT_EQ(record.VelocityProfileType, 4);
  c.Option3D1(0)->click();  // the box is still set
  EXPECT_EQ(record.VelocityProfileType, 2);
  c.Check3D1->click();
  EXPECT_EQ(record.VelocityProfileType, 1);
}

TEST_F(DataBoard, VelocityProfileType_Shows_As_Its_Option) {
  const std::tuple<double, int, bool> shown[] = {{1, 0, false}, {2, 0, true},  {3, 1, false},
                                                 {4, 2, false}, {5, 3, false}, {0, -1, false},
                                                 {9, -1, false}};
  for (const auto& [type, option, logarithmic] : shown) {
    for (const double before : {2.0, 5.0}) {
      record.VelocityProfileType = before;
      Port().board.display_data();
      record.VelocityProfileType = type;
      Port().board.display_data();
      EXPECT_EQ(record.VelocityProfileType, type);
      Expect_Blue(c.Option3D1, option);
      EXPECT_EQ(c.Check3D1->isChecked(), logarithmic) << type;
      EXPECT_EQ(c.Check3D1->isEnabled(), option == 0) << type;
    }
  }
}

TEST_F(DataBoard, A_Two_Point_Profile_Over_Variable_Depth_Is_Asked_About) {
  Show_Board_Of(1);
  for (const Reply& reply : {Press(QMessageBox::No), Press(QMessageBox::Cancel), Press_Escape()}) {
    c.Option3D1(0)->click();
    record.ConstantDepthFlag = 0;
    Modal_Replies replies({reply});
    c.Option3D1(1)->click();
    EXPECT_EQ(replies.seen.at(0).text, kTwoPointQuestion);
    EXPECT_EQ(replies.seen.at(0).title, "BARVON");
    EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::NoIcon);
    EXPECT_EQ(replies.seen.at(0).buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(replies.seen.at(0).default_button, QMessageBox::Yes);
    EXPECT_EQ(record.VelocityProfileType, 3);
    EXPECT_EQ(record.ConstantDepthFlag, 0);
    EXPECT_FALSE(c.Check3D1->isEnabled());
    EXPECT_EQ(opened, Names{});
  }
}

TEST_F(DataBoard, Yes_To_Constant_Depth_Opens_The_Site_And_Leaves_The_Logarithmic_Box) {
  Show_Board_Of(1);
  record.ConstantDepthFlag = 0;
  Modal_Replies replies({Press(QMessageBox::Yes)});
  c.Option3D1(1)->click();
  EXPECT_EQ(opened, Names{"frmDescription blocking"});
  EXPECT_EQ(record.VelocityProfileType, 3);
  EXPECT_TRUE(c.Check3D1->isEnabled());
}

TEST_F(DataBoard, A_Refresh_Of_A_Two_Point_Profile_Over_Variable_Depth_Never_Asks) {
  Show_Board_Of(1);
  Modal_Replies none({});
  record.ConstantDepthFlag = 0;
  record.VelocityProfileType = 3;
  Port().board.display_data();
  QTest::mouseClick(c.SSPanel3(0), Qt::LeftButton);
  QTest::qWait(20);
  Expect_Blue(c.Option3D1, 1);
}

TEST_F(DataBoard, JBFC_Shows_The_Moisture_Content) {
  Show_Board_Of(1);
  record.MoistureContent = 2.5;
  EXPECT_FALSE(c.Matlabel(5)->isVisible());
  c.SSCheck4->click();
  EXPECT_EQ(record.JBFCFlag, 1);
  EXPECT_TRUE(c.Matlabel(5)->isVisible());
  EXPECT_EQ(c.Matlabel(5)->text(), "Moisture Content: 2.5");
  record.MoistureContent = 3;
  record.LAYERS = 2;
  c.SSCheck4->click();
  EXPECT_EQ(record.JBFCFlag, 0);
  EXPECT_FALSE(c.Matlabel(5)->isVisible());
  c.SSCheck4->click();
  EXPECT_EQ(c.Matlabel(5)->text(), "Moisture Content: 2.5");  // written for one layer only
  record.JBFCFlag = 0;
  Port().board.display_data();
  EXPECT_FALSE(c.SSCheck4->isChecked());
  record.JBFCFlag = 1;
  Port().board.display_data();
  EXPECT_TRUE(c.SSCheck4->isChecked());
}

TEST_F(DataBoard, Every_Line_Shows_The_Record) {
  record.MMAX0 = 40, record.NMAX0 = 50;
  record.DX0 = 100, record.DZ0 = 200;
  record.DEPC0 = 62.5;
  record.RHDA0 = 0.005;
  record.SLOPEX0 = 1.25, record.SLOPEZ0 = 0.5;
  record.NROA0 = 3;
  record.SimulationDuration = 3600, record.LongTermTimeStep = 300;
  record.PrintConvectiveDescent = 1;
  record.NumPrintTimes = 4;
  record.TotalVolume = 4000, record.NumSolids = 2, record.MoistureContent = 1.5;
  record.SiteDensity = 1.02;
  record.JBFCFlag = 1;
  record.XBARGE = 1250.5, record.ZBARGE = 800;
  record.XHOLE = 10;
  Show_Board_Of(1);
  const std::pair<const QLabel*, const char*> lines[] = {
      {c.SiteLabel(0), "40 x 50 Grid Size"},
      {c.SiteLabel(1), "100 x 200 Cell Spacing"},
      {c.SiteLabel(2), "Water Depth is Constant at 62.50 Ft"},
      {c.SiteLabel(3), "Roughness Height is .0050"},
      {c.SiteLabel(4), "X-Dir Slope is 1.2500"},
      {c.SiteLabel(5), "X-Dir Slope is .5000"},
      {c.SiteLabel(6), "3 Points Used To Describe Density"},
      {c.Label5(0), "Simulation Duration: 3600.0"},
      {c.Label5(1), "Long Term Time Step: 300.0"},
      {c.Matlabel(3), "Volume of Dredged Material: 4000.0 Cu. Yds."},
      {c.Matlabel(4), "Number of Distinct Solids Fraction: 2"},
      {c.Matlabel(5), "Moisture Content: 1.5"},
      {c.Matlabel(6), "Dredging Site Water Density: 1.0200 g/cc"},
      {c.Label6(0), "Vessel Type: Hopper Dredge"},
      {c.Label6(1), "Location From Top: 1250.5 Ft"},
      {c.Label6(2), "Location From Left: 800.0 Ft"}};
  for (const auto& [label, text] : lines) {
    EXPECT_EQ(label->text(), text);
    EXPECT_TRUE(label->isVisible()) << text;
  }
  EXPECT_TRUE(c.SSCheck2(0)->isChecked());
  EXPECT_FALSE(c.SSCheck2(1)->isChecked());
  EXPECT_TRUE(c.SSCheck2(2)->isChecked());
  EXPECT_TRUE(c.SSCheck3->isChecked());
  // The barge has lines of its own, and no line of the moisture for more than one layer.
  record.DisposalMethod = 3;
  record.LAYERS = 4;
  record.MoistureContent = 9;
  Port().board.display_data();
  EXPECT_EQ(c.Matlabel(3)->text(), "Number of Layers 4");
  EXPECT_EQ(c.Matlabel(5)->text(), "Moisture Content: 1.5");
  EXPECT_EQ(c.Matlabel(6)->text(), "Dredging Site Water Density: 1.02 grams/cc");
  EXPECT_EQ(c.Label6(0)->text(), "Vessel Type: Barge or Scow");
  // A continuous discharge leaves them as they are.
  record.DisposalMethod = 2;
  record.NumSolids = 4;
  Port().board.display_data();
  EXPECT_EQ(c.Matlabel(3)->text(), "Number of Layers 4");
  EXPECT_EQ(c.Matlabel(4)->text(), "Number of Distinct Solids Fraction: 2");
  EXPECT_TRUE(c.Matlabel(5)->isVisible());
}

TEST_F(DataBoard, Picture_Buttons_Open_Their_Screens_And_Come_Up_Again) {
  Show_Board_Of(1);
  const std::pair<int, const char*> screens[] = {{0, "frmDescription"},
                                                 {1, "frmVelocity"},
                                                 {2, "frmMatHopper"},
                                                 {3, "frmOperation"},
                                                 {5, "frmDensity"}};
  for (const auto& [index, screen] : screens) {
    bool down = false;
    on_open = [&, index = index] { down = c.SSRibbon1(index)->isChecked(); };
    opened.clear();
    QTest::mouseClick(c.SSRibbon1(index), Qt::LeftButton);
    EXPECT_EQ(opened, Names{screen + std::string(" blocking")});
    EXPECT_TRUE(down) << index;
    EXPECT_FALSE(c.SSRibbon1(index)->isChecked()) << index;
    EXPECT_FALSE(c.SSRibbon1(index)->accessibleName().isEmpty()) << index;
  }
  on_open = [] {};
  opened.clear();
  record.DisposalMethod = 3;
  c.SSRibbon1(2)->click();
  EXPECT_EQ(opened, Names{"frmMatBarge blocking"});
}

TEST_F(DataBoard, The_Two_Point_Question_Is_The_Chosen_Options_Alone) {
  Show_Board_Of(1);
  record.ConstantDepthFlag = 0;
  Modal_Replies none({});
  for (const int i : {0, 2, 3}) c.Option3D1(i)->click();
  record.ConstantDepthFlag = 1;
  c.Option3D1(1)->click();
  EXPECT_FALSE(c.Check3D1->isEnabled());
  EXPECT_EQ(record.VelocityProfileType, 3);
}

TEST_F(DataBoard, Option_Buttons_Do_Not_Block_Over_A_Screen_In_View_And_Refresh_All_The_Same) {
  Show_Board_Of(2);
  QWidget screen;
  screen.setObjectName("frmOperation");
  screen.show();
  for (int i = 0; i < 3; ++i) {
    record.ProjectTitle = "refreshed " + std::to_string(i);
    Modal_Replies replies({Press(QMessageBox::Ok)});
    c.SSPanel5(i)->click();
    EXPECT_EQ(replies.seen.at(0).text,
              "Cannot Display Multiple Forms.  Select 'Multiple Input Windows' From View Menu");
    EXPECT_EQ(c.Title_Box->text().toStdString(), record.ProjectTitle);
  }
  EXPECT_EQ(opened, Names{});
  record.ShowMode = 0;
  for (int i = 0; i < 3; ++i) c.SSPanel5(i)->click();
  EXPECT_EQ(opened, (Names{"frmCoefficients", "frmMdlkyn", "frmSimulation"}));
}

TEST_F(DataBoard, A_Method_From_Code_Acts_Also_When_It_Is_Set_Already) {
  Show_Board_Of(3);
  for (const int method : {1, 0}) {
    for (int again = 0; again < 2; ++again) {
      record.KEY1 = record.KEY4 = record.PreviousDisposalMethod = record.DisposalMethod = 0;
      SSOption2_Click(c, record, method);
      EXPECT_EQ(record.DisposalMethod, method == 0 ? 1 : 3);
      EXPECT_EQ(record.PreviousDisposalMethod, record.DisposalMethod);
      EXPECT_EQ(record.KEY4, method == 0 ? 5 : 6);
      EXPECT_EQ(record.KEY1, 1);
      Expect_Blue(c.SSOption2, method);
    }
  }
}

TEST_F(DataBoard, Setting_An_Option_From_Code_Acts_Also_When_It_Is_Set_Already) {
  Show_Board_Of(2);
  record.KEY2 = 2;
  SSOption3_Click(c, record, 1);
  EXPECT_EQ(record.KEY2, 0);
  record.KEY3 = 0;
  SSOption4_Click(c, record, 0);
  EXPECT_EQ(record.KEY3, 4);
  SSOption4_Click(c, record, 2);
  EXPECT_EQ(record.KEY3, 3);
  Expect_Blue(c.SSOption4, 2);
  record.KEY4 = 0;
  SSOption1_Click(c, record, 1);
  EXPECT_EQ(record.KEY4, 3);
  record.VelocityProfileType = 5;
  Option3D1_Click(c, record, 0);
  EXPECT_EQ(record.VelocityProfileType, 1);
  Check3D1_Click(c, record, true);
  EXPECT_EQ(record.VelocityProfileType, 2);
  EXPECT_TRUE(c.Check3D1->isChecked());
  SSCheck4_Click(c, record, true);
  EXPECT_EQ(record.JBFCFlag, 1);
}

TEST_F(DataBoard, A_Chosen_Option_Is_Told_By_More_Than_Its_Colour) {
  Show_Board_Of(2);
  const auto looks = [this](int index) {
    return c.Option3D1(index)->grab(QRect(0, 0, 18, c.Option3D1(index)->height())).toImage();
  };
  const QImage clear = looks(2);
  EXPECT_NE(looks(0), clear);
}

TEST_F(DataBoard, Boxes_That_Only_Show_State_Take_No_Click) {
  Show_Board_Of(1);
  for (QCheckBox* box : {c.SSCheck2(0), c.SSCheck2(1), c.SSCheck2(2), c.SSCheck3}) {
    box->click();
    EXPECT_FALSE(box->isChecked());
  }
}

}  // namespace
}  // namespace barvon
