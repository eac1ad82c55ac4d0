#include "params/operation_data.h"

#include <algorithm>
#include <type_traits>

#include "core/format_pattern.h"
#include "core/keys.h"
#include "core/model_input/vessel_footprint.h"
#include "core/number_text.h"
#include "core/put_back.h"
#include "core/record_columns.h"
#include "core/wizard_answers.h"
#include "platform/ask/message_box.h"
#include "platform/table/table_width.h"

namespace barvon {
namespace {

bool Is_Hopper(const ProjectRecord& record) { return record.DisposalMethod == kHopper; }
bool Is_Barge(const ProjectRecord& record) { return record.DisposalMethod == kBarge; }
bool Is_Continuous(const ProjectRecord& record) { return record.DisposalMethod == kContinuous; }

constexpr Table_Column<ProjectRecord> kVelocityColumns[] = {
    {"X-Direction", Width_Of_Twips(1500), "", kCells<&ProjectRecord::LayerVelX>},
    {"Z-Direction", Width_Of_Twips(1500), "", kCells<&ProjectRecord::LayerVelZ>}};
constexpr int kXColumn = 1, kZColumn = 2;

constexpr char kMustLieStill[] =
    "Depression Dumping is Restricted to Stationary Vessels. Vessel Velocity Will be Set to Zero."
    "  Do you Wish to Continue?";

/// The number of openings that is typed, whole but within no limits.
double Typed_Openings(const std::string& typed) { return Round_Half_Even(Lenient_Number(typed)); }

int Held_Openings(const std::string& typed) {
  return static_cast<int>(std::clamp<double>(Typed_Openings(typed), 0, kMaxLayers));
}

/// Calls `act` with every value that OK may write, always in the same order.
template <class Record, class Act>
void For_Each_Value(Record& record, Act act) {
  for (const Field_Row& row : Operation_Fields()) {
    With_Member(row.member, record, [&](auto& value) {
      if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>) act(value);
    });
  }
  for (int i = 1; i <= kMaxLayers; ++i) {
    act(record.LayerVelX[i]);
    act(record.LayerVelZ[i]);
  }
}

std::vector<double> Values_Of(const ProjectRecord& record) {
  std::vector<double> values;
  For_Each_Value(record, [&](const auto& value) { values.push_back(value); });
  return values;
}

/// After an OK that leaves the screen open. Where somebody else had written since the last such OK,
/// that is what Cancel brings back.
void Keep_Former(const std::vector<double>& former, const ProjectRecord& record,
                 Operation_Copy& copy) {
  if (copy.before.empty()) {
    copy.before = former;
  } else {
    for (std::size_t i = 0; i < former.size(); ++i) {
      if (former[i] != copy.after[i]) copy.before[i] = former[i];
    }
  }
  copy.after = Values_Of(record);
}

constexpr double ProjectRecord::*kHole[kDepressionFields] = {
    &ProjectRecord::XHOLE, &ProjectRecord::ZHOLE, &ProjectRecord::DHOLE};

/// The depression goes out of the record; its fields go on showing it.
Dropped_Depression Drop_Depression(const Field_Texts& texts, ProjectRecord& record) {
  Dropped_Depression dropped;
  for (std::size_t i = 0; i < kDepressionFields; ++i) {
    dropped[i] = {texts("Text3", static_cast<int>(i)), record.*kHole[i]};
    record.*kHole[i] = 0;
  }
  return dropped;
}

/// Fields that show what they showed when the depression was dropped stand for its values: the
/// texts may be rounded.
void Declare_Again(const Dropped_Depression& dropped, const Field_Texts& texts,
                   ProjectRecord& record) {
  for (std::size_t i = 0; i < kDepressionFields; ++i) {
    if (texts("Text3", static_cast<int>(i)) == dropped[i].text) record.*kHole[i] = dropped[i].feet;
  }
}

void Stop_Vessel(Spreadsheet_Table& F1Book1, ProjectRecord& record) {
  for (int i = 1; i <= record.NOPENS; ++i) {
    for (const int column : {kXColumn, kZColumn}) F1Book1.NumberRC(i, column, 0);
    record.LayerVelX[i] = record.LayerVelZ[i] = 0;
  }
}

/// All velocities from a row on become 0, in one step of the history.
void Wipe_Rows(int first, Spreadsheet_Table& F1Book1) {
  const Edit_Step step(F1Book1);
  for (int row = first; row <= kMaxLayers; ++row) {
    for (const int column : {kXColumn, kZColumn}) F1Book1.NumberRC(row, column, 0);
  }
}

void Store_Openings(Spreadsheet_Table& F1Book1, ProjectRecord& record) {
  // A number that was brought in can ask for rows that are not shown: what they hold was never
  // seen, so it does not count.
  const int shown = F1Book1.MaxRow();
  if (record.NOPENS > shown) {
    F1Book1.MaxRow(record.NOPENS);
    Wipe_Rows(shown + 1, F1Book1);
  }
  Shown_Columns(kVelocityColumns).Store(F1Book1, record.NOPENS, record);
}

}  // namespace

