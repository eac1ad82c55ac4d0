#include "wizard/graphic_data_entry.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QInputDialog>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "core/desk/screen_register.h"
#include "core/velocity_types.h"
#include "support/record_differences.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

/// The page over the main window. Without a grid of the project its picture has 10000 ft each way;
/// currents of 0.5 ft/s along Z and 0.1 along X.
class GraphicalPage : public ::testing::Test {
 protected:
  GraphicalPage() {
    Register_Screen(kRow, Fresh_Screens<Graphic_Data_Entry>(&bench.main()));
    record.VelocityProfileType = kSingleVelocity;
    record.AvgVelocityZ = 0.5;
    record.AvgVelocityX = 0.1F;
    record.GridPointRadius = 0;
  }
  ~GraphicalPage() override { Register_Screen(kRow, {}); }

  QWidget* Window() {
    for (auto* window : bench.main().findChildren<QWidget*>(QStringLiteral("Graphic_Data_Entry"))) {
      if (window->isVisible()) return window;
    }
    return nullptr;
  }
  void Open() {
    *before = record;
    ASSERT_TRUE(Open_Screen(kRow, false));
    ASSERT_TRUE(Has_Keyboard(Window()));
  }
  template <class T>
  T* Child(const char* name) {
    auto* child = Window()->findChild<T*>(QLatin1String(name));
    EXPECT_NE(child, nullptr) << name;
    return child;
  }
  std::string Text(const char* name) { return Child<QLineEdit>(name)->text().toStdString(); }
  void Enter(const char* name, const QString& text) {
    auto* field = Child<QLineEdit>(name);
    field->setFocus();
    field->selectAll();
    field->del();
    Type(field, text);
  }
  Plan_Picture* Picture() { return Child<Plan_Picture>("Picture1"); }
  QPoint At(double across, double down) { return Picture()->Place_Of({down, across}).toPoint(); }
  void Command(const char* name) { Click(Child<QPushButton>(name)); }
  void Pick(double across, double down) {
    QTest::mouseClick(Picture(), Qt::LeftButton, {}, At(across, down));
  }
  /// 3000 ft wide and 1500 ft high at (0, 0): 16 by 16 points, 200 and 100 ft apart.
  void Construct() {
    Enter("Text6(4)", "3000");
    Enter("Text6(5)", "1500");
    Command("Command3");
  }
  Names Changed() const { return Differing_Fields(*before, record); }

  static constexpr const Screen_Row& kRow = Row_Of_Screen("Graphic_Data_Entry");
  Main_Bench bench;
  ProjectRecord& record = Project();
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
};

