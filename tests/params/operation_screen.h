#pragma once

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "core/desk/screen_register.h"
#include "core/keys.h"
#include "core/project_defaults.h"
#include "core/wizard_answers.h"
#include "params/frm_operation.h"
#include "support/record_differences.h"
#include "support/screen_support.h"

namespace barvon::testing {

using Fields = std::vector<std::string>;

/// frmOperation over the main window, opened without blocking, for a hopper with two openings on a
/// grid of 2000 ft by 3000 ft.
class OperationScreen : public ::testing::Test {
 protected:
  OperationScreen() {
    Register_Screen(kRow, Fresh_Screens<frmOperation>(&bench.main()));
    record.ShowMode = 0;
    record.MMAX0 = 21;
    record.NMAX0 = 31;
    record.DX0 = record.DZ0 = 100;
    record.DisposalMethod = kHopper;
    record.XBARGE = 1200.126;
    record.ZBARGE = 800;
    record.BINL = 30;
    record.BINW = 20;
    record.NBINS = 2;
    record.TDIS = 60;
    record.NOPENS = 2;
    for (int i = 1; i <= kMaxLayers; ++i) {
      record.LayerVelX[i] = i;
      record.LayerVelZ[i] = -i;
    }
    bench.controls().SSOption1(0)->click();
    Display();
    record.DataSaved = kTrue;
  }
  ~OperationScreen() override {
    if (Is_Open()) Screen()->Unload();
    Register_Screen(kRow, {});
    Answers_Of_Wizard() = {};
    record.WizardActive = kFalse;
  }

  void Display() { Port().board.display_data(); }
  frmOperation* Screen() {
    for (auto* screen : bench.main().findChildren<QWidget*>(QStringLiteral("frmOperation"))) {
      if (screen->isVisible()) return static_cast<frmOperation*>(screen);
    }
    return nullptr;
  }
  bool Is_Open() { return Screen() != nullptr; }
  void Open(const char* control = "") {
    *before = record;
    ASSERT_TRUE(Open_Screen(kRow, false, control));
    ASSERT_TRUE(Has_Keyboard(Screen()));
  }

  template <class T>
  T* Child(const char* name) {
    return Screen()->findChild<T*>(QLatin1String(name));
  }
  template <class T>
  T* Child(const char* name, int index) {
    return Screen()->findChild<T*>(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index));
  }
  QLineEdit* Text1(int index) { return Child<QLineEdit>("Text1", index); }
  QLineEdit* Text2() { return Child<QLineEdit>("Text2"); }
  QLineEdit* Text3(int index) { return Child<QLineEdit>("Text3", index); }
  QLineEdit* Text4(int index) { return Child<QLineEdit>("Text4", index); }
  QCheckBox* Check3D1() { return Child<QCheckBox>("Check3D1"); }
  QGroupBox* Frame3D1() { return Child<QGroupBox>("Frame3D1"); }
  QGroupBox* Frame3D2() { return Child<QGroupBox>("Frame3D2"); }
  F1Book& Book() { return *Child<F1Book>("F1Book1"); }
  Plan_Picture* Site() { return Child<Plan_Picture>("SitePlan"); }
  std::string Site_Words() { return Site()->accessibleDescription().toStdString(); }
  bool Board_Box() { return bench.controls().SSCheck3->isChecked(); }
  void Command(int index) { Click(Child<QPushButton>("Command1", index)); }
  void Enter(QLineEdit* field, const QString& text) {
    field->setFocus();
    field->selectAll();
    field->del();
    Type(field, text);
  }
  Fields Changed() const { return Differing_Fields(*before, record); }

  static constexpr const Screen_Row& kRow = Row_Of_Screen("frmOperation");
  Main_Bench bench;
  ProjectRecord& record = Project();
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
};

}  // namespace barvon::testing
