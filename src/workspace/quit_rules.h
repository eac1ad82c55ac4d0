#pragma once

#include <functional>
#include <string>

#include "core/project_record.h"

namespace barvon {

/// What the window's close box leads to.
enum class Close_Action {
  Stay,            // the close is cancelled
  Save_And_Close,  // the save button's action runs, then the close goes ahead
  End_At_Once,     // help is closed and the process ends
};

/// Asks "Do You Wish to Quit?" under the program's executable name. True for Yes.
bool Wish_To_Quit();

/// Asks what must be asked for this caption and DataSaved, and gives what follows.
Close_Action Ask_On_Close(const std::string& caption, Flag data_saved);

/// File, Exit: "Are You Sure You Want to Quit?". True on any answer but No.
bool Ask_On_Exit();

/// What ends the process: stops a run, closes help and ends. Main sets it; a test may set its own.
void End_Program();
void Set_Program_End(std::function<void()> end);

}  // namespace barvon
