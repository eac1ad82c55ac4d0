#pragma once

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/desk/screen_register.h"
#include "core/wizard_answers.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/help_viewer.h"
#include "platform/qt/table/spreadsheet_view.h"
#include "site/frm_velocity.h"
#include "support/record_differences.h"
#include "support/screen_support.h"

namespace barvon::testing {

using Fields = std::vector<std::string>;

/// frmVelocity over the main window, opened without blocking, on a grid of 8 rows and 9 columns.
class VelocityScreen : public ::testing::Test {
 protected:
  VelocityScreen() {
    Register_Screen(Row_Of_Screen("frmVelocity"), Fresh_Screens<frmVelocity>(&bench.main()));
    help_ = Set_Help_Presenter([this](const Help_Request& request) { helped.push_back(request); });
    const auto choose = [this](const File_Request& request) {
      asked.push_back(request);
      return chosen;
    };
    dialogs_ = Set_File_Dialog_Presenter({choose, choose, [] {}});
    record.ShowMode = 0;
    record.DataSaved = kTrue;
    record.MMAX0 = 8;
    record.NMAX0 = 9;
    record.SimulationDuration = 3600;
    record.TidalStartTime = 0;
    record.TidalVelX = {};
    record.TidalVelZ = {};
  }
  ~VelocityScreen() override {
    if (Is_Open()) Screen()->Unload();
    Set_Help_Presenter(help_);
    Set_File_Dialog_Presenter(dialogs_);
    Register_Screen(Row_Of_Screen("frmVelocity"), {});
    Answers_Of_Wizard() = {};
    record.WizardActive = kFalse;
  }

  frmVelocity* Screen() {
    for (auto* screen : bench.main().findChildren<QWidget*>(QStringLiteral("frmVelocity"))) {
      if (screen->isVisible()) return static_cast<frmVelocity*>(screen);
    }
    return nullptr;
  }
  bool Is_Open() { return Screen() != nullptr; }

  void Open(const std::string& control = {}) {
    *before = record;
    ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmVelocity"), false, control));
    ASSERT_TRUE(Has_Keyboard(Screen()));
  }
  void Open(double type) {
    record.VelocityProfileType = type;
    Open();
  }

  template <class T>
  T* Child(const char* name) {
    return Screen()->findChild<T*>(QLatin1String(name));
  }
  template <class T>
  T* Child(const char* name, int index) {
    return Screen()->findChild<T*>(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index));
  }
  QRadioButton* Option3D1(int index) { return Child<QRadioButton>("Option3D1", index); }
  QLineEdit* Text1(int index) { return Child<QLineEdit>("Text1", index); }
  QLineEdit* Text2(int index) { return Child<QLineEdit>("Text2", index); }
  QLineEdit* Text3(int index) { return Child<QLineEdit>("Text3", index); }
  QPlainTextEdit* Text4(int index) { return Child<QPlainTextEdit>("Text4", index); }
  QCheckBox* Check3D1() { return Child<QCheckBox>("Check3D1"); }
  QCheckBox* Check3D2(int index) { return Child<QCheckBox>("Check3D2", index); }
  QPushButton* Command1(int index) { return Child<QPushButton>("Command1", index); }
  F1Book* F1Book1() { return Child<F1Book>("F1Book1"); }
  F1Book* F1Book2(int index) { return Child<F1Book>("F1Book2", index); }
  F1Book* F1Book3() { return Child<F1Book>("F1Book3"); }

  void Choose(int option) { QTest::mouseClick(Option3D1(option), Qt::LeftButton, {}, {8, 8}); }
  void Tick(QCheckBox* box) { QTest::mouseClick(box, Qt::LeftButton, {}, {8, box->height() / 2}); }
  void Press_Command(int index) { QTest::mouseClick(Command1(index), Qt::LeftButton); }
  void Enter(QLineEdit* field, const QString& text) {
    field->selectAll();
    field->del();
    Type(field, text);
  }
  void Enter_Cell(F1Book* book, int row, int column, const QString& text) {
    Type_Into_Cell(*book, row, column, text);
    ASSERT_EQ(book->table().TextRC(row, column), text.toStdString());
  }
  Fields Changed() const { return Differing_Fields(*before, record); }

  Main_Bench bench;
  ProjectRecord& record = Project();
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
  std::vector<Help_Request> helped;
  std::vector<File_Request> asked;
  std::optional<std::string> chosen;  // the answer of the next file dialogs

 private:
  Help_Presenter help_;
  File_Dialog_Presenter dialogs_;
};

/// What every message of the screen looks like.
inline void Expect_Box(const Seen_Box& box, const char* text, QMessageBox::Icon icon,
                       QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                       QMessageBox::StandardButton default_button = QMessageBox::Ok) {
  EXPECT_EQ(box.text, text);
  EXPECT_EQ(box.title, "BARVON");
  EXPECT_EQ(box.icon, icon);
  EXPECT_EQ(box.buttons, buttons);
  EXPECT_EQ(box.default_button, default_button);
}

}  // namespace barvon::testing
