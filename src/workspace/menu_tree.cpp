#include "workspace/menu_tree.h"

namespace barvon {
namespace {

Menu_Item Item(int index, const char* caption, const char* hint = "") {
  return {index, caption, true, true, Gate::None, false, false, hint};
}
Menu_Item Gated(int index, const char* caption, Gate gate, const char* hint = "") {
  return {index, caption, false, true, gate, false, false, hint};
}
Menu_Item Marked(int index, const char* caption, bool marked, const char* hint = "") {
  return {index, caption, true, true, Gate::None, true, marked, hint};
}
Menu_Item Hidden(int index, const char* caption) { return {index, caption, false, false}; }
/// Shows once its screen is registered.
Menu_Item Opens(int index, const char* caption, const char* screen) {
  return {index, caption, true, false, Gate::None, false, false, "", screen};
}
Menu_Item Separator(int index) { return {index}; }
Menu_Item Hidden_Separator(int index) { return {index, "", true, false}; }

/// Open from the start, although the gate moves it afterwards.
Menu_Item Open_At_Start(Menu_Item item) {
  item.enabled = true;
  return item;
}

}  // namespace

bool Is_Available(Gate gate, Menu_Mode mode) {
  return mode == Menu_Mode::Project || (gate == Gate::Any && mode == Menu_Mode::Dilution);
}

const std::vector<Menu>& Menu_Tree() {
  // One entry a line, as a table.
  // clang-format off
  static const std::vector<Menu> tree = {
      {"mnuFile", "&File", "mnuFileItem", true, true, Gate::None, "File Manipulation Tools",
       {Item(0, "&New", "Create New File"),
        Item(1, "&Open", "Open Existing File"),
        Gated(2, "&Close", Gate::Any, "Close Active File"),
        Separator(3),
        Gated(4, "&Save", Gate::Any, "Save Existing File"),
        Gated(5, "Save &As", Gate::Any, "Save New File"),
        Separator(6),
        Gated(7, "&Print", Gate::Any, "Print Active File"),
        Item(8, "P&rint Setup", "Change the Printer Setup"),
        Separator(9),
        Item(10, "E&xit")}},
      {"mnuEdit", "&Edit", "mnuEditItem", true, true, Gate::None, "Edit Input Data",
       {Gated(0, "&Evaluation Selection and Title", Gate::Any, "Edit Title and Site Description"),
        Gated(1, "&Site Description", Gate::Project),
        Gated(2, "&Velocity Profile", Gate::Project),
        Gated(3, "&Input, Execution and Output Keys", Gate::Project),
        Gated(4, "&Material Description", Gate::Project),
        Gated(5, "&Disposal Operation Data", Gate::Project),
        Gated(6, "&Coefficients (Default Values)", Gate::Project),
        Separator(7),
        Gated(8, "&Error Check", Gate::Project, "Checks for Errors in the Input Data"),
        Hidden_Separator(9),
        Hidden(10, "Time/Date"),
        Hidden(11, "&Font")}},
      {"mnuRun", "Ru&n", "", true, false, Gate::Project, "", {}},
      {"mnuView", "&View", "mnuViewItem", true, true, Gate::None, "Edit Environment View",
       {Open_At_Start(Gated(1, "&Output File", Gate::Project)),
        Separator(2),
        Marked(3, "&Toolbar", true, "Display or Hide the Toolbar"),
        Marked(4, "&Status Bar", true, "Display or Hide the Status Bar"),
        Separator(5),
        Marked(6, "Multiple &Input Windows", false,
               "Allows or Disallows Multiple Input Windows to be Shown")}},
      {"mnuGraphics", "&Graphics", "mnuGraph", true, true, Gate::None, "",
       {Item(0, "Execute Graphics"),
        Item(1, "Max Conc. vs Time"),
        Item(2, "Concentration Contours"),
        Item(3, "Deposition Thickness")}},
      {"mnuOptions", "Options", "mnuOptionItem", true, true, Gate::None, "",
       {Marked(0, "Data Wizard Help On", true),
        Marked(1, "Always Save Before Simulation?", true)}},
      {"mnuTools", "&Tools", "mnuToolItem", false, true, Gate::None, "",
       {Opens(0, "&Start Dialog", "frmOpen"),
        Opens(1, "&Database", "DataBase"),
        Opens(2, "Dilution &Report", "Write_Dilute_Report"),
        Opens(3, "&Graphical Site Grid", "Graphic_Data_Entry"),
        Opens(4, "Text &Viewer", "frmNotePad"),
        Opens(5, "&Tip of the Day", "frmTip")}},
      {"mnuWindow", "&Window", "mnuWItem", false, true, Gate::None, "",
       {Item(0, "&Cascade"),
        Item(1, "Tile &Horizontal"),
        Item(2, "Tile &Vertical"),
        Item(3, "&Arrange Icons")}},
      {"mnuHelp", "&Help", "mnuHelpItem", true, true, Gate::None, "Topic Help Menu",
       {Item(0, "&Contents", "Index of Help Topics"),
        Item(1, "&Search For Help On"),
        Separator(2),
        Item(3, "&About")}},
  };
  // clang-format on
  return tree;
}

const char* Tool_Screen(int index) {
  for (const Menu& menu : Menu_Tree()) {
    for (const Menu_Item& item : menu.items) {
      if (*item.screen != '\0' && item.index == index) return item.screen;
    }
  }
  return nullptr;
}

std::string Recent_Caption(int index, const std::string& path) {
  std::string caption = "&" + std::to_string(index) + ": ";
  for (const char character : path) {
    if (character == '&') caption += '&';
    caption += character;
  }
  return caption;
}

}  // namespace barvon
