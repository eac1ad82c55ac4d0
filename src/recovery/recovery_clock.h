#pragma once

#include <QTimer>

#include "recovery/recovery_keeper.h"

namespace barvon {

/// Has the keeper look at the record every ten seconds and whenever the workspace tells that
/// something has been loaded, saved or reset, or that the program ends.
class Recovery_Clock {
 public:
  explicit Recovery_Clock(Recovery_Keeper& keeper);
  ~Recovery_Clock();
  Recovery_Clock(const Recovery_Clock&) = delete;
  Recovery_Clock& operator=(const Recovery_Clock&) = delete;

 private:
  QTimer timer_;
};

}  // namespace barvon
