#include "wizard/data_wiz.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/desk/settings_keys.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/velocity_types.h"
#include "core/wizard_answers.h"
#include "platform/ask/help_viewer.h"
#include "platform/qt/fields/number_field.h"
#include "support/record_differences.h"
#include "support/screen_support.h"
#include "wizard/walk_bench.h"
#include "workspace/menu_items.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

/// The wizard over the main window, opened without blocking; the screens that it opens are stood in
/// for.
class DataWizard : public ::testing::Test {
 protected:
  DataWizard() {
    former_help_ = Set_Help_Presenter([this](const Help_Request& request) {
      if (request.command == Help_Command::Context) topics.push_back(request.topic);
      if (request.command == Help_Command::Quit) ++help_closed;
    });
    Register_Data_Wiz(&bench.main());
    record.WizardAccepted = kFalse;
    record.WizardHelpOn = kTrue;
  }
  ~DataWizard() override {
    Set_Help_Presenter(former_help_);
    Answers_Of_Wizard() = {};
    record.WizardAccepted = kFalse;
  }

  Data_Wiz* Wizard() {
    for (auto* window : bench.main().findChildren<QWidget*>(QStringLiteral("Data_Wiz"))) {
      if (window->isVisible()) return static_cast<Data_Wiz*>(window);
    }
    return nullptr;
  }
  void Open() {
    *before = record;
    ASSERT_TRUE(Open_Screen(Row_Of_Screen("Data_Wiz"), false));
    ASSERT_NE(Wizard(), nullptr);
    ASSERT_TRUE(Has_Keyboard(Wizard()));
  }
  template <class T>
  T* Child(const std::string& name) {
    auto* child = Wizard()->findChild<T*>(QString::fromStdString(name));
    EXPECT_NE(child, nullptr) << name;
    return child;
  }
  QPushButton* Command(int index) {
    return Child<QPushButton>("Command1(" + std::to_string(index) + ")");
  }
  void Next(std::vector<Answer> answers = {}) {
    Scripted_Messages messages(std::move(answers));
    Click(Command(1));
    asked.clear();
    for (const Message& message : messages.shown) asked.push_back(message.text);
  }
  void Choose(const std::string& option) { Click(Child<QRadioButton>(option)); }
  bool Is_Set(const std::string& option) { return Child<QRadioButton>(option)->isChecked(); }
  QString Text7(int index) {
    return Child<QLineEdit>("Text7(" + std::to_string(index) + ")")->text();
  }
  void Enter(const std::string& name, const QString& text) {
    auto* field = Child<QLineEdit>(name);
    field->setFocus();
    field->selectAll();
    field->del();
    Type(field, text);
  }
  /// The page in view; -1 when it is not exactly one.
  int Page() {
    int page = -1, seen = 0;
    for (int i = 0; i < 8; ++i) {
      if (!Child<QGroupBox>("Frame1(" + std::to_string(i) + ")")->isVisible()) continue;
      page = i;
      ++seen;
    }
    return seen == 1 ? page : -1;
  }
  /// Typical values of a site of 10000 ft with 1 ft/s along X, in water of 50 ft.
  void Enter_Typical_Values() {
    const char* const values[] = {"10000", "", "1", "0", "50", "18", "30"};
    for (int i = 0; i < 7; ++i) {
      if (*values[i] != '\0') Enter("Text7(" + std::to_string(i) + ")", values[i]);
    }
  }
  /// From the first page to that one, saying Yes to the computed grid.
  void Go_To(int page) {
    while (Page() < page) {
      const bool at_typical_values = Page() == 3;
      if (at_typical_values) Enter_Typical_Values();
      Next(at_typical_values ? std::vector{Answer::Yes} : std::vector<Answer>{});
    }
  }
  Names Changed() const {
    return Differing_Fields(*before, record, {"WizardActive", "WizardHelpOn"});
  }

  Main_Bench bench;
  ProjectRecord& record = Project();
  Screen_Doubles screens{record};
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
  std::vector<int> topics;
  int help_closed = 0;
  Names asked;

 private:
  Help_Presenter former_help_;
};