void Reset_Vars(const Operation_Copy& copy, ProjectRecord& record) {
  if (copy.before.empty()) return;
  std::size_t i = 0;
  For_Each_Value(record, [&](auto& value) {
    using Value = std::decay_t<decltype(value)>;
    if (value == copy.after[i]) Put_Back(static_cast<Value>(copy.before[i]), value, record);
    ++i;
  });
}

void Store_Wizard_Method(ProjectRecord& record) {
  if (record.WizardActive == kFalse) return;
  const int option = Answers_Of_Wizard().method_option;
  if (option == 0) record.DisposalMethod = kHopper;
  if (option == 1) record.DisposalMethod = kBarge;
}

void Hold_Openings(ProjectRecord& record) {
  if (!Has_Openings(record)) return;
  record.NOPENS = std::clamp<std::int16_t>(record.NOPENS, 0, kMaxLayers);
}

std::string Operation_Caption(const ProjectRecord& record) {
  std::string caption = "Disposal Operation Data";
  if (Is_Hopper(record)) caption += " - Hopper Dredge";
  if (Is_Barge(record)) caption += " - Barge or Scow";
  return caption;
}

bool Has_Openings(const ProjectRecord& record) { return Is_Hopper(record); }

bool Has_Depression(const ProjectRecord& record) { return record.XHOLE != 0 || record.ZHOLE != 0; }

void Fill_Velocities(const ProjectRecord& record, Spreadsheet_Table& F1Book1) {
  const Table_Fill fill(F1Book1);
  F1Book1.ClearAll();
  F1Book1.MaxRow(kMaxLayers);
  Shown_Columns(kVelocityColumns).Lay_Out(1, kMaxLayers, F1Book1);
  Number_Rows("Set ", kMaxLayers, F1Book1);
  Shown_Columns(kVelocityColumns).Fill(record, kMaxLayers, F1Book1);
  F1Book1.MaxRow(std::max<int>(record.NOPENS, 1));
  F1Book1.SelectAll();
}

std::string Take_Openings(const std::string& typed, Spreadsheet_Table& F1Book1) {
  const double openings = Typed_Openings(typed);
  if (openings == 0) return typed;
  if (openings < 1 || openings > kMaxLayers) {
    Show_Message({"Number of Openings Must Be Between 1 and 6"});
    return typed;
  }
  const int rows = static_cast<int>(openings);
  if (rows != F1Book1.MaxRow()) {
    F1Book1.MaxRow(rows);
    // The rows behind too: a later number must not bring up velocities that nobody sees now.
    Wipe_Rows(1, F1Book1);
  }
  return Format_Number(openings, kOpeningsPattern);
}

std::string Openings_Remark(const std::string& typed) {
  return Held_Openings(typed) == 0 ? "With 0 openings the model input holds no material." : "";
}

