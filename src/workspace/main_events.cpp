#include "workspace/main_events.h"

#include <QEvent>
#include <QShortcut>
#include <functional>

#include "core/desk/settings_keys.h"
#include "platform/ask/help_viewer.h"
#include "platform/ask/message_box.h"
#include "platform/files/profile_settings.h"
#include "platform/qt/fields/option_paint.h"
#include "run/run_driver.h"
#include "run/view_results.h"
#include "workspace/display_data.h"
#include "workspace/edit_menu.h"
#include "workspace/file_menu.h"
#include "workspace/main_boards.h"
#include "workspace/main_help.h"
#include "workspace/main_menus.h"
#include "workspace/option_events.h"
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
    controls_.SSPanel3(6)->installEventFilter(this);
    controls_.SSPanel3(6)->setMouseTracking(true);
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
    case 0:
      Show_Data_Board(controls);
      Set_Data_Items(controls, record);
      break;
    case 1:
      Run_Model(record);
      break;
    case 2:
      View_Graphics(record);
      break;
    case 4:
      Show_Main_Board(controls);
      break;
    case 5:
      mnuFileItem_Click(kFileExit, record);
      break;
    case 6:
      if (record.HelpContextToShow == 0) {
        Show_Help({Help_Command::Index, 0, ""});
      } else {
        Show_Help({Help_Command::Context, record.HelpContextToShow, ""});
      }
      break;
    case 7:
      View_Output_Command(record);
      break;
    case 8:
      mnuFileItem_Click(kFileSave, record);
      break;
    case 9:
      Show_Blocking_Screen("Data_Wiz");
      Display_Data(controls, record);
      break;
    default:  // 3, "Update Database", does nothing.
      break;
  }
}

void Edit_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Keep_Edit_Mark(controls, index);
  if (index == 3 && Check_Eval(record)) {
    SSPanel3_Click(controls, record, 0);
    SSPanel5_Click(controls, record, 1);
  }
  mnuEditItem_Click(index, record);
}

void Mark_Toolbar(Main_Controls& controls) {
  Action_Of(controls, "mnuViewItem", 3)->setChecked(!controls.Toolbar1->isHidden());
}

void View_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  QAction* item = Action_Of(controls, "mnuViewItem", index);
  switch (index) {
    case 1:
      View_Output_Command(record);
      break;
    case 3:
      controls.Toolbar1->setVisible(controls.Toolbar1->isHidden());
      Mark_Toolbar(controls);
      break;
    case 4:  // The mark stays: the status bar is always in view.
      item->setChecked(true);
      break;
    case 6:
      record.ShowMode = item->isChecked() ? 0 : 1;
      break;
    default:
      break;
  }
}

void Option_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  const bool marked = Action_Of(controls, "mnuOptionItem", index)->isChecked();
  if (index == 0) {
    record.WizardHelpOn = marked ? kTrue : kFalse;
    Write_Profile_String(Settings_Path(), kHelpStatusSection, kHelpOnKey,
                         marked ? "On  " : "Off  ");
  } else {
    record.AlwaysSaveBeforeRun = marked ? kTrue : kFalse;
  }
}

void Tool_Click(int index) {
  if (const char* screen = Tool_Screen(index)) Show_Blocking_Screen(screen);
}

void Help_Click(int index) {
  if (index == 0) Show_Help({Help_Command::Finder, 0, ""});
  if (index == 1) Show_Help({Help_Command::PartialKey, 0, ""});
  if (index == 3) Show_Blocking_Screen("frmAbout");
}

void Toolbar_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  switch (index) {
    case 1:
      return mnuFileItem_Click(kFileNew, record);
    case 2:
      return mnuFileItem_Click(kFileOpen, record);
    case 3:
      return mnuFileItem_Click(kFileSave, record);
    case 5:
      return mnuFileItem_Click(kFilePrint, record);
    case 6:
      return SSPanel3_Click(controls, record, 1);
    case 8:
      return Graph_Command(record, 0);
    case 9:
      return Edit_Click(controls, record, 8);
    case 11:
      return Help_Click(0);
    default:
      return;
  }
}