TEST_F(DataWizard, Opens_At_Its_Place_On_The_First_Page) {
  Open();
  const QPoint place = Wizard()->screen()->geometry().topLeft() + QPoint(100, 100);
  EXPECT_LE((Wizard()->pos() - place).manhattanLength(), 2);
  EXPECT_EQ(Page(), 0);
  EXPECT_EQ(Wizard()->windowTitle(), "BARVON Data Wizard - Step 1 of  8");
  EXPECT_FALSE(Command(0)->isEnabled());
  EXPECT_TRUE(Command(1)->isEnabled());
  EXPECT_FALSE(Command(2)->isEnabled());
  EXPECT_EQ(QApplication::focusWidget(), Child<QLineEdit>("Text1"));
  EXPECT_EQ(record.WizardActive, kTrue);
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(DataWizard, Captions_Stand_As_They_Are_Told) {
  Open();
  const char* const buttons[] = {"< &Back", "&Next >", "&Finished",
                                 "&Cancel", "&Help",   "Enter Data"};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(Command(i)->text(), buttons[i]);
  const char* const frames[] = {"Analysis and Disposal Type",   "Program Options",
                                "General Site Disposal Data",   "General Site Disposal Data",
                                "Velocity Profile Information", "Dredged Material Data",
                                "Disposal Operations Data",     "Simulation Times and Site Data"};
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(Child<QGroupBox>("Frame1(" + std::to_string(i) + ")")->title(), frames[i]);
  }
  const std::pair<const char*, const char*> options[] = {
      {"SSOption3(0)", "Disposal from a Multiple Bin Hopper Dredge"},
      {"SSOption3(1)", "Disposal from a Split-Hull Barge or Scow"},
      {"SSOption2(0)", "General Open Water Disposal Analysis"},
      {"SSOption2(1)", "Section 103 Regulatory Analysis for Ocean Sites"},
      {"SSOption2(2)", "Section 404(b)(1) Regulatory Analysis for US Navigable Waters"},
      {"SSOption4(0)", "Descent and Collapse"},
      {"SSOption4(1)", "Descent, Collapse and Diffusion"},
      {"SSOption5(0)", "Single Depth Averaged Velocity"},
      {"SSOption5(1)", "2-Point Velocity Profile for a Constant Depth Grid"},
      {"SSOption5(2)", "Variable Velocity Field for Entire Grid"},
      {"SSOption5(3)", "Unsteady Velocity Profile"}};
  for (const auto& [name, caption] : options) {
    EXPECT_EQ(Child<QRadioButton>(name)->text(), caption);
  }
  EXPECT_EQ(Child<QCheckBox>("Check2")->text(), "&Disable Help?");
  EXPECT_EQ(Child<QGroupBox>("Frame6")->title(), "Evaluation Type");
  const char* const labels[] = {"Maximum Plume Distance of Interest (ft)",
                                "Maximum Simulation Duration (sec)",
                                "Typical X-Direction Velocity (ft/sec)",
                                "Typical Z-Direction Velocity (ft/sec)",
                                "Average Water Depth (ft)",
                                "Average Water Temperature (deg F)",
                                "Average Water Salinity (ppt)"};
  for (int i = 0; i < 7; ++i) {
    EXPECT_EQ(Child<QLineEdit>("Text7(" + std::to_string(i) + ")")->accessibleName(), labels[i]);
  }
}

TEST_F(DataWizard, The_Description_Has_A_Hint_That_Is_No_Title) {
  record.ProjectTitle.clear();
  Open();
  EXPECT_EQ(Child<QLineEdit>("Text1")->text(), "");
  EXPECT_EQ(Child<QLineEdit>("Text1")->placeholderText(),
            "Provide a Short Project Description Here");
  Go_To(7);
  Click(Command(2));
  EXPECT_EQ(record.ProjectTitle, "");
}

