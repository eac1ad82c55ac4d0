#include "platform/qt/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace barvon {
namespace {

volatile sig_atomic_t write_end = -1;

/// All that may be done in a signal handler.
void Pass_On(int) {
  const int error = errno;
  const char byte = 0;
  // A pipe that is full has said it already.
  [[maybe_unused]] const ssize_t written = ::write(write_end, &byte, 1);
  errno = error;
}

}  // namespace

End_Signals::End_Signals(std::function<void()> end) {
  if (::pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  write_end = pipe_[1];
  notifier_ = std::make_unique<QSocketNotifier>(pipe_[0], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [read_end = pipe_[0], end = std::move(end)] {
                     char byte = 0;
                     if (::read(read_end, &byte, 1) == 1) end();
                   });
  struct sigaction action {};
  action.sa_handler = Pass_On;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    ::sigaction(kSignals[i], nullptr, &former_[i]);
    if (former_[i].sa_handler != SIG_IGN) ::sigaction(kSignals[i], &action, nullptr);
  }
}

End_Signals::~End_Signals() {
  if (!notifier_) return;
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    ::sigaction(kSignals[i], &former_[i], nullptr);
  }
  notifier_.reset();
  for (const int descriptor : pipe_) ::close(descriptor);
}

}  // namespace barvon
