#include "batch/interrupts.h"

#include <signal.h>
#include <unistd.h>

namespace barvon {
namespace {

volatile sig_atomic_t seen = 0;

void Note(int signal) { seen = signal; }
void Pass_Over(int) {}

/// Handlers, unlike an ignored signal, are not handed on to started programs.
void Set_Handler(int signal, void (*handler)(int)) {
  struct sigaction former {};
  if (sigaction(signal, nullptr, &former) == 0 && former.sa_handler == SIG_IGN) return;
  struct sigaction action {};
  action.sa_handler = handler;
  sigemptyset(&action.sa_mask);
  sigaction(signal, &action, nullptr);
}

}  // namespace

void Watch_Interrupts() {
  Set_Handler(SIGINT, Note);
  Set_Handler(SIGTERM, Note);
  Set_Handler(SIGHUP, Note);
  Set_Handler(SIGPIPE, Pass_Over);
}

int Interrupt_Seen() { return seen; }

void End_By_Signal(int signal) {
  struct sigaction usual {};
  usual.sa_handler = SIG_DFL;
  sigaction(signal, &usual, nullptr);
  sigset_t only;
  sigemptyset(&only);
  sigaddset(&only, signal);
  sigprocmask(SIG_UNBLOCK, &only, nullptr);
  raise(signal);
  _exit(128 + signal);
}

}  // namespace barvon
