#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <memory>

#include "checks/check_data.h"
#include "checks/sound_project.h"
#include "core/desk/accepted_screen.h"
#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/project_defaults.h"
#include "core/velocity_types.h"
#include "program_screens.h"
#include "support/record_differences.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

/// The wizard with the program's own screens behind its pages.
class WizardJourney : public ::testing::Test {
 protected:
  WizardJourney() {
    Register_Program_Screens(&bench.main());
    Set_Project_Defaults(record);
    record.WizardAccepted = kFalse;
    record.WizardHelpOn = kFalse;
    Write_Text(bench.folder / "BARVON.INI", "[Help Status]\r\nHelpOn=Off  \r\n");
    Port().board.display_data();
    *before = record;
    EXPECT_TRUE(Open_Screen(Row_Of_Screen("Data_Wiz"), false));
    wizard = bench.main().findChild<QWidget*>("Data_Wiz");
  }
  ~WizardJourney() override {
    for (const Screen_Row& row : kScreens) Register_Screen(row, {});
    record.WizardAccepted = kFalse;
  }

  template <class T>
  T* Child(const std::string& name) {
    return wizard->findChild<T*>(QString::fromStdString(name));
  }
  void Choose(const char* option) { Child<QRadioButton>(option)->click(); }
  void Command(int index) {
    Child<QPushButton>("Command1(" + std::to_string(index) + ")")->click();
  }
  /// Next, with an answer to each box and screen that comes up behind it.
  void Next(std::vector<Reply> replies = {}) {
    const Modal_Replies answers(std::move(replies));
    Command(1);
  }
  static Reply Command_Of_Screen(
      const char* screen, const char* command,
      std::function<void(QWidget*)> act = [](QWidget*) {}) {
    return [=](QWidget* window) {
      const auto* box = qobject_cast<QMessageBox*>(window);
      EXPECT_EQ(window->objectName().toStdString(), screen)
          << (box != nullptr ? box->text().toStdString() : "");
      act(window);
      auto* button = window->findChild<QPushButton*>(QLatin1String(command));
      ASSERT_NE(button, nullptr);
      button->click();
    };
  }
  void Enter_Typical_Values() {
    const char* const values[] = {"10000", "2400", "1", "0.1", "50", "18", "30"};
    for (int i = 0; i < 7; ++i) {
      Child<QLineEdit>("Text7(" + std::to_string(i) + ")")->setText(values[i]);
    }
  }
  Names Changed() const { return Differing_Fields(*before, record, {"WizardActive"}); }

  Main_Bench bench;
  ProjectRecord& record = Project();
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
  QWidget* wizard = nullptr;
};

TEST_F(WizardJourney, The_Site_And_The_Velocity_Are_Filled_From_The_Typical_Values) {
  Choose("SSOption3(1)");
  Next();
  Next();
  Next();
  Enter_Typical_Values();
  Next({Press(QMessageBox::Yes),
        Command_Of_Screen("frmDescription", "Command1(0)", [](QWidget* site) {
          EXPECT_EQ(site->findChild<QLineEdit*>("Text1(0)")->text(), "65");
          EXPECT_EQ(site->findChild<QLineEdit*>("Text1(3)")->text(), "175.00");
          EXPECT_EQ(site->findChild<QLineEdit*>("Text1(4)")->text(), "50.0");
          EXPECT_TRUE(site->findChild<QCheckBox*>("Check3D1(0)")->isChecked());
        })});
  EXPECT_EQ(record.NMAX0, 65);
  EXPECT_EQ(record.DZ0, 20);
  EXPECT_EQ(record.DEPC0, 50);
  EXPECT_EQ(record.DensityTemperatures[2], 18);
  EXPECT_EQ(record.DensitySalinities[1], 30);
  EXPECT_GT(record.Densities[1], 1);
  Choose("SSOption5(1)");
  Next({Command_Of_Screen("frmVelocity", "Command1(0)", [](QWidget* velocity) {
    EXPECT_TRUE(velocity->findChild<QRadioButton*>("Option3D1(1)")->isChecked());
  })});
  EXPECT_EQ(record.VelocityProfileType, kTwoPointVelocity);
  Next({Command_Of_Screen("frmMatBarge", "Command1(1)")});
  Command(3);
  EXPECT_EQ(record.NMAX0, 65) << "accepted";
  EXPECT_EQ(record.VelocityProfileType, kTwoPointVelocity);
  EXPECT_EQ(record.DisposalMethod, before->DisposalMethod);
}

/// Says OK to a screen on which what belongs to it is entered as in a sound project.
void Enter_Soundly(const Screen_Row& row, const std::function<void(ProjectRecord&)>& enter) {
  Register_Screen(row, [&row, enter](bool, const std::string&) {
    enter(Project());
    Accept_Screen(row, Project());
  });
}

