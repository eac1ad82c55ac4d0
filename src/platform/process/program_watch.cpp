#include "platform/process/program_watch.h"

#include <utility>

#include "platform/process/event_pump.h"

namespace barvon {
namespace {

Program_Watcher& Watcher() {
  static Program_Watcher watcher;
  return watcher;
}

}  // namespace

void Watch_Program(int descriptor, std::function<bool()> goes_on) {
  if (Watcher()) {
    Watcher()(descriptor, std::move(goes_on));
    return;
  }
  while (goes_on()) Pump_Events(kWatchEvery, descriptor);
}

Program_Watcher Set_Program_Watcher(Program_Watcher watcher) {
  return std::exchange(Watcher(), std::move(watcher));
}

}  // namespace barvon
