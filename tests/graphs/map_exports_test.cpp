#include "graphs/map_exports.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "graphs/export_bench.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

constexpr char kNotTurned[] = "[Place]\nEasting=1000\nNorthing=2000\nTurn=0\nUnit=ft\nSystem=\n";
constexpr char kTurned[] = "[Place]\nEasting=1000\nNorthing=2000\nTurn=45\nUnit=m\nSystem=\n";
constexpr char kGrid[] =
    "ncols 3\r\nnrows 2\r\nxllcorner 950\r\nyllcorner 1850\r\ncellsize 100\r\n"
    "NODATA_value -9999\r\n0.0 10.0 0.0\r\n0.0 0.0 0.0\r\n";

/// Types a place in feet into the screen and presses Return.
void Type_Place(QWidget* window) {
  ASSERT_EQ(window->windowTitle(), "Place of the Grid");
  window->findChild<QLineEdit*>(QStringLiteral("txtEasting"))->setText("1000");
  window->findChild<QLineEdit*>(QStringLiteral("txtNorthing"))->setText("2000");
  window->findChild<QComboBox*>(QStringLiteral("cboUnit"))->setCurrentIndex(2);
  QTest::keyClick(window, Qt::Key_Return);
}

class MapExports : public ::testing::Test {
 protected:
  void SetUp() override {
    page.map = Shown_Map{{2, 3, 100, 100, {0, 10, 0, 0, 0, 0}}, {5}, "Sand at 20 ft", "mg/l"};
  }

  std::string Save(const std::string& name) {
    Scripted_Files dialog({folder / name});
    const std::string said = Save_Map_For_Gis(page, Results_At(folder / "Site.DUI"));
    asked = dialog.asked;
    return said;
  }

  Scratch_Folder folder;
  Bar_Page page;
  std::vector<File_Request> asked;
};

TEST_F(MapExports, The_Place_Is_Asked_Once_And_Kept_Beside_The_Outputs) {
  {
    const Modal_Replies replies({Type_Place});
    EXPECT_EQ(Save("map"), "Saved as " + (folder / "map.asc"));
  }
  EXPECT_EQ(Read_Text(folder / "map.asc"), kGrid);
  EXPECT_NE(Read_Text(folder / "map.asc.aux.xml").find("<UnitType>mg/l<"), std::string::npos);
  const Modal_Replies none({});
  EXPECT_EQ(Save("map.geojson"), "Saved as " + (folder / "map.geojson"));
  EXPECT_NE(Read_Text(folder / "map.geojson").find("\"level\":5"), std::string::npos);
  EXPECT_EQ(Names_In(folder.path()),
            (std::vector<std::string>{"Site.place", "map.asc", "map.asc.aux.xml", "map.geojson"}));
}

TEST_F(MapExports, The_Map_Of_Other_Results_Lies_At_Their_Place) {
  Write_Text(folder / "Other.place",
             "[Place]\nEasting=5000\nNorthing=7000\nTurn=0\nUnit=ft\nSystem=\n");
  page.map->of = Results_At(folder / "Other.DUI");
  EXPECT_EQ(Save("map.asc"), "Saved as " + (folder / "map.asc"));  // and nothing is asked
  const std::string grid = Read_Text(folder / "map.asc");
  EXPECT_NE(grid.find("xllcorner 4950"), std::string::npos) << grid;
  EXPECT_NE(grid.find("yllcorner 6850"), std::string::npos) << grid;
}

TEST_F(MapExports, Without_A_Place_Nothing_Is_Saved) {
  const Modal_Replies replies({Press_Escape()});
  EXPECT_EQ(Save("map.asc"), "");
  EXPECT_TRUE(asked.empty());
  EXPECT_EQ(Names_In(folder.path()), std::vector<std::string>{});
}

TEST_F(MapExports, A_Turned_Grid_In_Squares_Is_Asked_About) {
  Write_Text(folder / "Site.place", kTurned);
  {
    const Scripted_Messages messages({Answer::No});
    EXPECT_EQ(Save("map.asc"), "");
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_NE(messages.shown[0].text.find("squares of 15.24 m, each"), std::string::npos);
    EXPECT_EQ(Names_In(folder.path()), std::vector<std::string>{"Site.place"});
  }
  {
    const Scripted_Messages messages({Answer::Yes});
    EXPECT_EQ(Save("map.asc"), "Saved as " + (folder / "map.asc"));
  }
  // Contours need no squares.
  const Scripted_Messages messages;
  EXPECT_EQ(Save("map.geojson"), "Saved as " + (folder / "map.geojson"));
}

