#include "site/velocity_data.h"

#include <algorithm>
#include <limits>

#include "core/format_pattern.h"
#include "core/number_reading.h"
#include "core/number_text.h"
#include "core/put_back.h"
#include "core/wizard_answers.h"
#include "site/velocity_fields.h"

namespace barvon {
namespace {

constexpr double kSecondsPerHour = 3600;

/// Rows of F1Book1: X depth and velocity, Z depth and velocity of a point.
constexpr double ProjectRecord::*kTwoPoints[2][4] = {
    {&ProjectRecord::VelXDepth1, &ProjectRecord::VelX1, &ProjectRecord::VelZDepth1,
     &ProjectRecord::VelZ1},
    {&ProjectRecord::VelXDepth2, &ProjectRecord::VelX2, &ProjectRecord::VelZDepth2,
     &ProjectRecord::VelZ2},
};
constexpr double ProjectRecord::*kConstants[kDirections] = {&ProjectRecord::ConstVelocityX,
                                                            &ProjectRecord::ConstVelocityZ};
constexpr Grid ProjectRecord::*kFields[kDirections] = {&ProjectRecord::VelocityFieldX,
                                                       &ProjectRecord::VelocityFieldZ};
using Tidal_Column = OneBased<float, kTidalRows>;
constexpr Tidal_Column ProjectRecord::*kTidalColumns[kDirections] = {&ProjectRecord::TidalVelX,
                                                                     &ProjectRecord::TidalVelZ};

OneBased<OneBased<double, 4>, 2> Two_Points(const ProjectRecord& record) {
  OneBased<OneBased<double, 4>, 2> points{};
  for (std::size_t point = 0; point < 2; ++point) {
    for (std::size_t i = 0; i < 4; ++i) points[point + 1][i + 1] = record.*kTwoPoints[point][i];
  }
  return points;
}

void Store_Two_Points(const OneBased<OneBased<double, 4>, 2>& points, ProjectRecord& record) {
  for (std::size_t point = 0; point < 2; ++point) {
    for (std::size_t i = 0; i < 4; ++i) record.*kTwoPoints[point][i] = points[point + 1][i + 1];
  }
}

int Held_Points(std::int16_t count) { return std::clamp<int>(count, 0, kMaxGridPoints); }

float To_32_Bits(double value) {
  constexpr double kLargest = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(value, -kLargest, kLargest));
}

/// The fields in the order of their rows; "" for one that the rows can't fill.
template <std::size_t N>
std::array<Typed_Number, N> Fields_Of(const Field_Row (&rows)[N], const ProjectRecord& record) {
  std::array<Typed_Number, N> fields;
  for (std::size_t i = 0; i < N; ++i) {
    fields[i] = {Field_Text(rows[i], record), Member_Number(rows[i], record)};
  }
  return fields;
}

/// What was typed; a field that is as it was filled leaves the record alone.
template <std::size_t N>
void Store_Typed(const Field_Row (&rows)[N], const std::array<Typed_Number, N>& fields,
                 ProjectRecord& record) {
  Field_Texts typed;
  for (std::size_t i = 0; i < N; ++i) {
    if (!fields[i].kept) typed.Set(rows[i].control, fields[i].text);
  }
  Read_Fields(rows, typed, record);
}

void Show_Single(const ProjectRecord& record, Velocity_Entry& entry) {
  entry.Text1 = Fields_Of(kAverageFields, record);
}

void Show_Fields(const ProjectRecord& record, Velocity_Entry& entry) {
  entry.rows = Held_Points(record.MMAX0);
  entry.columns = Held_Points(record.NMAX0);
  for (std::size_t i = 0; i < kDirections; ++i) {
    Velocity_Entry::Field& field = entry.fields[i];
    const double constant = record.*kConstants[i];
    // A negative constant does not come back: the field that it filled does.
    field.Check3D2 = constant > 0;
    if (field.Check3D2) {
      field.Text2 = {Format_Number(constant, "#####0.0"), constant};
      for (auto& row : field.F1Book2) row.fill(constant);
    } else {
      field.F1Book2 = record.*kFields[i];
    }
  }
}

void Show_Unsteady(const ProjectRecord& record, Velocity_Entry& entry) {
  entry.Text3 = Fields_Of(kUnsteadyFields, record);
  const double hours = Hours_Of_Simulation(record);
  entry.Text3[kDuration] = {Format_Number(hours, kUnsteadyFields[kDuration].pattern), hours};
  for (std::size_t row = 1; row <= kTidalRows; ++row) {
    for (std::size_t i = 0; i < kDirections; ++i) {
      entry.F1Book3[row][i + 1] = Widen((record.*kTidalColumns[i])[row]);
    }
  }
}

void Save_Single(const Velocity_Entry& entry, ProjectRecord& record) {
  Store_Typed(kAverageFields, entry.Text1, record);
  if (entry.Check3D1) record.VelocityProfileType = kLogarithmicVelocity;
}

void Save_Fields(const Velocity_Entry& entry, ProjectRecord& record) {
  for (std::size_t i = 0; i < kDirections; ++i) {
    const Velocity_Entry::Field& field = entry.fields[i];
    record.*kConstants[i] = field.Check3D2 ? field.Text2.Number() : 0;
    for (int row = 1; row <= entry.rows; ++row) {
      std::copy_n(field.F1Book2[row].begin() + 1, entry.columns,
                  (record.*kFields[i])[row].begin() + 1);
    }
  }
}

void Save_Unsteady(const Velocity_Entry& entry, ProjectRecord& record) {
  Store_Typed(kUnsteadyFields, entry.Text3, record);
  // Hours and back would change the last digit.
  const Typed_Number& duration = entry.Text3[kDuration];
  if (!duration.kept) record.SimulationDuration = duration.Number() * kSecondsPerHour;
  for (std::size_t row = 1; row <= kTidalRows; ++row) {
    for (std::size_t i = 0; i < kDirections; ++i) {
      (record.*kTidalColumns[i])[row] = To_32_Bits(entry.F1Book3[row][i + 1]);
    }
  }
  const auto averages = Average_Velocities(entry).value_or(std::array<double, kDirections>{});
  record.TidalAvgVelX = To_32_Bits(averages[kAlongX]);
  record.TidalAvgVelZ = To_32_Bits(averages[kAlongZ]);
}

}  // namespace

