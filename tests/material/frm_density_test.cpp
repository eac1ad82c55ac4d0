#include "material/frm_density.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QGroupBox>
#include <QScreen>
#include <QTest>
#include <random>
#include <string>
#include <vector>

#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "core/number_text.h"
#include "platform/ask/help_viewer.h"
#include "platform/qt/fields/number_field.h"
#include "support/record_differences.h"
#include "support/screen_support.h"
#include "workspace/option_events.h"

namespace barvon::testing {
namespace {

using Fields = std::vector<std::string>;

/// The screen over the main window, opened without blocking, for water of 12.5 ppt, 8.25 deg C and
/// 1.01 g/cc.
class DensityScreen : public ::testing::Test {
 protected:
  DensityScreen() {
    Register_Screen(Row_Of_Screen("frmDensity"), Fresh_Screens<frmDensity>(&bench.main()));
    help_ = Set_Help_Presenter([this](const Help_Request& request) { helped.push_back(request); });
    record.ShowMode = 0;
    record.DataSaved = kTrue;
    record.SiteSalinity = 12.5;
    record.SiteTemperature = 8.25;
    record.SiteDensity = 1.01;
  }
  ~DensityScreen() override {
    Set_Help_Presenter(help_);
    Register_Screen(Row_Of_Screen("frmDensity"), {});
  }

  frmDensity* Screen() {
    for (auto* screen : bench.main().findChildren<QWidget*>(QStringLiteral("frmDensity"))) {
      if (screen->isVisible()) return static_cast<frmDensity*>(screen);
    }
    return nullptr;
  }
  bool Is_Open() { return Screen() != nullptr; }

  void Open() {
    *before = record;
    ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmDensity"), false));
    ASSERT_TRUE(Has_Keyboard(Screen()));
  }
  /// Opens with the box set.
  void Open_To_Compute() {
    Open();
    Check3D3()->click();
  }

  QLineEdit* Text3(int index) { return Child<QLineEdit>("Text3(%1)", index); }
  QLabel* Label4(int index) { return Child<QLabel>("Label4(%1)", index); }
  QPushButton* Command1(int index) { return Child<QPushButton>("Command1(%1)", index); }
  QPushButton* Command2() { return Screen()->findChild<QPushButton*>("Command2"); }
  QCheckBox* Check3D3() { return Screen()->findChild<QCheckBox*>("Check3D3"); }

