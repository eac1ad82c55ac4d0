#include "report/project_report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "checks/check_data.h"
#include "checks/sound_project.h"
#include "core/keys.h"
#include "core/velocity_types.h"
#include "platform/files/paths.h"
#include "report/report_cells.h"
#include "report/report_html.h"
#include "report/report_rows.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

const Report_Facts kFacts = {"/sites/TERN.DUI", "2026-01-02 03:04", true, "2026-02-03 04:05"};

std::unique_ptr<ProjectRecord> Sound() {
  auto record = std::make_unique<ProjectRecord>(Sound_Project());
  record->FileKind = kProjectKind;
  record->DisposalMethod = kHopper;
  record->AnalysisType = kOpenWater;
  record->KEY1 = 1;
  return record;
}

std::vector<std::string> Pictures_Of(const Report_Document& report) {
  std::vector<std::string> titles;
  for (const Report_Part& part : report.parts) {
    if (const auto* picture = std::get_if<Report_Picture>(&part)) {
      titles.push_back(picture->picture.title);
    }
  }
  return titles;
}

bool Has_Heading(const Report_Document& report, const std::string& text) {
  return std::ranges::any_of(report.parts, [&](const Report_Part& part) {
    const auto* heading = std::get_if<Report_Heading>(&part);
    return heading != nullptr && heading->text == text;
  });
}

TEST(ProjectReport, Tells_The_File_And_Its_Date) {
  const Report_Document report = Project_Report(*Sound(), kFacts);
  EXPECT_EQ(Value_Of(report, "File"), "TERN.DUI");
  EXPECT_EQ(Value_Of(report, "Folder"), "/sites");
  EXPECT_EQ(Value_Of(report, "File Date"), "2026-01-02 03:04");
  EXPECT_EQ(Value_Of(report, "Date of This Report"), "2026-02-03 04:05");
  EXPECT_EQ(Value_Of(report, "Changes Since Then"), "");
  EXPECT_EQ(report.running_title, "TERN.DUI");
}

TEST(ProjectReport, A_Project_Without_A_File_Is_Not_Saved) {
  const Report_Document report = Project_Report(*Sound(), {"", "", false, "today"});
  EXPECT_EQ(Value_Of(report, "File"), "not saved");
  EXPECT_EQ(Value_Of(report, "Folder"), "");
  EXPECT_EQ(report.running_title, "not saved");
  EXPECT_EQ(report.subtitle, "Untitled Project");
}

TEST(ProjectReport, Changes_That_The_File_Does_Not_Have_Are_Told) {
  Report_Facts facts = kFacts;
  facts.saved = false;
  const Report_Document report = Project_Report(*Sound(), facts);
  EXPECT_EQ(Value_Of(report, "Changes Since Then"), "not saved");
  EXPECT_EQ(report.running_title, "TERN.DUI, with changes not saved");
}

TEST(ProjectReport, The_Facts_Are_Those_Of_The_Record) {
  const auto record = Sound();
  record->DataSaved = kFalse;
  EXPECT_EQ(Facts_Of(*record).file, "");
  EXPECT_FALSE(Facts_Of(*record).saved);
  Scratch_Folder folder;
  record->ProjectFileName = folder / "A.DUI";
  record->DataSaved = kTrue;
  EXPECT_EQ(Facts_Of(*record).changed, "");
  Write_Text(record->ProjectFileName, "x");
  EXPECT_EQ(Facts_Of(*record).changed.size(), std::string("2026-01-02 03:04").size());
  EXPECT_TRUE(Facts_Of(*record).saved);
}

TEST(ProjectReport, The_Output_Beside_The_File_Says_What_Solver_Wrote_It) {
  const auto record = Sound();
  Scratch_Folder folder;
  record->ProjectFileName = folder / "A.DUI";
  EXPECT_EQ(Value_Of(Project_Report(*record, Facts_Of(*record)), "Output of the Last Run"), "");
  Write_Text(folder / "A.DUO", "COMPANION SOLVER 1.0 - a model\r\nResults\r\n");
  const Report_Facts facts = Facts_Of(*record);
  const Report_Document report = Project_Report(*record, facts);
  EXPECT_EQ(Value_Of(report, "Output of the Last Run"), "A.DUO, " + facts.listing_date);
  EXPECT_EQ(Value_Of(report, "It Begins With"), "COMPANION SOLVER 1.0 - a model");
}

