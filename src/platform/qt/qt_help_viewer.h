#pragma once

#include <string>

#include "platform/help_viewer.h"

namespace barvon {

/// The help file that is shown from now on.
void Set_Help_File(const std::string& path);

/// Shows help on the request, or says in words that the help file is missing.
void Show_Qt_Help(const Help_Request& request);

}  // namespace barvon
