#include <cstddef>
#include <ctime>
#include <string>
#include <utility>
#include <vector>

#include "pictures/shapes/axis_scale.h"
#include "platform/files/lock_holder.h"
#include "report/report_sections.h"
#include "results/drawings/balance_drawing.h"
#include "results/drawings/map_drawing.h"
#include "results/drawings/map_view.h"
#include "results/drawings/maxima_drawing.h"
#include "results/drawings/result_words.h"
#include "results/summary.h"
#include "results/telling_time.h"

namespace barvon {
namespace {

constexpr double kBarHeight = 42, kBesideBars = 110;  // pixels
constexpr Canvas kResultMap = {620, 370, 12};         // two of them on a page
constexpr double kTold = 1e-6;                        // of what was released: less is told as 0

std::string Amount(double amount, const Species_Balance& of) {
  return Short_Text(amount < kTold * of.released ? 0 : amount);
}

/// A verdict has lines of its own that begin further in: here they are one paragraph.
std::vector<std::string> Verdicts_Of(const Results& results) {
  std::vector<std::string> verdicts;
  for (const std::string& line : results.verdicts) {
    if (line.starts_with(' ') && !verdicts.empty()) {
      verdicts.back() += " " + line;
    } else {
      verdicts.push_back(line);
    }
  }
  return verdicts;
}

void Put_Balance(Report_Maker& report, const Results& results) {
  Report_Table table{Table_Kind::plain,
                     "Where the Material Is at the End",
                     {{"Species"},
                      {"Released", true},
                      {"In the\nWater", true},
                      {"On the\nBottom", true},
                      {"Outside\nthe Grid", true},
                      {"Unit"}},
                     {}};
  for (const Species_Balance& row : Balance_At_End(results)) {
    table.rows.push_back(
        {{results.species[static_cast<std::size_t>(row.species - 1)].name, Short_Text(row.released),
          Amount(row.suspended, row), Amount(row.on_grid, row), Amount(row.off_grid, row),
          Amount_Unit(results, row.species)}});
  }
  report.Table(std::move(table));
  Canvas canvas = kReportCanvas;
  canvas.height = kBesideBars + kBarHeight * static_cast<double>(results.species.size());
  report.Picture(Balance_Shapes(Balance_Chart(results, nullptr, std::nullopt), canvas));
}

void Put_Maxima(Report_Maker& report, const Results& results, const Telling_Moment& moment) {
  report.Heading(2, "Max Conc. vs Time");
  if (results.maxima.empty()) {
    return report.Paragraph("The run has no concentrations: it ends with descent and collapse.");
  }
  Maxima_Choice choice;
  choice.species = moment.species;
  report.Picture(Maxima_Shapes(Draw_Maxima(results, nullptr, choice), kReportCanvas));
}

/// By the scale of what is shown: the report has no other time of it.
void Put_Map(Report_Maker& report, const Results& results, Map_View view) {
  view.same_scale = false;
  Map_Content content = Content_Of(results, nullptr, view);
  // It stands above the picture.
  std::string title = std::exchange(content.title, {});
  Shape_List picture = Map_Shapes(Draw_Map(std::move(content)), kResultMap);
  picture.title = std::move(title);
  report.Picture(std::move(picture));
}

void Put_Concentration(Report_Maker& report, const Results& results, const Telling_Moment& moment) {
  if (results.maps.empty()) return;
  report.Heading(2, "Concentration Contours");
  if (moment.map_time != moment.time) {
    report.Paragraph("The map that is nearest to the time of the largest value, " +
                     Time_Words(moment.time) + ".");
  }
  Map_View view;
  view.species = moment.species;
  view.depth = moment.depth;
  view.time = moment.map_time;
  Put_Map(report, results, view);
}

void Put_Deposit(Report_Maker& report, const Results& results, const Telling_Moment& moment) {
  if (Last_Bed(results) == nullptr) return;
  report.Heading(2, "Deposition Thickness");
  Map_View view;
  view.kind = Map_Kind::thickness;
  view.time = moment.bed_time;
  Put_Map(report, results, view);
}

}  // namespace

void Report_Results(Report_Maker& report) {
  const Run_Results& run = report.run;
  if (run.results == nullptr && run.refusal.empty()) return;
  report.Heading(1, "Results of the Run");
  if (run.results == nullptr) return report.Warning(run.refusal);
  const Results& results = *run.results;
  report.Words("Solver", results.label);
  report.Words("Date of the Outputs", Time_In_Words(static_cast<std::time_t>(results.made)));
  if (!results.verdicts.empty()) report.Heading(2, "Verdicts");
  for (const std::string& verdict : Verdicts_Of(results)) report.Paragraph(verdict);
  report.Heading(2, "Balance");
  Put_Balance(report, results);
  const Telling_Moment moment = Telling_Moment_Of(results);
  Put_Maxima(report, results, moment);
  Put_Concentration(report, results, moment);
  Put_Deposit(report, results, moment);
}

}  // namespace barvon