TEST(ProjectReport, An_Output_Of_Any_Kind_Gives_A_Line_That_Can_Be_Shown) {
  const auto record = Sound();
  Scratch_Folder folder;
  record->ProjectFileName = folder / "A.DUI";
  std::filesystem::create_directory(folder / "A.duo");
  EXPECT_EQ(Facts_Of(*record).listing, "");
  std::filesystem::remove(folder / "A.duo");
  for (const auto& [bytes, line] : {std::pair<std::string, std::string>{"", ""},
                                    {"\n", ""},
                                    {std::string(5, '\0') + "\x07 \xB5g \n", "\xC2\xB5g"},
                                    {std::string(300, 'x'), std::string(200, 'x')}}) {
    Write_Text(folder / "A.duo", bytes);
    EXPECT_EQ(Facts_Of(*record).listing, "A.duo");
    EXPECT_EQ(Facts_Of(*record).listing_begins, line);
  }
}

TEST(ProjectReport, The_Study_Is_Told_In_Words) {
  const auto record = Sound();
  record->AnalysisType = kNavigableWaters;
  record->KEY3 = kNavigableToxicity;
  record->KEY2 = kDiffusion;
  record->DisposalMethod = kBarge;
  const Report_Document report = Project_Report(*record, kFacts);
  EXPECT_EQ(Value_Of(report, "Type of Analysis"),
            "Section 404(b)(1) Regulatory Analysis for US Navigable Waters");
  EXPECT_EQ(Value_Of(report, "Method of Disposal"), "Disposal from a Split-Hull Barge or Scow");
  EXPECT_EQ(Value_Of(report, "Simulation Type"), "Descent, Collapse and Diffusion");
  EXPECT_EQ(Value_Of(report, "Evaluation Type"), "Tier III, Compare Toxicity Results");
}

TEST(ProjectReport, A_Choice_That_Is_None_Is_Told_As_It_Is) {
  const auto record = Sound();
  record->AnalysisType = 9;
  record->DisposalMethod = 77;
  record->KEY2 = 5;
  record->KEY3 = 40;
  const Report_Document report = Project_Report(*record, kFacts);
  EXPECT_EQ(Value_Of(report, "Type of Analysis"), "Unknown (9)");
  EXPECT_EQ(Value_Of(report, "Method of Disposal"), "Unknown (77)");
  EXPECT_EQ(Value_Of(report, "Simulation Type"), "Unknown (5)");
  EXPECT_EQ(Value_Of(report, "Evaluation Type"), "Unknown (40)");
}

TEST(ProjectReport, The_Concentration_That_Is_Computed_From_The_Sediment_Is_Told) {
  const auto record = Sound();
  record->KEY3 = kNavigableFurtherTesting;
  record->SedimentConcentration = 10;
  record->TracerConcentration = 777;
  record->NumSolids = 1;
  record->SolidSG[1] = 2.5;
  record->SolidVolFraction[1] = 0.5;
  const Report_Document report = Project_Report(*record, kFacts);
  // 10 x 2.5 x 0.5.
  EXPECT_EQ(Value_Of(report, "Concentration in the fluid fraction, computed from the sediment"),
            "12.5");
  EXPECT_FALSE(Cells_Of(report).contains("777"));
  EXPECT_EQ(record->TracerConcentration, 777);
}

TEST(ProjectReport, Values_That_The_Model_Input_Has_Not_Are_Apart) {
  const auto record = Sound();
  record->KEY3 = kOceanFurtherTesting;
  record->CriterionConcentration = 3.25;
  record->ZidToxicityDilution = 4.5;
  const Report_Document report = Project_Report(*record, kFacts);
  EXPECT_EQ(Chapter_Of(report, "Water Quality Criteria for Contaminant"),
            "Kept in the Project File, Not Used");
  EXPECT_EQ(Chapter_Of(report, "Dilution required to meet Toxicity Standard at Border of ZID"),
            "Further Values in the Model Input");
}

