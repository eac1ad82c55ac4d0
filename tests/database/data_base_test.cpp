#include "database/data_base.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLineEdit>
#include <QTest>
#include <filesystem>

#include "core/desk/screen_register.h"
#include "database/frm_database_check.h"
#include "platform/qt/fields/option_paint.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

namespace fs = std::filesystem;

/// The sample database in the program's folder, and the screen over the main window.
class DataBaseScreen : public ::testing::Test {
 protected:
  DataBaseScreen() {
    for (const auto& file : fs::directory_iterator(std::string(BARVON_SAMPLES) + "/database")) {
      fs::copy_file(file.path(), bench.folder / file.path().filename().string());
    }
    Register_DataBase(&bench.main());
    Register_Screen(kCheck, Fresh_Screens<frmDatabaseCheck>(&bench.main()));
    record.ShowMode = 0;
  }
  ~DataBaseScreen() override {
    Register_Screen(kRow, {});
    Register_Screen(kCheck, {});
  }

  QWidget* Screen(const char* name = "DataBase") {
    for (auto* screen : bench.main().findChildren<QWidget*>(QLatin1String(name))) {
      if (screen->isVisible()) return screen;
    }
    return nullptr;
  }
  void Open(const Screen_Row& row = kRow) {
    ASSERT_TRUE(Open_Screen(row, false));
    ASSERT_TRUE(Has_Keyboard(Screen(row.name)));
  }
  QComboBox* Combo1(int i) { return Child<QComboBox>("Combo1(%1)", i); }
  QLabel* Label1(int i) { return Child<QLabel>("Label1(%1)", i); }
  QPushButton* SSPanel1(int i) { return Child<QPushButton>("SSPanel1(%1)", i); }
  /// Chooses as a person does with the keyboard: entry by entry.
  void Choose(int list, int place) {
    Combo1(list)->setFocus();
    while (Combo1(list)->currentIndex() < place) QTest::keyClick(Combo1(list), Qt::Key_Down);
    while (Combo1(list)->currentIndex() > place) QTest::keyClick(Combo1(list), Qt::Key_Up);
  }
  QString Line(int i) { return bench.controls().Label3(i)->text(); }
  QColor Ink(const QWidget* widget) { return widget->palette().color(QPalette::WindowText); }
  std::vector<bool> Blue_Labels() {
    std::vector<bool> blue;
    for (int i = 0; i < 4; ++i) blue.push_back(Ink(Label1(i)) == kBlue);
    return blue;
  }

  static constexpr const Screen_Row& kRow = Row_Of_Screen("DataBase");
  static constexpr const Screen_Row& kCheck = Row_Of_Screen("frmDatabaseCheck");
  Main_Bench bench;
  ProjectRecord& record = Project();

 private:
  template <class T>
  T* Child(const char* name, int i) {
    return Screen()->findChild<T*>(QString::fromLatin1(name).arg(i));
  }
};

TEST_F(DataBaseScreen, Captions_And_Lists_Stand_As_They_Are_Told) {
  Open();
  EXPECT_EQ(Screen()->windowTitle(), "BARVON - DataBase");
  EXPECT_EQ(Screen()->findChild<QGroupBox*>()->title(), "DataBase Items");
  const char* labels[] = {"Site Data", "Velocity Data", "Material Data",
                          "Disposal Operations Data"};
  const char* panels[] = {"&Accept DataBase Selection", "&Close", "&Help", "&Update DataBase"};
  const int counts[] = {7, 12, 8, 5};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(Label1(i)->text(), labels[i]);
    EXPECT_EQ(SSPanel1(i)->text(), panels[i]);
    EXPECT_EQ(Combo1(i)->count(), counts[i]);
    EXPECT_EQ(Combo1(i)->currentText(), "");
    EXPECT_EQ(Combo1(i)->completer(), nullptr);
  }
  EXPECT_EQ(Combo1(1)->itemText(4), "May");
  EXPECT_EQ(Blue_Labels(), (std::vector<bool>{false, false, false, false}));
  EXPECT_FALSE(SSPanel1(3)->isEnabled());
  EXPECT_TRUE(Combo1(0)->hasFocus());
}

TEST_F(DataBaseScreen, Accept_Fills_The_Project_And_Stays_Open) {
  Open();
  Choose(0, 1);
  Choose(1, 4);
  Choose(2, 0);
  Choose(3, 1);
  Click(SSPanel1(0));
  EXPECT_NE(Screen(), nullptr);
  EXPECT_TRUE(bench.controls().SSCheck1->isChecked());
  EXPECT_EQ(Line(0), "Site: Brant Point Ocean Site");
  EXPECT_EQ(Line(1), "Month: May");
  EXPECT_EQ(Line(2), "Material Location: Alder Channel");
  EXPECT_EQ(Line(3), "Disposal Vessel: Bittern, 6 bins");
  for (const int i : {1, 2, 3, 4}) {
    EXPECT_EQ(bench.controls().Text2(i)->text(), "Data Supplied") << i;
    EXPECT_EQ(Ink(bench.controls().Text2(i)), kBlue) << i;
  }
  EXPECT_EQ(record.NMAX0, 40);
  EXPECT_EQ(record.MMAX0, 36);
  EXPECT_EQ(record.NumSolids, 3);
  EXPECT_EQ(record.SolidNames[2], "Silt");
  EXPECT_EQ(record.NBINS, 6);
  EXPECT_EQ(record.VelocityProfileType, 3);
}

