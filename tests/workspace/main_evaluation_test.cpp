#include "core/desk/open_file.h"
#include "core/desk/save_file.h"
#include "workspace/data_board_fixture.h"
#include "workspace/option_events.h"

namespace barvon {
namespace {

using namespace barvon::testing;

/// The simulation and evaluation groups of the data board.
class EvaluationBoard : public DataBoard {};

TEST_F(EvaluationBoard, Labels_Of_The_Evaluation_Go_By_The_Type) {
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

TEST_F(EvaluationBoard, The_Hint_Of_The_Simulation_Goes_By_The_Type) {
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

TEST_F(EvaluationBoard, Each_Evaluation_Gives_Its_KEY3_And_Its_Hint) {
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
      Port().board.display_data();
      EXPECT_EQ(record.KEY3, key3[type - 1][i]);
      EXPECT_EQ(c.Label4(1)->text(), type == 1 ? general[i] : tiers[i]);
      Expect_Blue(c.SSOption4, i);
    }
  }
}

TEST_F(EvaluationBoard, KEY3_Follows_A_New_Type_When_The_Board_Is_Shown) {
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

TEST_F(EvaluationBoard, A_Save_Writes_The_KEY3_Of_A_Type_Chosen_Since) {
  Show_Board_Of(1);
  c.SSOption4(1)->click();
  c.SSPanel3(4)->click();
  c.SSOption1(2)->click();
  EXPECT_EQ(record.KEY3, 1);
  const std::string file = bench.folder / "site.DUI";
  ASSERT_TRUE(Save_File(file, 2, record));
  EXPECT_EQ(record.KEY3, 5);
  record.KEY3 = 0;
  ASSERT_TRUE(Open_Project(file, record));
  EXPECT_EQ(record.KEY3, 5);
}

TEST_F(EvaluationBoard, A_New_Type_Chosen_For_One_Project_Does_Not_Touch_The_Next) {
  Show_Board_Of(1);
  c.SSOption4(1)->click();
  c.SSOption1(2)->click();
  Port().board.open_menus();  // another project is opened, whose keys do not agree
  record.KEY4 = 3;
  record.KEY3 = 7;
  Port().board.display_data();
  EXPECT_EQ(record.KEY3, 7);
  Expect_Blue(c.SSOption4, 0);
}

TEST_F(EvaluationBoard, Descent_And_Collapse_Closes_The_Evaluation_And_Clears_The_Contaminant) {
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
  Port().board.display_data();
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

TEST_F(EvaluationBoard, KEY3_Follows_Diffusion_Chosen_Again_At_The_Next_Refresh) {
  const int first[] = {0, 4, 7};  // KEY3 0 shows as the first evaluation, which has this KEY3
  for (int type = 1; type <= 3; ++type) {
    Show_Board_Of(type);
    c.SSOption4(1)->click();
    c.SSOption3(0)->click();
    c.SSPanel5(0)->click();
    EXPECT_EQ(record.KEY3, 0);
    c.SSOption3(1)->click();
    EXPECT_EQ(record.KEY3, 0);
    Port().board.display_data();
    EXPECT_EQ(record.KEY3, first[type - 1]);
    Expect_Blue(c.SSOption4, 0);
  }
}

TEST_F(EvaluationBoard, Diffusion_Chosen_Again_Keeps_A_KEY3_That_Nothing_Has_Cleared) {
  Show_Board_Of(3);
  c.SSOption4(1)->click();
  c.SSOption3(0)->click();
  c.SSOption3(1)->click();
  Port().board.display_data();
  EXPECT_EQ(record.KEY3, 5);
  Expect_Blue(c.SSOption4, 1);
}

TEST_F(EvaluationBoard, Diffusion_Chosen_For_A_Project_Without_Has_No_Evaluation_Yet) {
  Show_Board_Of(2);
  c.SSOption4(1)->click();
  Port().board.open_menus();  // another project is opened
  record.KEY2 = 2;
  record.KEY3 = 0;
  Port().board.display_data();
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

TEST_F(EvaluationBoard, Without_An_Evaluation_KEY3_Is_That_Of_The_Last_One) {
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

TEST_F(EvaluationBoard, Evaluation_Needs_Diffusion) {
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

TEST_F(EvaluationBoard, Solids_Alone_Have_No_Evaluation_Screen) {
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

TEST_F(EvaluationBoard, Every_Other_Evaluation_Opens_Its_Screen) {
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

TEST_F(EvaluationBoard, A_Simulation_Type_Names_The_Evaluations_Of_A_Type_Chosen_Since) {
  Show_Board_Of(1);
  c.SSOption3(0)->click();
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

TEST_F(EvaluationBoard, The_Board_Is_Refreshed_After_The_Evaluation_Screen) {
  Show_Board_Of(2);
  on_open = [this] { record.ProjectTitle = "entered"; };
  c.SSPanel5(1)->click();
  EXPECT_EQ(c.Title_Box->text(), "entered");
}

}  // namespace
}  // namespace barvon