  void Click(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
  void Enter(int index, const QString& text) {
    Text3(index)->selectAll();
    Text3(index)->del();
    Type(Text3(index), text);
  }
  Fields Changed() const { return Differing_Fields(*before, record); }

  Main_Bench bench;
  ProjectRecord& record = Project();
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
  std::vector<Help_Request> helped;

 private:
  template <class T>
  T* Child(const char* name, int index) {
    return Screen()->findChild<T*>(QString::fromLatin1(name).arg(index));
  }

  Help_Presenter help_;
};

TEST_F(DensityScreen, Captions_Stand_As_They_Are_Told) {
  Open();
  EXPECT_EQ(Screen()->windowTitle(), "Dredging Site Water Density");
  const auto frames = Screen()->findChildren<QGroupBox*>();
  ASSERT_EQ(frames.size(), 1);
  EXPECT_EQ(frames[0]->title(), "Density of Dredging Site Water");
  EXPECT_EQ(Check3D3()->text(), "Compute Density Based on Salinity and Temperature?");
  EXPECT_EQ(Label4(0)->text(), "Salinity (ppt)");
  EXPECT_EQ(Label4(1)->text(), "Temperature (celsius)");
  EXPECT_EQ(Label4(2)->text(), "Density (g/cc)");
  EXPECT_EQ(Command2()->text(), "&Compute");
  EXPECT_EQ(Command1(0)->text(), "OK");
  EXPECT_EQ(Command1(1)->text(), "C&ancel");
  EXPECT_EQ(Command1(2)->text(), "&Help");
  for (QWidget* inside : std::initializer_list<QWidget*>{
           Check3D3(), Text3(0), Text3(1), Text3(2), Label4(0), Label4(1), Label4(2), Command2()}) {
    EXPECT_TRUE(frames[0]->isAncestorOf(inside)) << inside->objectName().toStdString();
  }
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Label4(i)->buddy(), Text3(i));
}

TEST_F(DensityScreen, Opens_In_The_Middle_Of_The_Display) {
  Open();
  const QPoint off = Screen()->geometry().center() - Screen()->screen()->geometry().center();
  EXPECT_LE(off.manhattanLength(), 4);
}

TEST_F(DensityScreen, Opens_With_The_Values_And_Only_The_Density_To_Be_Typed) {
  Open();
  EXPECT_EQ(Text3(0)->text(), "12.50");
  EXPECT_EQ(Text3(1)->text(), "8.25");
  EXPECT_EQ(Text3(2)->text(), "1.0100");
  EXPECT_FALSE(Check3D3()->isChecked());
  for (QWidget* off :
       std::initializer_list<QWidget*>{Label4(0), Label4(1), Text3(0), Text3(1), Command2()}) {
    EXPECT_FALSE(off->isEnabled()) << off->objectName().toStdString();
  }
  EXPECT_TRUE(Text3(2)->isEnabled());
  EXPECT_TRUE(Label4(2)->isEnabled());
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(DensityScreen, The_Box_Is_Off_At_Every_Opening) {
  Open_To_Compute();
  Click(Command1(0));
  Open();
  EXPECT_FALSE(Check3D3()->isChecked());
  EXPECT_FALSE(Command2()->isEnabled());
}

TEST_F(DensityScreen, The_Box_Opens_And_Closes_Salinity_Temperature_And_Compute) {
  Open();
  for (const bool on : {true, false, true}) {
    QTest::mouseClick(Check3D3(), Qt::LeftButton, {}, QPoint(8, Check3D3()->height() / 2));
    ASSERT_EQ(Check3D3()->isChecked(), on);
    for (QWidget* control :
         std::initializer_list<QWidget*>{Label4(0), Label4(1), Text3(0), Text3(1), Command2()}) {
      EXPECT_EQ(control->isEnabled(), on) << control->objectName().toStdString();
    }
    EXPECT_TRUE(Text3(2)->isEnabled());
  }
}

TEST_F(DensityScreen, A_Density_Beyond_The_Limits_Opens_As_The_Limit_Without_A_Message) {
  const Modal_Replies none({});
  record.SiteDensity = 1.2;
  Open();
  EXPECT_EQ(Text3(2)->text(), "1.0500");
  EXPECT_EQ(record.SiteDensity, 1.05);
  Click(Command1(1));
  EXPECT_EQ(record.SiteDensity, 1.05) << "what Cancel brings back is taken after the opening";
  record.SiteDensity = 0.5;
  Open();
  EXPECT_EQ(Text3(2)->text(), "0.9720");
  EXPECT_EQ(record.SiteDensity, 0.972);
  EXPECT_EQ(record.DataSaved, kTrue);
}

// 35 ppt and 20 deg C give 1.025060 g/cc.
TEST_F(DensityScreen, Compute_Shows_And_Stores_The_Density) {
  Open_To_Compute();
  Enter(0, "35");
  Enter(1, "20");
  Click(Command2());
  EXPECT_EQ(Text3(2)->text(), "1.0251");
  EXPECT_NEAR(record.SiteDensity, 1.025060, 5e-7);
  EXPECT_EQ(Changed(), (Fields{"SiteSalinity", "SiteTemperature", "SiteDensity"}));
  EXPECT_TRUE(Is_Open());
}

TEST_F(DensityScreen, Compute_Answers_To_Its_Letter_And_To_Return) {
  Open_To_Compute();
  Enter(0, "35");
  Enter(1, "20");
  QTest::keyClick(Text3(1), Qt::Key_C, Qt::AltModifier);
  EXPECT_TRUE(Wait_Until([this] { return Text3(2)->text() == "1.0251"; }));
  Enter(1, "10");
  Command2()->setFocus();
  QTest::keyClick(Command2(), Qt::Key_Return);
  ASSERT_TRUE(Is_Open());
  EXPECT_EQ(Text3(2)->text(), "1.0270");
}

TEST_F(DensityScreen, Compute_Holds_The_Density_To_Its_Limits_Without_A_Message) {
  const Modal_Replies none({});
  Open_To_Compute();
  Enter(0, "100");
  Click(Command2());
  EXPECT_EQ(Text3(2)->text(), "1.0500");
  EXPECT_EQ(record.SiteDensity, 1.05);
}

TEST_F(DensityScreen, Compute_Refuses_What_Is_No_Number_And_Leads_To_It) {
  Open_To_Compute();
  Enter(0, "35");
  Enter(1, "16,5");
  Enter(2, "1.03");
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Click(Command2());
  ASSERT_EQ(replies.seen.size(), 1u);
  EXPECT_EQ(replies.seen[0].title, "BARVON");
  EXPECT_EQ(replies.seen[0].text,
            "Temperature (celsius): \"16,5\" can't be read as a number.\n"
            "No density has been computed.");
  EXPECT_EQ(replies.seen[0].icon, QMessageBox::Warning);
  EXPECT_EQ(replies.seen[0].format, Qt::PlainText);
  EXPECT_EQ(replies.seen[0].buttons, QMessageBox::Ok);
  EXPECT_EQ(replies.seen[0].default_button, QMessageBox::Ok);
  EXPECT_EQ(Changed(), Fields{});
  EXPECT_EQ(Text3(0)->text(), "35");
  EXPECT_EQ(Text3(1)->text(), "16,5");
  EXPECT_EQ(Text3(2)->text(), "1.03");
  EXPECT_EQ(Screen()->focusWidget(), Text3(1));
  EXPECT_EQ(Text3(1)->selectedText(), "16,5");
}

TEST_F(DensityScreen, Compute_Names_Both_Fields_And_Leads_To_The_First) {
  Open_To_Compute();
  Enter(0, "");
  Enter(1, "<b>");
  Modal_Replies replies({Press_Escape()});
  Click(Command2());
  ASSERT_EQ(replies.seen.size(), 1u);
  EXPECT_EQ(replies.seen[0].text,
            "Salinity (ppt) is empty.\n"
            "Temperature (celsius): \"<b>\" can't be read as a number.\n"
            "No density has been computed.");
  EXPECT_EQ(Screen()->focusWidget(), Text3(0));
}

TEST_F(DensityScreen, Compute_Refuses_Water_Without_A_Density) {
  Open_To_Compute();
  Enter(0, "35");
  Enter(1, "-67.26");
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Click(Command2());
  ASSERT_EQ(replies.seen.size(), 1u);
  EXPECT_EQ(replies.seen[0].text,
            "The formula has no result for a salinity of 35 ppt and a temperature of -67.26 deg "
            "C.\nNo density has been computed.");
  EXPECT_EQ(replies.seen[0].icon, QMessageBox::Warning);
  EXPECT_EQ(Changed(), Fields{});
  EXPECT_EQ(Text3(2)->text(), "1.0100");
  EXPECT_EQ(Screen()->focusWidget(), Text3(1));
}

TEST_F(DensityScreen, Ok_Stores_Closes_And_Marks_The_Data_As_Supplied) {
  record.ScreenDataSupplied.fill(kFalse);
  Open_To_Compute();
  Enter(0, "30.5");
  Enter(1, "-1.25");
  Enter(2, "1.0234");
  Click(Command1(0));
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), (Fields{"DataSaved", "ScreenDataSupplied", "SiteSalinity", "SiteTemperature",
                               "SiteDensity"}));
  EXPECT_EQ(record.SiteSalinity, 30.5);
  EXPECT_EQ(record.SiteTemperature, -1.25);
  EXPECT_EQ(record.SiteDensity, 1.0234);
  EXPECT_EQ(record.DataSaved, kFalse);
  for (int i = 1; i <= 8; ++i) {
    EXPECT_EQ(record.ScreenDataSupplied[static_cast<std::size_t>(i)], i == 8 ? kTrue : kFalse);
  }
}

TEST_F(DensityScreen, Return_In_A_Field_Is_Ok) {
  Open();
  Enter(2, "1.02");
  QTest::keyClick(Text3(2), Qt::Key_Return);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.SiteDensity, 1.02);
}

