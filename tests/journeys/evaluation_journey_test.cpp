#include <gtest/gtest.h>

#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "core/desk/screen_register.h"
#include "core/number_text.h"
#include "params/frm_mdlkyn.h"
#include "platform/ask/file_dialog.h"
#include "run/create_process.h"
#include "support/record_differences.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

namespace fs = std::filesystem;
using Fields = std::vector<std::string>;
using Numbers = std::vector<double>;

const Fields kEvaluation = {"TracerConcentration",
                            "BackgroundConcentration",
                            "CriterionConcentration",
                            "SedimentConcentration",
                            "ToxicityDilution",
                            "SiteTop",
                            "SiteLeft",
                            "SiteBottom",
                            "SiteRight",
                            "ZidFlag",
                            "ZidTop",
                            "ZidLeft",
                            "ZidBottom",
                            "ZidRight",
                            "ZCRIT",
                            "ZidToxicityDilution",
                            "NumOutputDepths",
                            "OutputDepths",
                            "SolidNames",
                            "TracerName",
                            "KEY3"};

/// From a sample project without evaluation data over the board and the screen to the file, the
/// model input and a run of the input echo.
class EvaluationJourney : public ::testing::Test {
 protected:
  EvaluationJourney() {
    Register_Screen(kRow, Fresh_Screens<frmMdlkyn>(&bench.main()));
    const auto choose = [this](const File_Request&) { return chosen; };
    dialogs_ = Set_File_Dialog_Presenter({choose, choose, [] {}});
    fs::copy_file(BARVON_ECHO_SOLVER, bench.folder / "merak32");
  }
  ~EvaluationJourney() override {
    Set_File_Dialog_Presenter(dialogs_);
    Register_Screen(kRow, {});
  }

  void Start_From(const std::string& sample) {
    fs::copy_file(std::string(BARVON_SAMPLES) + "/" + sample, bench.folder / "site.DUI");
    Load("site.DUI");
    record.TracerName().clear();
    record.TracerConcentration = record.BackgroundConcentration = 0;
    record.CriterionConcentration = record.SedimentConcentration = 0;
    record.SiteTop = record.SiteLeft = record.SiteBottom = record.SiteRight = 0;
    record.ZidFlag = 0;
    record.ZidTop = record.ZidLeft = record.ZidBottom = record.ZidRight = record.ZCRIT = 0;
    record.NumOutputDepths = 1;
    record.OutputDepths = {};
  }

  void Load(const std::string& name) {
    chosen = bench.folder / name;
    bench.Action("mnuFileItem(1)")->trigger();
    ASSERT_EQ(record.ProjectFileName, *chosen);
    record.ShowMode = 0;
  }

  void Open_From_The_Board(int evaluation) {
    bench.controls().SSPanel3(0)->click();
    bench.controls().SSOption4(evaluation)->click();
    bench.controls().SSPanel5(1)->click();
    screen = nullptr;
    for (auto* window : bench.main().findChildren<QWidget*>(QStringLiteral("frmMdlkyn"))) {
      if (window->isVisible()) screen = window;
    }
    ASSERT_NE(screen, nullptr);
    ASSERT_TRUE(Has_Keyboard(screen));
  }
  void Go_To(int page) {
    auto* tabs = screen->findChild<QTabWidget*>();
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(page).center());
    ASSERT_EQ(tabs->currentIndex(), page);
  }
  void Enter(const char* reference, const QString& text) {
    auto* field = screen->findChild<QLineEdit*>(QLatin1String(reference));
    ASSERT_TRUE(field->isVisible() && field->isEnabled() && !field->isReadOnly()) << reference;
    field->setFocus();
    field->selectAll();
    Type(field, text);
  }

  /// Accepts the screen, saves, begins anew and loads. The evaluation must be as OK left it.
  void Accept_Save_And_Load() {
    const Modal_Replies no_boxes({});
    Click(screen->findChild<QPushButton*>("Command1(0)"));
    ASSERT_FALSE(screen->isVisible());
    const auto kept = std::make_unique<ProjectRecord>(record);
    chosen = bench.folder / "kept.DUI";
    bench.Action("mnuFileItem(5)")->trigger();
    bench.Action("mnuFileItem(0)")->trigger();
    ASSERT_EQ(record.SiteTop, 0);
    Load("kept.DUI");
    for (const std::string& field : Differing_Fields(*kept, record)) {
      EXPECT_EQ(std::ranges::count(kEvaluation, field), 0) << field;
    }
  }

  std::vector<std::string> Model_Lines() {
    std::istringstream file(Read_Text(bench.folder / "kept.DUE"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      lines.push_back(line);
    }
    return lines;
  }
  /// The place of the line with these bytes, behind the last line when there is none.
  static std::size_t Place_Of(const std::vector<std::string>& lines, const std::string& bytes) {
    return static_cast<std::size_t>(std::ranges::find(lines, bytes) - lines.begin());
  }
  static Numbers Columns(const std::string& line, std::size_t first = 0) {
    constexpr std::size_t kWidth = 10;
    Numbers numbers;
    for (std::size_t at = first; at < line.size(); at += kWidth) {
      numbers.push_back(Lenient_Number(line.substr(at, kWidth)));
    }
    return numbers;
  }
  /// The numbers of the first line of the fluid, behind its name.
  static Numbers Fluid(const std::vector<std::string>& lines, const std::string& name) {
    for (const std::string& line : lines) {
      if (line.starts_with(name)) return Columns(line, 10);
    }
    return {};
  }

  void Run() {
    QTest::mouseClick(bench.controls().SSPanel3(1), Qt::LeftButton);
    ASSERT_FALSE(Run_Is_Under_Way());
    EXPECT_NE(Read_Text(bench.folder / "kept.duo").find("simulates nothing"), std::string::npos);
  }

  static constexpr const Screen_Row& kRow = Row_Of_Screen("frmMdlkyn");
  Main_Bench bench;
  ProjectRecord& record = Project();
  QWidget* screen = nullptr;
  std::optional<std::string> chosen;

 private:
  File_Dialog_Presenter dialogs_;
};