TEST(ProjectReport, Tells_What_The_Solver_Gets_Of_It) {
  const auto record = Sound();
  record->KEY3 = kNavigableWaterQuality;
  record->NOPENS = 4;
  record->TotalVolume = 1000;
  record->NBINS = 4;
  record->BINL = 30;
  record->BINW = 20;
  record->DBINS = 5;
  record->DX0 = 10;
  record->DZ0 = 0;
  record->SiteTop = 0;
  record->SiteLeft = 40;
  record->SiteBottom = 80;
  record->SiteRight = 100;
  record->DEPC0 = 500;
  const Report_Document report = Project_Report(*record, kFacts);
  EXPECT_EQ(Chapter_Of(report, "Volume of each opening"), "As the Solver Gets It");
  EXPECT_EQ(Value_Of(report, "Volume of each opening"), "250");
  // Two by two bins.
  EXPECT_EQ(Value_Of(report, "Length of the bins that open together"), "65");
  EXPECT_EQ(Value_Of(report, "Width of the bins that open together"), "45");
  EXPECT_EQ(Value_Of(report, "Spacing in Z-Direction, that of the X-Direction as none is given"),
            "10");
  EXPECT_EQ(Chapter_Of(report, "Point added to the density profile, which has to reach the bottom"),
            "As the Solver Gets It");
  EXPECT_EQ(record->DZ0, 0);
  std::vector<std::vector<std::string>> corners;
  for (const Report_Part& part : report.parts) {
    const auto* table = std::get_if<Report_Table>(&part);
    if (table == nullptr || table->caption != "Mixing Zone on the Grid") continue;
    for (const Report_Row& row : table->rows) corners.push_back(row.cells);
  }
  ASSERT_EQ(corners.size(), 4u);
  EXPECT_EQ(corners[0],
            (std::vector<std::string>{"Upper left, from the top", "0", "3", "20",
                                      "moved: not so near the edge, nor the other corner"}));
  EXPECT_EQ(corners[1],
            (std::vector<std::string>{"Upper left, from the left", "40", "5", "40", ""}));
}

TEST(ProjectReport, Tells_Why_There_Is_No_Model_Input_And_How_Much_Is_Shown) {
  const auto record = Sound();
  EXPECT_EQ(Chapter_Of(Project_Report(*record, kFacts),
                       "The model input can't be written: Subscript out of range."),
            "");
  record->NOPENS = 16;
  const Report_Document report = Project_Report(*record, kFacts);
  EXPECT_EQ(Chapter_Of(report, "The model input can't be written: Subscript out of range."),
            "Check of the Data");
  EXPECT_EQ(Chapter_Of(report, "6 of 16 shown."), "Disposal Operation");
}

TEST(ProjectReport, A_Pipelines_Report_Has_What_Its_Model_Input_Has) {
  const auto record = Sound();
  record->DisposalMethod = kContinuous;
  record->KEY2 = kDiffusion;
  record->VesselSpeed = 0;
  record->BulkDensity = 1.25;
  record->RHDA0 = 0.005;
  const Report_Document report = Project_Report(*record, kFacts);
  EXPECT_EQ(Value_Of(report, "Simulation Type"), "Descent, Collapse and Diffusion, Vessel at Rest");
  EXPECT_EQ(Chapter_Of(report, "Bulk Density of the Material"), "Material Description");
  EXPECT_EQ(Chapter_Of(report,
                       "Roughness Height (ft) at Bottom in X-Direction (Typically from 0.0005 to "
                       "0.05 ft)"),
            "");
  EXPECT_EQ(Chapter_Of(report,
                       "Roughness Height at Bottom in X-Direction (Typically from 0.0005 to 0.05 "
                       "ft)"),
            "Kept in the Project File, Not Used");
}

TEST(ProjectReport, All_Findings_Are_Told_With_Their_Texts) {
  const auto record = Sound();
  const Error_List none = Check_Data(*record);
  record->DEPC0 = 0;
  record->RHDA0 = 0;
  const Error_List errors = Check_Data(*record);
  ASSERT_GT(errors.entries.size(), none.entries.size());
  const auto cells = Cells_Of(Project_Report(*record, kFacts));
  for (const Error_Entry& entry : errors.entries) {
    EXPECT_EQ(cells.count(entry.message), 1u) << entry.message;
    EXPECT_EQ(cells.count(entry.reference), 0u) << entry.reference;
  }
}

TEST(ProjectReport, Labels_And_Units_Are_Those_Of_The_Screens) {
  const auto record = Sound();
  record->BINL = 30.66;
  const Report_Document report = Project_Report(*record, kFacts);
  EXPECT_EQ(Value_Of(report, "Length of Disposal Vessel Bin"), "30.66");
  EXPECT_EQ(Value_Of(report, "Width of Disposal Vessel Bin"), "30.0");
  EXPECT_EQ(Value_Of(report, "Specify Variable Depth Grid?"), "No");
  // 19 spacings of 10 ft, 29 of 20 ft.
  EXPECT_EQ(Value_Of(report, "Length [X-Dir]"), "190.00");
  EXPECT_EQ(Value_Of(report, "Width [Z-Dir]"), "580.00");
}

TEST(ProjectReport, A_Label_Loses_The_Unit_That_Has_Its_Own_Column) {
  EXPECT_EQ(Label_Without_Unit("Length of Bin (ft)", "ft"), "Length of Bin");
  EXPECT_EQ(Label_Without_Unit("Total Volume (cu yd).", "cu yd"), "Total Volume");
  EXPECT_EQ(Label_Without_Unit("Course (deg) of  it", "deg"), "Course of it");
  EXPECT_EQ(Label_Without_Unit("Number (Max 6)", ""), "Number (Max 6)");
}