TEST_F(DataWizard, The_Analysis_Labels_The_Evaluations_And_Sets_The_Duration) {
  Open();
  EXPECT_EQ(Text7(1), "2400");
  EXPECT_EQ(Child<QRadioButton>("SSOption1(0)")->text(), "No Diffusion of a Conservative Tracer");
  EXPECT_EQ(Child<QRadioButton>("SSOption1(1)")->text(),
            "Long-Term Diffusion of Conservative Tracer");
  EXPECT_TRUE(Child<QRadioButton>("SSOption1(2)")->isHidden());
  Choose("SSOption2(1)");
  EXPECT_EQ(Text7(1), "14400");
  EXPECT_EQ(Child<QRadioButton>("SSOption1(0)")->text(),
            "Tier II, Determine Need for Further Testing");
  EXPECT_EQ(Child<QRadioButton>("SSOption1(1)")->text(), "Tier II, Compare Water Quality");
  EXPECT_EQ(Child<QRadioButton>("SSOption1(2)")->text(), " Tier III, Compare Toxicity Results");
  EXPECT_FALSE(Child<QRadioButton>("SSOption1(2)")->isHidden());
  Choose("SSOption2(2)");
  EXPECT_EQ(Text7(1), "3600");
}

TEST_F(DataWizard, A_Typed_Duration_Stays_Whatever_Analysis_Is_Chosen) {
  Open();
  Go_To(3);
  Enter("Text7(1)", "5000");
  for (int i = 0; i < 3; ++i) Click(Command(0));
  Choose("SSOption2(2)");
  EXPECT_EQ(Text7(1), "5000");
}

TEST_F(DataWizard, A_Hidden_Evaluation_Gives_Way_To_The_First) {
  Open();
  Choose("SSOption2(1)");
  Next();
  Choose("SSOption4(1)");
  Choose("SSOption1(2)");
  Click(Command(0));
  Choose("SSOption2(0)");
  EXPECT_TRUE(Is_Set("SSOption1(0)"));
  EXPECT_FALSE(Is_Set("SSOption1(2)"));
}

TEST_F(DataWizard, Without_Diffusion_There_Is_No_Evaluation) {
  Open();
  Next();
  EXPECT_FALSE(Child<QGroupBox>("Frame6")->isEnabled());
  EXPECT_FALSE(Child<QRadioButton>("SSOption1(0)")->isEnabled());
  Choose("SSOption4(1)");
  EXPECT_TRUE(Child<QGroupBox>("Frame6")->isEnabled());
  EXPECT_TRUE(Child<QRadioButton>("SSOption1(1)")->isEnabled());
}

TEST_F(DataWizard, A_Click_On_A_Picture_Chooses_Its_Velocity) {
  Open();
  Go_To(4);
  for (const int i : {2, 0, 3, 1}) {
    QTest::mouseClick(Child<QLabel>("Picture2(" + std::to_string(i) + ")"), Qt::LeftButton);
    for (int other = 0; other < 4; ++other) {
      const std::string index = "(" + std::to_string(other) + ")";
      EXPECT_EQ(Is_Set("SSOption5" + index), other == i) << i;
      const QColor colour = Child<QFrame>("Frame11" + index)->palette().color(QPalette::WindowText);
      EXPECT_EQ(colour, other == i ? QColor(0, 0, 255) : QColor(0xc0, 0xc0, 0xc0));
    }
    EXPECT_EQ(Answers_Of_Wizard().velocity_option, i);
  }
}

