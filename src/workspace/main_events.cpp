#include "workspace/main_events.h"

#include <QEvent>
#include <QShortcut>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "core/desk/recent_files.h"
#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "core/desk/wizard_help.h"
#include "platform/ask/help_viewer.h"
#include "platform/ask/message_box.h"
#include "platform/qt/fields/option_paint.h"
#include "platform/qt/spoken_roles.h"
#include "run/run_driver.h"
#include "run/view_results.h"
#include "workspace/display_data.h"
#include "workspace/document_menus.h"
#include "workspace/file_menu.h"
#include "workspace/main_boards.h"
#include "workspace/main_help.h"
#include "workspace/main_menus.h"
#include "workspace/menu_items.h"
#include "workspace/open_screens.h"
#include "workspace/option_events.h"
#include "workspace/option_groups.h"
#include "workspace/option_logic.h"

namespace barvon {
namespace {

void View_Graphics(const ProjectRecord& record) {
  if (!Graphics_Program_Exists()) {
    Show_Critical("File: KV_graph.exe Not Found.");
    return;
  }
  Graph_Command(record, 0);
}

/// What an event of a control does before the control itself hears of it.
class Early_Events : public QObject {
 public:
  Early_Events(Main_Controls& controls, ProjectRecord& record)
      : QObject(controls.window), controls_(controls), record_(record) {
    controls_.Title_Box->installEventFilter(this);
    controls_.SSPanel3(kShowHelp)->installEventFilter(this);
    controls_.SSPanel3(kShowHelp)->setMouseTracking(true);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == controls_.Title_Box) {
      if (event->type() == QEvent::FocusIn) Paint_Text(controls_.Title_Box, kBlue);
      if (event->type() == QEvent::FocusOut) Paint_Text(controls_.Title_Box, kBlack);
    } else if (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonPress) {
      record_.HelpContextToShow = Active_Topic(controls_, record_);
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  Main_Controls& controls_;
  ProjectRecord& record_;
};

void SSPanel3_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  switch (index) {
    case kEnterData:
      Show_Data_Board(controls);
      Set_Data_Items(controls, record);
      break;
    case kRunSimulation:
      Run_Model(record);
      break;
    case kViewGraphics:
      View_Graphics(record);
      break;
    case kReturnToMenu:
      Show_Main_Board(controls);
      break;
    case kExitProgram:
      mnuFileItem_Click(kFileExit, record);
      break;
    case kShowHelp:
      if (record.HelpContextToShow == 0) {
        Show_Help({Help_Command::Index, 0, ""});
      } else {
        Show_Topic(record.HelpContextToShow);
      }
      break;
    case kViewOutput:
      View_Output_Command(record);
      break;
    case kSaveDataFile:
      mnuFileItem_Click(kFileSave, record);
      break;
    case kDataWizard:
      Open_Screen_Or_Tell(Row_Of_Screen("Data_Wiz"), true);
      Display_Data(controls, record);
      break;
    case kUpdateDatabase:  // does nothing
    default:
      break;
  }
}

void Edit_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Keep_Edit_Mark(controls, index);
  if (index == kEditKeys && Check_Eval(record)) {
    SSPanel3_Click(controls, record, kEnterData);
    SSPanel5_Click(controls, record, kEnterEvaluation);
  }
  mnuEditItem_Click(controls, record, index);
}

void Mark_Toolbar(Main_Controls& controls) {
  Action_Of(controls, "mnuViewItem", kViewToolbar)->setChecked(!controls.Toolbar1->isHidden());
}

void View_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  QAction* item = Action_Of(controls, "mnuViewItem", index);
  switch (index) {
    case kViewOutputFile:
      View_Output_Command(record);
      break;
    case kViewToolbar:
      controls.Toolbar1->setVisible(controls.Toolbar1->isHidden());
      Mark_Toolbar(controls);
      break;
    case kViewStatusBar:  // The mark stays: the status bar is always in view.
      item->setChecked(true);
      break;
    case kViewMultiple:
      record.ShowMode = item->isChecked() ? 0 : 1;
      break;
    default:
      break;
  }
}

