#include <gtest/gtest.h>

#include <QTest>

#include "core/project_record.h"
#include "core/screen_register.h"
#include "core/workspace_port.h"
#include "support/screen_support.h"
#include "workspace/option_events.h"

namespace barvon {
namespace {

using testing::Main_Bench;
using testing::Modal_Replies;
using testing::Press;

constexpr char kTwoPointQuestion[] =
    "To Use Two-Point Velocity Profile Variable Depth Must Be Disabled. Do You Wish To Disable "
    "Variable Depth Specification Now?";

QColor Text_Colour(const QWidget* control) {
  return control->palette().color(QPalette::Active, QPalette::WindowText);
}

template <class T>
void Expect_Blue(const ControlArray<T>& options, int chosen) {
  for (int i = options.first(); i <= options.last(); ++i) {
    EXPECT_EQ(options(i)->isChecked(), i == chosen) << i;
    EXPECT_EQ(Text_Colour(options(i)), QColor(i == chosen ? "#0000ff" : "#000000")) << i;
  }
}

/// The data board of a project of that type, with the screens that it opens written down.
class DataBoard : public ::testing::Test {
 protected:
  DataBoard() {
    for (const char* name :
         {"frmDescription", "frmVelocity", "frmMatHopper", "frmMatBarge", "frmOperation",
          "frmCoefficients", "frmDensity", "frmSimulation", "frmMdlkyn", "frmDilute2"}) {
      Register_Screen(name, [this, name](bool blocking, const std::string&) {
        opened.push_back(name + std::string(blocking ? " blocking" : ""));
        on_open();
      });
      registered.push_back(name);
    }
    Project().ConstantDepthFlag = 1;
  }
  ~DataBoard() override {
    for (const std::string& name : registered) Register_Screen(name, {});
  }

  void Show_Board_Of(int type) {
    c.SSOption1(type - 1)->click();
    QTest::mouseClick(c.SSPanel3(0), Qt::LeftButton);
  }