Operation_Result Save_Operation(const Operation_Entry& entry, Operation_Copy& copy,
                                Spreadsheet_Table& F1Book1, ProjectRecord& record) {
  const std::vector<double> former = Values_Of(record);
  if (const Field_Row* refused = Read_Fields(Operation_Fields(), entry.texts, record)) {
    Show_Message(
        {std::string(refused->label) + " Must Be Between -32768 and 32767.  Please Correct."});
    return {false, entry.Check3D1, refused->control};
  }
  record.DataSaved = kFalse;
  if (copy.dropped && entry.Check3D1) Declare_Again(*copy.dropped, entry.texts, record);
  if (Has_Openings(record)) Store_Openings(F1Book1, record);
  Operation_Result result{true, entry.Check3D1};
  if (Is_Hopper(record) && entry.Check3D1) {
    const Answer answer = Ask(kMustLieStill, Buttons::YesNoCancel);
    result.CanClose = answer == Answer::Yes;
    if (answer == Answer::Yes) Stop_Vessel(F1Book1, record);
    if (answer == Answer::No) {
      copy.dropped = Drop_Depression(entry.texts, record);
      result.Check3D1 = false;
    }
  }
  // A pipeline's screen does not show the depression.
  if (Has_Vessel(record) && !result.Check3D1) record.XHOLE = record.ZHOLE = record.DHOLE = 0;
  if (!result.CanClose) Keep_Former(former, record, copy);
  return result;
}

Site_Plan Entered_Site(const Operation_Entry& entry, const Spreadsheet_Table& F1Book1,
                       const ProjectRecord& record) {
  const auto number = [&](const char* array, int index) {
    return Entered_Number(Operation_Fields(), {array, index}, entry.texts, record);
  };
  Site_Plan site = Plan_Of_Site(record);
  site.disposal_point = Feet_Point{number("Text1", kPlaceFromTop), number("Text1", kPlaceFromLeft)};
  const double seconds = number("Text1", kEmptyingTime);
  if (Is_Hopper(record)) {
    // Any number of bins beyond the patterns is one bin.
    const double bins = Round_Half_Even(number("Text1", kBinsTogether));
    const Footprint footprint = Vessel_Footprint(
        static_cast<int>(std::clamp<double>(bins, 0, kMaxGridPoints)),
        {number("Text1", kVesselLength), number("Text1", kVesselWidth), number("Text1", kBinGap)});
    site.vessel_length = footprint.length;
    site.vessel_width = footprint.width;
    std::vector<Vessel_Velocity> velocities;
    // Over a depression it lies still.
    const int rows = entry.Check3D1 ? 0 : Held_Openings(entry.texts("Text2"));
    for (int row = 1; row <= std::min(rows, F1Book1.MaxRow()); ++row) {
      velocities.push_back({F1Book1.NumberRC(row, kXColumn), F1Book1.NumberRC(row, kZColumn)});
    }
    site.course = Legs_Of(velocities, seconds);
  } else if (Is_Barge(record)) {
    site.vessel_length = number("Text1", kVesselLength);
    site.vessel_width = number("Text1", kVesselWidth);
    for (Vessel_Leg& leg : site.course) {
      leg.seconds = seconds / static_cast<double>(site.course.size());
    }
  } else if (Is_Continuous(record)) {
    site.course = {Leg_Of_Course(number("Text4", kPipeSpeed), number("Text4", kPipeCourse),
                                 number("Text4", kPipeDuration))};
  }
  const bool over_hole = Has_Vessel(record) && entry.Check3D1;
  site.hole_x = over_hole ? number("Text3", kHoleAlongX) : 0;
  site.hole_z = over_hole ? number("Text3", kHoleAlongZ) : 0;
  return site;
}

std::string Place_Text(double feet) { return Format_Number(feet, kPlacePattern); }

}  // namespace barvon
