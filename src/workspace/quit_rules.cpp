#include "workspace/quit_rules.h"

namespace barvon {

bool Wish_To_Quit() { return false; }
Close_Action Ask_On_Close(const std::string&, Flag) { return Close_Action::Stay; }
bool Ask_On_Exit() { return false; }
void End_Program() {}
void Set_Program_End(std::function<void()>) {}

}  // namespace barvon
