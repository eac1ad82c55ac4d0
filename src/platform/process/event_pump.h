#pragma once

#include <chrono>
#include <functional>

namespace barvon {

/// Lets the interface process its events, asleep until one comes or the time is up.
void Pump_Events(std::chrono::milliseconds longest);

using Event_Pump = std::function<void(std::chrono::milliseconds)>;
/// Puts another pump in place and returns the one that was there. Without one, Pump_Events sleeps.
Event_Pump Set_Event_Pump(Event_Pump pump);

}  // namespace barvon