// Points are 200 ft apart: 3400 / 200 + 1.5 = 18.5, the 18th point, and so on.
TEST_F(EvaluationJourney, Section_103_Is_Entered_Saved_Loaded_And_Run) {
  Start_From("Section_103_Water_Quality.DUI");
  Open_From_The_Board(1);
  Enter("Text(0)", "3400");
  Enter("Text(1)", "2600");
  Enter("Text(2)", "9000");
  Enter("Text(3)", "7000");
  Enter("Text1(0)", "0.005");
  Enter("Text1(2)", "Copper");
  Enter("Text2", "0.12");
  Enter("Text1(3)", "0.0007");
  Go_To(2);
  Enter("Text8(5)", "2");
  Enter("Text8(0)", "12.5");
  Enter("Text8(1)", "110");
  Accept_Save_And_Load();
  EXPECT_EQ(record.KEY3, 2);
  EXPECT_EQ(record.SiteBottom, 9000);
  EXPECT_EQ(record.CriterionConcentration, 0.005);
  EXPECT_EQ(record.ZidFlag, 0);

  const std::vector<std::string> lines = Model_Lines();
  const std::size_t site = Place_Of(lines, "   18   46   14   36");
  ASSERT_LT(site + 1, lines.size());
  EXPECT_EQ(Columns(lines[site + 1]), (Numbers{3400, 9000, 2600, 7000}));
  const std::size_t count = Place_Of(lines, "    2");
  ASSERT_LT(count + 1, lines.size());
  EXPECT_EQ(Columns(lines[count + 1]), (Numbers{12.5, 110}));
  EXPECT_EQ(Fluid(lines, "Copper    "), (Numbers{1.015, 0.12, 0.0007, 0.005}));
  Run();
}

// Points are 50 ft apart: 350 / 50 + 1.5 = 8.5, the 8th point, and so on.
TEST_F(EvaluationJourney, Section_404_With_A_Zid_Is_Entered_Saved_Loaded_And_Run) {
  Start_From("Section_404_Zid.DUI");
  Open_From_The_Board(1);
  Enter("Text(0)", "350");
  Enter("Text(1)", "200");
  Enter("Text(2)", "2400");
  Enter("Text(3)", "950");
  Enter("Text1(0)", "2.4");
  Enter("Text1(2)", "Ammonia");
  Enter("Text2", "15.5");
  Enter("Text1(3)", "0.2");
  Go_To(1);
  Click(screen->findChild<QCheckBox*>("Check3D1"));
  Enter("Text5(0)", "450");
  Enter("Text5(1)", "400");
  Enter("Text5(2)", "900");
  Enter("Text5(3)", "700");
  Enter("Text6", "8.5");
  Go_To(2);
  Enter("Text8(5)", "3");
  Enter("Text8(0)", "4");
  Enter("Text8(1)", "18");
  Enter("Text8(2)", "33");
  Accept_Save_And_Load();
  EXPECT_EQ(record.KEY3, 5);
  EXPECT_EQ(record.ZidFlag, 1);
  EXPECT_EQ(record.ZidRight, 700);
  EXPECT_EQ(record.ZCRIT, 8.5);

  const std::vector<std::string> lines = Model_Lines();
  EXPECT_LT(Place_Of(lines, "    1    0    5    0    0    1    0"), lines.size());
  const std::size_t zone = Place_Of(lines, "    8   49    5   20");
  ASSERT_LT(zone + 3, lines.size());
  EXPECT_EQ(Columns(lines[zone + 1]), (Numbers{350, 2400, 200, 950}));
  EXPECT_EQ(lines[zone + 2], "   10   19    9   15");
  EXPECT_EQ(Columns(lines[zone + 3]), (Numbers{450, 900, 400, 700}));
  EXPECT_EQ(Fluid(lines, "Ammonia   "), (Numbers{0.998, 15.5, 0.2, 2.4, 0}));
  Run();
}

}  // namespace
}  // namespace barvon::testing
