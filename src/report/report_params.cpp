#include <algorithm>
#include <string>

#include "core/book_numbers.h"
#include "core/keys.h"
#include "params/coefficients_data.h"
#include "params/evaluation_data.h"
#include "params/simulation_data.h"
#include "pictures/drawings/time_drawing.h"
#include "pictures/shapes/lettering.h"
#include "report/report_sections.h"

namespace barvon {
namespace {

int Print_Times(const ProjectRecord& record) {
  return std::clamp<int>(record.NumPrintTimes, 0, kMaxPrintTimes);
}

int Output_Depths(const ProjectRecord& record) {
  const double count = record.NumOutputDepths;
  return count > 0 ? static_cast<int>(std::min<double>(count, kMaxOutputDepths)) : 0;
}

void Put_Corners(Report_Maker& report, std::string_view array, const std::string& upper_left,
                 const std::string& lower_right) {
  const Field_Table table = Evaluation_Fields(true);
  report.Group(upper_left);
  report.Field(table, {array, kCornerTop});
  report.Field(table, {array, kCornerLeft});
  report.Group(lower_right, true);
  report.Field(table, {array, kCornerBottom});
  report.Field(table, {array, kCornerRight});
}

/// What follows asks a person to enter something.
std::string First_Sentence(const std::string& text) { return text.substr(0, text.find(". ")); }

Run_Times Times_Of(const ProjectRecord& record) {
  Run_Times times{record.SimulationDuration, record.LongTermTimeStep, Print_Times(record) > 0, {}};
  for (int i = 1; i <= Print_Times(record); ++i) {
    times.prints.push_back(record.PrintTimes[static_cast<std::size_t>(i)]);
  }
  return times;
}

}  // namespace

void Report_Coefficients(Report_Maker& report) {
  report.Heading(1, "Coefficients");
  report.Words("Coefficients in the Model Input",
               report.record.KEY1 == 0 ? "Not given: the solver has its own" : "Those below");
  if (Has_Vessel(report.record))
    report.Yes_Or_No(kPritchardCaption, report.record.PritchardFlag == 1);
  Spreadsheet_Table table(kBookNumbers);
  List_Coefficients(report.record, table);
  report.Table("", table);
}

void Report_Times(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  report.Heading(1, "Time Steps and Print Options");
  report.Fields(Simulation_Fields());
  report.Group(kPrintingFrame);
  report.Yes_Or_No(kSimulationBoxCaptions[kPrintsDescent], record.PrintConvectiveDescent == 1);
  report.Yes_Or_No(kSimulationBoxCaptions[kPrintsCollapse], record.PrintCollapse == 1);
  report.Number_Of_Row(Simulation_Fields(), {"Text2"}, record.NumPrintTimes);
  if (Print_Times(record) > 0) {
    Spreadsheet_Table times(kBookNumbers);
    Fill_Print_Times(record, times);
    times.MaxRow(Print_Times(record));
    report.Shown_Of(Print_Times(record), record.NumPrintTimes);
    report.Table("", times);
  } else {
    report.Words("Times of the Prints", "The program prints results quarterly");
  }
  const Time_Drawing drawing = Draw_Times(Times_Of(record));
  Canvas canvas = kReportCanvas;
  canvas.height = 190;
  Shape_List picture = Time_Shapes(drawing, canvas);
  Add_Note(picture, drawing.note, canvas.text_size);
  report.Picture(std::move(picture));
}

void Report_Evaluation(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  const Evaluation_Shape shape = Shape_Of_Evaluation(record, false);
  const Field_Table table = Evaluation_Fields(true);
  // Of an evaluation that has nothing else there are the output depths.
  const bool evaluates = shape.tracer || Is_Regulatory(record);
  report.Heading(1, evaluates ? shape.caption : "Transport-Diffusion Output");
  if (shape.tracer) report.Group(kTracerFrame);
  for (const int field : {kTracerName, kTracerConcentration, kTracerBackground}) {
    report.Field(table, {"Text4", field});
  }
  for (const int field : {kContaminantName, kInSediment}) report.Field(table, {"Text1", field});
  report.Field(table, {"Text2"});
  for (const int field : {kBackground, kLimit}) report.Field(table, {"Text1", field});
  if (Is_Regulatory(record)) {
    Put_Corners(report, "Text", First_Sentence(shape.upper_left),
                First_Sentence(shape.lower_right));
  }
  if (shape.zid && Has_Vessel(record)) {
    report.Group("Zone of Initial Dilution");
    report.Yes_Or_No(kZidCaption, record.ZidFlag == 1);
    report.Field(table, {"Text6"});
    if (Has_Zid(record)) Put_Corners(report, "Text5", kZidUpperLeft, kZidLowerRight);
  }
  report.Group(kOutputDepthsCaption);
  report.Number_Of_Row(table, {"Text8", kOutputCount}, record.NumOutputDepths);
  report.Shown_Of(Output_Depths(record), record.NumOutputDepths);
  for (int i = 0; i < Output_Depths(record); ++i) report.Field(table, {"Text8", i});
}

}  // namespace barvon
