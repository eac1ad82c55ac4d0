#pragma once

#include <chrono>
#include <functional>

namespace barvon {

/// Lets the interface process its events, asleep until one comes, the descriptor can be read or the
/// time is up. -1 is no descriptor.
void Pump_Events(std::chrono::milliseconds longest, int descriptor = -1);

/// Sleeps until the descriptor can be read, a signal comes or the time is up. -1 is no descriptor.
void Sleep_Until_Readable(int descriptor, std::chrono::milliseconds longest);

using Event_Pump = std::function<void(std::chrono::milliseconds longest, int descriptor)>;
/// Puts another pump in place and returns the one that was there. Without one, Pump_Events sleeps.
Event_Pump Set_Event_Pump(Event_Pump pump);

}  // namespace barvon
