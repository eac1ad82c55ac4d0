#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iomanip>
#include <memory>
#include <sstream>
#include <vector>

#include "checks/sound_project.h"
#include "core/desk/input_sum.h"
#include "core/keys.h"
#include "pictures/shapes/inks.h"
#include "report/project_differences.h"
#include "report/project_report.h"
#include "report/report_cells.h"
#include "report/report_html.h"
#include "report/report_pages.h"
#include "results/small_outputs.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

constexpr char kChapter[] = "Results of the Run";

std::unique_ptr<ProjectRecord> Hopper() {
  auto record = std::make_unique<ProjectRecord>(Sound_Project());
  record->FileKind = kProjectKind;
  record->DisposalMethod = kHopper;
  record->AnalysisType = kOpenWater;
  record->KEY1 = 1;
  return record;
}

/// A project with the outputs of its run beside it.
struct ReportResults : ::testing::Test {
  ReportResults() {
    record->ProjectFileName = folder / "Bank.DUI";
    Write_Text(record->ProjectFileName, "as saved");
    std::ostringstream sum;
    sum << std::hex << std::setw(16) << std::setfill('0') << Input_Sum(*record).value();
    Put_Outputs("INPU  " + sum.str() + "\r\n");
  }

  void Put_Outputs(const std::string& sum_line) {
    const std::string line = "INPU  0123456789abcdef\r\n";
    Write_Text(folder / "Bank.dut", With(kSmallSeries, line, sum_line));
    Write_Text(folder / "Bank.duc", With(kSmallMaps, line, sum_line));
    Write_Text(folder / "Bank.dup", With(kSmallPhases, line, sum_line));
  }

  Report_Document Report() const { return Project_Report(*record, Facts_Of(*record)); }

  Scratch_Folder folder;
  std::unique_ptr<ProjectRecord> record = Hopper();
};

/// The parts of the chapter; none when it is not there.
std::vector<Report_Part> Chapter(const Report_Document& report) {
  std::vector<Report_Part> parts;
  bool inside = false;
  for (const Report_Part& part : report.parts) {
    if (const auto* heading = std::get_if<Report_Heading>(&part)) {
      if (heading->level == 1) inside = heading->text == kChapter;
    }
    if (inside) parts.push_back(part);
  }
  return parts;
}

template <typename Part>
std::vector<Part> All(const std::vector<Report_Part>& parts) {
  std::vector<Part> found;
  for (const Report_Part& part : parts) {
    if (const auto* one = std::get_if<Part>(&part)) found.push_back(*one);
  }
  return found;
}

std::vector<std::string> Warnings(const Report_Document& report) {
  std::vector<std::string> texts;
  for (const auto& paragraph : All<Report_Paragraph>(report.parts)) {
    if (paragraph.warns) texts.push_back(paragraph.text);
  }
  return texts;
}

TEST_F(ReportResults, Solver_Verdicts_And_Balance_Are_Told) {
  const Report_Document report = Report();
  EXPECT_EQ(Value_Of(report, "Solver") + "\r\n", kSmallLabel);
  EXPECT_EQ(Value_Of(report, "Date of the Outputs").size(), std::string("2026-01-02 03:04").size());
  EXPECT_TRUE(Warnings(report).empty());
  const auto parts = Chapter(report);
  std::vector<std::string> headings, words;
  for (const auto& heading : All<Report_Heading>(parts)) headings.push_back(heading.text);
  EXPECT_EQ(headings,
            (std::vector<std::string>{kChapter, "Verdicts", "Balance", "Max Conc. vs Time",
                                      "Concentration Contours", "Deposition Thickness"}));
  for (const auto& paragraph : All<Report_Paragraph>(parts)) words.push_back(paragraph.text);
  EXPECT_EQ(words, (std::vector<std::string>{"criterion outside the disposal site, 2 %: exceeded "
                                             "from 600 s to 900 s"}));
  const auto tables = All<Report_Table>(parts);
  ASSERT_EQ(tables.size(), 2u);  // the values, the balance
  ASSERT_EQ(tables[1].rows.size(), 2u);
  EXPECT_EQ(tables[1].rows[0].cells,
            (std::vector<std::string>{"Sand", "100", "20", "60", "20", "ft3"}));
  EXPECT_EQ(tables[1].rows[1].cells,
            (std::vector<std::string>{"Copper", "50", "50", "0", "0", "% ft3"}));
}

// A millionth of what was released is more than the outputs' digits tell.
TEST_F(ReportResults, Next_To_Nothing_Is_Told_As_None) {
  std::string series = Read_Text(folder / "Bank.dut");
  const std::string last = "6.000000e+01  2.000000e+01  1.000000e+02";
  Write_Text(folder / "Bank.dut", With(series, last, "6.000000e+01  9.000000e-05  1.000000e+02"));
  const auto tables = All<Report_Table>(Chapter(Report()));
  EXPECT_EQ(tables[1].rows[0].cells[4], "0");
  Write_Text(folder / "Bank.dut", With(series, last, "6.000000e+01  2.000000e-04  1.000000e+02"));
  EXPECT_EQ(All<Report_Table>(Chapter(Report()))[1].rows[0].cells[4], "0.0002");
}

