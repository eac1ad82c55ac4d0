#include "platform/process_control.h"

namespace barvon {

struct External_Process::State {
  Process_End end;
};

External_Process::External_Process() : state_(std::make_unique<State>()) {}
External_Process::~External_Process() = default;
int External_Process::Start(const Process_Start&) { return 2; }
bool External_Process::Poll() { return false; }
void External_Process::Stop(std::chrono::milliseconds) {}
void External_Process::Stop_And_Wait(std::chrono::milliseconds) {}
bool External_Process::Is_Running() const { return false; }
const Process_End& External_Process::End() const { return state_->end; }
std::string External_Process::Last_Output() const { return {}; }
std::chrono::milliseconds External_Process::Duration() const { return {}; }

}  // namespace barvon
