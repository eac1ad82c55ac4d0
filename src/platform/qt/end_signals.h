#pragma once

#include <signal.h>

#include <QSocketNotifier>
#include <array>
#include <functional>
#include <memory>

namespace barvon {

/// While it lives, SIGTERM, SIGINT and SIGHUP don't end the process at once: `end` is
/// called from the event loop, so that what the process has started can be ended with it. A signal
/// that the caller has switched off (nohup) stays off. There is at most one at a time.
class End_Signals {
 public:
  explicit End_Signals(std::function<void()> end);
  ~End_Signals();
  End_Signals(const End_Signals&) = delete;
  End_Signals& operator=(const End_Signals&) = delete;

 private:
  static constexpr std::array<int, 3> kSignals{SIGTERM, SIGINT, SIGHUP};

  std::array<int, 2> pipe_{-1, -1};
  std::array<struct sigaction, 3> former_{};
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace barvon
