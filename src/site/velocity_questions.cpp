#include "site/velocity_questions.h"

#include <cmath>
#include <limits>

#include "core/number_text.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

/// The pattern's 12.5 hours in seconds. The start is held against it in hours as it is typed: up
/// to 45000 hours pass, and that stays.
constexpr double kLatestStart = 45000;

bool Check_Start(double start) {
  if (start <= kLatestStart) return true;
  Show_Message(
      {"Starting Time Exceeds Unsteady Velocity Pattern Duration (12.5 Hrs).  Please Correct."});
  return false;
}

/// A duration that 32 bits can't tell from 0 would divide by it.
bool Check_Duration(const Velocity_Entry& entry) {
  if (Average_Velocities(entry)) return true;
  Show_Message({"Please Provide a Simulation Duration Greater Than Zero."});
  return false;
}

/// The unsteady profile is kept in 32 bits: what they can't hold is refused, not cut.
bool Check_Size(double value, const std::string& name) {
  if (std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max())) return true;
  Show_Message({name + " is Too Large a Number.  Please Correct."});
  return false;
}

bool Check_Sizes(const Velocity_Entry& entry) {
  constexpr const char* kNames[] = {"Start Time Within Velocity Profile",
                                    "Depth Where Velocity Profile is Applied",
                                    "Simulation Duration"};
  for (std::size_t i = 0; i < std::size(kNames); ++i) {
    if (!Check_Size(entry.Text3[i].Number(), kNames[i])) return false;
  }
  for (std::size_t row = 1; row <= kTidalRows; ++row) {
    const std::string velocity = "-Velocity of Point " + std::to_string(row);
    if (!Check_Size(entry.F1Book3[row][1], "X" + velocity)) return false;
    if (!Check_Size(entry.F1Book3[row][2], "Z" + velocity)) return false;
  }
  const auto averages = Average_Velocities(entry);
  return averages && Check_Size((*averages)[kAlongX], "Average X-Velocity") &&
         Check_Size((*averages)[kAlongZ], "Average Z-Velocity");
}

}  // namespace

bool Check_Velocity(const Velocity_Entry& entry, double type) {
  if (type != kUnsteadyVelocity) return true;
  return Check_Start(entry.Text3[0].Number()) && Check_Duration(entry) && Check_Sizes(entry);
}

void Tell_Constant_Missing(Velocity_Direction direction) {
  Show_Message({direction == kAlongX ? "Specify Velocity In The X-Direction"
                                     : "Specify Velocity In The Z-Direction"});
}

bool Ask_To_Overwrite() {
  return Ask("Do you Want to Overwrite Existing Data?", Buttons::YesNo, Icon::Question) ==
         Answer::Yes;
}

void Tell_Duration_Missing() {
  Show_Information("Please Provide a Value for Simulation Duration.");
}

void Tell_Grid_Beyond_Fields(const ProjectRecord& record) {
  if (record.MMAX0 <= kMaxGridPoints && record.NMAX0 <= kMaxGridPoints) return;
  const std::string most = std::to_string(kMaxGridPoints);
  Show_Warning("The Grid of " + std::to_string(record.MMAX0) + " x " +
               std::to_string(record.NMAX0) + " Points Exceeds the Maximum of " + most + " x " +
               most + ".  Only the Points Within It Are Shown.");
}

}  // namespace barvon
