#include "graphs/frm_place.h"

#include <gtest/gtest.h>

#include <QScreen>
#include <QTest>

#include "platform/ask/help_viewer.h"
#include "support/screen_support.h"
#include "support/window_walk.h"

namespace barvon::testing {
namespace {

const Result_Grid kGrid = {3, 5, 100, 50};

class PlaceOfTheGrid : public ::testing::Test {
 protected:
  void Open(const std::optional<Map_Place>& offered = {}) {
    screen = std::make_unique<frmPlace>(nullptr, kGrid, offered);
    screen->Open(false);
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen.get()));
  }
  QLineEdit* Field(const char* name) { return screen->findChild<QLineEdit*>(QLatin1String(name)); }
  QString Corners() { return screen->findChild<QLabel*>(QStringLiteral("lblCorners"))->text(); }
  void Press_Key(int key) { QTest::keyClick(QApplication::focusWidget(), Qt::Key(key)); }
  void Enter(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }

  std::unique_ptr<frmPlace> screen;
};

TEST_F(PlaceOfTheGrid, Is_Typed_By_Keys_Alone) {
  Open();
  EXPECT_EQ(QApplication::focusWidget(), Field("txtEasting"));
  Enter("583960.5");
  Press_Key(Qt::Key_Tab);
  Enter("4507523");
  Press_Key(Qt::Key_Tab);
  Enter("-12.5");  // over the 0 that Tab has selected
  Press_Key(Qt::Key_Tab);
  Press_Key(Qt::Key_Down);
  Press_Key(Qt::Key_Tab);
  Enter("EPSG:32618");
  Press_Key(Qt::Key_Return);
  EXPECT_FALSE(screen->isVisible());
  EXPECT_EQ(screen->place(),
            (Map_Place{583960.5, 4507523, -12.5, Place_Unit::metre_survey, "EPSG:32618"}));
}

TEST_F(PlaceOfTheGrid, Shows_Where_The_Corners_Come_To_Lie_While_It_Is_Typed) {
  Open();
  EXPECT_EQ(Corners().trimmed(), "The easting is missing.");
  EXPECT_TRUE(screen->findChild<QLabel*>(QStringLiteral("lblCorners"))->wordWrap());
  Enter("1000");
  EXPECT_EQ(Corners().trimmed(), "The northing is missing.");
  const int height = screen->height();
  Press_Key(Qt::Key_Tab);
  Enter("2000");
  // 200 ft each way: 60.96 m.
  EXPECT_TRUE(Corners().endsWith("Row 3, column 5: easting 1060.96, northing 1939.04"));
  EXPECT_TRUE(Corners().startsWith("With these the corner points of the grid are at\nRow 1,"));
  EXPECT_EQ(screen->height(), height) << "the window keeps its size";
}

TEST_F(PlaceOfTheGrid, What_Was_Kept_Is_There_Again_And_Cancel_Takes_Nothing) {
  const Map_Place kept = {1000, 2000, 30, Place_Unit::foot, "EPSG:2263"};
  Open(kept);
  EXPECT_EQ(Field("txtTurn")->text(), "30");
  EXPECT_EQ(screen->findChild<QComboBox*>()->currentIndex(), 2);
  Enter("7");
  Press_Key(Qt::Key_Escape);
  EXPECT_FALSE(screen->isVisible());
  EXPECT_EQ(screen->place(), std::nullopt);
  Open(kept);
  Press_Key(Qt::Key_Return);
  EXPECT_EQ(screen->place(), kept);
}

TEST_F(PlaceOfTheGrid, A_Fault_Is_Told_And_Its_Field_Has_The_Keyboard) {
  Open(Map_Place{1000, 2000, 30, Place_Unit::foot, ""});
  Field("txtNorthing")->setText("4,507,523");
  const Scripted_Messages messages({Answer::Ok});
  Press_Key(Qt::Key_Return);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_TRUE(messages.shown[0].text.starts_with("The northing is not a number."));
  EXPECT_TRUE(screen->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), Field("txtNorthing"));
  Enter("1");
  Press_Key(Qt::Key_Return);
  ASSERT_TRUE(screen->place());
  EXPECT_EQ(screen->place()->northing, 1);
}

TEST_F(PlaceOfTheGrid, Degrees_Are_Asked_About) {
  Open(Map_Place{-74.25, 40.5, 0, Place_Unit::metre, ""});
  {
    const Scripted_Messages messages({Answer::No});
    Press_Key(Qt::Key_Return);
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].on_return, Answer::No);
    EXPECT_TRUE(screen->isVisible());
  }
  const Scripted_Messages messages({Answer::Yes});
  Press_Key(Qt::Key_Return);
  EXPECT_TRUE(screen->place());
}

TEST_F(PlaceOfTheGrid, Is_Whole_And_Reached_By_Keys_In_Letters_Of_Any_Size) {
  const QFont plain = QApplication::font();
  for (const double larger : {1.0, 1.5, 2.0}) {
    QFont font = plain;
    font.setPointSizeF(plain.pointSizeF() * larger);
    QApplication::setFont(font);
    Open(Map_Place{-99999999.25, -99999999.25, -359.125, Place_Unit::metre_survey,
                   "EPSG:32618 and more"});
    EXPECT_EQ(Listed(Cut_Off_Texts(*screen)), "") << larger;
    EXPECT_EQ(Listed(Clashing_Keys(*screen)), "") << larger;
    EXPECT_EQ(Listed(Unreached_Controls(*screen)), "") << larger;
    EXPECT_EQ(Listed(Unnamed_Controls(*screen)), "") << larger;
    EXPECT_EQ(Listed(Misread_Controls(*screen)), "") << larger;
    EXPECT_LE(screen->width(), screen->screen()->availableSize().width()) << larger;
  }
  QApplication::setFont(plain);
}

TEST_F(PlaceOfTheGrid, Help_Opens_Its_Page) {
  std::vector<std::string> keys;
  auto former =
      Set_Help_Presenter([&](const Help_Request& request) { keys.push_back(request.key); });
  Open();
  Press_Key(Qt::Key_F1);
  Click(screen->findChild<QPushButton*>(QStringLiteral("Command1(2)")));
  Set_Help_Presenter(std::move(former));
  EXPECT_EQ(keys, (std::vector<std::string>{"Place of the Grid", "Place of the Grid"}));
  EXPECT_TRUE(screen->isVisible());
}

}  // namespace
}  // namespace barvon::testing
