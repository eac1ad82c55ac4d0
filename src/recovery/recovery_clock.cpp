#include "recovery/recovery_clock.h"

#include <chrono>

#include "core/desk/project_hold.h"
#include "core/desk/workspace_port.h"

namespace barvon {

Recovery_Clock::Recovery_Clock(Recovery_Keeper& keeper) {
  Port().recovery.settled = [this, &keeper] {
    keeper.Settle();
    // What shows a new project derives some of its values: they are no change of a person's.
    if (Project().DataSaved == kFalse) {
      QTimer::singleShot(0, &timer_, [&keeper] { keeper.Settle(); });
    }
  };
  Port().recovery.dilutions_settled = [&keeper] { keeper.Settle_Dilutions(); };
  Port().recovery.leave = [&keeper] { keeper.Leave(); };
  Port().recovery.leave_unasked = [&keeper] { keeper.Leave_Unasked(); };
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [&keeper] {
    keeper.Look();
    Hold_What_Is_Free();
  });
  timer_.start(std::chrono::seconds(10));
}

Recovery_Clock::~Recovery_Clock() { Port().recovery = {}; }

}  // namespace barvon
