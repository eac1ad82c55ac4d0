#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/process/process_control.h"

namespace barvon {

/// What becomes of a viewer: how it ended, and the last lines of the first 64 KiB that it printed.
using Viewer_Over = std::function<void(const Process_End& end, const std::string& last_output)>;

/// Starts a program that shows something and belongs to the user from then on: any number of them
/// may be open, and each lives on when this program ends. It is watched by Watch_Program, and
/// `when_over` is called once when it has ended. 0, or the errno value for which it could not be
/// started; then nothing is called.
int Start_Viewer(const std::vector<std::string>& command, const std::string& folder,
                 Viewer_Over when_over);

}  // namespace barvon