void Option_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  const bool marked = Action_Of(controls, "mnuOptionItem", index)->isChecked();
  if (index == kWizardHelp) {
    Choose_Wizard_Help(marked, record);
  } else {
    record.AlwaysSaveBeforeRun = marked ? kTrue : kFalse;
  }
}

void Tool_Click(int index) {
  if (const Screen_Row* screen = Tool_Screen(index)) Open_Screen_Or_Tell(*screen, true);
}

void Help_Click(int index) {
  if (index == kHelpContents) Show_Help({Help_Command::Finder, 0, ""});
  if (index == kHelpSearch) Show_Help({Help_Command::PartialKey, 0, ""});
  if (index == kHelpAbout) Open_Screen_Or_Tell(Row_Of_Screen("frmAbout"), true);
}

void Toolbar_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  switch (index) {
    case kToolNew:
      return mnuFileItem_Click(kFileNew, record);
    case kToolOpen:
      return mnuFileItem_Click(kFileOpen, record);
    case kToolSave:
      return mnuFileItem_Click(kFileSave, record);
    case kToolPrint:
      return mnuFileItem_Click(kFilePrint, record);
    case kToolRun:
      return SSPanel3_Click(controls, record, kRunSimulation);
    case kToolGraphics:
      return Graph_Command(record, 0);
    case kToolCheck:
      return Edit_Click(controls, record, kEditErrorCheck);
    case kToolHelp:
      return Help_Click(kHelpContents);
    default:
      return;
  }
}

/// What choosing an entry of an array does, by the array's name.
using Operations = std::map<std::string, std::function<void(int)>>;

Operations Menu_Operations(Main_Controls& c, ProjectRecord& record) {
  return {
      {"mnuFileItem", [&record](int i) { mnuFileItem_Click(i, record); }},
      {"mnuEditItem", [&c, &record](int i) { Edit_Click(c, record, i); }},
      {"mnuViewItem", [&c, &record](int i) { View_Click(c, record, i); }},
      {"mnuGraph", [&record](int i) { Graph_Command(record, i); }},
      {"mnuOptionItem", [&c, &record](int i) { Option_Click(c, record, i); }},
      {"mnuToolItem", Tool_Click},
      {"mnuWItem", [&c](int i) { mnuWItem_Click(c, i); }},
      {"mnuHelpItem", Help_Click},
  };
}

/// A hand does not reach the menus behind a box that is to be answered first; assistive tools do.
void Connect_Action(Main_Controls& c, const char* array, int index,
                    const std::function<void(int)>& operation) {
  QObject::connect(Action_Of(c, array, index), &QAction::triggered, c.window,
                   [&c, operation, index] {
                     if (!Waits_For_A_Box(c.window)) operation(index);
                   });
}

void Connect_Menus(Main_Controls& c, ProjectRecord& record) {
  const Operations operations = Menu_Operations(c, record);
  for (const Menu& menu : Menu_Tree()) {
    const auto operation = operations.find(menu.array);
    if (operation == operations.end()) continue;  // a command in the bar itself
    for (const Menu_Item& item : menu.items) {
      Connect_Action(c, menu.array, item.index, operation->second);
    }
  }
  for (int i = 1; i <= kRecentFiles; ++i) {
    Connect_Action(c, "mnuRecentFile", i,
                   [&record](int index) { mnuRecentFile_Click(index, record); });
  }
  const int tools = static_cast<int>(c.Toolbar1->actions().size());
  for (int i = 1; i <= tools; ++i) {
    Connect_Action(c, "Toolbar1", i, [&c, &record](int index) { Toolbar_Click(c, record, index); });
  }
  QObject::connect(Action_Of(c, "mnuView")->menu(), &QMenu::aboutToShow, c.window,
                   [&c] { Mark_Toolbar(c); });
  QObject::connect(Action_Of(c, "mnuRun"), &QAction::triggered, c.window,
                   [&c, &record] { SSPanel3_Click(c, record, kRunSimulation); });
}

using Option_Click_Action = void (*)(Main_Controls&, ProjectRecord&, int);
using Option_State = bool (*)(const Main_Controls&, const ProjectRecord&);

bool Always_Held(const Main_Controls&, const ProjectRecord&) { return true; }

/// What a person does to a group of options between two clicks that are answered.
struct Group_State {
  bool switched_on =
      false;  // a click on a set option is told as any other: only this tells them apart
  std::optional<int> left = {};  // the option that gave way
};