TEST_F(MapExports, A_Damaged_Place_Is_Told_And_Stays_Unless_It_Is_Typed_Anew) {
  Write_Text(folder / "Site.place", "not a place\n");
  {
    const Scripted_Messages messages({Answer::No});
    EXPECT_EQ(Save("map.asc"), "");
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].text,
              "The place of the grid in " + (folder / "Site.place") +
                  " can't be used: no unit that is known stands there\nDo you want to type it "
                  "anew?  The file is changed then.");
    EXPECT_EQ(Read_Text(folder / "Site.place"), "not a place\n");
  }
  const Scripted_Messages messages({Answer::Yes});
  const Modal_Replies replies({Type_Place});
  EXPECT_EQ(Save("map.asc"), "Saved as " + (folder / "map.asc"));
  EXPECT_EQ(Read_Text(folder / "map.asc"), kGrid);
}

TEST_F(MapExports, A_Place_That_Cannot_Be_Kept_Is_Told_And_Used) {
  const Scripted_Messages messages({Answer::Ok});
  const Modal_Replies replies({Type_Place});
  Scripted_Files dialog({folder / "map.asc"});
  EXPECT_EQ(Save_Map_For_Gis(page, Results_At(folder / "none/Site.DUI")),
            "Saved as " + (folder / "map.asc"));
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "The place of the grid is used, but could not be kept in " +
                                        (folder / "none/Site.place") +
                                        ": No such file or directory.");
}

TEST_F(MapExports, A_Save_That_Fails_Leaves_Neither_Grid_Nor_Notes) {
  Write_Text(folder / "Site.place", kNotTurned);
  ASSERT_EQ(::mkdir((folder / "map.asc").c_str(), 0777), 0);
  const Scripted_Messages messages({Answer::Ok});
  EXPECT_EQ(Save("map.asc"), "");
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(Names_In(folder.path()), (std::vector<std::string>{"Site.place", "map.asc"}));
}

TEST_F(MapExports, A_Save_That_Fails_Keeps_The_Former_Notes) {
  Write_Text(folder / "Site.place", kNotTurned);
  Write_Text(folder / "map.asc.aux.xml", "former notes");
  ASSERT_EQ(::mkdir((folder / "map.asc").c_str(), 0777), 0);
  const Scripted_Messages messages({Answer::Ok});
  EXPECT_EQ(Save("map.asc"), "");
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(Read_Text(folder / "map.asc.aux.xml"), "former notes");
}

TEST_F(MapExports, A_Grid_And_Its_Notes_Replace_The_Former_Through_Links_Too) {
  Write_Text(folder / "Site.place", kNotTurned);
  Write_Text(folder / "map.asc", "the former grid");
  Write_Text(folder / "notes", "its notes");
  ASSERT_EQ(::symlink("notes", (folder / "map.asc.aux.xml").c_str()), 0);
  EXPECT_EQ(Save("map.asc"), "Saved as " + (folder / "map.asc"));
  EXPECT_EQ(Read_Text(folder / "map.asc"), kGrid);
  EXPECT_NE(Read_Text(folder / "notes").find("<UnitType>mg/l<"), std::string::npos);
}

TEST_F(MapExports, A_Page_Without_A_Map_Says_So) {
  page.map.reset();
  const Scripted_Messages messages({Answer::Ok});
  EXPECT_EQ(Save("map.asc"), "");
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "There is no map on this page to save for a GIS.");
}

TEST_F(MapExports, A_Kept_Place_Can_Be_Changed) {
  Write_Text(folder / "Site.place", kTurned);
  const Modal_Replies replies({[](QWidget* window) {
    EXPECT_EQ(window->findChild<QLineEdit*>(QStringLiteral("txtTurn"))->text(), "45");
    window->findChild<QLineEdit*>(QStringLiteral("txtTurn"))->setText("0");
    Type_Place(window);
  }});
  EXPECT_EQ(Change_Place(Results_At(folder / "Site.DUI")),
            "The place of the grid is kept in " + (folder / "Site.place"));
  EXPECT_EQ(Read_Text(folder / "Site.place"), kNotTurned);
}

TEST_F(MapExports, A_Changed_Place_That_Cannot_Be_Kept_Is_Not_Said_To_Be) {
  const Scripted_Messages messages({Answer::Ok});
  const Modal_Replies replies({Type_Place});
  EXPECT_EQ(Change_Place(Results_At(folder / "none/Site.DUI")), "");
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "The place of the grid could not be kept in " +
                                        (folder / "none/Site.place") +
                                        ": No such file or directory.");
}

}  // namespace
}  // namespace barvon::testing
