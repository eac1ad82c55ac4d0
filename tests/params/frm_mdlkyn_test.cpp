#include "params/frm_mdlkyn.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTabBar>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "checks/check_data.h"
#include "checks/frm_error_list.h"
#include "core/desk/screen_register.h"
#include "core/keys.h"
#include "core/wizard_answers.h"
#include "platform/ask/help_viewer.h"
#include "platform/qt/fields/number_field.h"
#include "support/record_differences.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

using Fields = std::vector<std::string>;

constexpr char kCountBox[] =
    "Number of Depths Is Less Than 1 or Greater Than 5.  Please Supply Valid Entry";

/// The screen over the main window, opened without blocking, on a grid of 3000 ft in X and 2000 ft
/// in Z.
class EvaluationScreen : public ::testing::Test {
 protected:
  EvaluationScreen() {
    Register_Screen(kRow, Fresh_Screens<frmMdlkyn>(&bench.main()));
    help_ = Set_Help_Presenter([this](const Help_Request& request) { asked.push_back(request); });
    record.ShowMode = 0;
    record.DataSaved = kTrue;
    record.MMAX0 = 31, record.NMAX0 = 41;
    record.DX0 = 100, record.DZ0 = 50;
    record.TracerName() = "Copper";
    record.TracerConcentration = 12.3456789;
    record.BackgroundConcentration = 0.001;
    record.CriterionConcentration = 0.0048;
    record.SedimentConcentration = 80;
    record.ToxicityDilution = 0.6;
    record.SiteTop = 400.4, record.SiteLeft = 500, record.SiteBottom = 1150;
    record.SiteRight = 1900;
    record.ZidFlag = 0;
    record.ZidTop = 410, record.ZidLeft = 510, record.ZidBottom = 600, record.ZidRight = 700;
    record.ZCRIT = 0.0096;
    record.ZidToxicityDilution = 2.5;
    record.NumOutputDepths = 3;
    for (int i = 1; i <= kMaxOutputDepths; ++i) record.OutputDepths[i] = 10.125 * i;
  }
  ~EvaluationScreen() override {
    if (Is_Open()) Screen()->Unload();
    Set_Help_Presenter(help_);
    Register_Screen(kRow, {});
    Answers_Of_Wizard() = {};
    record.WizardActive = kFalse;
    record.NumOutputDepths = 1;
  }

  frmMdlkyn* Screen() {
    for (auto* screen : bench.main().findChildren<QWidget*>(QStringLiteral("frmMdlkyn"))) {
      if (screen->isVisible()) return static_cast<frmMdlkyn*>(screen);
    }
    return nullptr;
  }
  bool Is_Open() { return Screen() != nullptr; }
  void Open(std::int16_t key3) {
    record.KEY3 = key3;
    record.AnalysisType = Analysis_Type_Of_KEY3(key3);
    Open_As_It_Is();
  }
  void Open_As_It_Is() {
    *before = record;
    ASSERT_TRUE(Open_Screen(kRow, false));
    ASSERT_TRUE(Has_Keyboard(Screen()));
  }
  template <class T>
  T* Child(const char* name) {
    return Screen()->findChild<T*>(QLatin1String(name));
  }
  QLineEdit* Field(const char* name) { return Child<QLineEdit>(name); }
  QLineEdit* Count() { return Field("Text8(5)"); }
  QLineEdit* Depth(int index) {
    return Screen()->findChild<QLineEdit*>(QStringLiteral("Text8(%1)").arg(index));
  }
  QTabWidget* Tabs() { return Child<QTabWidget>("SSTab1"); }
  void Show_Tab(int page) {
    QTest::mouseClick(Tabs()->tabBar(), Qt::LeftButton, {},
                      Tabs()->tabBar()->tabRect(page).center());
    ASSERT_EQ(Tabs()->currentIndex(), page);
  }
  void Command(int index) {
    Click(Screen()->findChild<QPushButton*>(QStringLiteral("Command1(%1)").arg(index)));
  }
  void Enter(QLineEdit* field, const QString& text) {
    ASSERT_TRUE(field->isVisible() && field->isEnabled());
    field->setFocus();
    field->selectAll();
    field->del();
    Type(field, text);
  }
  void Enter(const char* field, const QString& text) { Enter(Field(field), text); }
  /// Whether the field has the focus of its window, which may still be behind a box.
  bool Is_In(const QWidget* field) { return Screen()->focusWidget() == field; }
  void Back_At_The_Screen() {
    Screen()->activateWindow();
    ASSERT_TRUE(Has_Keyboard(Screen()));
  }
  void Point_At(const Feet_Point& point) {
    emit Child<Plan_Picture>("SitePlan")->Point_Chosen(point);
  }
  /// "label: text" of the fields that show in the frame, in the order of the layout's labels.
  Fields Shown_In(const char* frame) {
    Fields shown;
    for (auto* label : Child<QWidget>(frame)->findChildren<QLabel*>()) {
      if (label->isHidden()) continue;
      auto* field = qobject_cast<QLineEdit*>(label->buddy());
      std::string text = label->text().toStdString();
      if (field != nullptr) {
        text += ": ";
        text += field->text().toStdString();
      }
      shown.push_back(text);
    }
    return shown;
  }
  Fields Changed() const { return Differing_Fields(*before, record); }
  std::string Caption() { return Screen()->windowTitle().toStdString(); }

