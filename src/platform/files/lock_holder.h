#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <string_view>

namespace barvon {

/// The program that holds a lock. A text that could not be found out is empty.
struct Lock_Holder {
  std::string user;
  std::string host;
  std::string program;    // the name of its executable
  long process = 0;       // number of its process
  std::string start;      // when the process began, in the kernel's ticks
  std::string machine;    // the system that it runs on
  std::string boot;       // which of that system's starts
  std::time_t since = 0;  // seconds since 1970
};

/// This program, from now on.
Lock_Holder This_Program();

/// The lines of a lock file, and what they say; nothing when they are not whole.
std::string Holder_Lines(const Lock_Holder& holder);
std::optional<Lock_Holder> Read_Holder(std::string_view lines);

/// Where a holder stands to this program. One that a restart of this system has ended has ended;
/// of another host nothing is known.
enum class Holder_State { Runs, Has_Ended, Elsewhere };
Holder_State State_Of(const Lock_Holder& holder);

/// "anna on tide, barvon (process 4711), since 2026-11-22 15:40"
std::string Holder_In_Words(const Lock_Holder& holder);

/// A time on this system's clock, "2026-11-22 15:40".
std::string Time_In_Words(std::time_t time);

}  // namespace barvon