TEST_F(DensityScreen, Ok_Keeps_The_Digits_Of_Values_That_Were_Not_Typed) {
  record.SiteSalinity = 12.345;
  record.SiteTemperature = 8.2549;
  record.SiteDensity = 1.012345;
  Open();
  EXPECT_EQ(Text3(1)->text(), "8.25");
  Enter(2, "1.01");
  Click(Command1(0));
  EXPECT_EQ(record.SiteSalinity, 12.345);
  EXPECT_EQ(record.SiteTemperature, 8.2549);
  EXPECT_EQ(record.SiteDensity, 1.01);
}

TEST_F(DensityScreen, An_Empty_Salinity_Is_0_And_The_Density_Stays_As_Typed) {
  const Modal_Replies none({});
  Open_To_Compute();
  Enter(0, "");
  Enter(2, "1.02");
  Click(Command1(0));
  EXPECT_EQ(record.SiteSalinity, 0);
  EXPECT_EQ(record.SiteDensity, 1.02);
}

TEST_F(DensityScreen, The_Limits_Pass_Without_A_Message) {
  const Modal_Replies none({});
  for (const char* limit : {"0.972", "1.05"}) {
    Open();
    Enter(2, limit);
    Click(Command1(0));
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Plain_Number(record.SiteDensity), limit);
  }
}