  static constexpr const Screen_Row& kRow = Row_Of_Screen("frmMdlkyn");
  Main_Bench bench;
  ProjectRecord& record = Project();
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
  std::vector<Help_Request> asked;

 private:
  Help_Presenter help_;
};

TEST_F(EvaluationScreen, A_Tracer) {
  Open(1);
  EXPECT_EQ(Caption(), "Water Quality Analysis for General Open Water Disposal");
  EXPECT_EQ(Child<QGroupBox>("fraGeneral")->title(), "Conservative Tracer Description");
  EXPECT_EQ(Shown_In("fraGeneral"),
            (Fields{"Description of Conservative Tracer:  Copper",
                    "Tracer Concentration in Dredged Material: 12.345679",
                    "Background Concentration at Disposal Site: 0.001000"}));
  EXPECT_EQ(Child<QLabel>("Label4(0)")->buddy(), Field("Text4(2)"));
  EXPECT_TRUE(Child<QWidget>("mixzone")->isHidden());
  EXPECT_TRUE(Child<QWidget>("SSFrame2")->isHidden());
  EXPECT_FALSE(Tabs()->isTabEnabled(1));
  EXPECT_EQ(Changed(), Fields{});
  EXPECT_FALSE(Screen()->Holds_Unsaved_Input());
}

TEST_F(EvaluationScreen, Water_Quality_Of_Ocean_Sites) {
  Open(2);
  EXPECT_EQ(Caption(), "Water Quality Analysis for Section 103 Regulatory Analysis");
  EXPECT_EQ(Child<QGroupBox>("mixzone")->title(), "Description of Disposal Site");
  EXPECT_EQ(
      Shown_In("mixzone"),
      (Fields{
          "Specify Location of Upper Left Corner of Disposal Site on Grid",
          "Specify Location of Lower Right Corner of  Disposal Site on Grid",
          "Distance from Top Edge of Grid (ft): 400", "Distance from Left Edge of Grid (ft): 500",
          "Distance from Top Edge of Grid (ft): 1150", "Distance from Left Edge of Grid (ft): 1900",
          "Water Quality Criteria for Contaminant (mg/l): 0.00480",
          "Description of Contaminant: Copper",
          "Predicted Initial Concentration in Fluid Fraction (mg/l): 12.34568",
          "Background Concentration at Disposal Site (mg/l): 0.00100"}));
  EXPECT_EQ(Child<QLabel>("Label1(2)")->buddy(), Field("Text2"));
  EXPECT_TRUE(Child<QWidget>("fraGeneral")->isHidden());
  EXPECT_TRUE(Child<QWidget>("SSFrame1")->isHidden());
  EXPECT_FALSE(Tabs()->isTabEnabled(1));
  EXPECT_TRUE(Child<QPlainTextEdit>("Text3")->toPlainText().startsWith("A Zone of Initial"));
}

TEST_F(EvaluationScreen, Toxicity_Of_Ocean_Sites) {
  Open(3);
  EXPECT_EQ(Caption(), "Water Quality Analysis for Section 103 Regulatory Analysis");
  EXPECT_EQ(Shown_In("mixzone").size(), 7U);
  EXPECT_EQ(Shown_In("mixzone").back(),
            "Enter Dilution Required to Meet Toxicity Criteria (%) (Typically, 1% of LC50): "
            "0.600000");
  Enter("Text1(0)", "0.75");
  Command(0);
  EXPECT_EQ(record.TracerName(), "FLUID");
  EXPECT_EQ(record.TracerConcentration, 100);
  EXPECT_EQ(record.BackgroundConcentration, 0);
  EXPECT_EQ(record.ToxicityDilution, 0.75);
  EXPECT_EQ(record.ZidTop, 410);
}

