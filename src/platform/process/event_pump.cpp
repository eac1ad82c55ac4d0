#include "platform/process/event_pump.h"

#include <poll.h>

#include <utility>

namespace barvon {
namespace {

Event_Pump& Pump() {
  static Event_Pump pump;
  return pump;
}

}  // namespace

void Pump_Events(std::chrono::milliseconds longest, int descriptor) {
  if (Pump()) {
    Pump()(longest, descriptor);
  } else {
    Sleep_Until_Readable(descriptor, longest);
  }
}

void Sleep_Until_Readable(int descriptor, std::chrono::milliseconds longest) {
  pollfd readable{descriptor, POLLIN, 0};
  ::poll(&readable, 1, static_cast<int>(longest.count()));
}

Event_Pump Set_Event_Pump(Event_Pump pump) { return std::exchange(Pump(), std::move(pump)); }

}  // namespace barvon