TEST_F(DataBaseScreen, The_Choices_Come_Up_Again_And_Are_Forgotten_With_The_Project) {
  Open();
  Choose(0, 2);
  {
    Modal_Replies reply({Press(QMessageBox::Ok)});
    Click(SSPanel1(0));
    EXPECT_EQ(reply.seen.at(0).text,
              "No Selection Made For:\n Velocity Data\n Material Data\n Disposal Operations "
              "Data\n");
    EXPECT_EQ(reply.seen.at(0).title, "BARVON DataBase");
  }
  Click(SSPanel1(1));
  EXPECT_EQ(Screen(), nullptr);
  Open();
  EXPECT_EQ(Combo1(0)->currentText(), "Cove Harbor Site A");
  EXPECT_EQ(Combo1(1)->currentText(), "");
  Click(SSPanel1(1));
  record.DataSaved = kTrue;
  bench.Action("mnuFileItem(0)")->trigger();
  EXPECT_FALSE(bench.controls().SSCheck1->isChecked());
  EXPECT_EQ(Line(0), "Site: NONE");
  EXPECT_EQ(Line(3), "Disposal Vessel: NONE");
  EXPECT_EQ(record.SelectedSiteCode, 0);
}

TEST_F(DataBaseScreen, The_List_Used_Last_Is_Blue) {
  Open();
  QTest::mouseClick(Combo1(2)->lineEdit(), Qt::LeftButton);
  EXPECT_EQ(Blue_Labels(), (std::vector<bool>{false, false, true, false}));
  EXPECT_EQ(record.ActiveDatabaseList, 2);
  EXPECT_FALSE(SSPanel1(3)->isEnabled());
  Choose(1, 3);
  EXPECT_EQ(Blue_Labels(), (std::vector<bool>{false, true, false, false}));
  EXPECT_EQ(record.ActiveDatabaseList, 1);
  QTest::keyClicks(Combo1(0), "x");
  EXPECT_EQ(record.ActiveDatabaseList, 0);
  EXPECT_TRUE(SSPanel1(3)->isEnabled());
}

TEST_F(DataBaseScreen, A_Typed_Name_Is_No_Choice_Until_It_Is_An_Entry) {
  Open();
  Choose(0, 0);
  Combo1(0)->lineEdit()->selectAll();
  QTest::keyClicks(Combo1(0), "Gannet");
  {
    Modal_Replies reply({Press(QMessageBox::Ok)});
    QTest::keyClick(Combo1(0), Qt::Key_Return);
    EXPECT_TRUE(reply.seen.at(0).text.startsWith("No Selection Made For:\n Site Data\n"));
  }
  EXPECT_EQ(Combo1(0)->count(), 7) << "Return adds nothing";
  EXPECT_EQ(Combo1(0)->currentText(), "Gannet");
  QTest::keyClicks(Combo1(0), " Deep");
  {
    Modal_Replies reply({Press(QMessageBox::Ok)});
    Click(SSPanel1(0));
  }
  EXPECT_EQ(record.SelectedSiteCode, 700);
  EXPECT_EQ(record.DEPC0, 165);
}

TEST_F(DataBaseScreen, A_Name_With_A_Tab_Or_A_Byte_Without_A_Letter_Is_Chosen) {
  Write_Text(bench.folder / "dspsites.dat", "1\r\nAB\r\n\r\n2\r\nA\tB\r\n\r\n3\r\nC\x81 D\r\n\r\n");
  record.SelectedSiteCode = 100;
  for (const int place : {1, 2}) {
    Open();
    Choose(0, place);
    QTest::keyClick(Combo1(0), Qt::Key_Tab);
    Modal_Replies reply({Press(QMessageBox::Ok)});
    Click(SSPanel1(0));
    EXPECT_FALSE(reply.seen.at(0).text.contains(" Site Data"));
    EXPECT_EQ(record.SelectedSiteCode, (place + 1) * 100);
    Click(SSPanel1(1));
  }
}

