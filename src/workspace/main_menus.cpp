#include "workspace/main_menus.h"

#include <QMenuBar>

#include "core/desk/recent_files.h"
#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "workspace/menu_items.h"

namespace barvon {
namespace {

constexpr char kEditItems[] = "mnuEditItem";

QString Indexed(const char* array, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index);
}

QAction* Named(Main_Controls& controls, QAction* action, const QString& name) {
  action->setObjectName(name);
  action->setMenuRole(QAction::NoRole);
  controls.actions.insert(name, action);
  return action;
}

void Add_Item(Main_Controls& controls, QMenu* menu, const char* array, const Menu_Item& item) {
  const bool separator = *item.caption == '\0';
  QAction* action = separator ? menu->addSeparator() : menu->addAction(QLatin1String(item.caption));
  Name_Action(controls, action, array, item.index);
  action->setEnabled(item.enabled);
  action->setVisible(item.visible);
  action->setCheckable(item.has_mark);
  action->setChecked(item.marked);
  action->setStatusTip(QLatin1String(item.hint));
  action->setShortcut(QKeySequence(QLatin1String(item.key)));
}

void Add_Recent_Files(Main_Controls& controls, QMenu* menu) {
  Name_Action(controls, menu->addSeparator(), "mnuRecentFile", 0)->setVisible(false);
  for (int i = 1; i <= kRecentFiles; ++i) {
    QAction* action = menu->addAction(QString::fromStdString(Recent_Caption(i, "")));
    Name_Action(controls, action, "mnuRecentFile", i)->setVisible(false);
  }
}

/// The menu before which the one of that name is; none for the last.
QAction* Next_In_Bar(const Main_Controls& controls, const QString& name) {
  const QList<QAction*> bar = controls.window->menuBar()->actions();
  bool behind = false;
  for (const Menu& entry : Menu_Tree()) {
    QAction* menu = Action_Of(controls, entry.name);
    if (behind && bar.contains(menu)) return menu;
    if (name == QLatin1String(entry.name)) behind = true;
  }
  return nullptr;
}

void Add_Menu(Main_Controls& controls, const Menu& entry) {
  QMenuBar* bar = controls.window->menuBar();
  if (entry.items.empty()) {
    QAction* command = bar->addAction(QLatin1String(entry.caption));
    Named(controls, command, QLatin1String(entry.name))->setEnabled(entry.enabled);
    command->setShortcut(QKeySequence(QLatin1String(entry.key)));
    command->setStatusTip(QLatin1String(entry.hint));
    return;
  }
  QMenu* menu = bar->addMenu(QLatin1String(entry.caption));
  menu->setObjectName(QLatin1String(entry.name));
  QAction* title = Named(controls, menu->menuAction(), QLatin1String(entry.name));
  Show_Menu(controls, entry.name, entry.visible);
  title->setStatusTip(QLatin1String(entry.hint));
  for (const Menu_Item& item : entry.items) Add_Item(controls, menu, entry.array, item);
  if (QLatin1String(entry.name) == QLatin1String("mnuFile")) Add_Recent_Files(controls, menu);
}

}  // namespace

void Build_Menus(Main_Controls& controls) {
  for (const Menu& entry : Menu_Tree()) Add_Menu(controls, entry);
  Show_Tools_Menu(controls);
}

QAction* Name_Action(Main_Controls& controls, QAction* action, const char* array, int index) {
  return Named(controls, action, Indexed(array, index));
}

QAction* Action_Of(const Main_Controls& controls, const char* array, int index) {
  return controls.actions.value(Indexed(array, index));
}

QAction* Action_Of(const Main_Controls& controls, const char* name) {
  return controls.actions.value(QLatin1String(name));
}

void SetMenuAvailability(Main_Controls& controls, Menu_Mode mode) {
  for (const Menu& entry : Menu_Tree()) {
    if (entry.gate != Gate::None) {
      Action_Of(controls, entry.name)->setEnabled(Is_Available(entry.gate, mode));
    }
    for (const Menu_Item& item : entry.items) {
      if (item.gate == Gate::None) continue;
      Action_Of(controls, entry.array, item.index)->setEnabled(Is_Available(item.gate, mode));
    }
  }
  Show_Print_Item(controls);
}

void Show_Print_Item(Main_Controls& controls) {
  // Beside the gate, which it shares with Save, a text that is looked at opens it.
  const bool project = Action_Of(controls, "mnuFileItem", kFileSave)->isEnabled();
  Action_Of(controls, "mnuFileItem", kFilePrint)->setEnabled(project || Port().text.has_document());
}

// An entry can be checked only while it has its mark, so that the menu keeps no room for others.
void Mark_Edit_Item(Main_Controls& controls, int index) {
  QAction* item = Action_Of(controls, kEditItems, index);
  if (item == nullptr || item->isSeparator()) return;
  item->setCheckable(true);
  item->setChecked(true);
}

void Keep_Edit_Mark(Main_Controls& controls, int index) {
  QAction* item = Action_Of(controls, kEditItems, index);
  if (item->isCheckable()) item->setChecked(true);
}

void Clear_Edit_Marks(Main_Controls& controls) {
  for (const Menu& entry : Menu_Tree()) {
    if (QLatin1String(entry.array) != QLatin1String(kEditItems)) continue;
    for (const Menu_Item& item : entry.items) {
      Action_Of(controls, kEditItems, item.index)->setCheckable(false);
    }
  }
}

void Show_Menu(Main_Controls& controls, const char* name, bool shown) {
  QMenuBar* bar = controls.window->menuBar();
  QAction* title = Action_Of(controls, name);
  title->setVisible(shown);
  if (shown) {
    bar->insertAction(Next_In_Bar(controls, name), title);
  } else {
    // In the bar it would keep its letter from everyone else.
    bar->removeAction(title);
  }
  Share_Letters(controls);
}

void Share_Letters(Main_Controls& controls) {
  QList<QKeySequence> taken;
  for (const QAction* menu : controls.window->menuBar()->actions()) {
    taken << QKeySequence::mnemonic(menu->text());
  }
  const auto share = [&taken](const ControlArray<QPushButton>& buttons) {
    for (QPushButton* button : buttons) {
      const QKeySequence letter = QKeySequence::mnemonic(button->text());
      button->setShortcut(taken.contains(letter) ? QKeySequence() : letter);
    }
  };
  share(controls.SSPanel3);
  share(controls.SSPanel5);
}

void Show_Tools_Menu(Main_Controls& controls) {
  bool any = false;
  for (int i = 0; const Screen_Row* screen = Tool_Screen(i); ++i) {
    const bool known = Screen_Stands(*screen);
    Action_Of(controls, "mnuToolItem", i)->setVisible(known);
    any = any || known;
  }
  Show_Menu(controls, "mnuTools", any);
}

void Show_Recent_Menu(Main_Controls& controls) {
  bool any = false;
  for (int i = 1; i <= kRecentFiles; ++i) {
    const std::string& path = Recent_Menu().at(static_cast<std::size_t>(i));
    QAction* action = Action_Of(controls, "mnuRecentFile", i);
    action->setText(QString::fromStdString(Recent_Caption(i, path)));
    action->setVisible(!path.empty());
    any = any || !path.empty();
  }
  Action_Of(controls, "mnuRecentFile", 0)->setVisible(any);
}

}  // namespace barvon