TEST_F(EvaluationScreen, Further_Testing_Of_Ocean_Sites) {
  record.NumSolids = 1;
  record.SolidSG[1] = 2.5;
  record.SolidVolFraction[1] = 0.0625;
  Open(4);
  const Fields shown = Shown_In("mixzone");
  EXPECT_EQ(Fields(shown.end() - 4, shown.end()),
            (Fields{"Water Quality Criteria for Contaminant (mg/l): 0.00480",
                    "Description of Contaminant: Copper",
                    "Contaminant Concentration in Sediment (mg/kg): 80.00000",
                    "Background Concentration at Disposal Site (mg/l): 0.00100"}));
  EXPECT_EQ(Child<QLabel>("Label1(2)")->buddy(), Field("Text1(1)"));
  Enter("Text1(1)", "160");
  Command(0);
  EXPECT_EQ(record.TracerConcentration, 25);  // 2.5 x 160 x 0.0625
}

TEST_F(EvaluationScreen, Water_Quality_Of_Navigable_Waters) {
  Open(5);
  EXPECT_EQ(Caption(), "Water Quality Analysis for Section 404(b)(1) Regulatory Analysis");
  EXPECT_EQ(Child<QGroupBox>("mixzone")->title(), "Description of Mixing Zone");
  const Fields shown = Shown_In("mixzone");
  EXPECT_EQ(shown[0],
            "Specify Location of Upper Left Corner of Mixing Zone on Grid. Enter Zeroes if You "
            "Want BARVON to Compute a Mixing Zone.");
  EXPECT_EQ(Fields(shown.end() - 4, shown.end()),
            (Fields{"Water Quality Standard at Border of Mixing Zone for Contaminant of Concern "
                    "(mg/l): 0.00480",
                    "Contaminant of Concern: Copper",
                    "Predicted Initial Concentration in Fluid Fraction (mg/l): 12.34568",
                    "Background Concentration at Disposal Site (mg/l): 0.00100"}));
  EXPECT_EQ(Child<QLabel>("SSFrame1")->text(),
            "See program help for guidelines on computing the size of the Mixing Zone (for Section "
            "404 Analysis ONLY), for options on computing the size of the Zone of Initial Dilution "
            "and for assistance on Transport-Diffusion output options.");
  EXPECT_TRUE(Child<QLabel>("SSFrame1")->isVisible());
  EXPECT_TRUE(Tabs()->isTabEnabled(1));
  Show_Tab(1);
  EXPECT_EQ(
      Shown_In("SSFrame2"),
      (Fields{
          "Specify Location of Upper Left Corner of ZID on Grid",
          "Specify Location of Lower Right Corner of ZID on Grid",
          "Distance from Top Edge of Grid (ft): 410", "Distance from Left Edge of Grid (ft): 510",
          "Distance from Top Edge of Grid (ft): 600", "Distance from Left Edge of Grid (ft): 700",
          "Water Quality Standard at Border of ZID (mg/l): 0.009600"}));
  EXPECT_TRUE(Child<QPlainTextEdit>("Text3")->toPlainText().endsWith(
      "can be exceeded.\nEnter zeros if you want BARVON to calcualte the size of the ZID for "
      "you."));
}

TEST_F(EvaluationScreen, Toxicity_Of_Navigable_Waters) {
  Open(6);
  EXPECT_EQ(Shown_In("mixzone").back(),
            "Enter Dilution Required to Meet Toxicity Standard (%) (Typically, 1% of LC50): "
            "0.600000");
  Show_Tab(1);
  EXPECT_EQ(Shown_In("SSFrame2").back(),
            "Dilution required to meet Toxicity Standard at Border of ZID (%): 2.500000");
  EXPECT_EQ(Child<QLabel>("Label6")->buddy(), Field("Text6"));
  Click(Child<QCheckBox>("Check3D1"));
  Enter("Text6", "3");
  Enter("Text5(3)", "720");
  Command(0);
  EXPECT_EQ(record.ZidToxicityDilution, 3);
  EXPECT_EQ(record.ZCRIT, 0.0096);
  EXPECT_EQ(record.ZidFlag, 1);
  EXPECT_EQ(record.ZidRight, 720);
  EXPECT_EQ(record.TracerName(), "FLUID");
}

TEST_F(EvaluationScreen, Further_Testing_Of_Navigable_Waters) {
  record.NumSolids = 0;
  Open(7);
  EXPECT_EQ(Child<QLabel>("Label1(1)")->text(), "Contaminant of Concern");
  EXPECT_EQ(Child<QLabel>("Label1(2)")->text(), "Contaminant Concentration in Sediment (mg/kg)");
  EXPECT_FALSE(Field("Text2")->isVisible());
  Show_Tab(1);
  EXPECT_EQ(Shown_In("SSFrame2").back(),
            "Water Quality Standard at Border of ZID (mg/l): 0.009600");
  Command(0);
  EXPECT_EQ(record.TracerConcentration, 0);
}