TEST_F(GraphicalPage, Captions_Stand_As_They_Are_Told) {
  Open();
  EXPECT_EQ(Child<QGroupBox>("Graphic_Data_Entry(0)")->title(), "Graphical Site Data");
  Names frames;
  for (auto* frame : Window()->findChildren<QGroupBox*>()) {
    frames.push_back(frame->title().toStdString());
  }
  for (const char* caption :
       {"Grid Description", "Site Description", "Disposal Site Description"}) {
    EXPECT_EQ(std::count(frames.begin(), frames.end(), caption), 1) << caption;
  }
  EXPECT_EQ(Child<QLabel>("Label4")->text(),
            "Click on Grid Points That Represents Upper Left and Lower Right Corners of Disposal "
            "Site.  Red Point Represents the Location of the Vessel.");
  EXPECT_EQ(Child<QPushButton>("Command2")->text(), "&Clear");
  EXPECT_EQ(Child<QPushButton>("Command3")->text().remove('&'), "Construct Grid");
  EXPECT_EQ(Child<QPushButton>("Command1(0)")->text(), "OK");
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(GraphicalPage, A_Rectangle_Is_Dragged_Out_And_Put_Right_When_It_Is_Let_Go) {
  Open();
  QTest::mousePress(Picture(), Qt::LeftButton, {}, At(6000, 5000));
  QTest::mouseMove(Picture(), At(4000, 3000));
  QTest::mouseMove(Picture(), At(2000, 1000));
  EXPECT_NEAR(std::stod(Text("Text6(4)")), -4000, 100);
  QTest::mouseRelease(Picture(), Qt::LeftButton, {}, At(2000, 1000));
  EXPECT_NEAR(std::stod(Text("Text6(0)")), 2000, 100);
  EXPECT_NEAR(std::stod(Text("Text6(1)")), 1000, 100);
  EXPECT_NEAR(std::stod(Text("Text6(2)")), 6000, 100);
  EXPECT_NEAR(std::stod(Text("Text6(3)")), 5000, 100);
  EXPECT_NEAR(std::stod(Text("Text6(4)")), 4000, 100);
  EXPECT_NEAR(std::stod(Text("Text6(5)")), 4000, 100);
  EXPECT_TRUE(Child<QLabel>("Label6")->text().startsWith("X: "));
}

TEST_F(GraphicalPage, A_Typed_Grid_Is_Constructed_And_Picked_On_By_Mouse) {
  Open();
  Construct();
  EXPECT_EQ(Text("Text6(2)"), "3000");
  EXPECT_EQ(Text("Text6(3)"), "1500");
  EXPECT_EQ(Text("Text2(0)"), "16");
  EXPECT_EQ(Text("Text2(1)"), "16");
  EXPECT_EQ(Text("Text2(2)"), "200.00");
  EXPECT_EQ(Text("Text2(3)"), "100.00");
  Pick(610, 390);
  EXPECT_EQ(Text("Text3(0)"), "600.00");
  EXPECT_EQ(Text("Text3(1)"), "400.00");
  EXPECT_EQ(Text("Text3(2)"), "");
  Pick(1800, 900);
  EXPECT_EQ(Text("Text3(2)"), "1800.00");
  EXPECT_EQ(Text("Text3(3)"), "900.00");
  EXPECT_EQ(Changed(), Names{}) << "nothing before OK";
}

TEST_F(GraphicalPage, It_Can_Be_Used_Without_A_Mouse) {
  Open();
  Picture()->setFocus(Qt::TabFocusReason);
  QTest::keyClick(Picture(), Qt::Key_Space);
  for (int i = 0; i < 5; ++i) QTest::keyClick(Picture(), Qt::Key_Right);
  for (int i = 0; i < 5; ++i) QTest::keyClick(Picture(), Qt::Key_Down);
  QTest::keyClick(Picture(), Qt::Key_Space);
  EXPECT_GT(std::stod(Text("Text6(4)")), 0);
  EXPECT_GT(std::stod(Text("Text6(5)")), 0);
  Command("Command2");
  Construct();
  Picture()->setFocus(Qt::TabFocusReason);
  QTest::keyClick(Picture(), Qt::Key_Right);
  QTest::keyClick(Picture(), Qt::Key_Down);
  QTest::keyClick(Picture(), Qt::Key_Return);
  EXPECT_EQ(Text("Text3(0)"), "200.00");
  EXPECT_EQ(Text("Text3(1)"), "100.00");
  ASSERT_NE(Window(), nullptr) << "Return picks";
}

TEST_F(GraphicalPage, The_Arrow_Keys_Go_On_From_The_Point_That_The_Mouse_Picked) {
  Open();
  Construct();
  Pick(610, 390);
  QTest::keyClick(Picture(), Qt::Key_Right);
  QTest::keyClick(Picture(), Qt::Key_Return);
  EXPECT_EQ(Text("Text3(2)"), "800.00");
  EXPECT_EQ(Text("Text3(3)"), "400.00");
  EXPECT_NEAR(Picture()->Cursor()->z, 800, 0.01);
  EXPECT_NEAR(Picture()->Cursor()->x, 400, 0.01);
}

TEST_F(GraphicalPage, A_Grid_Without_A_Size_Says_What_To_Do) {
  Open();
  Command("Command3");
  EXPECT_EQ(Text("Text2(2)"), ".00");
  const QString note =
      "A grid needs a width and a height: type them and construct it again, or clear it and drag a "
      "rectangle.";
  const auto told = [&] {
    const auto labels = Window()->findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel* label) { return label->text().contains(note); });
  };
  EXPECT_TRUE(told());
  Construct();
  EXPECT_FALSE(told());
}