TEST_F(DensityScreen, A_Density_Outside_The_Limits_Is_Told_And_The_Screen_Closes) {
  struct Case {
    const char* typed;
    const char* text;
    double stored;
  };
  for (const Case& c : {Case{"2.0", "Maximum Density is 1.050 grams/cc", 1.05},
                        Case{"0.9", "Minimum Density is 0.972 grams/cc", 0.972},
                        Case{"", "Minimum Density is 0.972 grams/cc", 0.972}}) {
    Open();
    Enter(2, c.typed);
    Modal_Replies replies({Press(QMessageBox::Ok)});
    Click(Command1(0));
    ASSERT_EQ(replies.seen.size(), 1u);
    EXPECT_EQ(replies.seen[0].title, "BARVON");
    EXPECT_EQ(replies.seen[0].text, c.text);
    EXPECT_EQ(replies.seen[0].icon, QMessageBox::NoIcon);
    EXPECT_EQ(replies.seen[0].buttons, QMessageBox::Ok);
    EXPECT_EQ(replies.seen[0].default_button, QMessageBox::Ok);
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(record.SiteDensity, c.stored);
    EXPECT_EQ(record.ScreenDataSupplied[8], kTrue);
  }
}

TEST_F(DensityScreen, Cancel_Leaves_Everything_That_Was_Only_Typed) {
  for (const int way : {0, 1, 2}) {
    Open_To_Compute();
    Enter(0, "35");
    Enter(1, "x");
    Enter(2, "2.0");
    if (way == 0) Click(Command1(1));
    if (way == 1) QTest::keyClick(Text3(2), Qt::Key_Escape);
    if (way == 2) static_cast<QWidget*>(Screen())->close();
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Changed(), Fields{}) << way;
  }
}

TEST_F(DensityScreen, Cancel_After_Compute_Brings_Back_The_Density_But_Not_Its_Water) {
  Open_To_Compute();
  Enter(0, "35");
  Enter(1, "20");
  Click(Command2());
  Click(Command1(1));
  EXPECT_EQ(record.SiteDensity, 1.01);
  EXPECT_EQ(record.SiteSalinity, 35);
  EXPECT_EQ(record.SiteTemperature, 20);
  EXPECT_EQ(Changed(), (Fields{"SiteSalinity", "SiteTemperature"}));
  EXPECT_EQ(record.ScreenDataSupplied[8], kFalse);
}

TEST_F(DensityScreen, Coming_Back_From_Another_Screen_Keeps_The_Density_Of_That_Moment) {
  Open_To_Compute();
  Enter(0, "35");
  Enter(1, "20");
  Click(Command2());
  bench.main().activateWindow();
  ASSERT_TRUE(Has_Keyboard(&bench.main()));
  Screen()->activateWindow();
  ASSERT_TRUE(Has_Keyboard(Screen()));
  Enter(0, "0");
  Click(Command2());
  EXPECT_EQ(Text3(2)->text(), "0.9983");
  Click(Command1(1));
  EXPECT_NEAR(record.SiteDensity, 1.025060, 5e-7);
}