TEST(ProjectReport, Salinity_And_Temperature_Are_Told_Where_They_Are_Known) {
  const auto record = Sound();
  EXPECT_EQ(Value_Of(Project_Report(*record, kFacts), "Salinity"), "");
  record->SiteSalinity = 12.5;
  const Report_Document report = Project_Report(*record, kFacts);
  EXPECT_EQ(Value_Of(report, "Salinity"), "12.50");
  EXPECT_EQ(Cells_Of(report).count("Dredging Site Water Density"), 1u);
}

TEST(ProjectReport, Shows_The_Pictures_That_Apply) {
  const auto record = Sound();
  record->VelocityProfileType = kSingleVelocity;
  using Titles = std::vector<std::string>;
  EXPECT_EQ(Pictures_Of(Project_Report(*record, kFacts)),
            (Titles{"Site plan", "Water density against depth", "Time line of the simulation"}));
  EXPECT_NE(Report_Html(Project_Report(*record, kFacts))
                .find("The red point is the disposal point; the outline at it is the vessel."),
            std::string::npos);
  record->DisposalMethod = kBarge;
  record->VelocityProfileType = kTwoPointVelocity;
  const Titles barge = Pictures_Of(Project_Report(*record, kFacts));
  ASSERT_EQ(barge.size(), 5u);
  EXPECT_EQ(barge[3], "Composition of the load");
}

TEST(ProjectReport, Grids_Are_In_Blocks_At_The_End) {
  const auto record = Sound();
  record->ConstantDepthFlag = 0;
  for (auto& column : record->DepthGrid) column.fill(30.5);
  const Report_Document report = Project_Report(*record, kFacts);
  ASSERT_TRUE(Has_Heading(report, "Depths at the Grid Points (ft)"));
  // 30 columns: 16 and 14.
  const auto* last = std::get_if<Report_Table>(&report.parts.back());
  ASSERT_NE(last, nullptr);
  EXPECT_EQ(last->caption, "Columns 17 to 30 of 30");
  EXPECT_EQ(last->columns.size(), 15u);
  EXPECT_EQ(last->rows.size(), 20u);
  EXPECT_EQ(last->rows.front().cells[0], "Row 1");
  EXPECT_EQ(last->rows.front().cells[1], "30.5");
}

TEST(ProjectReport, The_Bottom_Of_A_Variable_Grid_Is_Its_Deepest_Point) {
  constexpr char kWords[] = "The bottom in the picture is that of the deepest grid point.";
  const auto record = Sound();
  EXPECT_EQ(Chapter_Of(Project_Report(*record, kFacts), kWords), "");
  record->ConstantDepthFlag = 0;
  EXPECT_EQ(Chapter_Of(Project_Report(*record, kFacts), kWords), "Water Density Profile");
}

TEST(ProjectReport, A_Grid_That_Is_Not_Square_Comes_With_What_The_Solver_Gets_Of_It) {
  const auto record = Sound();
  record->ConstantDepthFlag = 0;
  const Report_Document report = Project_Report(*record, kFacts);
  int paragraphs = 0;
  for (const Report_Part& part : report.parts) {
    const auto* paragraph = std::get_if<Report_Paragraph>(&part);
    if (paragraph != nullptr && paragraph->text.find("solver") != std::string::npos) ++paragraphs;
  }
  EXPECT_EQ(paragraphs, 1);
}

TEST(ProjectReport, Counts_That_A_File_Got_Wrong_Do_No_Harm) {
  for (const std::int16_t count : {-5, 0, 7, 32767}) {
    const auto record = Sound();
    record->NumSolids = record->LAYERS = record->NOPENS = record->NROA0 = count;
    record->NumPrintTimes = record->MMAX0 = record->NMAX0 = count;
    record->NumOutputDepths = count;
    record->SeparationFlag = 1;
    record->ConstantDepthFlag = 0;
    for (const Disposal_Method method : {kHopper, kContinuous, kBarge}) {
      record->DisposalMethod = method;
      for (const double type : {0.0, 1.0, 3.0, 4.0, 5.0, 9.5}) {
        record->VelocityProfileType = type;
        EXPECT_GT(Project_Report(*record, kFacts).parts.size(), 10u);
      }
    }
  }
}

TEST(ProjectReport, The_Name_That_Is_Offered_Follows_The_Project) {
  EXPECT_EQ(Report_Name("/sites/TERN.DUI", "pdf"), "/sites/TERN.pdf");
  EXPECT_EQ(Report_Name("", "html"), "UNTITLED.html");
}

}  // namespace
}  // namespace barvon::testing