TEST_F(WizardJourney, A_Walk_Ends_In_A_Project_Without_A_Fault) {
  const auto sound = std::make_unique<ProjectRecord>(Sound_Project());
  Enter_Soundly(Row_Of_Screen("frmMatBarge"), [&](ProjectRecord& project) {
    project.SolidNames[1] = sound->SolidNames[1];
    project.SolidVolFraction = sound->SolidVolFraction;
  });
  Enter_Soundly(Row_Of_Screen("frmOperation"), [&](ProjectRecord& project) {
    project.BargeLength = project.BargeWidth = sound->BargeLength;
  });
  Enter_Soundly(Row_Of_Screen("frmMdlkyn"), [](ProjectRecord& project) {
    // 64 intervals of 125 ft each way, the vessel at a fifth, two barges of 30 ft before it.
    EXPECT_DOUBLE_EQ(project.SiteTop, 1600 - 60);
    EXPECT_DOUBLE_EQ(project.SiteLeft, 1600 - 60);
    project.SiteBottom = project.SiteRight = 5000;
    project.TracerName() = "copper";
    project.CriterionConcentration = 0.5;
    project.TracerConcentration = 2;
    project.BackgroundConcentration = 0.1;
  });
  Choose("SSOption3(1)");
  Choose("SSOption2(2)");
  Next();
  Choose("SSOption4(1)");
  Choose("SSOption1(1)");
  Next();
  Next();
  Enter_Typical_Values();
  Child<QLineEdit>("Text7(3)")->setText("1");
  Next({Press(QMessageBox::Yes), Command_Of_Screen("frmDescription", "Command1(0)")});
  Next({Command_Of_Screen("frmVelocity", "Command1(0)", [](QWidget* velocity) {
    const char* const values[] = {"50", "1", "0.1"};
    for (int i = 0; i < 3; ++i) {
      velocity->findChild<QLineEdit*>(QStringLiteral("Text1(%1)").arg(i))->setText(values[i]);
    }
  })});
  Next();
  Next();
  Next();
  Command(2);
  record.LongTermTimeStep = 100;  // on the screen of time steps, afterwards
  Names faults;
  for (const auto& entry : Check_Data(record).entries) faults.push_back(entry.message);
  EXPECT_EQ(faults, Names{});
  EXPECT_EQ(record.KEY3, kNavigableWaterQuality);
  EXPECT_EQ(record.TracerName(), "copper");
}

TEST_F(WizardJourney, Screens_That_Are_Called_Off_Leave_No_Trace) {
  Choose("SSOption3(1)");
  Choose("SSOption2(2)");
  Next();
  Choose("SSOption4(1)");
  Next();
  Next();
  Enter_Typical_Values();
  Next({Press(QMessageBox::Yes),
        Command_Of_Screen("frmDescription", "Command1(1)", [](QWidget* site) {
          site->findChild<QCheckBox*>("Check3D1(1)")->click();
        })});
  EXPECT_EQ(Changed(), Names{});
  Choose("SSOption5(3)");
  Next({Command_Of_Screen("frmVelocity", "Command1(1)")});
  EXPECT_EQ(Changed(), Names{});
  Next({Command_Of_Screen("frmMatBarge", "Command1(1)")});
  EXPECT_EQ(Changed(), Names{});
  Command(3);
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(WizardJourney, No_For_A_Fresh_Project_Still_Brings_Depth_And_Water) {
  Next();
  Next();
  Next();
  Enter_Typical_Values();
  Next({Press(QMessageBox::No), Command_Of_Screen("frmDescription", "Command1(0)")});
  EXPECT_EQ(record.NMAX0, 32);
  EXPECT_EQ(record.DEPC0, 50);
  EXPECT_EQ(record.DensityTemperatures[1], 18);
}

TEST_F(WizardJourney, An_Unsteady_Velocity_Takes_The_Wizards_Duration) {
  Next();
  Next();
  Next();
  Enter_Typical_Values();
  Child<QLineEdit>("Text7(1)")->setText("7200");
  Next({Press(QMessageBox::Yes), Command_Of_Screen("frmDescription", "Command1(0)")});
  Choose("SSOption5(3)");
  Next({Command_Of_Screen("frmVelocity", "Command1(1)", [](QWidget* velocity) {
    EXPECT_EQ(velocity->findChild<QLineEdit*>("Text3(2)")->text(), "2.00");
  })});
}

TEST_F(WizardJourney, The_Graphical_Page_Opens_Over_It_And_Its_Grid_Stays) {
  Next();
  Next();
  const Modal_Replies answers(
      {Command_Of_Screen("Graphic_Data_Entry", "Command1(0)",
                         [](QWidget* page) {
                           page->findChild<QLineEdit*>("Text6(4)")->setText("3000");
                           page->findChild<QLineEdit*>("Text6(5)")->setText("1500");
                           page->findChild<QPushButton*>("Command3")->click();
                         }),
       Press(QMessageBox::Yes)});
  for (auto* button : Child<QGroupBox>("Frame1(2)")->findChildren<QPushButton*>()) button->click();
  EXPECT_EQ(record.NMAX0, 86) << "35 ft without a current";
  Command(3);
  EXPECT_EQ(record.NMAX0, 86);
}

}  // namespace
}  // namespace barvon::testing