TEST_F(EvaluationScreen, The_Wizard_Tells_What_The_Dilution_Is_Called) {
  const std::string standard =
      "Enter Dilution Required to Meet Toxicity Standard (%) (Typically, 1% of LC50)";
  const std::string criteria =
      "Enter Dilution Required to Meet Toxicity Criteria (%) (Typically, 1% of LC50)";
  for (const auto& [key3, option, label] :
       {std::tuple{std::int16_t{3}, 1, criteria}, {std::int16_t{6}, 2, standard}}) {
    record.KEY3 = key3;
    record.AnalysisType = kOpenWater;  // the wizard stores it at its end
    record.WizardActive = kTrue;
    Answers_Of_Wizard().analysis_option = option;
    Open_As_It_Is();
    EXPECT_EQ(Child<QLabel>("Label1(0)")->text().toStdString(), label);
    EXPECT_EQ(Caption(), key3 == 3
                             ? "Water Quality Analysis for Section 103 Regulatory Analysis"
                             : "Water Quality Analysis for Section 404(b)(1) Regulatory Analysis");
    Command(1);
  }
}

TEST_F(EvaluationScreen, Every_Evaluation_Opens_From_The_Wizard_As_It_Does_Without) {
  for (std::int16_t key3 = 1; key3 <= 7; ++key3) {
    Open(key3);
    const std::string caption = Caption();
    const Fields tracer = Shown_In("fraGeneral"), boundary = Shown_In("mixzone");
    const Fields zid = Shown_In("SSFrame2");
    Command(1);
    Answers_Of_Wizard().analysis_option = record.AnalysisType - 1;
    record.WizardActive = kTrue;
    record.AnalysisType = kNoAnalysis;
    Open_As_It_Is();
    EXPECT_EQ(Caption(), caption);
    EXPECT_EQ(Shown_In("fraGeneral"), tracer);
    EXPECT_EQ(Shown_In("mixzone"), boundary);
    EXPECT_EQ(Shown_In("SSFrame2"), zid);
    EXPECT_EQ(Tabs()->isTabEnabled(1), key3 >= 5);
    Enter(key3 == 1 ? "Text4(0)" : "Text(0)", "321");
    Command(0);
    EXPECT_EQ(key3 == 1 ? record.TracerConcentration : record.SiteTop, 321) << key3;
    record.WizardActive = kFalse;
  }
}

TEST_F(EvaluationScreen, OK_Without_Changes_Leaves_The_Values_And_Reports_It) {
  Open(5);
  Command(0);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), (Fields{"DataSaved", "ScreenDataSupplied"}));
  EXPECT_EQ(record.ScreenDataSupplied[5], kTrue);
  EXPECT_EQ(bench.controls().Text2(0)->text(), "Data Supplied");
  EXPECT_EQ(bench.controls().Text2(0)->palette().color(QPalette::WindowText), QColor(0, 0, 255));
  EXPECT_TRUE(bench.Action("mnuEditItem(3)")->isChecked());
}

TEST_F(EvaluationScreen, OK_Stores_Fields_Of_Every_Tab) {
  Open(5);
  Enter("Text(1)", "520");
  Enter("Text1(2)", " Zinc ");
  Show_Tab(1);
  Click(Child<QCheckBox>("Check3D1"));
  Enter("Text5(0)", "0");
  Show_Tab(2);
  Enter(Depth(1), "22.5");
  Command(0);
  EXPECT_EQ(Changed(), (Fields{"DataSaved", "ScreenDataSupplied", "SiteLeft", "ZidFlag", "ZidTop",
                               "OutputDepths", "SolidNames", "TracerName"}));
  EXPECT_EQ(record.TracerName(), "Zinc");
  EXPECT_EQ(record.SiteLeft, 520);
  EXPECT_EQ(record.SiteTop, 400.4);
  EXPECT_EQ(record.ZidTop, 0);
  EXPECT_EQ(record.OutputDepths[2], 22.5);
  EXPECT_EQ(record.OutputDepths[1], 10.125);
}

TEST_F(EvaluationScreen, The_Zid_Is_In_The_Record_At_Once_And_Frees_Its_Fields) {
  Open(5);
  Show_Tab(1);
  for (const char* field : {"Text5(0)", "Text5(3)", "Text6"}) {
    EXPECT_FALSE(Field(field)->isEnabled()) << field;
  }
  Click(Child<QCheckBox>("Check3D1"));
  EXPECT_EQ(Changed(), Fields{"ZidFlag"});
  EXPECT_EQ(record.ZidFlag, 1);
  for (const char* field : {"Text5(0)", "Text5(3)", "Text6"}) {
    EXPECT_TRUE(Field(field)->isEnabled()) << field;
  }
  Click(Child<QCheckBox>("Check3D1"));
  EXPECT_EQ(record.ZidFlag, 0);
  EXPECT_FALSE(Field("Text6")->isEnabled());
}

