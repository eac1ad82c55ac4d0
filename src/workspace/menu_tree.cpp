#include "workspace/menu_tree.h"

#include "core/desk/edit_entries.h"
#include "workspace/menu_items.h"

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
Menu_Item Opens(int index, const char* caption, const Screen_Row& screen) {
  return {index, caption, true, false, Gate::None, false, false, "", "", &screen};
}
Menu_Item Separator(int index) { return {index}; }
Menu_Item Hidden_Separator(int index) { return {index, "", true, false}; }

Menu_Item With_Key(const char* key, Menu_Item item) {
  item.key = key;
  return item;
}

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
       {With_Key("Ctrl+N", Item(kFileNew, "&New", "Create New File")),
        With_Key("Ctrl+O", Item(kFileOpen, "&Open", "Open Existing File")),
        Gated(kFileClose, "&Close", Gate::Any, "Close Active File"),
        Separator(3),
        With_Key("Ctrl+S", Gated(kFileSave, "&Save", Gate::Any, "Save Existing File")),
        With_Key("Ctrl+Shift+S", Gated(kFileSaveAs, "Save &As", Gate::Any, "Save New File")),
        Separator(6),
        With_Key("Ctrl+P", Gated(kFilePrint, "&Print", Gate::Any, "Print Active File")),
        Item(kFilePrintSetup, "P&rint Setup", "Change the Printer Setup"),
        Separator(9),
        With_Key("Ctrl+Q", Item(kFileExit, "E&xit"))}},
      {"mnuEdit", "&Edit", "mnuEditItem", true, true, Gate::None, "Edit Input Data",
       {Gated(kEditEvaluationAndTitle, "&Evaluation Selection and Title", Gate::Any, "Edit Title and Site Description"),
        Gated(kEditSite, "&Site Description", Gate::Project),
        Gated(kEditVelocity, "&Velocity Profile", Gate::Project),
        Gated(kEditKeys, "&Input, Execution and Output Keys", Gate::Project),
        Gated(kEditMaterial, "&Material Description", Gate::Project),
        Gated(kEditOperation, "&Disposal Operation Data", Gate::Project),
        Gated(kEditCoefficients, "&Coefficients (Default Values)", Gate::Project),
        Separator(7),
        Gated(kEditErrorCheck, "&Error Check", Gate::Project, "Checks for Errors in the Input Data"),
        Hidden_Separator(kEditWaterDensity),
        Hidden(kEditTimeAndDate, "Time/Date"),
        Hidden(kEditFont, "&Font")}},
      {"mnuRun", "Ru&n", "", true, false, Gate::Project, "Run Simulation (F5)", {}, "F5"},
      {"mnuView", "&View", "mnuViewItem", true, true, Gate::None, "Edit Environment View",
       {Open_At_Start(Gated(kViewOutputFile, "&Output File", Gate::Project)),
        Separator(2),
        Marked(kViewToolbar, "&Toolbar", true, "Display or Hide the Toolbar"),
        Marked(kViewStatusBar, "&Status Bar", true, "Display or Hide the Status Bar"),
        Separator(5),
        Marked(kViewMultiple, "Multiple &Input Windows", false,
               "Allows or Disallows Multiple Input Windows to be Shown")}},
      {"mnuGraphics", "&Graphics", "mnuGraph", true, true, Gate::None, "",
       {Item(0, "Execute Graphics"),
        Item(1, "Max Conc. vs Time"),
        Item(2, "Concentration Contours"),
        Item(3, "Deposition Thickness")}},
      {"mnuOptions", "Options", "mnuOptionItem", true, true, Gate::None, "",
       {Marked(kWizardHelp, "Data Wizard Help On", true),
        Marked(kSaveBeforeRun, "Always Save Before Simulation?", true)}},
      {"mnuTools", "&Tools", "mnuToolItem", false, true, Gate::None, "",
       {Opens(0, "&Start Dialog", Row_Of_Screen("frmOpen")),
        Opens(1, "&Database", Row_Of_Screen("DataBase")),
        Opens(2, "Dilution &Report", Row_Of_Screen("Write_Dilute_Report")),
        Opens(3, "&Graphical Site Grid", Row_Of_Screen("Graphic_Data_Entry")),
        Opens(4, "Text &Viewer", Row_Of_Screen("frmNotePad")),
        Opens(5, "Tip &of the Day", Row_Of_Screen("frmTip")),
        Opens(6, "Open &Text File...", Row_Of_Screen("Open_Text_File")),
        Opens(7, "&Project Report...", Row_Of_Screen("Project_Report")),
        Opens(8, "&Check Database Files...", Row_Of_Screen("frmDatabaseCheck"))}},
      {"mnuWindow", "&Window", "mnuWItem", false, true, Gate::None, "",
       {Item(kWindowCascade, "&Cascade"),
        Item(kWindowTileHorizontal, "Tile &Horizontal"),
        Item(kWindowTileVertical, "Tile &Vertical"),
        Item(kWindowArrangeIcons, "&Arrange Icons")}},
      {"mnuHelp", "&Help", "mnuHelpItem", true, true, Gate::None, "Topic Help Menu",
       {Item(kHelpContents, "&Contents", "Index of Help Topics"),
        Item(kHelpSearch, "&Search For Help On"),
        Separator(2),
        Item(kHelpAbout, "&About")}},
  };
  // clang-format on
  return tree;
}

const Screen_Row* Tool_Screen(int index) {
  for (const Menu& menu : Menu_Tree()) {
    for (const Menu_Item& item : menu.items) {
      if (item.screen != nullptr && item.index == index) return item.screen;
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
