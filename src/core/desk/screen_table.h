#pragma once

#include <array>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "core/desk/edit_entries.h"
#include "core/desk/help_topics.h"
#include "core/project_record.h"

namespace barvon {

/// Input screens work on the project: while one is open without blocking, none comes up blocking. A
/// command is opened as a screen is and has no window.
enum class Screen_Kind { Input, Other, Command };

/// What the Edit menu asks before it opens the screen: Check_Eval, or nothing.
enum class Screen_Gate { Open, Evaluation };

/// Where the error list goes from a reference to a control of the screen.
enum class Error_Lead { Nowhere, To_Screen, To_Control };

/// Two screens share an entry of the Edit menu, one for each vessel.
enum class Vessel { Any, Hopper, Barge };

/// The choices of the boards that change what an open screen stands for.
enum Board_Choice : unsigned {
  kMethodChoice = 1,
  kTypeChoice = 2,
  kSimulationChoice = 4,
  kEvaluationChoice = 8,
  kVelocityChoice = 16
};

/// A screen of the program. An index that is not given: the screen has none.
struct Screen_Row {
  const char* name;                   // its window's
  int topic = help_topic::kContents;  // of its help; the contents: it has no page
  Screen_Kind kind = Screen_Kind::Other;
  std::optional<int> status_line = {};        // Text2, a data category that OK reports as supplied
  std::optional<int> supplied = {};           // the element of ScreenDataSupplied that OK sets
  std::optional<Edit_Entry> edit_mark = {};   // of the Edit menu, marked by OK
  std::optional<Edit_Entry> edit_entry = {};  // of the Edit menu, opens the screen
  Screen_Gate gate = Screen_Gate::Open;
  Error_Lead lead = Error_Lead::Nowhere;
  Vessel vessel = Vessel::Any;
  unsigned follows = 0;  // Board_Choice: those that close the screen, as Cancel does
};

namespace screen_table {

consteval auto Make() {
  using namespace help_topic;
  using enum Screen_Kind;
  using enum Screen_Gate;
  using enum Error_Lead;
  using enum Vessel;
  // clang-format off
  return std::to_array<Screen_Row>({
      //                                     OK:  line supplied mark and entry of the Edit menu
      {"Main",            kMainWindow},
      {"frmDescription",  kSite,           Input,  1,   2,  kEditSite, kEditSite, Evaluation, To_Control, Any, kMethodChoice},
      {"frmGridDescrip",  kDepthGrid,      Other, {},   3,  {}, {}},
      {"frmVelocity",     kVelocity,       Input,  2,   4,  kEditVelocity, kEditVelocity, Evaluation, Nowhere, Any, kVelocityChoice},
      {"frmMatHopper",    kMaterialHopper, Input,  3,   7,  kEditMaterial, kEditMaterial, Evaluation, Nowhere, Hopper, kMethodChoice},
      {"frmMatBarge",     kMaterialBarge,  Input,  3,   7,  kEditMaterial, kEditMaterial, Evaluation, Nowhere, Barge, kMethodChoice},
      {"frmOperation",    kOperation,      Input,  4,   9,  kEditOperation, kEditOperation, Evaluation, To_Control, Any, kMethodChoice},
      {"frmCoefficients", kCoefficients,   Input,  5,  10,  kEditCoefficients, kEditCoefficients, Open, Nowhere, Any, kMethodChoice},
      {"frmDensity",      kWaterDensity,   Input, {},   8,  {}, kEditWaterDensity},
      {"frmSimulation",   kSimulation,     Input,  0,   6,  {}, {}, Open, To_Control, Any, kTypeChoice | kSimulationChoice},
      {"frmMdlkyn",       kEvaluation,     Input,  0,   5,  kEditKeys, {}, Open, To_Screen, Any, kTypeChoice | kSimulationChoice | kEvaluationChoice},
      {"frmDilute2",      kDilution},
      {"Write_Dilute_Report", kContents, Command},
      {"DataBase",        kDataBase},
      {"frmDatabaseCheck", kDataBase},
      {"Data_Wiz"},  // its help follows the steps
      {"Graphic_Data_Entry"},
      {"frmErrorList",    kErrorList},
      {"frmOpen"},
      {"frmNotePad",      kTextViewer},
      {"Open_Text_File", kContents, Command},
      {"Project_Report", kContents, Command},
      {"frmRecovery",     kRecovery},
      {"frmTip"},
      {"frmAbout"},
      {"frmAboutMore"},
  });
  // clang-format on
}

}  // namespace screen_table

/// Every screen of the program, those to come included.
inline constexpr auto kScreens = screen_table::Make();

/// The row of a screen. A name that the table does not have does not compile.
consteval const Screen_Row& Row_Of_Screen(std::string_view name) {
  for (const Screen_Row& row : kScreens) {
    if (name == row.name) return row;
  }
  throw std::invalid_argument("no screen of that name");
}

/// The row of a screen, none for a name that the table does not have.
const Screen_Row* Find_Screen(std::string_view name);

/// Whether the screen is the one for the project's vessel.
bool Serves_Vessel(const Screen_Row& row, const ProjectRecord& record);

/// Every topic that a screen or a shown step of the wizard asks for, once, in rising order.
std::vector<int> Help_Topics();

}  // namespace barvon
