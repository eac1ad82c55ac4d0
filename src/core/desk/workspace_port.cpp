#include "core/desk/workspace_port.h"

namespace barvon {

Workspace_Port& Port() {
  static Workspace_Port port;
  return port;
}

void Reset_Port() { Port() = {}; }

}  // namespace barvon