TEST_F(DataBaseScreen, Letters_That_Files_Lose_Are_Typed_And_Told) {
  const std::string before = Read_Text(bench.folder / "dspsites.dat");
  Open();
  const QString name = QString::fromUtf8("Łódź Ω");
  Combo1(0)->setFocus();
  for (const QChar letter : name)
    QTest::sendKeyEvent(QTest::Click, Combo1(0), Qt::Key_unknown, QString(letter), Qt::NoModifier);
  EXPECT_EQ(Combo1(0)->currentText(), name);
  Modal_Replies reply({Press(QMessageBox::Yes), Press(QMessageBox::Ok)});
  Click(SSPanel1(3));
  EXPECT_EQ(
      reply.seen.at(1).text,
      QString::fromUtf8(
          "The name has letters that the files can't keep: Ł, ź, Ω. Please type another one."));
  EXPECT_EQ(Combo1(0)->currentText(), name);
  EXPECT_EQ(Read_Text(bench.folder / "dspsites.dat"), before);
}

TEST_F(DataBaseScreen, Update_Adds_The_Site_And_Mending_Makes_It_Found) {
  record.DEPC0 = 61;
  record.NROA0 = 1;
  record.Densities[1] = 1.0125;
  Open();
  QTest::keyClicks(Combo1(0), "Heron Sound");
  {
    Modal_Replies reply({Press(QMessageBox::Yes)});
    Click(SSPanel1(3));
    EXPECT_EQ(reply.seen.at(0).default_button, QMessageBox::No);
    EXPECT_EQ(reply.seen.at(0).icon, QMessageBox::Critical);
  }
  EXPECT_EQ(Line(0), "Site: Heron Sound");
  EXPECT_EQ(Combo1(0)->count(), 8);
  EXPECT_EQ(Combo1(0)->currentText(), "Heron Sound");
  EXPECT_FALSE(SSPanel1(3)->isEnabled());
  Click(SSPanel1(1));

  Open(kCheck);
  QWidget* check = Screen("frmDatabaseCheck");
  auto* list = check->findChild<QListWidget*>("List1");
  EXPECT_GT(list->count(), 1);
  auto* mend = check->findChild<QPushButton*>("Command1(0)");
  EXPECT_TRUE(mend->isEnabled());
  {
    Modal_Replies reply({Press(QMessageBox::Yes)});
    Click(mend);
    EXPECT_EQ(reply.seen.at(0).default_button, QMessageBox::No);
  }
  EXPECT_FALSE(mend->isEnabled());
  EXPECT_EQ(check->findChild<QLabel*>("Label1")->text(),
            "No faults in the files of the database, but remarks:");
  Click(check->findChild<QPushButton*>("Command1(1)"));

  record.DEPC0 = 0;
  Open();
  Choose(0, 7);
  Modal_Replies reply({Press(QMessageBox::Ok)});
  Click(SSPanel1(0));
  EXPECT_EQ(record.DEPC0, 61);
  EXPECT_EQ(record.Densities[1], 1.0125);
}

TEST_F(DataBaseScreen, Update_With_The_Months_In_Use_Asks_And_Writes_Nothing) {
  const std::string before = Read_Text(bench.folder / "dspsites.dat");
  Open();
  QTest::keyClicks(Combo1(0), "Heron Sound");
  QTest::mouseClick(Combo1(1)->lineEdit(), Qt::LeftButton);
  Modal_Replies reply({Press(QMessageBox::Yes)});
  Click(SSPanel1(3));
  EXPECT_EQ(reply.seen.size(), 1U);
  EXPECT_EQ(Read_Text(bench.folder / "dspsites.dat"), before);
  EXPECT_EQ(Line(0), "Site: NONE");
}

TEST_F(DataBaseScreen, Missing_Lists_Are_Told_Once_In_An_Opening) {
  for (const char* file : {"dspsites.dat", "sites.dat"}) fs::remove(bench.folder / file);
  Modal_Replies reply({Press(QMessageBox::Ok)});
  Open();
  EXPECT_EQ(reply.seen.at(0).text,
            "These files of the database can't be read in the program's folder:\ndspsites.dat\n"
            "sites.dat");
  EXPECT_EQ(Combo1(0)->count(), 0);
  EXPECT_EQ(Combo1(3)->count(), 5);
}

TEST_F(DataBaseScreen, The_Tools_Menu_Has_Both_And_The_Picture_Button_Keeps_Its_Answer) {
  EXPECT_TRUE(bench.Action("mnuToolItem(1)")->isVisible());
  EXPECT_TRUE(bench.Action("mnuToolItem(8)")->isVisible());
  EXPECT_EQ(bench.Action("mnuToolItem(8)")->text(), "&Check Database Files...");
  Modal_Replies reply({Press(QMessageBox::Ok)});
  bench.controls().SSRibbon1(kDataBaseRibbon)->click();
  EXPECT_EQ(reply.seen.at(0).text, "This Feature is Unavailable at This Time.");
}

}  // namespace
}  // namespace barvon::testing