TEST_F(DensityScreen, A_Message_In_Between_Does_Not_Change_What_Cancel_Brings_Back) {
  Open_To_Compute();
  Enter(0, "35");
  Enter(1, "20");
  Click(Command2());
  Enter(1, "x");
  {
    const Modal_Replies replies({Press(QMessageBox::Ok)});
    Click(Command2());
  }
  Screen()->activateWindow();
  ASSERT_TRUE(Has_Keyboard(Screen()));
  Click(Command1(1));
  EXPECT_EQ(record.SiteDensity, 1.01);
}

TEST_F(DensityScreen, Help_Opens_Its_Topic_And_The_Screen_Stays) {
  Open();
  Click(Command1(2));
  ASSERT_EQ(helped.size(), 1u);
  EXPECT_EQ(helped[0].command, Help_Command::Context);
  EXPECT_EQ(helped[0].topic, 3030);
  EXPECT_TRUE(Is_Open());
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(DensityScreen, Tab_Walks_In_Reading_Order_And_Passes_Over_What_Is_Closed) {
  Open();
  using Order = std::vector<QWidget*>;
  const Order buttons = {Command1(0), Command1(1), Command1(2)};
  Order off = {Check3D3(), Text3(2)};
  Order on = {Check3D3(), Text3(0), Text3(1), Text3(2), Command2()};
  for (Order* order : {&off, &on}) {
    order->insert(order->end(), buttons.begin(), buttons.end());
    Check3D3()->setChecked(order == &on);
    Check3D3()->setFocus();
    for (std::size_t i = 1; i <= order->size(); ++i) {
      QTest::keyClick(Screen()->focusWidget(), Qt::Key_Tab);
      ASSERT_EQ(Screen()->focusWidget(), (*order)[i % order->size()]) << i;
    }
    for (std::size_t i = order->size(); i-- > 0;) {
      QTest::keyClick(Screen()->focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
      ASSERT_EQ(Screen()->focusWidget(), (*order)[i]) << i;
    }
  }
}

TEST_F(DensityScreen, The_Focus_Is_First_On_The_Box_Or_On_The_Control_Asked_For) {
  Open();
  EXPECT_EQ(Screen()->focusWidget(), Check3D3());
  Click(Command1(1));
  Open_Screen(Row_Of_Screen("frmDensity"), false, "Text3(2)");
  EXPECT_EQ(Screen()->focusWidget(), Text3(2));
}

TEST_F(DensityScreen, Its_Fields_Are_Marked_While_They_Read_As_Something_Else) {
  Open_To_Compute();
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Number_Note_Of(Text3(i)), "");
    Enter(i, "1,02");
    EXPECT_EQ(Number_Note_Of(Text3(i)), "reads as 1");
    EXPECT_EQ(Text3(i)->accessibleDescription(), "reads as 1");
  }
}

TEST_F(DensityScreen, Fields_Are_Read_Out_By_Their_Labels) {
  Open();
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Text3(i)->accessibleName(), Label4(i)->text());
}

TEST_F(DensityScreen, Its_Picture_Button_Opens_It_Blocking_And_The_Board_Shows_What_Was_Entered) {
  auto& c = bench.controls();
  c.SSOption1(0)->click();
  c.SSPanel3(0)->click();
  record.ShowMode = 1;
  std::vector<QString> states;
  for (const auto& label : c.Text2) states.push_back(label->text());
  bool blocked = false;
  Modal_Replies replies({[&](QWidget* screen) {
    ASSERT_EQ(screen->objectName(), "frmDensity");
    blocked = screen == QApplication::activeModalWidget();
    EXPECT_TRUE(c.SSRibbon1(5)->isChecked());
    Enter(2, "1.0321");
    Click(Command1(0));
  }});
  QTest::mouseClick(c.SSRibbon1(5), Qt::LeftButton);
  EXPECT_TRUE(blocked);
  EXPECT_FALSE(c.SSRibbon1(5)->isChecked());
  EXPECT_EQ(c.Matlabel(6)->text(), "Dredging Site Water Density: 1.0321 g/cc");
  EXPECT_EQ(record.ScreenDataSupplied[8], kTrue);
  // The water has no line of its own among the data categories.
  for (int i = 0; i < 6; ++i) EXPECT_EQ(c.Text2(i)->text(), states[static_cast<std::size_t>(i)]);
}