TEST_F(EvaluationScreen, Cancel_Takes_Back_The_Zid) {
  Open(5);
  Show_Tab(1);
  Click(Child<QCheckBox>("Check3D1"));
  Command(1);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(EvaluationScreen, Cancel_Takes_Back_Depths_And_Their_Number) {
  Open(1);
  Show_Tab(2);
  Enter(Depth(0), "5");
  EXPECT_EQ(Changed(), Fields{"OutputDepths"});
  Enter(Count(), "5");
  Enter(Depth(4), "55");
  EXPECT_EQ(Changed(), (Fields{"NumOutputDepths", "OutputDepths"}));
  EXPECT_EQ(record.NumOutputDepths, 5);
  EXPECT_EQ(record.OutputDepths[5], 55);
  Command(1);
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(EvaluationScreen, Escape_Is_Cancel_And_Says_Nothing_Of_The_Number) {
  Open(1);
  Show_Tab(2);
  const Modal_Replies none({});
  Enter(Count(), "9");
  QTest::keyClick(Count(), Qt::Key_Escape);
  EXPECT_FALSE(Is_Open());
  QCoreApplication::processEvents();
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(EvaluationScreen, Cancel_And_Help_Say_Nothing_Of_The_Number) {
  Open(1);
  Show_Tab(2);
  const Modal_Replies none({});
  Enter(Count(), "0");
  Command(2);
  QCoreApplication::processEvents();
  EXPECT_TRUE(Is_Open());
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].topic, 2540);
  Command(1);
  QCoreApplication::processEvents();
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), Fields{});
  EXPECT_EQ(none.windows, 0);
}

TEST_F(EvaluationScreen, The_Close_Box_Says_Nothing_Of_The_Number) {
  Open(1);
  Show_Tab(2);
  const Modal_Replies none({});
  Enter(Count(), "6");
  static_cast<QWidget*>(Screen())->close();
  QCoreApplication::processEvents();
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), Fields{});
  EXPECT_EQ(none.windows, 0);
}

TEST_F(EvaluationScreen, Leaving_The_Field_With_A_Number_Out_Of_Range_Leads_Back_To_It) {
  Open(1);
  Show_Tab(2);
  for (const char* typed : {"0", "6", ""}) {
    Modal_Replies replies({Press(QMessageBox::Ok)});
    Enter(Count(), typed);
    QTest::keyClick(Count(), Qt::Key_Tab);
    ASSERT_TRUE(Wait_Until([&] { return replies.windows == 1 && Is_In(Count()); })) << typed;
    EXPECT_EQ(replies.seen.at(0).text, kCountBox);
    EXPECT_EQ(replies.seen.at(0).title, "BARVON");
    EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::NoIcon);
    Back_At_The_Screen();
  }
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(EvaluationScreen, Leaving_By_Another_Tab_Leads_Back_Too) {
  Open(1);
  Show_Tab(2);
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Enter(Count(), "7");
  QTest::mouseClick(Tabs()->tabBar(), Qt::LeftButton, {}, Tabs()->tabBar()->tabRect(0).center());
  ASSERT_TRUE(Wait_Until([&] { return replies.windows == 1 && Is_In(Count()); }));
  EXPECT_EQ(Tabs()->currentIndex(), 2);
}

TEST_F(EvaluationScreen, A_Number_In_Range_May_Be_Left) {
  Open(1);
  Show_Tab(2);
  const Modal_Replies none({});
  Enter(Count(), "4");
  QTest::keyClick(Count(), Qt::Key_Tab);
  QCoreApplication::processEvents();
  EXPECT_FALSE(Is_In(Count()));
  EXPECT_EQ(none.windows, 0);
}

TEST_F(EvaluationScreen, OK_Tells_A_Number_Out_Of_Range_And_Takes_It_When_Confirmed) {
  for (const auto& [typed, stored] : {std::pair{"0", 0}, {"6", 5}, {"-2", 1}}) {
    record.NumOutputDepths = 3;
    Open(1);
    Show_Tab(2);
    Modal_Replies replies({Press(QMessageBox::Ok)});
    Enter(Count(), typed);
    Command(0);
    ASSERT_TRUE(Is_Open());
    EXPECT_EQ(replies.seen.at(0).text, kCountBox);
    EXPECT_TRUE(Is_In(Count()));
    EXPECT_NE(record.NumOutputDepths, 6);
    Command(0);
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(record.NumOutputDepths, stored);
    EXPECT_EQ(replies.windows, 1);
    Open(1);
    EXPECT_EQ(Count()->text(), QString::number(std::max(stored, 1)));
    Command(1);
  }
}

