#pragma once

#include <string>

#include "platform/ask/help_viewer.h"

namespace barvon {

/// The help file that is shown from now on.
void Set_Help_File(const std::string& path);

/// Does what the request asks for in the help window, or says in words that the help file is
/// missing or can't be shown. Quit closes the window and says nothing.
void Show_Qt_Help(const Help_Request& request);

}  // namespace barvon
