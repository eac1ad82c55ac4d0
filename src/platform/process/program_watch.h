#pragma once

#include <chrono>
#include <functional>

namespace barvon {

/// How often a watched program is asked about where the system has no descriptor that tells of its
/// end: nobody waits for it to the moment.
inline constexpr std::chrono::milliseconds kWatchEvery{100};

/// Asks `goes_on` whenever the descriptor can be read, or every kWatchEvery when it is -1, until
/// the answer is no. The descriptor stays open for as long as `goes_on` exists. Where an interface
/// calls back, this returns at once and the asking goes on beside everything else; without one it
/// is all done here, asleep between by Pump_Events.
void Watch_Program(int descriptor, std::function<bool()> goes_on);

using Program_Watcher = std::function<void(int descriptor, std::function<bool()> goes_on)>;
/// Puts another watcher in place and returns the one that was there.
Program_Watcher Set_Program_Watcher(Program_Watcher watcher);

}  // namespace barvon
