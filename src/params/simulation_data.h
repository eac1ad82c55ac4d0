#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "core/field_table.h"
#include "core/project_record.h"
#include "pictures/drawings/time_drawing.h"
#include "platform/table/spreadsheet_table.h"

namespace barvon {

inline constexpr char kTimeStepsFrame[] = "Time Steps";
inline constexpr char kPrintingFrame[] = "Printing Options";

/// Above the table of print times.
inline constexpr char kPrintTimesCaption[] =
    "Specify the Print Times (Sec) for Output of Long-Term Results";
/// What the solver does without print times of the user's own.
inline constexpr char kPrintsQuarterly[] = "If not, the program prints results quarterly.";

/// Text1 of frmSimulation.
enum Simulation_Field { kDuration = 0, kTimeStep };
/// SSCheck2 of frmSimulation.
enum Simulation_Box { kPrintsDescent = 0, kPrintsCollapse, kOwnPrintTimes, kSimulationBoxes };
inline constexpr std::array<const char*, kSimulationBoxes> kSimulationBoxCaptions = {
    "Want Results of Convective Descent Printed?", "Want Results of Collapse Phase Printed?",
    "Want to Specify Your Own Print Times for Long-Term Diffusion?"};

/// The table of frmSimulation. Text2, the number of print times, is filled and read by what is
/// below.
Field_Table Simulation_Fields();

/// What frmSimulation holds; the print times are in its table.
struct Simulation_Entry {
  Field_Texts texts;                                 // of Simulation_Fields(), as typed
  std::array<bool, kSimulationBoxes> SSCheck2 = {};  // by Simulation_Box
};

/// What Cancel brings back: the values that the screen has written while it was open, as they were
/// before. Nothing for those that it has not.
struct Simulation_Copy {
  std::optional<std::int16_t> PrintConvectiveDescent, PrintCollapse, NumPrintTimes;
};
void Reset_Vars(const Simulation_Copy& copy, ProjectRecord& record);

/// Before the screen fills itself: a number of print times outside 0 to kMaxPrintTimes is brought
/// in, without a message.
void Hold_Print_Count(ProjectRecord& record);

/// Advice for a field by the type of analysis; nothing for any other type.
std::optional<std::string> Time_Hint(int field, std::int16_t analysis_type);

/// A click on one of the first two boxes: the record has it at once.
void Choose_Printing(Simulation_Box box, bool wanted, Simulation_Copy& copy, ProjectRecord& record);
/// The third box is cleared: there are no print times of the user's own.
void Print_Quarterly(Simulation_Copy& copy, ProjectRecord& record);
/// What Text2 shows when the third box is set.
std::string Print_Count_Text(const ProjectRecord& record);

/// The table of print times with all of them, of which it shows as many as the record counts, one
/// at least.
void Fill_Print_Times(const ProjectRecord& record, Spreadsheet_Table& F1Book1);
/// Text2 has changed: the record has the number at once, and the table as many rows unless there
/// are none. Too large a number is told, and it goes nowhere; a negative one goes nowhere either.
void Take_Print_Count(const std::string& typed, Simulation_Copy& copy, Spreadsheet_Table& F1Book1,
                      ProjectRecord& record);

/// OK. A number of print times above kMaxPrintTimes counts as that, a negative one as 1; as many
/// rows of the table become print times, and those behind them stay as they are.
void Save_Simulation(const Simulation_Entry& entry, Spreadsheet_Table& F1Book1,
                     ProjectRecord& record);

/// The times as they are typed, for the picture.
Run_Times Entered_Times(const Simulation_Entry& entry, const Spreadsheet_Table& F1Book1,
                        const ProjectRecord& record);

}  // namespace barvon
