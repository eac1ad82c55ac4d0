#include <gtest/gtest.h>

#include <QComboBox>
#include <QTest>
#include <filesystem>
#include <string>

#include "checks/check_data.h"
#include "core/desk/screen_register.h"
#include "platform/ask/file_dialog.h"
#include "program_screens.h"
#include "run/create_process.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

namespace fs = std::filesystem;

/// A new project over the sample database and the input echo.
class DatabaseJourney : public ::testing::Test {
 protected:
  DatabaseJourney() {
    Register_Program_Screens(&bench.main());
    fs::copy_file(BARVON_ECHO_SOLVER, bench.folder / "merak32");
    for (const auto& file : fs::directory_iterator(std::string(BARVON_SAMPLES) + "/database")) {
      fs::copy_file(file.path(), bench.folder / file.path().filename().string());
    }
    const auto choose = [this](const File_Request&) { return bench.folder / "stored.DUI"; };
    dialogs_ = Set_File_Dialog_Presenter({choose, choose, [] {}});
    Project().ShowMode = 0;
  }
  ~DatabaseJourney() override {
    Set_File_Dialog_Presenter(dialogs_);
    for (const Screen_Row& row : kScreens) Register_Screen(row, {});
  }

  QWidget& Opened(const char* name) {
    if (!Open_Screen(*Find_Screen(name), false)) throw std::runtime_error(name);
    for (auto* screen : bench.main().findChildren<QWidget*>(QLatin1String(name))) {
      if (screen->isVisible() && Has_Keyboard(screen)) return *screen;
    }
    throw std::runtime_error(name);
  }
  static void Press_Button(QWidget& screen, const char* name) {
    Click(screen.findChild<QPushButton*>(QLatin1String(name)));
  }
  void Fill_From_Database(int place) {
    QWidget& screen = Opened("DataBase");
    for (int list = 0; list < 4; ++list) {
      auto* combo = screen.findChild<QComboBox*>(QStringLiteral("Combo1(%1)").arg(list));
      combo->setFocus();
      while (combo->currentIndex() < place) QTest::keyClick(combo, Qt::Key_Down);
    }
    Press_Button(screen, "SSPanel1(0)");
    Press_Button(screen, "SSPanel1(1)");
  }
  void Type_Times(const char* duration, const char* step) {
    QWidget& screen = Opened("frmSimulation");
    Type(screen.findChild<QLineEdit*>(QStringLiteral("Text1(0)")), QLatin1String(duration));
    Type(screen.findChild<QLineEdit*>(QStringLiteral("Text1(1)")), QLatin1String(step));
    Press_Button(screen, "Command1(0)");
  }

  Main_Bench bench;

 private:
  File_Dialog_Presenter dialogs_;
};

TEST_F(DatabaseJourney, A_Project_Is_Filled_From_The_Database_Saved_And_Run) {
  bench.controls().SSOption1(0)->click();
  bench.controls().SSOption2(0)->click();
  Fill_From_Database(3);
  Type_Times("3600", "100");
  for (const Error_Entry& finding : Check_Data(Project()).entries) {
    ADD_FAILURE() << finding.message << " " << finding.reference;
  }
  bench.Action("mnuFileItem(5)")->trigger();
  ASSERT_TRUE(Exists(bench.folder / "stored.DUI"));
  QTest::mouseClick(bench.controls().SSPanel3(1), Qt::LeftButton);
  ASSERT_FALSE(Run_Is_Under_Way());
  EXPECT_NE(Read_Text(bench.folder / "stored.duo").find("simulates nothing"), std::string::npos);

  // What was chosen belongs to the project; another one has none.
  EXPECT_EQ(bench.controls().Label3(0)->text(), "Site: Dunlin Shoal Site");
  bench.Action("mnuFileItem(1)")->trigger();
  EXPECT_EQ(bench.controls().Label3(0)->text(), "Site: NONE");
  EXPECT_EQ(Project().SelectedSiteCode, 0);
  EXPECT_EQ(Project().DEPC0, 55);
  EXPECT_EQ(Project().SiteDensity, 1.0167) << "as stored, not computed from a bulk density";
}

// What an open screen shows would be another project's after Accept.
TEST_F(DatabaseJourney, Open_Screens_Close_Before_The_Database_Opens) {
  QWidget& times = Opened("frmSimulation");
  Type(times.findChild<QLineEdit*>(QStringLiteral("Text1(0)")), QStringLiteral("7200"));
  {
    Modal_Replies reply({Press(QMessageBox::No)});
    Open_Screen(Row_Of_Screen("DataBase"), false);
    EXPECT_EQ(reply.seen.at(0).text, "Discard what was typed in Time Step and Print Options?");
  }
  EXPECT_TRUE(times.isVisible());
  EXPECT_EQ(bench.main().findChild<QWidget*>(QStringLiteral("DataBase")), nullptr);
  Modal_Replies reply({Press(QMessageBox::Yes)});
  Opened("DataBase");
  EXPECT_EQ(Project().SimulationDuration, 0);
}

TEST_F(DatabaseJourney, Every_Site_Material_And_Vessel_Makes_A_Project_Without_Findings) {
  bench.controls().SSOption1(0)->click();
  bench.controls().SSOption2(0)->click();
  for (int place = 0; place < 5; ++place) {
    Fill_From_Database(place);
    Project().SimulationDuration = 3600;
    Project().LongTermTimeStep = 50;
    for (const Error_Entry& finding : Check_Data(Project()).entries) {
      ADD_FAILURE() << place << ": " << finding.message << " " << finding.reference;
    }
  }
}

}  // namespace
}  // namespace barvon::testing
