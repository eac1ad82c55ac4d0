#pragma once

#include "workspace/main_controls.h"
#include "workspace/menu_tree.h"

namespace barvon {

/// Builds the menu bar from the menu tree. Every item is an action of its own name:
/// "mnuFileItem(4)", "mnuRecentFile(1)", "mnuRun".
void Build_Menus(Main_Controls& controls);

/// Makes the action known as the array's item of that index, "Toolbar1(3)"; returns it.
QAction* Name_Action(Main_Controls& controls, QAction* action, const char* array, int index);

/// The action of that name; it lives as long as the window.
QAction* Action_Of(const Main_Controls& controls, const char* array, int index);
QAction* Action_Of(const Main_Controls& controls, const char* name);

/// The gate: which commands can be chosen.
void SetMenuAvailability(Main_Controls& controls, Menu_Mode mode);

/// Print can be chosen with a project and with a text in front.
void Show_Print_Item(Main_Controls& controls);

/// The check mark of an entry of the Edit menu whose data has been supplied. Choosing the entry
/// leaves its mark alone; a new project clears all of them.
void Mark_Edit_Item(Main_Controls& controls, int index);
void Keep_Edit_Mark(Main_Controls& controls, int index);
void Clear_Edit_Marks(Main_Controls& controls);

/// Shows or hides a menu of the bar.
void Show_Menu(Main_Controls& controls, const char* name, bool shown);

/// A letter goes to the menu bar first; a command's button answers to the letter of its caption as
/// far as no menu in view has it.
void Share_Letters(Main_Controls& controls);

/// Shows the entries of the Tools menu whose screens are registered; without any the menu is hidden
/// too.
void Show_Tools_Menu(Main_Controls& controls);

/// Shows the recent files as the menu holds them.
void Show_Recent_Menu(Main_Controls& controls);

}  // namespace barvon