// Copper alone has a limit; outside the site it is highest at 600 s. The deposit is of the end.
TEST_F(ReportResults, The_Pictures_Are_Of_The_Times_That_Tell_Most) {
  const auto pictures = All<Report_Picture>(Chapter(Report()));
  ASSERT_EQ(pictures.size(), 4u);
  EXPECT_EQ(pictures[0].picture.title, "Balance at the end");
  EXPECT_NE(pictures[1].picture.title.find("Copper"), std::string::npos);
  EXPECT_EQ(pictures[2].picture.title, "Copper at 5 ft, 600 s (10 min)");
  EXPECT_EQ(pictures[3].picture.title, "Deposit of all solids, 1200 s (20 min)");
  for (const auto& picture : pictures) {
    EXPECT_FALSE(picture.picture.description.empty()) << picture.picture.title;
    const auto says_title = [&](const Shape& shape) {
      const auto* text = std::get_if<Text_Shape>(&shape);
      return text != nullptr && text->text == picture.picture.title;
    };
    EXPECT_TRUE(std::ranges::none_of(picture.picture.shapes, says_title)) << "it is the caption";
  }
}

TEST_F(ReportResults, A_Map_Of_Another_Time_Than_The_Largest_Value_Says_So) {
  std::string maps = Read_Text(folder / "Bank.duc");
  for (const char* tag : {"MAP  ", "BED  "}) {
    const std::string early = std::string(tag) + "  6.000000e+02";
    while (maps.find(early) != std::string::npos) {
      maps = With(maps, early, std::string(tag) + "  9.000000e+02");
    }
  }
  Write_Text(folder / "Bank.duc", maps);
  const auto parts = Chapter(Report());
  EXPECT_EQ(All<Report_Picture>(parts)[2].picture.title, "Copper at 5 ft, 900 s (15 min)");
  EXPECT_EQ(All<Report_Paragraph>(parts)[1].text,
            "The map that is nearest to the time of the largest value, 600 s (10 min).");
}

TEST_F(ReportResults, A_Project_That_Was_Changed_Since_Says_So_In_Red_Instead) {
  record->XBARGE += 1;
  const Report_Document report = Report();
  const std::vector<std::string> warnings = Warnings(report);
  ASSERT_EQ(warnings.size(), 1u);
  EXPECT_TRUE(warnings[0].starts_with(
      "The project was changed since the run whose outputs lie beside it, of 20"))
      << warnings[0];
  EXPECT_EQ(Chapter(report).size(), 2u);  // heading and warning

  const std::string page = Report_Html(report);
  EXPECT_NE(page.find("<p class=\"warning\">The project was changed since"), std::string::npos);
  EXPECT_NE(page.find("p.warning { color: #b02a20;"), std::string::npos);
  EXPECT_EQ(kWarnInk, (Colour{0xb0, 0x2a, 0x20}));
  bool found = false;
  for (const Shape_List& sheet : Report_Pages(report)) {
    for (const Shape& shape : sheet.shapes) {
      const auto* text = std::get_if<Text_Shape>(&shape);
      if (text == nullptr || text->text.find("The project was changed") == std::string::npos) {
        continue;
      }
      found = true;
      EXPECT_EQ(text->colour, kWarnInk);
      EXPECT_TRUE(text->bold);
    }
  }
  EXPECT_TRUE(found);
}

TEST_F(ReportResults, What_The_Model_Input_Does_Not_Have_Is_No_Change) {
  record->DataSaved = kFalse;
  record->ShowMode = 1;
  EXPECT_TRUE(Warnings(Report()).empty());
  EXPECT_EQ(All<Report_Picture>(Chapter(Report())).size(), 4u);
}

TEST_F(ReportResults, Outputs_Without_A_Sum_And_Damaged_Ones_Are_Told) {
  Put_Outputs("");
  ASSERT_EQ(Warnings(Report()).size(), 1u);
  EXPECT_NE(Warnings(Report())[0].find("do not tell what model input they are of"),
            std::string::npos);
  Write_Text(folder / "Bank.duc", kSmallLabel);
  EXPECT_EQ(Warnings(Report()),
            (std::vector<std::string>{
                "The outputs of the run can't be shown. Bank.duc, line 2: not \"Maps\" of a "
                "project."}));
  std::filesystem::remove(folder / "Bank.duc");
  EXPECT_EQ(Warnings(Report()),
            (std::vector<std::string>{
                "The outputs of the run can't be shown. Bank.duc: there is no such file."}));
}

TEST_F(ReportResults, Without_Outputs_Or_With_Anothers_There_Is_No_Chapter) {
  Write_Text(folder / "Bank.dut", "TIDE MODEL 7\r\n");
  EXPECT_TRUE(Chapter(Report()).empty());
  for (const char* name : {"Bank.dut", "Bank.duc", "Bank.dup"}) {
    std::filesystem::remove(folder / name);
  }
  EXPECT_TRUE(Chapter(Report()).empty());
  record->ProjectFileName.clear();
  EXPECT_TRUE(Chapter(Report()).empty());
}

TEST_F(ReportResults, They_Are_No_Difference_Between_Projects) {
  const auto other = std::make_unique<ProjectRecord>(*record);
  other->ProjectFileName.clear();
  EXPECT_TRUE(Differences_Of(*record, *other).empty());
}

TEST_F(ReportResults, Descent_And_Collapse_Alone_Have_Balance_And_Deposit) {
  std::string series = Read_Text(folder / "Bank.dut"), maps = Read_Text(folder / "Bank.duc");
  series.erase(series.find("MAXI"), series.find("MASS") - series.find("MAXI"));
  maps.erase(maps.find("MAP  "), maps.find("BED  ") - maps.find("MAP  "));
  maps.erase(maps.find("MOST"));
  Write_Text(folder / "Bank.dut", series);
  Write_Text(folder / "Bank.duc", maps);
  const auto parts = Chapter(Report());
  EXPECT_EQ(All<Report_Picture>(parts).size(), 2u);
  EXPECT_EQ(All<Report_Paragraph>(parts).back().text,
            "The run has no concentrations: it ends with descent and collapse.");
}

}  // namespace
}  // namespace barvon::testing