/// Binds the options to what their click does. One that is set already does nothing, as long as
/// the record still holds it. Nor does one when a person wants to keep what was typed in a screen
/// that follows the choice: the option before is shown again.
void Connect_Group(Main_Controls& c, ProjectRecord& record,
                   const ControlArray<QRadioButton>& options, unsigned choice,
                   Option_Click_Action click, Option_State is_held = Always_Held) {
  const auto state = std::make_shared<Group_State>();
  for (int i = options.first(); i <= options.last(); ++i) {
    QObject::connect(options(i), &QRadioButton::toggled, c.window, [state, i](bool set) {
      state->switched_on = set;
      if (!set) state->left = i;
    });
    QObject::connect(options(i), &QRadioButton::clicked, c.window,
                     [&c, &record, &options, choice, click, is_held, state, i] {
                       const Group_State before = std::exchange(*state, {});
                       if (!before.switched_on && is_held(c, record)) return;
                       if (!Close_Screens_That_Follow(choice)) {
                         Show_Option(options, before.switched_on ? before.left.value_or(-1) : i);
                         return;
                       }
                       record.DataSaved = kFalse;
                       click(c, record, i);
                     });
  }
}

/// The same for a tick box.
void Connect_Box(Main_Controls& c, ProjectRecord& record, QCheckBox* box, unsigned choice,
                 void (*click)(Main_Controls&, ProjectRecord&, bool)) {
  QObject::connect(box, &QCheckBox::clicked, c.window, [&c, &record, box, choice, click](bool set) {
    if (!Close_Screens_That_Follow(choice)) {
      Show_Box(box, !set);
      return;
    }
    record.DataSaved = kFalse;
    click(c, record, set);
  });
}

void Connect_Options(Main_Controls& c, ProjectRecord& record) {
  // A type of analysis brings its own evaluations.
  Connect_Group(c, record, c.SSOption1, kTypeChoice | kEvaluationChoice, SSOption1_Click,
                Type_Is_Held);
  Connect_Group(c, record, c.SSOption2, kMethodChoice, SSOption2_Click);
  Connect_Group(c, record, c.SSOption3, kSimulationChoice, SSOption3_Click);
  Connect_Group(c, record, c.SSOption4, kEvaluationChoice, SSOption4_Click, Evaluation_Is_Held);
  Connect_Group(c, record, c.Option3D1, kVelocityChoice, Option3D1_Click);
  Connect_Box(c, record, c.Check3D1, kVelocityChoice, Check3D1_Click);
  Connect_Box(c, record, c.SSCheck4, 0, SSCheck4_Click);
}

}  // namespace

void Connect_Main_Events(Main_Controls& c, ProjectRecord& record) {
  new Early_Events(c, record);
  Connect_Menus(c, record);
  QObject::connect(c.Title_Box, &QLineEdit::textChanged, c.window, [&record](const QString& text) {
    record.ProjectTitle = text.toStdString();
    record.DataSaved = kFalse;
  });
  Connect_Options(c, record);
  for (int i = 0; i < kCommandButtons; ++i) {
    QObject::connect(c.SSPanel3(i), &QPushButton::clicked, c.window,
                     [&c, &record, i] { SSPanel3_Click(c, record, i); });
  }
  for (int i = c.SSPanel5.first(); i <= c.SSPanel5.last(); ++i) {
    QObject::connect(c.SSPanel5(i), &QPushButton::clicked, c.window,
                     [&c, &record, i] { SSPanel5_Click(c, record, i); });
  }
  for (int i = c.SSRibbon1.first(); i <= c.SSRibbon1.last(); ++i) {
    c.SSRibbon1(i)->When_Down([&c, &record, i] { SSRibbon1_Click(c, record, i); });
  }
  c.SSRibbon2(kDilutionRibbon)->When_Down([&c, &record] { SSRibbon2_Click(c, record); });
  auto* help_key = new QShortcut(QKeySequence::HelpContents, c.window);
  QObject::connect(help_key, &QShortcut::activated, c.window, [&c, &record] {
    record.HelpContextToShow = Active_Topic(c, record);
    SSPanel3_Click(c, record, kShowHelp);
  });
}

}  // namespace barvon