Velocity_Entry ShowVelocityData(const ProjectRecord& record) {
  Velocity_Entry entry;
  entry.Check3D1 = record.VelocityProfileType == kLogarithmicVelocity;
  switch (Form_Of_Type(record.VelocityProfileType)) {
    case kNoForm:
      break;
    case kSingleForm:
      Show_Single(record, entry);
      break;
    case kTwoPointForm:
      entry.F1Book1 = Two_Points(record);
      break;
    case kFieldForm:
      Show_Fields(record, entry);
      break;
    case kUnsteadyForm:
      Show_Unsteady(record, entry);
      break;
  }
  return entry;
}

std::string Direction_Note(double type) {
  std::string note =
      "BARVON treats positive velocities in the X-Direction as moving from the top of the grid "
      "towards the bottom.  Positive velocities in the Z-Direction move from left to right.";
  if (type == kTwoPointVelocity) {
    note += " The Resulting Speed of the Velocity Vector Should Be at Least 0.1 Ft/Sec.";
  }
  return note;
}

Tidal_Interval Interval_Of(const Velocity_Entry& entry) {
  return {To_32_Bits(entry.Text3[kStart].Number()), To_32_Bits(entry.Text3[kDuration].Number())};
}

std::string Interval_Note(const Tidal_Interval& interval) {
  const auto hours = [](float value) {
    return Format_Number(Widen(To_32_Bits(value)), "###.00");  // an end beyond 32 bits is infinite
  };
  return "Start Time: " + hours(interval.start) +
         "\nSimulation Duration: " + hours(interval.duration) +
         "\nEnding Time: " + hours(interval.End());
}

std::optional<std::array<double, kDirections>> Average_Velocities(const Velocity_Entry& entry) {
  const Tidal_Interval interval = Interval_Of(entry);
  if (interval.duration == 0) return std::nullopt;
  std::array<double, kDirections> averages{};
  for (std::size_t i = 0; i < kDirections; ++i) {
    Tidal_Column pattern{};
    for (std::size_t row = 1; row <= kTidalRows; ++row) {
      pattern[row] = To_32_Bits(entry.F1Book3[row][i + 1]);
    }
    averages[i] = AverageOverInterval(pattern, interval);
  }
  return averages;
}

void SaveVelocityData(const Velocity_Entry& entry, ProjectRecord& record) {
  record.DataSaved = kFalse;
  switch (Form_Of_Type(record.VelocityProfileType)) {
    case kNoForm:
      break;
    case kSingleForm:
      Save_Single(entry, record);
      break;
    case kTwoPointForm:
      Store_Two_Points(entry.F1Book1, record);
      break;
    case kFieldForm:
      Save_Fields(entry, record);
      break;
    case kUnsteadyForm:
      Save_Unsteady(entry, record);
      break;
  }
}

Velocity_Copy Copy_Velocity(const ProjectRecord& record) {
  return {record.VelocityProfileType, record.AvgVelocityDepth, record.AvgVelocityX,
          record.AvgVelocityZ, Two_Points(record)};
}

void Reset_Vars(const Velocity_Copy& copy, ProjectRecord& record) {
  Put_Back(copy.VelocityProfileType, record.VelocityProfileType, record);
  Put_Back(copy.AvgVelocityDepth, record.AvgVelocityDepth, record);
  Put_Back(copy.AvgVelocityX, record.AvgVelocityX, record);
  Put_Back(copy.AvgVelocityZ, record.AvgVelocityZ, record);
  if (Two_Points(record) == copy.two_points) return;
  Store_Two_Points(copy.two_points, record);
  Left_Behind_The_File(record);
}

double& Const_Velocity(ProjectRecord& record, Velocity_Direction direction) {
  return record.*kConstants[direction];
}

double Hours_Of_Simulation(const ProjectRecord& record) {
  return record.SimulationDuration / kSecondsPerHour;
}

std::string Filled_Note(const Typed_Number& entered) {
  if (!entered.kept) return Real_Note(entered.text);
  const double kept = *entered.kept;
  if (Lenient_Number(entered.text) == kept) return "";
  return "rounded from " + Plain_Number(kept) + ", which OK keeps";
}

double Type_From_Wizard(const ProjectRecord& record) {
  const int option = Answers_Of_Wizard().velocity_option;
  if (record.WizardActive == kFalse || option < 0 || option >= kVelocityForms) {
    return record.VelocityProfileType;
  }
  const auto form = static_cast<Velocity_Form>(option);
  // With its logarithm: a walk through the wizard leaves it as it is.
  if (Form_Of_Type(record.VelocityProfileType) == form) return record.VelocityProfileType;
  return Type_Of_Form(form);
}

Typed_Number Duration_From_Wizard(const ProjectRecord& record) {
  const double seconds = Lenient_Number(Answers_Of_Wizard().max_duration);
  Typed_Number shown(Format_Number(seconds / kSecondsPerHour, "###.00"));
  if (seconds == record.SimulationDuration) shown.kept = Hours_Of_Simulation(record);
  return shown;
}

}  // namespace barvon
