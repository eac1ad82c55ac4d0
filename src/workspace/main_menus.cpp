#include "workspace/main_menus.h"

#include <QMenuBar>
#include <algorithm>
#include <iterator>

#include "core/recent_files.h"
#include "core/screen_register.h"

namespace barvon {
namespace {

constexpr char kEditItems[] = "mnuEditItem";

struct Tool {
  int index;
  const char* tip;
  const char* picture;  // our own; none: a separator
  const char* themed;   // the desktop's
};

/// Indices count the separators.
constexpr Tool kTools[] = {
    {1, "Create New Project", "new", "document-new"},
    {2, "Open Existing Project", "open", "document-open"},
    {3, "Save Current Project", "save", "document-save"},
    {4, "", nullptr, nullptr},
    {5, "Print Results", "print", "document-print"},
    {6, "Run Simulation", "run", "media-playback-start"},
    {7, "", nullptr, nullptr},
    {8, "Generate Graphics", "graphics", "x-office-drawing"},
    {9, "Check for Errors", "check", "tools-check-spelling"},
    {10, "", nullptr, nullptr},
    {11, "BARVON Help", "help", "help-contents"},
};

/// The pictures are of one set: the desktop's when it has all of them, otherwise our own.
bool Theme_Has_All_Pictures() {
  return std::all_of(std::begin(kTools), std::end(kTools), [](const Tool& tool) {
    return tool.themed == nullptr || QIcon::hasThemeIcon(QLatin1String(tool.themed));
  });
}

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
  Named(controls, action, Indexed(array, item.index));
  action->setEnabled(item.enabled);
  action->setVisible(item.visible);
  action->setCheckable(item.has_mark);
  action->setChecked(item.marked);
  action->setStatusTip(QLatin1String(item.hint));
}

void Add_Recent_Files(Main_Controls& controls, QMenu* menu) {
  Named(controls, menu->addSeparator(), Indexed("mnuRecentFile", 0))->setVisible(false);
  for (int i = 1; i <= kRecentFiles; ++i) {
    QAction* action = menu->addAction(QString::fromStdString(Recent_Caption(i, "")));
    Named(controls, action, Indexed("mnuRecentFile", i))->setVisible(false);
  }
}

/// The menu before which the one of that name stands; none for the last.
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

void Build_Toolbar(Main_Controls& controls) {
  QToolBar* bar = controls.Toolbar1;
  bar->setObjectName(QStringLiteral("Toolbar1"));
  bar->setWindowTitle(QStringLiteral("Toolbar"));
  bar->setAccessibleName(QStringLiteral("Toolbar"));
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setIconSize(QSize(22, 22));
  const bool themed = Theme_Has_All_Pictures();
  for (const Tool& tool : kTools) {
    const bool separator = tool.picture == nullptr;
    QAction* action = separator ? bar->addSeparator() : bar->addAction(QLatin1String(tool.tip));
    if (!separator) {
      action->setIcon(
          themed ? QIcon::fromTheme(QLatin1String(tool.themed))
                 : QIcon(QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(tool.picture))));
    }
    Named(controls, action, Indexed("Toolbar1", tool.index));
  }
  controls.window->addToolBar(bar);
  controls.window->setContextMenuPolicy(Qt::NoContextMenu);
}

}  // namespace

void Build_Menus(Main_Controls& controls) {
  for (const Menu& entry : Menu_Tree()) Add_Menu(controls, entry);
  Build_Toolbar(controls);
  Show_Tools_Menu(controls);
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
  for (int i = 0; const char* screen = Tool_Screen(i); ++i) {
    const bool stands = Screen_Stands(screen);
    Action_Of(controls, "mnuToolItem", i)->setVisible(stands);
    any = any || stands;
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
