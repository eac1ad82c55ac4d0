#include <filesystem>
#include <sstream>

#include "core/number_text.h"
#include "run/create_process.h"
#include "site/velocity_screen.h"

namespace barvon::testing {
namespace {

namespace fs = std::filesystem;

/// From a project of 45 rows and 40 columns over the velocity screen to the file, the model input
/// and a run of the input echo.
class VelocityJourney : public VelocityScreen {
 protected:
  VelocityJourney() {
    fs::copy_file(BARVON_ECHO_SOLVER, bench.folder / "merak32");
    fs::copy_file(std::string(BARVON_SAMPLES) + "/Hopper_Six_Openings.DUI",
                  bench.folder / "site.DUI");
    Load("site.DUI");
  }

  void Load(const std::string& name) {
    chosen = bench.folder / name;
    bench.Action("mnuFileItem(1)")->trigger();
    ASSERT_EQ(record.ProjectFileName, *chosen);
    record.ShowMode = 0;
  }

  void Import_Field(int direction, const std::string& cells) {
    chosen = bench.folder / "field.csv";
    Write_Text(*chosen, cells);
    QTest::mouseClick(Child<QPushButton>("ImportField", direction), Qt::LeftButton);
  }

  /// Accepts the screen, saves, begins anew and loads. The project must come back as OK left it.
  void Accept_Save_And_Load(const Fields& not_in_the_file = {}) {
    const Modal_Replies no_boxes({});
    Press_Command(0);
    ASSERT_FALSE(Is_Open());
    *before = record;
    chosen = bench.folder / "kept.DUI";
    bench.Action("mnuFileItem(5)")->trigger();
    bench.Action("mnuFileItem(0)")->trigger();
    ASSERT_EQ(record.VelocityProfileType, 1);
    ASSERT_EQ(record.AvgVelocityX, 0);
    Load("kept.DUI");
    Fields changed;
    for (const std::string& field : Changed()) {
      const bool of_this_screen = field.find("Vel") != std::string::npos ||
                                  field.starts_with("Tidal") || field == "SimulationDuration";
      if (of_this_screen) changed.push_back(field);
    }
    EXPECT_EQ(changed, not_in_the_file);
  }

  /// The lines of the model input from that of the velocity type on.
  std::vector<std::string> Velocity_Lines(int type) {
    std::istringstream file(Read_Text(bench.folder / "kept.DUE"));
    std::vector<std::string> lines;
    // Before it stand the densities of the three depths, 1.0212 first.
    bool densities = false;
    for (std::string line; std::getline(file, line);) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      if (!lines.empty()) {
        lines.push_back(line);
      } else if (densities) {
        EXPECT_EQ(line, "    " + std::to_string(type));
        lines.push_back(line);
      }
      densities = line.starts_with("    1.0212");
    }
    return lines;
  }

  /// The numbers of a line's columns.
  static std::vector<double> Columns(const std::string& line, std::size_t width) {
    std::vector<double> numbers;
    for (std::size_t at = 0; at < line.size(); at += width) {
      numbers.push_back(Lenient_Number(line.substr(at, width)));
    }
    return numbers;
  }

