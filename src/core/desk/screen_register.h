#pragma once

#include <functional>
#include <string>

#include "core/project_record.h"

namespace barvon {

/// How a screen is opened: blocking or not, with the focus on the control of that name when one is
/// given ("Text1(0)").
using Screen_Opener = std::function<void(bool blocking, const std::string& control)>;

/// Makes a screen known by its name; an opener of the same name is replaced, an empty one takes
/// the screen out again. The workspace hears of it.
void Register_Screen(const std::string& name, Screen_Opener opener);

/// Whether a screen of that name is registered.
bool Screen_Stands(const std::string& name);

/// Whether input screens open blocking, as the View menu says.
inline bool Opens_Blocking(const ProjectRecord& record) { return record.ShowMode == 1; }

/// Opens the screen. False when no screen of that name is registered.
bool Open_Screen(const std::string& name, bool blocking, const std::string& control = {});

/// Opens the screen; one that this version does not have is named in the status area.
void Open_Screen_Or_Tell(const std::string& name, bool blocking, const std::string& control = {});

}  // namespace barvon