TEST_F(GraphicalPage, Clear_Starts_Again) {
  Open();
  Construct();
  Pick(600, 400);
  Command("Command2");
  for (const char* field : {"Text6(0)", "Text6(1)", "Text6(2)", "Text6(3)"}) {
    EXPECT_EQ(Text(field), "") << field;
  }
  EXPECT_EQ(Text("Text6(4)"), "0");
  EXPECT_EQ(Text("Text6(5)"), "0");
  Pick(600, 400);
  EXPECT_EQ(Text("Text3(0)"), "");
}

TEST_F(GraphicalPage, OK_Offers_The_Grid_And_Yes_Takes_It) {
  Open();
  Construct();
  Pick(600, 400);
  Pick(1800, 900);
  Scripted_Messages messages({Answer::Yes});
  Command("Command1(0)");
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_EQ(record.NMAX0, 16);
  EXPECT_EQ(record.DX0, 100);
  EXPECT_EQ(record.SiteTop, 400);
  EXPECT_EQ(record.SiteLeft, 600);
  EXPECT_EQ(record.SiteBottom, 900);
  EXPECT_EQ(record.SiteRight, 1800);
  EXPECT_EQ(record.XBARGE, 400);
  EXPECT_EQ(record.ZBARGE, 600);
  EXPECT_EQ(record.DataSaved, kFalse);
}

TEST_F(GraphicalPage, No_Keeps_The_Projects_Grid_And_Cancel_Of_The_Offer_Stays) {
  Open();
  Construct();
  Pick(600, 400);
  Pick(1800, 900);
  {
    Scripted_Messages messages({Answer::Cancel});
    Command("Command1(0)");
  }
  ASSERT_NE(Window(), nullptr);
  Scripted_Messages messages({Answer::No});
  Command("Command1(0)");
  EXPECT_EQ(Window(), nullptr);
  EXPECT_EQ(record.XBARGE, 400);
  EXPECT_EQ(record.NMAX0, before->NMAX0);
  EXPECT_EQ(record.SiteTop, before->SiteTop);
}

TEST_F(GraphicalPage, Cancel_And_Escape_Leave_The_Vessel_Where_It_Was) {
  record.XBARGE = 77;
  for (const bool by_key : {true, false}) {
    Open();
    Construct();
    Pick(600, 400);
    Pick(1800, 900);
    if (by_key) {
      QTest::keyClick(Window(), Qt::Key_Escape);
    } else {
      Command("Command1(1)");
    }
    EXPECT_EQ(Window(), nullptr);
    EXPECT_EQ(Changed(), Names{});
  }
}

TEST_F(GraphicalPage, OK_Without_A_Grid_Asks_Nothing) {
  Open();
  Scripted_Messages messages;
  Command("Command1(0)");
  EXPECT_EQ(Window(), nullptr);
  EXPECT_EQ(record.NMAX0, before->NMAX0);
}

TEST_F(GraphicalPage, The_Right_Button_Asks_For_The_Radius) {
  Open();
  const auto ask = [this](const QString& answer, bool ok) {
    Modal_Replies replies({[&](QWidget* window) {
      auto* dialog = qobject_cast<QInputDialog*>(window);
      ASSERT_NE(dialog, nullptr);
      EXPECT_EQ(dialog->windowTitle(), "BARVON");
      EXPECT_EQ(dialog->labelText(), "Set Radius of Grid Points Shown on Disposal Site Grid");
      dialog->setTextValue(answer);
      ok ? dialog->accept() : dialog->reject();
    }});
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, Window()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(Window(), &event);
    EXPECT_EQ(replies.windows, 1);
  };
  ask("40", true);
  EXPECT_EQ(record.GridPointRadius, 40);
  ask("", true);
  EXPECT_EQ(record.GridPointRadius, 40);
  ask("50", false);
  EXPECT_EQ(record.GridPointRadius, 40);
}

}  // namespace
}  // namespace barvon::testing