  using Names = std::vector<std::string>;
  Main_Bench bench;
  Main_Controls& c = bench.controls();
  ProjectRecord& record = Project();
  Names opened, registered;
  std::function<void()> on_open = [] {};
};

TEST_F(DataBoard, Captions_Stand_As_They_Are_Told) {
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

TEST_F(DataBoard, Labels_Of_The_Evaluation_Go_By_The_Type) {
  Show_Board_Of(1);
  EXPECT_EQ(c.SSOption4(0)->text(), "No Diffusion of a Conservative Tracer");
  EXPECT_EQ(c.SSOption4(1)->text(), "Long-Term Diffusion of Conservative Tracer");
  EXPECT_FALSE(c.SSOption4(2)->isVisible());
  for (const int type : {2, 3}) {
    Show_Board_Of(type);
    EXPECT_EQ(c.SSOption4(0)->text(), "Tier II, Determine Need for Further Testing");
    EXPECT_EQ(c.SSOption4(1)->text(), "Tier II, Compare Water Quality");
    EXPECT_EQ(c.SSOption4(2)->text(), " Tier III, Compare Toxicity Results");
    EXPECT_TRUE(c.SSOption4(2)->isVisible());
  }
}

TEST_F(DataBoard, The_Hint_Of_The_Simulation_Goes_By_The_Type) {
  const char* hints[] = {
      "Choose Diffusion Option for Transport of Solids Or Tracer in the Water Column",
      "Choose Diffusion Option for Initial Mixing Calculations for MPRSA 103 Water Column "
      "Evaluations.",
      "Choose Diffusion for Initial Mixing Calculations for CWA 404(b)(1) Water Column "
      "Evaluations."};
  for (int type = 1; type <= 3; ++type) {
    c.Label4(0)->hide();
    Show_Board_Of(type);
    EXPECT_EQ(c.Label4(0)->text(), hints[type - 1]);
    EXPECT_TRUE(c.Label4(0)->isVisible());
  }
}

TEST_F(DataBoard, Each_Evaluation_Gives_Its_KEY3_And_Its_Hint) {
  const char* general[] = {"Computations Are Made For Solid Fraction Only",
                           "Requires Tracer Concentration [mg/l] in Dredged Material"};
  const char* tiers[] = {
      "Requires Contaminant Concentration [mg/kg] in Sediment",
      "Requires Predicted Concentration [mg/l] in Water Column Prior to Initial Mixing",
      "Results Expressed in % of Initial Water Column Concentration Prior to Initial Mixing"};
  const int key3[3][3] = {{0, 1, -1}, {4, 2, 3}, {7, 5, 6}};
  for (int type = 1; type <= 3; ++type) {
    Show_Board_Of(type);
    for (int i = 0; i < (type == 1 ? 2 : 3); ++i) {
      c.SSOption4(i)->click();
      EXPECT_EQ(record.KEY3, key3[type - 1][i]);
      EXPECT_EQ(c.Label4(1)->text(), type == 1 ? general[i] : tiers[i]);
      Expect_Blue(c.SSOption4, i);
      // The same state comes back from the record.
      Port().display_data();
      EXPECT_EQ(record.KEY3, key3[type - 1][i]);
      EXPECT_EQ(c.Label4(1)->text(), type == 1 ? general[i] : tiers[i]);
      Expect_Blue(c.SSOption4, i);
    }
  }
}

TEST_F(DataBoard, KEY3_Follows_A_New_Type_When_The_Board_Is_Shown) {
  Show_Board_Of(1);
  c.SSOption4(1)->click();
  EXPECT_EQ(record.KEY3, 1);
  c.SSOption1(1)->click();
  EXPECT_EQ(record.KEY3, 1);
  QTest::mouseClick(c.SSPanel3(0), Qt::LeftButton);
  EXPECT_EQ(record.KEY3, 2);
  Show_Board_Of(3);
  EXPECT_EQ(record.KEY3, 5);
  c.SSOption4(2)->click();
  EXPECT_EQ(record.KEY3, 6);
  Show_Board_Of(1);  // which offers no third
  EXPECT_EQ(record.KEY3, 1);
  Expect_Blue(c.SSOption4, 1);
}

TEST_F(DataBoard, Descent_And_Collapse_Closes_The_Evaluation_And_Clears_The_Contaminant) {
  Show_Board_Of(2);
  c.SSOption4(1)->click();
  record.TracerName() = "Copper";
  record.CriterionConcentration = 5;
  c.SSOption3(0)->click();
  EXPECT_EQ(record.KEY2, 2);
  EXPECT_EQ(record.KEY3, 2);  // until it is asked for
  EXPECT_EQ(record.TracerName(), "");
  EXPECT_EQ(record.CriterionConcentration, 0);
  Expect_Blue(c.SSOption3, 0);
  for (QRadioButton* option : c.SSOption4) EXPECT_FALSE(option->isEnabled());
  Port().display_data();
  EXPECT_EQ(record.KEY3, 2);
  EXPECT_EQ(c.Label4(1)->text(), "");
  c.SSPanel5(0)->click();
  EXPECT_EQ(record.KEY3, 0);
  c.SSOption3(1)->click();
  EXPECT_EQ(record.KEY2, 0);
  Expect_Blue(c.SSOption3, 1);
  for (QRadioButton* option : c.SSOption4) EXPECT_TRUE(option->isEnabled());
  Expect_Blue(c.SSOption4, 1);  // the choice is there again
}

TEST_F(DataBoard, KEY3_Follows_Diffusion_Chosen_Again_At_The_Next_Refresh) {
  const int first[] = {0, 4, 7};  // KEY3 0 shows as the first evaluation, which has this KEY3
  for (int type = 1; type <= 3; ++type) {
    Show_Board_Of(type);
    c.SSOption4(1)->click();
    c.SSOption3(0)->click();
    c.SSPanel5(0)->click();
    EXPECT_EQ(record.KEY3, 0);
    c.SSOption3(1)->click();
    EXPECT_EQ(record.KEY3, 0);
    Port().display_data();
    EXPECT_EQ(record.KEY3, first[type - 1]);
    Expect_Blue(c.SSOption4, 0);
  }
}

TEST_F(DataBoard, Diffusion_Chosen_Again_Keeps_A_KEY3_That_Nothing_Has_Cleared) {
  Show_Board_Of(3);
  c.SSOption4(1)->click();
  c.SSOption3(0)->click();
  c.SSOption3(1)->click();
  Port().display_data();
  EXPECT_EQ(record.KEY3, 5);
  Expect_Blue(c.SSOption4, 1);
}

TEST_F(DataBoard, Diffusion_Chosen_For_A_Project_Without_Has_No_Evaluation_Yet) {
  Show_Board_Of(2);
  c.SSOption4(1)->click();
  Port().open_menus();  // another project is opened
  record.KEY2 = 2;
  record.KEY3 = 0;
  Port().display_data();
  Expect_Blue(c.SSOption4, -1);
  c.SSOption3(1)->click();
  opened.clear();
  Modal_Replies replies({Press(QMessageBox::Ok)});
  c.SSPanel5(1)->click();
  EXPECT_EQ(replies.seen.at(0).text, "Please Specify Evaluation Type");
  EXPECT_EQ(replies.seen.at(0).title, "BARVON");
  EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::Critical);
  EXPECT_EQ(replies.seen.at(0).default_button, QMessageBox::Ok);
  EXPECT_EQ(replies.seen.at(0).buttons, QMessageBox::Ok);
  EXPECT_EQ(opened, Names{});
  Expect_Blue(c.SSOption4, -1);  // no refresh
  EXPECT_EQ(record.KEY3, 3);     // the last one counts
}

TEST_F(DataBoard, Without_An_Evaluation_KEY3_Is_That_Of_The_Last_One) {
  const int last[] = {1, 3, 6};
  for (int type = 1; type <= 3; ++type) {
    Show_Board_Of(type);
    for (QRadioButton* option : c.SSOption4) {
      option->setAutoExclusive(false);
      option->setChecked(false);
    }
    c.SSPanel5(2)->click();
    EXPECT_EQ(record.KEY3, last[type - 1]);
  }
}

TEST_F(DataBoard, Evaluation_Needs_Diffusion) {
  Show_Board_Of(3);
  c.SSOption3(0)->click();
  record.ProjectTitle = "refreshed";
  Modal_Replies replies({Press(QMessageBox::Ok)});
  c.SSPanel5(1)->click();
  EXPECT_EQ(replies.seen.at(0).text,
            "Diffusion Option Not Specified.  No Water Quality Calculations Will Be Conducted");
  EXPECT_EQ(replies.seen.at(0).title, "BARVON");
  EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::Critical);
  EXPECT_EQ(replies.seen.at(0).default_button, QMessageBox::Ok);
  EXPECT_EQ(opened, Names{});
  EXPECT_EQ(c.Title_Box->text(), "refreshed");
}

TEST_F(DataBoard, Solids_Alone_Have_No_Evaluation_Screen) {
  Show_Board_Of(1);
  record.ProjectTitle = "refreshed";
  Modal_Replies replies({Press(QMessageBox::Ok)});
  c.SSPanel5(1)->click();
  EXPECT_EQ(replies.seen.at(0).text, "No Long Term Tracer Computations Will Be Carried Out");
  EXPECT_EQ(replies.seen.at(0).title, "BARVON");
  EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::Critical);
  EXPECT_EQ(replies.seen.at(0).default_button, QMessageBox::Ok);
  EXPECT_EQ(opened, Names{});
  EXPECT_EQ(c.Title_Box->text(), "refreshed");
}

