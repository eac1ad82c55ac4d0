#pragma once

namespace barvon {

/// From here on SIGINT, SIGTERM and SIGHUP only leave a mark, so that a run can be stopped and
/// cleaned up behind, and a reader that goes away shows as EPIPE. A signal that the caller has
/// switched off (nohup) stays off. Started programs get the usual behaviour.
void Watch_Interrupts();

/// The signal that asked for the end, 0 as long as none did.
int Interrupt_Seen();

/// Ends this program by the signal as if it had never been watched, which is what tells a shell
/// that waits for it.
[[noreturn]] void End_By_Signal(int signal);

}  // namespace barvon