  void Run() {
    QTest::mouseClick(bench.controls().SSPanel3(1), Qt::LeftButton);
    ASSERT_FALSE(Run_Is_Under_Way());
    EXPECT_NE(Read_Text(bench.folder / "kept.duo").find("simulates nothing"), std::string::npos);
  }
};

using Numbers = std::vector<double>;

TEST_F(VelocityJourney, A_Single_Velocity_Reaches_The_Model) {
  Open(1);
  Enter(Text1(0), "58.5");
  Enter(Text1(1), "0.125");
  Enter(Text1(2), "-0.4");
  Accept_Save_And_Load();
  EXPECT_EQ(record.VelocityProfileType, 1);
  EXPECT_EQ(Columns(Velocity_Lines(1).at(1), 10), (Numbers{0.125, -0.4, 58.5}));
  Run();
}

TEST_F(VelocityJourney, A_Logarithmic_Profile_Reaches_The_Model) {
  Open(1);
  Enter(Text1(0), "58.5");
  Tick(Check3D1());
  Accept_Save_And_Load();
  EXPECT_EQ(record.VelocityProfileType, 2);
  EXPECT_EQ(Columns(Velocity_Lines(2).at(1), 10), (Numbers{0.5, -0.2, 58.5}));
  Open();
  EXPECT_TRUE(Check3D1()->isChecked());
  Press_Command(1);
  Run();
}

// The model reads both depths before both velocities.
TEST_F(VelocityJourney, A_Two_Point_Profile_Reaches_The_Model) {
  Open(3);
  const char* cells[2][4] = {{"10", "0.8", "11", "-0.2"}, {"50", "0.3", "45", "0.125"}};
  for (int row = 0; row < 2; ++row) {
    for (int i = 0; i < 4; ++i) Enter_Cell(F1Book1(), row + 1, i + 1, cells[row][i]);
  }
  Accept_Save_And_Load();
  EXPECT_EQ(record.VelocityProfileType, 3);
  EXPECT_EQ(Columns(Velocity_Lines(3).at(1), 10), (Numbers{10, 50, 0.8, 0.3, 11, 45, -0.2, 0.125}));
  Run();
}

// X of row r and column c is r/100 + c/10000, Z is -c/100 - r/10000: no two cells are alike.
TEST_F(VelocityJourney, Each_Cell_Of_A_Field_Reaches_The_Model_In_Its_Row_And_Column) {
  const auto x = [](int row, int column) { return (row * 100 + column) / 10000.0; };
  const auto z = [](int row, int column) { return -(column * 100 + row) / 10000.0; };
  std::string x_cells, z_cells;
  for (int row = 1; row <= 45; ++row) {
    for (int column = 1; column <= 40; ++column) {
      const char* end = column < 40 ? "," : "\n";
      x_cells += Exact_Number(x(row, column)) + end;
      z_cells += Exact_Number(z(row, column)) + end;
    }
  }
  Open(4);
  Import_Field(0, x_cells);
  Import_Field(1, z_cells);
  EXPECT_EQ(F1Book2(1)->table().TextRC(45, 2), "-0.0245");
  Accept_Save_And_Load();
  EXPECT_EQ(record.VelocityProfileType, 4);
  // A row of 40 takes four lines of ten; X stands before Z.
  const std::vector<std::string> lines = Velocity_Lines(4);
  ASSERT_GT(lines.size(), 361U);
  for (int row = 1; row <= 45; ++row) {
    for (int column = 1; column <= 40; ++column) {
      const auto line = static_cast<std::size_t>(1 + (row - 1) * 4 + (column - 1) / 10);
      const auto at = static_cast<std::size_t>((column - 1) % 10);
      ASSERT_EQ(Columns(lines[line], 8).at(at), x(row, column)) << row << ", " << column;
      ASSERT_EQ(Columns(lines[line + 180], 8).at(at), z(row, column)) << row << ", " << column;
    }
  }
  Run();
}

// The file holds no constant, only the field that it filled.
TEST_F(VelocityJourney, A_Constant_Comes_Back_As_The_Field_It_Filled) {
  Open(4);
  const Modal_Replies ok({Press(QMessageBox::Ok), Press(QMessageBox::Ok)});
  Tick(Check3D2(0));
  Enter(Text2(0), "-0.75");
  Tick(Check3D2(1));
  Enter(Text2(1), "0.5");
  Accept_Save_And_Load({"ConstVelocityX", "ConstVelocityZ"});
  const std::vector<std::string> lines = Velocity_Lines(4);
  EXPECT_EQ(Columns(lines.at(1), 8), Numbers(10, -0.75));
  EXPECT_EQ(Columns(lines.at(181), 8), Numbers(10, 0.5));
  Open();
  const double filled[] = {-0.75, 0.5};
  for (int i = 0; i < 2; ++i) {
    EXPECT_FALSE(Check3D2(i)->isChecked());
    EXPECT_EQ(F1Book2(i)->table().NumberRC(45, 40), filled[i]);
  }
}

// 1 h to 2 h: (1, 0.5) (1.5, 0.75) (2, 1.5): 0.5 x 1.25 x 0.5 + 0.5 x 2.25 x 0.5 = 0.875.
// For Z: (1, 0) (1.5, -0.5) (2, 0): -0.25.
TEST_F(VelocityJourney, A_Tide_Reaches_The_Model_By_Its_Averages) {
  Open(5);
  Enter_Cell(F1Book3(), 3, 1, "0.5");
  Enter_Cell(F1Book3(), 4, 1, "0.75");
  Enter_Cell(F1Book3(), 5, 1, "1.5");
  Enter_Cell(F1Book3(), 4, 2, "-0.5");
  Enter_Cell(F1Book3(), 26, 2, "0.1");
  Enter(Text3(0), "1");
  Enter(Text3(1), "42.5");
  Enter(Text3(2), "1");
  Accept_Save_And_Load();
  EXPECT_EQ(record.VelocityProfileType, 5);
  EXPECT_EQ(record.TidalVelZ[26], 0.1F);
  EXPECT_EQ(Columns(Velocity_Lines(5).at(1), 10), (Numbers{0.875, -0.25, 42.5}));
  Open();
  EXPECT_EQ(Text3(3)->text(), ".88") << "0.875 rounds away from zero";
  EXPECT_EQ(Text3(4)->text(), "-.25");
  Press_Command(1);
  Run();
}

}  // namespace
}  // namespace barvon::testing
