#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/project_record.h"
#include "core/typed_number.h"
#include "core/velocity_types.h"
#include "site/tidal_average.h"

namespace barvon {

/// X runs from the top of the grid to its bottom, Z from left to right.
enum Velocity_Direction { kAlongX = 0, kAlongZ = 1 };
inline constexpr int kDirections = 2;
inline constexpr const char* kAxes[kDirections] = {"X", "Z"};

/// What frmVelocity holds, one member per control; tables by row and column from 1. Velocities in
/// ft/s, depths in feet, times in hours.
struct Velocity_Entry {
  struct Field {
    bool Check3D2 = false;  // filled with the constant in Text2
    Typed_Number Text2;
    Grid F1Book2{};
  };
  std::array<Typed_Number, 3> Text1;           // depth, X and Z velocity
  bool Check3D1 = false;                       // logarithmic profile
  OneBased<OneBased<double, 4>, 2> F1Book1{};  // X depth and velocity, Z depth and velocity
  std::array<Field, kDirections> fields;
  int rows = 0, columns = 0;          // of both fields
  std::array<Typed_Number, 5> Text3;  // start, depth, duration, X and Z average
  OneBased<OneBased<double, kDirections>, kTidalRows> F1Book3{};
};

/// What the form of the record's type shows; the members of the other forms stay empty. Of a grid
/// beyond the record's arrays it is the part that they hold.
Velocity_Entry ShowVelocityData(const ProjectRecord& record);

/// Text4(0), the note on directions.
std::string Direction_Note(double velocity_profile_type);

/// The interval as typed; numbers beyond 32 bits are held to their range.
Tidal_Interval Interval_Of(const Velocity_Entry& entry);
/// Text4(1): start, duration and end of the simulated interval.
std::string Interval_Note(const Tidal_Interval& interval);

/// Average velocities over the interval, X and Z; nothing while no duration is typed. Nothing is
/// stored.
std::optional<std::array<double, kDirections>> Average_Velocities(const Velocity_Entry& entry);

/// Stores the form of the record's type and clears DataSaved. Check_Velocity must have passed the
/// entry.
void SaveVelocityData(const Velocity_Entry& entry, ProjectRecord& record);

/// What Cancel puts back.
struct Velocity_Copy {
  double VelocityProfileType = 0;
  double AvgVelocityDepth = 0, AvgVelocityX = 0, AvgVelocityZ = 0;
  OneBased<OneBased<double, 4>, 2> two_points{};
};
Velocity_Copy Copy_Velocity(const ProjectRecord& record);
/// The fields of the grid and the unsteady profile stay as they are.
void Reset_Vars(const Velocity_Copy& copy, ProjectRecord& record);

/// The constant that fills the direction's field, 0 for none.
double& Const_Velocity(ProjectRecord& record, Velocity_Direction direction);

/// SimulationDuration in hours.
double Hours_Of_Simulation(const ProjectRecord& record);

/// What to say about the text of a number field: how it reads, or, while it is as filled, what its
/// few decimals leave out.
std::string Filled_Note(const Typed_Number& entered);

/// The type that the open wizard asks for; the record's own while there is none.
double Type_From_Wizard(const ProjectRecord& record);
/// Text3(2) from the open wizard: its longest duration in hours. Where that is the record's, what
/// the few decimals leave out is kept.
Typed_Number Duration_From_Wizard(const ProjectRecord& record);

}  // namespace barvon
