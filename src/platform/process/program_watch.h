#pragma once

#include <chrono>
#include <functional>

namespace barvon {

/// How often a watched program is asked about: nobody waits for its end to the moment.
inline constexpr std::chrono::milliseconds kWatchEvery{100};

/// Asks `goes_on` every kWatchEvery until it says no. Where an interface calls back,
/// this returns at once and the asking goes on beside everything else; without one it is all done
/// here, asleep between by Pump_Events.
void Watch_Program(std::function<bool()> goes_on);

using Program_Watcher = std::function<void(std::function<bool()> goes_on)>;
/// Puts another watcher in place and returns the one that was there.
Program_Watcher Set_Program_Watcher(Program_Watcher watcher);

}  // namespace barvon