/// Binds every action of an array to one operation that takes the index.
void Connect_Array(Main_Controls& controls, const char* array,
                   const std::function<void(int)>& operation) {
  for (int index = 0; index <= 11; ++index) {
    QAction* action = Action_Of(controls, array, index);
    if (action == nullptr || action->isSeparator()) continue;
    QObject::connect(action, &QAction::triggered, controls.window,
                     [operation, index] { operation(index); });
  }
}

void Connect_Menus(Main_Controls& c, ProjectRecord& record) {
  Connect_Array(c, "mnuFileItem", [&record](int i) { mnuFileItem_Click(i, record); });
  Connect_Array(c, "mnuRecentFile", [&record](int i) { mnuRecentFile_Click(i, record); });
  Connect_Array(c, "mnuEditItem", [&c, &record](int i) { Edit_Click(c, record, i); });
  Connect_Array(c, "mnuViewItem", [&c, &record](int i) { View_Click(c, record, i); });
  Connect_Array(c, "mnuGraph", [&record](int index) { Graph_Command(record, index); });
  Connect_Array(c, "mnuOptionItem", [&c, &record](int i) { Option_Click(c, record, i); });
  Connect_Array(c, "mnuToolItem", Tool_Click);
  Connect_Array(c, "mnuHelpItem", Help_Click);
  QObject::connect(Action_Of(c, "mnuView")->menu(), &QMenu::aboutToShow, c.window,
                   [&c] { Mark_Toolbar(c); });
  Connect_Array(c, "Toolbar1", [&c, &record](int i) { Toolbar_Click(c, record, i); });
  QObject::connect(Action_Of(c, "mnuRun"), &QAction::triggered, c.window,
                   [&c, &record] { SSPanel3_Click(c, record, 1); });
}

using Option_Click_Action = void (*)(Main_Controls&, ProjectRecord&, int);

void Connect_Group(Main_Controls& c, ProjectRecord& record,
                   const ControlArray<QRadioButton>& options, Option_Click_Action click) {
  for (int i = options.first(); i <= options.last(); ++i) {
    QObject::connect(options(i), &QRadioButton::clicked, c.window,
                     [&c, &record, click, i] { click(c, record, i); });
  }
}

void Connect_Options(Main_Controls& c, ProjectRecord& record) {
  Connect_Group(c, record, c.SSOption1, SSOption1_Click);
  Connect_Group(c, record, c.SSOption2, SSOption2_Click);
  Connect_Group(c, record, c.SSOption3, SSOption3_Click);
  Connect_Group(c, record, c.SSOption4, SSOption4_Click);
  Connect_Group(c, record, c.Option3D1, Option3D1_Click);
  QObject::connect(c.Check3D1, &QCheckBox::clicked, c.window,
                   [&c, &record](bool set) { Check3D1_Click(c, record, set); });
  QObject::connect(c.SSCheck4, &QCheckBox::clicked, c.window,
                   [&c, &record](bool set) { SSCheck4_Click(c, record, set); });
}

}  // namespace

void Connect_Main_Events(Main_Controls& c, ProjectRecord& record) {
  new Early_Events(c, record);
  Connect_Menus(c, record);
  QObject::connect(c.Title_Box, &QLineEdit::textChanged, c.window,
                   [&record](const QString& text) { record.ProjectTitle = text.toStdString(); });
  Connect_Options(c, record);
  for (int i = 0; i < 10; ++i) {
    QObject::connect(c.SSPanel3(i), &QPushButton::clicked, c.window,
                     [&c, &record, i] { SSPanel3_Click(c, record, i); });
  }
  for (int i = 0; i < 3; ++i) {
    QObject::connect(c.SSPanel5(i), &QPushButton::clicked, c.window,
                     [&c, &record, i] { SSPanel5_Click(c, record, i); });
  }
  for (int i = 0; i < 6; ++i) {
    c.SSRibbon1(i)->When_Down([&record, i] { SSRibbon1_Click(record, i); });
  }
  c.SSRibbon2(3)->When_Down([&c, &record] { SSRibbon2_Click(c, record); });
  auto* help_key = new QShortcut(QKeySequence::HelpContents, c.window);
  QObject::connect(help_key, &QShortcut::activated, c.window, [&c, &record] {
    record.HelpContextToShow = Active_Topic(c, record);
    SSPanel3_Click(c, record, 6);
  });
}

}  // namespace barvon
