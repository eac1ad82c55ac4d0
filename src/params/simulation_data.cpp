#include "params/simulation_data.h"

#include <algorithm>
#include <limits>

#include "core/format_pattern.h"
#include "core/keys.h"
#include "core/number_text.h"
#include "core/put_back.h"
#include "core/record_columns.h"
#include "platform/ask/message_box.h"
#include "platform/table/table_width.h"

namespace barvon {
namespace {

constexpr Field_Row kRows[] = {
    {.control = {"Text1", kDuration},
     .label = "Duration of the Simulation (sec)",
     .unit = "sec",
     .pattern = "######0.",
     .member = &ProjectRecord::SimulationDuration,
     .frame = kTimeStepsFrame},
    {.control = {"Text1", kTimeStep},
     .label = "Long-Term Time Step for Diffusion (sec)",
     .unit = "sec",
     .pattern = "######0.",
     .member = &ProjectRecord::LongTermTimeStep,
     .frame = kTimeStepsFrame},
    {.control = {"Text2"},
     .label = "Number of Print Times (Max12)",
     .pattern = "#######0",
     .reads = Reads::Whole,
     .frame = kPrintingFrame},
};
constexpr const Field_Row& kPrintCountRow = kRows[2];

constexpr Table_Column<ProjectRecord> kTimeColumns[] = {
    {"Time (sec)", Width_Of_Twips(2200), "", kCells<&ProjectRecord::PrintTimes>}};

constexpr char kDurationOfOpenWater[] = "(Note: Duration of 2400 Sec is Generally Sufficient.)";
constexpr char kDurationOfOceanSites[] =
    "(Note: Duration of 14400 Sec should be specified for water column evaluations.)";
constexpr char kDurationOfNavigableWaters[] =
    "(Note: Duration of 3600 Sec should be specified for water column evaluations.)";
constexpr char kStepOfOpenWater[] =
    "Time Step Must Be Greater than Time to End of Collapse Phase."
    " Recommendation for Diffusion Evaluations:"
    " Use 100, 200, 300 sec.  Use 300 sec if Grid Spacing is Large"
    " for Given Velocity, Use 100 sec if Grid Spacing Small";
constexpr char kStepOfOceanSites[] =
    "Time Step Must Be Greater than Time to End of Collapse Phase."
    " Recommendation for Water Column Evaluations:"
    " Use 600,900, or 1800 sec.  Use 1800 sec if Grid Spacing is Large"
    " for Given Velocity, Use 300 sec if Grid Spacing Small";
constexpr char kStepOfNavigableWaters[] =
    "Time Step Must Be Greater than Time to End of Collapse Phase."
    " Recommendation for Water Column Evaluations:"
    " Use 100, 300, or 600 sec.  Use 600 sec if Grid Spacing is Large"
    " for Given Velocity, Use 100 sec if Grid Spacing Small";

std::int16_t Flag_Of(bool wanted) { return wanted ? 1 : 0; }

/// The number of print times that is typed, whole but within no limits.
double Typed_Count(const std::string& typed) { return Round_Half_Even(Lenient_Number(typed)); }

std::int16_t Count_At_OK(const std::string& typed) {
  const double count = Typed_Count(typed);
  return count < 0 ? 1 : static_cast<std::int16_t>(std::min<double>(count, kMaxPrintTimes));
}

double Drawn_Time(const Spreadsheet_Table& F1Book1, int row) {
  return F1Book1.IsEmptyRC(row, 1) ? std::numeric_limits<double>::quiet_NaN()
                                   : F1Book1.NumberRC(row, 1);
}

}  // namespace

Field_Table Simulation_Fields() { return kRows; }

void Reset_Vars(const Simulation_Copy& copy, ProjectRecord& record) {
  Put_Back(copy.PrintConvectiveDescent, record.PrintConvectiveDescent, record);
  Put_Back(copy.PrintCollapse, record.PrintCollapse, record);
  Put_Back(copy.NumPrintTimes, record.NumPrintTimes, record);
}

void Hold_Print_Count(ProjectRecord& record) {
  record.NumPrintTimes = std::clamp<std::int16_t>(record.NumPrintTimes, 0, kMaxPrintTimes);
}

std::optional<std::string> Time_Hint(int field, std::int16_t analysis_type) {
  const bool of_duration = field == kDuration;
  switch (analysis_type) {
    case kOpenWater:
      return of_duration ? kDurationOfOpenWater : kStepOfOpenWater;
    case kOceanSites:
      return of_duration ? kDurationOfOceanSites : kStepOfOceanSites;
    case kNavigableWaters:
      return of_duration ? kDurationOfNavigableWaters : kStepOfNavigableWaters;
    default:
      return std::nullopt;
  }
}

void Choose_Printing(Simulation_Box box, bool wanted, Simulation_Copy& copy,
                     ProjectRecord& record) {
  if (box == kPrintsDescent) {
    Write_At_Once(Flag_Of(wanted), copy.PrintConvectiveDescent, record.PrintConvectiveDescent);
  } else if (box == kPrintsCollapse) {
    Write_At_Once(Flag_Of(wanted), copy.PrintCollapse, record.PrintCollapse);
  }
}

void Print_Quarterly(Simulation_Copy& copy, ProjectRecord& record) {
  Write_At_Once<std::int16_t>(0, copy.NumPrintTimes, record.NumPrintTimes);
}

std::string Print_Count_Text(const ProjectRecord& record) {
  return Format_Number(record.NumPrintTimes, kPrintCountRow.pattern);
}

void Fill_Print_Times(const ProjectRecord& record, Spreadsheet_Table& F1Book1) {
  const Table_Fill fill(F1Book1);
  F1Book1.ClearAll();
  F1Book1.MaxRow(kMaxPrintTimes);
  Shown_Columns(kTimeColumns).Lay_Out(1, kMaxPrintTimes, F1Book1);
  Number_Rows("Time ", kMaxPrintTimes, F1Book1);
  Shown_Columns(kTimeColumns).Fill(record, kMaxPrintTimes, F1Book1);
  // The rows behind keep their cells: a number on its way to a larger one loses nothing.
  F1Book1.MaxRow(std::max<int>(record.NumPrintTimes, 1));
  F1Book1.SelectAll();
}

void Take_Print_Count(const std::string& typed, Simulation_Copy& copy, Spreadsheet_Table& F1Book1,
                      ProjectRecord& record) {
  const double count = Typed_Count(typed);
  if (count > kMaxPrintTimes) {
    Show_Message({"Maximum Number of Print Time is 12.  Please Correct Entry"});
    return;
  }
  if (count < 0) return;
  Write_At_Once(static_cast<std::int16_t>(count), copy.NumPrintTimes, record.NumPrintTimes);
  if (count > 0) F1Book1.MaxRow(static_cast<int>(count));
}

void Save_Simulation(const Simulation_Entry& entry, Spreadsheet_Table& F1Book1,
                     ProjectRecord& record) {
  record.DataSaved = kFalse;
  Read_Fields(kRows, entry.texts, record);
  record.PrintConvectiveDescent = Flag_Of(entry.SSCheck2[kPrintsDescent]);
  record.PrintCollapse = Flag_Of(entry.SSCheck2[kPrintsCollapse]);
  record.NumPrintTimes =
      entry.SSCheck2[kOwnPrintTimes] ? Count_At_OK(entry.texts("Text2")) : std::int16_t{0};
  // A number that was brought in can ask for rows that are not shown.
  if (record.NumPrintTimes > F1Book1.MaxRow()) F1Book1.MaxRow(record.NumPrintTimes);
  Shown_Columns(kTimeColumns).Store(F1Book1, record.NumPrintTimes, record);
}

Run_Times Entered_Times(const Simulation_Entry& entry, const Spreadsheet_Table& F1Book1,
                        const ProjectRecord& record) {
  Run_Times times;
  times.duration = Entered_Number(kRows, {"Text1", kDuration}, entry.texts, record);
  times.time_step = Entered_Number(kRows, {"Text1", kTimeStep}, entry.texts, record);
  // Without a number of its own the solver prints quarterly.
  const int count = entry.SSCheck2[kOwnPrintTimes] ? Count_At_OK(entry.texts("Text2")) : 0;
  times.own_prints = count > 0;
  for (int row = 1; row <= count; ++row) times.prints.push_back(Drawn_Time(F1Book1, row));
  return times;
}

}  // namespace barvon