TEST_F(DataBoard, Every_Other_Evaluation_Opens_Its_Screen) {
  const std::vector<int> evaluations[] = {{1}, {0, 1, 2}, {0, 1, 2}};
  for (int type = 1; type <= 3; ++type) {
    Show_Board_Of(type);
    for (const int evaluation : evaluations[type - 1]) {
      c.SSOption4(evaluation)->click();
      opened.clear();
      c.SSPanel5(1)->click();
      EXPECT_EQ(opened, Names{"frmMdlkyn blocking"}) << type << evaluation;
    }
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
      Port().display_data();
      record.VelocityProfileType = type;
      Port().display_data();
      EXPECT_EQ(record.VelocityProfileType, type);
      Expect_Blue(c.Option3D1, option);
      EXPECT_EQ(c.Check3D1->isChecked(), logarithmic) << type;
      EXPECT_EQ(c.Check3D1->isEnabled(), option == 0) << type;
    }
  }
}

TEST_F(DataBoard, A_Two_Point_Profile_Over_Variable_Depth_Is_Asked_About) {
  Show_Board_Of(1);
  for (const auto button : {QMessageBox::No, QMessageBox::Cancel}) {
    c.Option3D1(0)->click();
    record.ConstantDepthFlag = 0;
    Modal_Replies replies({Press(button)});
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
  Port().display_data();
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
  Port().display_data();
  EXPECT_FALSE(c.SSCheck4->isChecked());
  record.JBFCFlag = 1;
  Port().display_data();
  EXPECT_TRUE(c.SSCheck4->isChecked());
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

TEST_F(DataBoard, A_Simulation_Type_Names_The_Evaluations_Of_A_Type_Chosen_Since) {
  Show_Board_Of(1);
  SSOption1_Click(c, record, 2);
  EXPECT_EQ(c.SSOption4(0)->text(), "No Diffusion of a Conservative Tracer");
  c.SSOption3(1)->click();
  EXPECT_EQ(c.SSOption4(0)->text(), "Tier II, Determine Need for Further Testing");
  EXPECT_TRUE(c.SSOption4(2)->isVisible());
  SSOption1_Click(c, record, 0);
  c.SSOption3(0)->click();
  EXPECT_EQ(c.SSOption4(0)->text(), "No Diffusion of a Conservative Tracer");
  EXPECT_FALSE(c.SSOption4(2)->isVisible());
}

TEST_F(DataBoard, The_Board_Is_Refreshed_After_The_Evaluation_Screen) {
  Show_Board_Of(2);
  on_open = [this] { record.ProjectTitle = "entered"; };
  c.SSPanel5(1)->click();
  EXPECT_EQ(c.Title_Box->text(), "entered");
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