TEST_F(EvaluationScreen, The_First_OK_Tells_The_Number_Again_That_Leaving_Its_Field_Told) {
  Open(1);
  Show_Tab(2);
  Modal_Replies replies({Press(QMessageBox::Ok), Press(QMessageBox::Ok), Press(QMessageBox::Ok)});
  Enter(Count(), "6");
  QTest::keyClick(Count(), Qt::Key_Tab);
  ASSERT_TRUE(Wait_Until([&] { return replies.windows == 1 && Is_In(Count()); }));
  Back_At_The_Screen();
  Command(0);
  EXPECT_EQ(replies.windows, 2);
  ASSERT_TRUE(Is_Open());
  // Another number and the same again: that is a new one.
  Enter(Count(), "4");
  Enter(Count(), "6");
  Command(0);
  EXPECT_EQ(replies.windows, 3);
  ASSERT_TRUE(Is_Open());
  Command(0);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.NumOutputDepths, 5);
}

TEST_F(EvaluationScreen, A_Refused_OK_Stores_Nothing) {
  Open(1);
  Enter("Text4(0)", "99");
  Show_Tab(2);
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Enter(Count(), "0");
  Command(0);
  Command(1);
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(EvaluationScreen, OK_On_Another_Tab_Leads_To_The_Number) {
  Open(1);
  Show_Tab(2);
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Enter(Count(), "8");
  QTest::keyClick(Count(), Qt::Key_Return);
  EXPECT_EQ(replies.windows, 1);
  EXPECT_TRUE(Is_Open());
  EXPECT_EQ(Tabs()->currentIndex(), 2);
}

TEST_F(EvaluationScreen, All_Depths_Are_Filled_And_Those_Beyond_The_Number_Locked) {
  Open(1);
  Show_Tab(2);
  EXPECT_EQ(Count()->text(), "3");
  const char* depths[] = {"10.13", "20.25", "30.38", "40.50", "50.63"};
  for (int i = 0; i < kMaxOutputDepths; ++i) {
    EXPECT_EQ(Depth(i)->text(), depths[i]);
    EXPECT_EQ(Depth(i)->isReadOnly(), i >= 3);
  }
  Enter(Count(), "5");
  EXPECT_FALSE(Depth(4)->isReadOnly());
  Enter(Count(), "1");
  EXPECT_TRUE(Depth(1)->isReadOnly());
  EXPECT_EQ(Depth(1)->text(), "20.25");
  Enter(Count(), "4");
  EXPECT_FALSE(Depth(3)->isReadOnly());
  EXPECT_EQ(Depth(3)->text(), "40.50");
  Enter(Count(), "6");
  EXPECT_FALSE(Depth(3)->isReadOnly());
  EXPECT_TRUE(Depth(4)->isReadOnly());
  EXPECT_EQ(record.NumOutputDepths, 4);
}

TEST_F(EvaluationScreen, A_Number_From_A_File_Is_Brought_In_Before_The_Copy_Is_Taken) {
  record.NumOutputDepths = 9;
  Open(1);
  EXPECT_EQ(Count()->text(), "5");
  EXPECT_FALSE(Depth(4)->isReadOnly());
  EXPECT_FALSE(Screen()->Holds_Unsaved_Input());
  Command(1);
  EXPECT_EQ(record.NumOutputDepths, 5);
}

TEST_F(EvaluationScreen, Reset_Does_Nothing) {
  Open(5);
  Enter("Text(0)", "7");
  Command(3);
  EXPECT_TRUE(Is_Open());
  EXPECT_EQ(Field("Text(0)")->text(), "7");
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(EvaluationScreen, Captions_Stand_As_They_Are_Told) {
  Open(5);
  EXPECT_EQ(Tabs()->tabText(0), "Description");
  EXPECT_EQ(Tabs()->tabText(1), "Zone of Initial Dilution");
  EXPECT_EQ(Tabs()->tabText(2), "Transport-Diffusion Output");
  EXPECT_EQ(Child<QCheckBox>("Check3D1")->text(),
            "Do you want to evaluate a Zone of Initial Dilution (ZID)?");
  EXPECT_EQ(Shown_In("fraLTD").at(0),
            "Number of Depths for which Output is Desired. Minimum of 2 Recommended, Maximum of 5 "
            "Allowed.: 3");
  EXPECT_TRUE(Child<QWidget>("fraLTD")->isEnabled());
  EXPECT_EQ(Child<QPushButton>("Command1(1)")->text(), "C&ancel");
  EXPECT_EQ(Child<QPushButton>("Command1(3)")->text(), "&Reset");
  EXPECT_EQ(Field("Text(2)")->accessibleName(),
            "Lower right corner: Distance from Top Edge of Grid (ft)");
}

/// A corner outside of the grid, as the list shows it for every evaluation.
TEST_F(EvaluationScreen, The_Error_List_Leads_To_The_Corners_Of_Any_Evaluation) {
  Register_frmErrorList(&bench.main());
  for (const std::int16_t key3 : {0, 1}) {
    record.KEY3 = key3;
    record.AnalysisType = kOpenWater;
    record.SiteTop = -5;
    Current_Errors() = {};
    Current_Errors().Add("one", "frmMdlkyn!Text(0)");
    *before = record;
    ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmErrorList"), false));
    auto* list = bench.main().findChild<QListWidget*>("List1");
    ASSERT_TRUE(Has_Keyboard(list->window()));
    list->setCurrentRow(0);
    QTest::keyClick(list, Qt::Key_Return);
    ASSERT_TRUE(Is_Open());
    EXPECT_TRUE(Child<QWidget>("mixzone")->isVisible());
    EXPECT_EQ(Child<QWidget>("fraGeneral")->isVisible(), key3 == 1);
    EXPECT_EQ(Field("Text(0)")->text(), "-5");
    EXPECT_EQ(Field("Text(3)")->text(), "1900");
    Enter("Text(0)", "250");
    Command(0);
    EXPECT_EQ(Changed(), (Fields{"DataSaved", "ScreenDataSupplied", "SiteTop"})) << key3;
    EXPECT_EQ(record.SiteTop, 250);
    list->window()->close();
    record.ScreenDataSupplied[5] = kFalse;
    record.DataSaved = kTrue;
  }
  Current_Errors() = {};
}

TEST_F(EvaluationScreen, The_Error_List_Shows_The_Corners_On_A_Screen_That_Is_Open) {
  Open(1);
  Enter("Text4(0)", "99");
  Show_Tab(2);
  {
    const Lead_To_Screen lead(kRow);
    ASSERT_TRUE(Open_Screen(kRow, false));
  }
  EXPECT_EQ(Tabs()->currentIndex(), 0);
  EXPECT_TRUE(Child<QWidget>("mixzone")->isVisible());
  EXPECT_EQ(Field("Text(0)")->text(), "400");
  EXPECT_EQ(Field("Text4(0)")->text(), "99");
  Enter("Text(0)", "250");
  Command(0);
  EXPECT_EQ(Changed(),
            (Fields{"DataSaved", "ScreenDataSupplied", "TracerConcentration", "SiteTop"}));
}

TEST_F(EvaluationScreen, The_Board_Shows_No_Corners_Of_A_Tracer_However_Often_It_Opens) {
  Open(1);
  ASSERT_TRUE(Open_Screen(kRow, false));
  EXPECT_TRUE(Child<QWidget>("mixzone")->isHidden());
  Command(0);
  EXPECT_EQ(Changed(), (Fields{"DataSaved", "ScreenDataSupplied"}));
}

TEST_F(EvaluationScreen, The_Plan_Follows_What_Is_Typed) {
  Open(5);
  auto* plan = Child<Plan_Picture>("SitePlan");
  const auto told = [&] {
    QCoreApplication::processEvents();
    return plan->accessibleDescription().toStdString();
  };
  EXPECT_NE(told().find("X 400.4 to 1150 ft, Z 500 to 1900 ft"), std::string::npos) << told();
  Enter("Text(2)", "1200");
  EXPECT_NE(told().find("X 400.4 to 1200 ft, Z 500 to 1900 ft"), std::string::npos) << told();
  EXPECT_EQ(told().find("X 410 to 600 ft"), std::string::npos) << told();
  Show_Tab(1);
  Click(Child<QCheckBox>("Check3D1"));
  EXPECT_NE(told().find("X 410 to 600 ft, Z 510 to 700 ft"), std::string::npos) << told();
  Enter("Text5(2)", "650");
  EXPECT_NE(told().find("X 410 to 650 ft, Z 510 to 700 ft"), std::string::npos) << told();
}

TEST_F(EvaluationScreen, A_Point_Of_The_Plan_Goes_To_The_Corner_Whose_Field_Was_In_Use) {
  Open(5);
  const auto point_at = [&](const Feet_Point& point) {
    Modal_Replies replies({Press(QMessageBox::Yes)});
    Point_At(point);
    Back_At_The_Screen();
    return replies.seen.at(0).text.toStdString();
  };
  EXPECT_EQ(point_at({1200, 800}),
            "Put the upper left corner of the mixing zone at X = 1200 ft, Z = 800 ft?");
  EXPECT_EQ(Field("Text(0)")->text(), "1200");
  EXPECT_EQ(Field("Text(1)")->text(), "800");
  Field("Text(3)")->setFocus();
  EXPECT_EQ(point_at({1600, 1700}),
            "Put the lower right corner of the mixing zone at X = 1600 ft, Z = 1700 ft?");
  EXPECT_EQ(Field("Text(2)")->text(), "1600");
  EXPECT_EQ(Field("Text(3)")->text(), "1700");
  Show_Tab(1);
  Click(Child<QCheckBox>("Check3D1"));
  Field("Text5(1)")->setFocus();
  EXPECT_EQ(point_at({1300, 900}),
            "Put the upper left corner of the ZID at X = 1300 ft, Z = 900 ft?");
  EXPECT_EQ(Field("Text5(0)")->text(), "1300");
  EXPECT_EQ(Field("Text5(1)")->text(), "900");
  Field("Text5(2)")->setFocus();
  EXPECT_EQ(point_at({1400, 1000}),
            "Put the lower right corner of the ZID at X = 1400 ft, Z = 1000 ft?");
  Click(Child<QCheckBox>("Check3D1"));
  EXPECT_EQ(point_at({100, 200}),
            "Put the upper left corner of the mixing zone at X = 100 ft, Z = 200 ft?");
  EXPECT_EQ(Changed(), Fields{});
  Field("Text(0)")->undo();
  EXPECT_EQ(Field("Text(0)")->text(), "1200");
}

TEST_F(EvaluationScreen, The_Plan_Offers_A_Corner_Of_The_Rectangle_In_Front) {
  Open(5);
  const auto offered = [&] {
    Modal_Replies replies({Press(QMessageBox::No)});
    Point_At({100, 200});
    Back_At_The_Screen();
    const std::string text = replies.seen.at(0).text.toStdString();
    return text.substr(0, text.find(" at X"));
  };
  Show_Tab(1);
  EXPECT_EQ(offered(), "Put the upper left corner of the mixing zone");  // there is no ZID yet
  Click(Child<QCheckBox>("Check3D1"));
  EXPECT_EQ(offered(), "Put the upper left corner of the ZID");
  Show_Tab(0);
  EXPECT_EQ(offered(), "Put the upper left corner of the mixing zone");
  Show_Tab(1);
  EXPECT_EQ(offered(), "Put the upper left corner of the ZID");
  Field("Text5(2)")->setFocus();
  EXPECT_EQ(offered(), "Put the lower right corner of the ZID");
  Show_Tab(2);
  EXPECT_EQ(offered(), "Put the lower right corner of the ZID");
}

TEST_F(EvaluationScreen, A_Click_On_The_Plan_Is_A_Point_In_Feet) {
  Open(5);
  QCoreApplication::processEvents();
  auto* plan = Child<Plan_Picture>("SitePlan");
  Modal_Replies replies({Press(QMessageBox::Yes)});
  QTest::mouseClick(plan, Qt::LeftButton, {}, plan->Place_Of({1500, 1000}).toPoint());
  ASSERT_EQ(replies.windows, 1);
  // A pixel is some ten feet.
  EXPECT_NEAR(Field("Text(0)")->text().toDouble(), 1500, 20);
  EXPECT_NEAR(Field("Text(1)")->text().toDouble(), 1000, 20);
}

TEST_F(EvaluationScreen, No_Leaves_The_Corner) {
  Open(2);
  Modal_Replies replies({Press(QMessageBox::No)});
  Point_At({100, 200});
  EXPECT_EQ(replies.seen.at(0).text,
            "Put the upper left corner of the disposal site at X = 100 ft, Z = 200 ft?");
  EXPECT_EQ(Field("Text(0)")->text(), "400");
}

TEST_F(EvaluationScreen, The_Plan_Of_A_Tracer_Takes_No_Points) {
  Open(1);
  const Modal_Replies none({});
  auto* plan = Child<Plan_Picture>("SitePlan");
  QTest::mouseClick(plan, Qt::LeftButton, {}, plan->Place_Of({100, 200}).toPoint());
  EXPECT_EQ(none.windows, 0);
  EXPECT_TRUE(plan->isVisible());
}

TEST_F(EvaluationScreen, Numbers_Read_As_Others_Are_Marked) {
  Open(5);
  Enter("Text(0)", "400 ft");
  EXPECT_EQ(Number_Note_Of(Field("Text(0)")), "reads as 400");
  Show_Tab(2);
  Enter(Count(), "2.6");
  EXPECT_EQ(Number_Note_Of(Count()), "reads as 3");
  EXPECT_EQ(record.NumOutputDepths, 3);
}

}  // namespace
}  // namespace barvon::testing
