#include "params/frm_coefficients.h"

#include <gtest/gtest.h>

#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "core/desk/screen_register.h"
#include "core/keys.h"
#include "support/record_differences.h"
#include "support/screen_support.h"
#include "workspace/file_menu.h"

namespace barvon::testing {
namespace {

using Fields = std::vector<std::string>;

/// The screen of a new hopper project over the main window, opened without blocking.
class CoefficientsScreen : public ::testing::Test {
 protected:
  CoefficientsScreen() {
    Register_Screen(kRow, Fresh_Screens<frmCoefficients>(&bench.main()));
    record.ShowMode = 0;
    record.DisposalMethod = kHopper;
    record.DataSaved = kTrue;
  }
  ~CoefficientsScreen() override { Register_Screen(kRow, {}); }

  frmCoefficients* Screen() {
    for (auto* screen : bench.main().findChildren<QWidget*>(QStringLiteral("frmCoefficients"))) {
      if (screen->isVisible()) return static_cast<frmCoefficients*>(screen);
    }
    return nullptr;
  }
  void Open() {
    *before = record;
    ASSERT_TRUE(Open_Screen(kRow, false));
    ASSERT_TRUE(Has_Keyboard(Screen()));
  }
  QPushButton* Command1(int index) {
    return Screen()->findChild<QPushButton*>(QStringLiteral("Command1(%1)").arg(index));
  }
  QCheckBox* Check3D1() { return Screen()->findChild<QCheckBox*>(QStringLiteral("Check3D1")); }
  F1Book& Book() { return *Screen()->findChild<F1Book*>(QStringLiteral("F1Book1")); }
  std::string Shown(int row, int col) { return Book().table().ShownRC(row, col); }
  QVariant Seen(int row, int col, int role) {
    return Book().model()->index(row - 1, col - 1).data(role);
  }
  bool Is_Bold(int row) { return Seen(row, 4, Qt::FontRole).value<QFont>().bold(); }
  bool Is_Warned(int row) { return Seen(row, 4, Qt::BackgroundRole).isValid(); }
  Fields Changed() const { return Differing_Fields(*before, record); }
  QString Status() { return bench.controls().Text2(5)->text(); }
  QColor Status_Ink() { return bench.controls().Text2(5)->palette().color(QPalette::WindowText); }

  static constexpr const Screen_Row& kRow = Row_Of_Screen("frmCoefficients");
  Main_Bench bench;
  ProjectRecord& record = Project();
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
};

TEST_F(CoefficientsScreen, Captions_Stand_As_They_Are_Told) {
  Open();
  EXPECT_EQ(Screen()->windowTitle(), "Table of Coefficients");
  EXPECT_EQ(Check3D1()->text(),
            "Calculate Vertical Diffusion Coeff (AKY0) using Pritchard Expression Insead of Using "
            "Current Value?");
  EXPECT_EQ(Command1(0)->text(), "OK");
  EXPECT_EQ(Command1(1)->text(), "C&ancel");
  EXPECT_EQ(Command1(2)->text(), "&Help");
  EXPECT_EQ(Command1(3)->text(), "&Default");
  EXPECT_EQ(Shown(3, 1), "Drag Coefficient For a Sphere");
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(CoefficientsScreen, OK_Without_Changes_Reads_User_Defined) {
  Open();
  Click(Command1(0));
  EXPECT_EQ(Screen(), nullptr);
  EXPECT_EQ(Status(), "User-Defined Coefficients");
  EXPECT_EQ(Status_Ink(), QColor(0, 0, 255));
  EXPECT_EQ(Changed(), (Fields{"DataSaved", "ScreenDataSupplied"}));
  EXPECT_EQ(record.ScreenDataSupplied[10], kTrue);
  EXPECT_TRUE(bench.Action("mnuEditItem(6)")->isChecked());
}

TEST_F(CoefficientsScreen, OK_After_Default_Reads_Default) {
  record.WizardAccepted = kTrue;
  record.CD = 0.7;
  Open();
  EXPECT_EQ(Shown(3, 3), "");
  Click(Command1(3));
  EXPECT_EQ(Shown(3, 3), "0.50000");
  EXPECT_EQ(Shown(3, 4), "0.50000");
  Click(Command1(0));
  EXPECT_EQ(record.CD, 0.5);
  EXPECT_EQ(Status(), "Default Coefficients");
  EXPECT_EQ(Status_Ink(), QColor(0, 0, 0));
}

TEST_F(CoefficientsScreen, An_Edit_After_Default_Is_No_Default) {
  Open();
  Click(Command1(3));
  Type_Into_Cell(Book(), 3, 4, "0.7");
  Click(Command1(0));
  EXPECT_EQ(record.CD, 0.7);
  EXPECT_EQ(Status(), "User-Defined Coefficients");
}

TEST_F(CoefficientsScreen, Undo_Brings_Back_What_Default_Has_Overwritten) {
  Open();
  Type_Into_Cell(Book(), 3, 4, "0.7");
  Type_Into_Cell(Book(), 4, 4, "0.8");
  Click(Command1(3));
  Book().Undo();
  EXPECT_EQ(Shown(3, 4), "0.70000");
  EXPECT_EQ(Shown(4, 4), "0.80000");
  Click(Command1(0));
  EXPECT_EQ(Status(), "User-Defined Coefficients");
}

TEST_F(CoefficientsScreen, What_Differs_Is_Bold_And_What_Makes_No_Sense_Warns) {
  Open();
  EXPECT_FALSE(Is_Bold(3));
  Type_Into_Cell(Book(), 3, 4, "0.7");
  EXPECT_TRUE(Is_Bold(3));
  EXPECT_FALSE(Is_Warned(3));
  EXPECT_EQ(Seen(3, 4, Qt::ToolTipRole), "0.7 is not the default, 0.5");
  Type_Into_Cell(Book(), 3, 4, "-0.7");
  EXPECT_TRUE(Is_Warned(3));
  Click(Command1(0));
  EXPECT_EQ(record.CD, -0.7);  // a warning refuses nothing
}

TEST_F(CoefficientsScreen, A_New_Project_Takes_The_Words_Of_The_Former_Back) {
  Open();
  Click(Command1(0));
  mnuFileItem_Click(kFileNew, record);
  EXPECT_EQ(Status(), "Default Coefficients Used");
  EXPECT_EQ(Status_Ink(), QColor(0, 0, 0));
}

TEST_F(CoefficientsScreen, Only_Current_Values_Can_Be_Typed) {
  Open();
  for (int col = 1; col <= 4; ++col) {
    EXPECT_EQ(Book().model()->index(0, col - 1).flags().testFlag(Qt::ItemIsEditable), col == 4);
  }
}

TEST_F(CoefficientsScreen, Accepted_Values_Come_Back_Beside_The_Defaults) {
  Open();
  Type_Into_Cell(Book(), 3, 4, "0.7");
  Click(Command1(0));
  Open();
  EXPECT_EQ(Shown(3, 3), "0.50000");
  EXPECT_EQ(Shown(3, 4), "0.70000");
}

TEST_F(CoefficientsScreen, Cancel_Leaves_The_Values_And_Not_The_Pritchard_Expression) {
  Open();
  Type_Into_Cell(Book(), 3, 4, "0.7");
  Click(Check3D1());
  Click(Command1(1));
  EXPECT_EQ(Changed(), (Fields{"DataSaved", "PritchardFlag"}));
  EXPECT_EQ(record.PritchardFlag, 1);
  Open();
  EXPECT_TRUE(Check3D1()->isChecked());
}

}  // namespace
}  // namespace barvon::testing
