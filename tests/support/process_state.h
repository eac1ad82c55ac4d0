#pragma once

#include <sys/types.h>
#include <string>

namespace barvon::testing {

/// The address checks keep memory that was freed: under them its amount tells nothing.
#ifdef __SANITIZE_ADDRESS__
inline constexpr bool kMemoryTells = false;
#else
inline constexpr bool kMemoryTells = true;
#endif

/// A value in KiB of /proc/PID/status, such as "VmRSS"; 0 when there is none. -1 is this program.
long Memory_Of(const std::string& name, pid_t pid = -1);
/// Lets "VmHWM" of this program begin anew at what it has now.
void Forget_Peak_Memory();
/// Processes whose parent this program is, those that have ended and were not reaped included.
int Own_Children();
/// Descriptors that this program has open.
int Open_Descriptors();
/// Living processes that work in the folder or below it, but for this program.
int Processes_In(const std::string& folder);

}  // namespace barvon::testing
