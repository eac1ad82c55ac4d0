#include "platform/process/event_pump.h"

#include <thread>
#include <utility>

namespace barvon {
namespace {

Event_Pump& Pump() {
  static Event_Pump pump;
  return pump;
}

}  // namespace

void Pump_Events(std::chrono::milliseconds longest) {
  if (Pump()) {
    Pump()(longest);
  } else {
    std::this_thread::sleep_for(longest);
  }
}

Event_Pump Set_Event_Pump(Event_Pump pump) { return std::exchange(Pump(), std::move(pump)); }

}  // namespace barvon