TEST_F(DataWizard, Arrow_Keys_Go_Through_The_Velocities_Across_Their_Boxes) {
  Open();
  Go_To(4);
  Child<QRadioButton>("SSOption5(0)")->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  EXPECT_TRUE(Is_Set("SSOption5(1)"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_TRUE(Is_Set("SSOption5(3)"));
  EXPECT_EQ(Answers_Of_Wizard().velocity_option, 3);
}

TEST_F(DataWizard, The_Grids_Picture_Is_The_Analysis_Own) {
  for (int analysis = 0; analysis < 3; ++analysis) {
    Open();
    Choose("SSOption2(" + std::to_string(analysis) + ")");
    Go_To(2);
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(Child<QLabel>("Picture3(" + std::to_string(i) + ")")->isVisible(), i == analysis);
    }
    const QString text = Child<QPlainTextEdit>("Text4(3)")->toPlainText();
    EXPECT_TRUE(text.startsWith("The model grid is characterized"));
    EXPECT_EQ(text.contains("shown in blue"), analysis == 1);
    EXPECT_EQ(text.contains("shown in red"), analysis == 2);
    Click(Command(3));
  }
}

TEST_F(DataWizard, Every_Step_Shows_Its_Help_And_The_End_Closes_It) {
  Open();
  Go_To(7);
  EXPECT_EQ(topics, (std::vector<int>{2650, 2660, 2470, 2460, 2460, 3000, 800, 420}));
  Click(Command(0));
  EXPECT_EQ(topics.back(), 800);
  const int closed = help_closed;
  Next();
  Click(Command(2));
  EXPECT_EQ(help_closed, closed + 1);
}

TEST_F(DataWizard, Help_Is_One_Setting_With_The_Options_Menu) {
  const QAction* item = bench.Action("mnuOptionItem(0)");
  Open();
  EXPECT_FALSE(Child<QCheckBox>("Check2")->isChecked());
  Click(Child<QCheckBox>("Check2"));
  EXPECT_EQ(record.WizardHelpOn, kFalse);
  EXPECT_FALSE(item->isChecked());
  EXPECT_NE(Read_Text(Settings_Path()).find("HelpOn=Off  \r\n"), std::string::npos);
  EXPECT_EQ(help_closed, 1);
  topics.clear();
  Next();
  EXPECT_EQ(topics, std::vector<int>{});
  Click(Command(3));
  record.WizardHelpOn = kTrue;  // another session
  Open();
  EXPECT_TRUE(Child<QCheckBox>("Check2")->isChecked());
  EXPECT_EQ(record.WizardHelpOn, kFalse);
  Click(Child<QCheckBox>("Check2"));
  EXPECT_EQ(topics, std::vector<int>{2650});
  EXPECT_TRUE(item->isChecked());
  EXPECT_NE(Read_Text(Settings_Path()).find("HelpOn=On  \r\n"), std::string::npos);
}

TEST_F(DataWizard, Help_And_Enter_Data_Do_Nothing) {
  Open();
  topics.clear();
  Click(Command(4));
  Click(Command(5));
  QTest::keyClick(Wizard(), Qt::Key_F1);
  EXPECT_EQ(topics, std::vector<int>{});
  EXPECT_EQ(Page(), 0);
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(DataWizard, The_Answers_Follow_What_Is_Typed) {
  Open();
  Go_To(3);
  Enter_Typical_Values();
  EXPECT_EQ(Answers_Of_Wizard().water_depth, "50");
  EXPECT_EQ(Answers_Of_Wizard().water_temperature, "18");
  EXPECT_EQ(Answers_Of_Wizard().water_salinity, "30");
  EXPECT_EQ(Answers_Of_Wizard().max_duration, "2400");
  EXPECT_EQ(Number_Note_Of(Child<QLineEdit>("Text7(5)")), "reads as 18 degrees Celsius");
  Click(Command(3));
  EXPECT_EQ(Answers_Of_Wizard().water_depth, "");
}

TEST_F(DataWizard, The_Question_Decides_Whether_The_Fourth_Page_Is_Left) {
  Open();
  Go_To(3);
  Enter_Typical_Values();
  Next({Answer::Cancel});
  EXPECT_EQ(Page(), 3);
  EXPECT_EQ(screens.opened, Names{});
  Enter("Text7(1)", "0");
  Next({Answer::Ok});
  EXPECT_EQ(asked,
            Names{"Please Provide a Maximum Simulation Time of Interest Greater Than Zero."});
  EXPECT_EQ(Page(), 3);
  Enter("Text7(1)", "2400");
  Enter("Text7(2)", "0");
  Next({Answer::Yes, Answer::Ok});
  EXPECT_EQ(asked.back(), "Please Provide a Typical Velocity Other Than Zero.");
  EXPECT_EQ(Page(), 3);
  EXPECT_EQ(Changed(), Names{});
  Next({Answer::No});
  EXPECT_EQ(Page(), 4);
  EXPECT_EQ(screens.opened, Names{"frmDescription"});
}

struct Walk_Row {
  int analysis, simulation, evaluation;
  std::int16_t key3;
  bool evaluates;
  int picture;  // of the last page, -1 for none
};

TEST_F(DataWizard, A_Walk_For_Each_Analysis_And_Both_Vessels_Ends_In_Its_Project) {
  for (const Walk_Row& row : {Walk_Row{0, 0, 0, 0, false, -1},
                              {0, 1, 0, 0, false, -1},
                              {0, 1, 1, 1, true, 4},
                              {1, 0, 0, 4, false, -1},
                              {1, 1, 2, 3, true, 5},
                              {2, 1, 1, 5, true, 6}}) {
    for (const int method : {0, 1}) {
      SCOPED_TRACE(std::to_string(row.analysis) + std::to_string(row.simulation) +
                   std::to_string(row.evaluation) + std::to_string(method));
      record.WizardAccepted = kFalse;
      record.VelocityProfileType = kSingleVelocity;
      record.XBARGE = record.ZBARGE = 0;
      screens.opened.clear();
      Open();
      Enter("Text1", "River mouth");
      Choose("SSOption3(" + std::to_string(method) + ")");
      Choose("SSOption2(" + std::to_string(row.analysis) + ")");
      Next();
      Choose("SSOption4(" + std::to_string(row.simulation) + ")");
      if (row.simulation == 1) Choose("SSOption1(" + std::to_string(row.evaluation) + ")");
      Go_To(7);
      for (int i = 4; i < 7; ++i) {
        EXPECT_EQ(Child<QLabel>("Picture3(" + std::to_string(i) + ")")->isVisible(),
                  i == row.picture);
      }
      EXPECT_EQ(Command(1)->isEnabled(), row.evaluates);
      EXPECT_EQ(Command(2)->isEnabled(), !row.evaluates);
      const char* const kEnd = "The Data Wizard is now complete.";
      const auto* text = Child<QPlainTextEdit>("Text4(6)");
      EXPECT_EQ(text->toPlainText().startsWith(kEnd), !row.evaluates);
      if (row.evaluates) Next();
      EXPECT_TRUE(text->toPlainText().startsWith(kEnd));
      for (int i = 4; i < 7; ++i) {
        EXPECT_FALSE(Child<QLabel>("Picture3(" + std::to_string(i) + ")")->isVisible());
      }
      EXPECT_FALSE(Command(1)->isEnabled());
      EXPECT_TRUE(Command(2)->isEnabled());
      EXPECT_EQ(Page(), 7);
      EXPECT_EQ(QApplication::focusWidget(), Command(2));
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
      EXPECT_EQ(Wizard(), nullptr);
      Names opened = {"frmDescription", "frmVelocity", method == 0 ? "frmMatHopper" : "frmMatBarge",
                      "frmOperation"};
      if (row.evaluates) opened.emplace_back("frmMdlkyn");
      EXPECT_EQ(screens.opened, opened);
      EXPECT_EQ(record.AnalysisType, row.analysis + 1);
      EXPECT_EQ(record.DisposalMethod, method == 0 ? 1 : 3);
      EXPECT_EQ(record.KEY4, 2 * row.analysis + method + 1);
      EXPECT_EQ(record.KEY2, row.simulation == 0 ? 2 : 0);
      EXPECT_EQ(record.KEY3, row.key3);
      EXPECT_EQ(record.SimulationDuration, row.analysis == 0   ? 2400
                                           : row.analysis == 1 ? 14400
                                                               : 3600);
      EXPECT_EQ(record.NMAX0, record.MMAX0);
      EXPECT_GT(record.XBARGE, 0);
      EXPECT_EQ(record.ProjectTitle, "River mouth");
      EXPECT_EQ(record.WizardActive, kFalse);
      EXPECT_EQ(record.WizardAccepted, kTrue);
      EXPECT_TRUE(bench.controls().SSOption1(row.analysis)->isChecked());
      EXPECT_TRUE(bench.controls().SSOption2(method)->isChecked());
      EXPECT_TRUE(bench.controls().SSOption3(row.simulation)->isChecked());
      EXPECT_EQ(bench.controls().Title_Box->text(), "River mouth");
      EXPECT_TRUE(bench.Action("mnuRun")->isEnabled());
    }
  }
}

TEST_F(DataWizard, Back_From_The_End_Takes_Finished_Away) {
  Open();
  Go_To(7);
  EXPECT_TRUE(Command(2)->isEnabled());
  Click(Command(0));
  EXPECT_EQ(Page(), 6);
  EXPECT_TRUE(Command(1)->isEnabled());
  EXPECT_FALSE(Command(2)->isEnabled());
  for (int i = 0; i < 5; ++i) Click(Command(0));
  EXPECT_EQ(Page(), 1);
  EXPECT_TRUE(Command(0)->isEnabled());
  Click(Command(0));
  EXPECT_EQ(Page(), 0);
  EXPECT_FALSE(Command(0)->isEnabled());
}

TEST_F(DataWizard, Cancel_Escape_And_The_Close_Box_At_Each_Step_Leave_The_Project_As_It_Was) {
  record.KEY2 = kDiffusion;
  record.TracerName() = "dye";
  record.SiteTop = 5;
  screens.accepts = false;
  const std::function<void()> ends[] = {
      [this] { Click(Command(3)); },
      [this] { QTest::keyClick(Wizard(), Qt::Key_Escape); },
      [this] { static_cast<QWidget*>(Wizard())->close(); },
  };
  for (int page = 0; page < 8; ++page) {
    for (const auto& end : ends) {
      Open();
      Choose("SSOption2(2)");
      Choose("SSOption3(1)");
      Go_To(page);
      end();
      EXPECT_EQ(Wizard(), nullptr);
      EXPECT_EQ(Changed(), Names{}) << page;
      EXPECT_EQ(record.WizardActive, kFalse);
    }
  }
}

TEST_F(DataWizard, Cancel_Keeps_What_Screens_Accepted_And_Takes_The_Choices_Back) {
  record.DisposalMethod = kHopper;
  screens.acts["frmDescription"] = [this] { record.DEPC0 = 71; };
  Open();
  Choose("SSOption3(1)");
  Choose("SSOption2(2)");
  Go_To(7);
  EXPECT_EQ(record.DisposalMethod, kBarge);
  const double vessel = record.XBARGE;
  Click(Command(3));
  EXPECT_EQ(record.DisposalMethod, kHopper);
  EXPECT_EQ(record.KEY4, before->KEY4);
  EXPECT_EQ(record.DEPC0, 71);
  EXPECT_EQ(record.XBARGE, vessel);
}

TEST_F(DataWizard, Finished_Leaves_Accepted_Depth_Duration_And_Velocity_Alone) {
  screens.acts["frmDescription"] = [this] { record.DEPC0 = 71; };
  screens.acts["frmVelocity"] = [this] {
    record.VelocityProfileType = kUnsteadyVelocity;
    record.SimulationDuration = 7200.5;
  };
  Open();
  Go_To(5);
  EXPECT_TRUE(Is_Set("SSOption5(3)")) << "the page follows what was chosen on the screen";
  EXPECT_EQ(Text7(1), "7201");
  Go_To(7);
  Click(Command(2));
  EXPECT_EQ(record.DEPC0, 71);
  EXPECT_EQ(record.SimulationDuration, 7200.5);
  EXPECT_EQ(record.VelocityProfileType, kUnsteadyVelocity);
}

TEST_F(DataWizard, A_Duration_Typed_After_An_Accepted_One_Counts) {
  screens.acts["frmVelocity"] = [this] {
    record.VelocityProfileType = kUnsteadyVelocity;
    record.SimulationDuration = 7200;
  };
  Open();
  Go_To(5);
  Click(Command(0));
  Click(Command(0));
  Enter("Text7(1)", "5000");
  screens.acts["frmVelocity"] = [this] { record.VelocityProfileType = kSingleVelocity; };
  Next({Answer::No});
  Next();
  EXPECT_EQ(Text7(1), "5000");
  Go_To(7);
  Click(Command(2));
  EXPECT_EQ(record.SimulationDuration, 5000);
}

TEST_F(DataWizard, An_Accepted_Duration_Gives_Way_To_No_Default) {
  screens.acts["frmVelocity"] = [this] {
    record.VelocityProfileType = kUnsteadyVelocity;
    record.SimulationDuration = 3600;
  };
  Open();
  Go_To(5);
  for (int i = 0; i < 5; ++i) Click(Command(0));
  Choose("SSOption2(1)");
  EXPECT_EQ(Text7(1), "3600");
}

TEST_F(DataWizard, A_Click_On_The_Analysis_That_Is_Set_Keeps_The_Duration) {
  record.WizardAccepted = kTrue;
  record.AnalysisType = kOpenWater;
  record.SimulationDuration = 3600;
  Open();
  Choose("SSOption2(0)");
  EXPECT_EQ(Text7(1), "3600");
  Choose("SSOption2(1)");
  EXPECT_EQ(Text7(1), "14400");
}

TEST_F(DataWizard, A_Pipeline_Project_Is_Asked_About_First) {
  record.DisposalMethod = kContinuous;
  for (const Answer answer : {Answer::No, Answer::Yes}) {
    Scripted_Messages messages({answer});
    Open_Screen(Row_Of_Screen("Data_Wiz"), false);
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(Wizard() != nullptr, answer == Answer::Yes);
    EXPECT_EQ(record.WizardActive, answer == Answer::Yes ? kTrue : kFalse);
  }
}

TEST_F(DataWizard, Finished_Says_What_The_Wizard_Does_Not_Ask_For) {
  std::vector<std::string> notes;
  const auto former = std::exchange(Port().board.show_note,
                                    [&](const Status_Note& note) { notes.push_back(note.text); });
  for (const double step : {0.0, 300.0}) {
    record.LongTermTimeStep = step;
    Open();
    Go_To(7);
    Click(Command(2));
  }
  EXPECT_EQ(notes,
            Names{"The time step is still to be entered in \"Time Step and Print Options\"."});
  Port().board.show_note = former;
}

TEST_F(DataWizard, Return_Goes_On_For_Who_Has_Come_By_The_Buttons) {
  Open();
  Next();
  Command(0)->setFocus();
  Command(1)->click();  // by its letter, which leaves the keyboard where it is
  EXPECT_EQ(Page(), 2);
  EXPECT_EQ(QApplication::focusWidget(), Command(1));
}

TEST_F(DataWizard, An_Accepted_Logarithmic_Profile_Stays_One) {
  screens.acts["frmVelocity"] = [this] { record.VelocityProfileType = kLogarithmicVelocity; };
  Open();
  Go_To(7);
  Click(Command(2));
  EXPECT_EQ(record.VelocityProfileType, kLogarithmicVelocity);
}

TEST_F(DataWizard, Opened_Again_It_Shows_The_File_And_The_Projects_Choices) {
  record.WizardAccepted = kTrue;
  record.ProjectFileName = "/home/me/site [*].DUI";
  record.ProjectTitle = "River mouth";
  record.AnalysisType = kOceanSites;
  record.DisposalMethod = kBarge;
  record.KEY2 = kDiffusion;
  record.KEY3 = kOceanToxicity;
  record.VelocityProfileType = kVelocityField;
  record.SimulationDuration = 5000.4;
  Open();
  EXPECT_EQ(Wizard()->windowTitle(),
            "BARVON Data Wizard - Step 1 of  8 (/home/me/site [*][*].DUI)");
  EXPECT_EQ(Child<QLineEdit>("Text1")->text(), "River mouth");
  for (const char* option :
       {"SSOption2(1)", "SSOption3(1)", "SSOption4(1)", "SSOption1(2)", "SSOption5(2)"}) {
    EXPECT_TRUE(Is_Set(option)) << option;
  }
  EXPECT_EQ(Text7(1), "5000");
  Click(Command(3));
  EXPECT_EQ(record.SimulationDuration, 5000.4);
  record.ProjectFileName.clear();
  Open();
  EXPECT_EQ(Wizard()->windowTitle(), "BARVON Data Wizard - Step 1 of  8");
}

TEST_F(DataWizard, Finished_And_Opened_Again_It_Shows_What_Was_Chosen) {
  Open();
  Choose("SSOption2(2)");
  Choose("SSOption3(1)");
  Go_To(7);
  Click(Command(2));
  Open();
  EXPECT_TRUE(Is_Set("SSOption2(2)"));
  EXPECT_TRUE(Is_Set("SSOption3(1)"));
  EXPECT_TRUE(Is_Set("SSOption4(0)"));
  EXPECT_EQ(Text7(1), "3600");
}

TEST_F(DataWizard, A_Two_Point_Profile_Over_Varying_Depths_Leads_To_The_Site) {
  screens.acts["frmVelocity"] = [this] { record.VelocityProfileType = kTwoPointVelocity; };
  screens.acts["frmDescription"] = [this] { record.ConstantDepthFlag = 0; };
  Open();
  Go_To(7);
  screens.opened.clear();
  screens.acts["frmDescription"] = [this] {
    EXPECT_EQ(Wizard(), nullptr);
    EXPECT_EQ(record.WizardActive, kFalse);
  };
  Scripted_Messages messages({Answer::Yes});
  Click(Command(2));
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(screens.opened, Names{"frmDescription"});
}

TEST_F(DataWizard, A_Copy_Of_The_Record_Has_Its_Choices_Once_It_Is_Finished) {
  const auto kept_key4 = [this] {
    const auto copy = std::make_unique<ProjectRecord>(record);
    Port().wizard.take_back(*copy);
    return copy->KEY4;
  };
  const std::int16_t former = record.KEY4;
  Open();
  Choose("SSOption2(1)");
  std::int16_t while_screen_is_open = 99;
  screens.acts["frmDescription"] = [&] { while_screen_is_open = kept_key4(); };
  Go_To(7);
  EXPECT_EQ(while_screen_is_open, former);
  EXPECT_EQ(kept_key4(), former);
  EXPECT_NE(record.KEY4, former) << "a Section 103 analysis";
  Next();
  Scripted_Messages messages;
  Click(Command(2));
  EXPECT_EQ(Wizard(), nullptr);
  EXPECT_EQ(kept_key4(), record.KEY4);
}

TEST_F(DataWizard, Return_Goes_On_From_A_Field) {
  Open();
  QTest::keyClick(Child<QLineEdit>("Text1"), Qt::Key_Return);
  EXPECT_EQ(Page(), 1);
}

TEST_F(DataWizard, The_Third_Page_Leads_To_The_Graphical_Page) {
  Open();
  Go_To(2);
  for (auto* button : Child<QGroupBox>("Frame1(2)")->findChildren<QPushButton*>()) Click(button);
  EXPECT_EQ(screens.opened, Names{"Graphic_Data_Entry"});
}

/// A screen that stands open with something typed.
class Open_Input : public Input_Screen {
 public:
  explicit Open_Input(QWidget* workspace) : Input_Screen("frmSimulation", workspace) {
    setWindowTitle("Time Step and Print Options");
    auto* column = new QVBoxLayout(this);
    field = new QLineEdit(this);
    field->setObjectName("Text1(0)");
    column->addWidget(field);
    column->addLayout(Make_Command1());
  }
  QLineEdit* field;

 protected:
  void Command1_Click(int) override { Unload(); }
};

TEST_F(DataWizard, Input_Screens_That_Stand_Open_Are_Closed_First_Or_It_Stays_Away) {
  auto* input = new Open_Input(&bench.main());
  input->Open(false);
  input->field->setText("typed");
  {
    Scripted_Messages messages({Answer::No});
    Open_Screen(Row_Of_Screen("Data_Wiz"), false);
    EXPECT_EQ(messages.shown.size(), 1U);
  }
  EXPECT_EQ(Wizard(), nullptr);
  EXPECT_TRUE(input->isVisible());
  EXPECT_EQ(record.WizardActive, kFalse);
  Scripted_Messages messages({Answer::Yes});
  Open();
  EXPECT_FALSE(input->isVisible());
}

TEST_F(DataWizard, Blocking_It_Comes_Back_When_It_Is_Closed_And_Is_Not_Active_Any_More) {
  QTimer::singleShot(0, &bench.main(), [this] { Click(Command(3)); });
  Open_Screen(Row_Of_Screen("Data_Wiz"), true);
  EXPECT_EQ(record.WizardActive, kFalse);
}

}  // namespace
}  // namespace barvon::testing