TEST_F(DensityScreen, Opened_Without_Blocking_Its_Ok_Refreshes_The_Board) {
  auto& c = bench.controls();
  c.SSOption1(0)->click();
  c.SSOption2(1)->click();
  mnuEditItem_Click(c, record, 9);
  ASSERT_TRUE(Has_Keyboard(Screen()));
  EXPECT_FALSE(Screen()->isModal());
  EXPECT_EQ(c.Matlabel(6)->text(), "Dredging Site Water Density: 1.01 grams/cc");
  Enter(2, "1.04");
  Click(Command1(0));
  EXPECT_EQ(c.Matlabel(6)->text(), "Dredging Site Water Density: 1.04 grams/cc");
}

TEST_F(DensityScreen, Opened_Twice_It_Is_One_And_Keeps_What_Is_Typed) {
  Open();
  Enter(2, "1.04");
  Open_Screen(Row_Of_Screen("frmDensity"), false);
  EXPECT_EQ(bench.main().findChildren<QWidget*>("frmDensity").size(), 1);
  EXPECT_EQ(Text3(2)->text(), "1.04");
}

/// A text as a keyboard or a clipboard may bring it.
QString Any_Text(std::mt19937& random) {
  static const QString kPieces[] = {"1",
                                    "35",
                                    "-67.26",
                                    "0.972",
                                    "e",
                                    "D+",
                                    "E999",
                                    ".",
                                    ",",
                                    "-",
                                    " ",
                                    "\t",
                                    "\n",
                                    "&",
                                    "%1",
                                    "<b>",
                                    "\"",
                                    "nan",
                                    QString(QChar(0)),
                                    QString(QChar(0xD800)),
                                    QString::fromUtf8("\u00e4"),
                                    QString::fromUtf8("\U0001F30A"),
                                    QString::fromUtf8("\u0663"),
                                    QString(50, '9'),
                                    QString(40000, '1')};
  if (random() % 2 == 0) return QString::number(static_cast<double>(random() % 1000) / 10 - 30);
  QString text;
  for (auto left = random() % 5; left > 0; --left) {
    text += kPieces[random() % std::size(kPieces)];
  }
  return text;
}

TEST_F(DensityScreen, No_Text_In_Any_Field_Brings_It_Down_Or_Loses_Data) {
  const Message_Presenter former =
      Set_Message_Presenter([](const Message& message) { return Answer_On_Close(message); });
  std::mt19937 random(20);
  int computations = 0;
  for (int round = 0; round < 200; ++round) {
    Open_To_Compute();
    for (int i = 0; i < 3; ++i) Text3(i)->setText(Any_Text(random));
    const QString salinity = Text3(0)->text(), temperature = Text3(1)->text();
    Click(Command2());
    const bool computed = Changed() != Fields{};
    EXPECT_EQ(Text3(0)->text(), salinity);
    EXPECT_EQ(Text3(1)->text(), temperature);
    if (computed) {
      ++computations;
      EXPECT_EQ(record.SiteSalinity, Lenient_Number(salinity.toStdString()));
      EXPECT_EQ(record.SiteTemperature, Lenient_Number(temperature.toStdString()));
    }
    const bool keeps = round % 2 == 0;
    Click(Command1(keeps ? 0 : 1));
    EXPECT_FALSE(Is_Open());
    EXPECT_GE(record.SiteDensity, 0.972);
    EXPECT_LE(record.SiteDensity, 1.05);
    EXPECT_EQ(record.DataSaved, keeps ? kFalse : before->DataSaved);
    const Fields mine = {"SiteSalinity", "SiteTemperature", "SiteDensity", "DataSaved",
                         "ScreenDataSupplied"};
    EXPECT_EQ(Differing_Fields(*before, record, mine), Fields{});
    if (keeps) {
      EXPECT_EQ(record.SiteSalinity, Lenient_Number(salinity.toStdString()));
      EXPECT_EQ(record.SiteTemperature, Lenient_Number(temperature.toStdString()));
    } else {
      EXPECT_EQ(record.SiteDensity, before->SiteDensity);
    }
    record.DataSaved = kTrue;
    record.ScreenDataSupplied[8] = kFalse;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  Set_Message_Presenter(former);
  EXPECT_GE(computations, 10);
  EXPECT_LE(computations, 190);
}

}  // namespace
}  // namespace barvon::testing
