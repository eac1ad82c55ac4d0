#include "graphs/graph_menus.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <functional>
#include <utility>

#include "graphs/frm_graphs.h"
#include "platform/ask/help_viewer.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

constexpr std::array<const char*, kGraphViews> kViewCaptions{
    "&Overview", "&Max Conc. vs Time", "&Concentration Contours", "&Deposition Thickness"};

QAction* Add(QMenu* menu, const char* caption, const char* key, const char* name,
             std::function<void()> action) {
  QAction* item = menu->addAction(QLatin1String(caption));
  item->setObjectName(QLatin1String(name));
  item->setShortcut(QKeySequence(QLatin1String(key)));
  QObject::connect(item, &QAction::triggered, menu, [action = std::move(action)] { action(); });
  return item;
}

/// Offered while there are pictures.
void Needs_Pictures(frmGraphs& window, const QList<QAction*>& items) {
  const auto show = [&window, items] {
    for (QAction* item : items) item->setEnabled(window.Page_In_Front() != nullptr);
  };
  QObject::connect(&window, &frmGraphs::Things_Changed, &window, show);
  show();
}

void Build_File_Menu(frmGraphs& window, QMenu* file) {
  frmGraphs* w = &window;
  Add(file, "&Open...", "Ctrl+O", "mnuOpen", [w] { w->Open(); });
  QAction* compare =
      Add(file, "Compare &with...", "Ctrl+Shift+O", "mnuCompare", [w] { w->Compare(); });
  QAction* alone = Add(file, "&No comparison", "", "mnuNoComparison", [w] { w->End_Comparison(); });
  file->addSeparator();
  Add(file, "&Close", "Ctrl+W", "mnuClose", [w] { w->close(); });
  Needs_Pictures(window, {compare});
  const auto show = [w, alone] { alone->setEnabled(w->shown().other != nullptr); };
  QObject::connect(w, &frmGraphs::Things_Changed, w, show);
  show();
}

void Build_Edit_Menu(frmGraphs& window, QMenu* edit) {
  frmGraphs* w = &window;
  QAction* find =
      Add(edit, "&Find in the listing", "Ctrl+F", "mnuFind", [w] { w->notice().Find(false); });
  QAction* next = Add(edit, "Find &Next", "F3", "mnuFindNext", [w] { w->notice().Find(false); });
  QAction* previous =
      Add(edit, "Find Pre&vious", "Shift+F3", "mnuFindPrevious", [w] { w->notice().Find(true); });
  QObject::connect(edit, &QMenu::aboutToShow, w, [=] {
    const bool shown = w->Page_In_Front() == nullptr && w->notice().Listing_Is_Shown();
    for (QAction* item : {find, next, previous}) item->setEnabled(shown);
  });
  QObject::connect(edit, &QMenu::aboutToHide, w, [=] {
    for (QAction* item : {find, next, previous}) item->setEnabled(true);
  });
}

void Build_View_Menu(frmGraphs& window, QMenu* view) {
  frmGraphs* w = &window;
  auto* group = new QActionGroup(view);
  QList<QAction*> items;
  for (int i = 0; i < kGraphViews; ++i) {
    const auto number = std::to_string(i + 1);
    QAction* item =
        Add(view, kViewCaptions[static_cast<std::size_t>(i)], ("Ctrl+" + number).c_str(),
            ("mnuGraph(" + std::to_string(i) + ")").c_str(), [w, i] { w->Show_View(i); });
    item->setCheckable(true);
    group->addAction(item);
    items << item;
  }
  Needs_Pictures(window, items);
  const auto mark = [w, items] { items[w->tabs().currentIndex()]->setChecked(true); };
  QObject::connect(w, &frmGraphs::Things_Changed, w, mark);
  mark();
  view->addSeparator();
  Add(view, "&Larger Text", "Ctrl++", "mnuLarger", [w] { w->Change_Text_Size(1); });
  Add(view, "&Smaller Text", "Ctrl+-", "mnuSmaller", [w] { w->Change_Text_Size(-1); });
  Add(view, "&Usual Text", "Ctrl+0", "mnuUsual", [w] { w->Change_Text_Size(0); });
}

void Build_Help_Menu(QMenu* help) {
  Add(help, "&Graphics", "F1", "mnuHelpGraphics", [] { Show_Topic(kGraphicsTopic); });
  Add(help, "&About", "", "mnuAbout", [] {
    Show_Information(
        "Pictures of what a run of the companion solver has left.\n"
        "It is a model of its own from general fluid dynamics, not a validated code for permits.",
        "BARVON Graphics " BARVON_VERSION);
  });
}

}  // namespace

void Build_Graph_Menus(frmGraphs& window) {
  QMenuBar* bar = window.menuBar();
  Build_File_Menu(window, bar->addMenu(QStringLiteral("&File")));
  Build_Edit_Menu(window, bar->addMenu(QStringLiteral("&Edit")));
  Build_View_Menu(window, bar->addMenu(QStringLiteral("&View")));
  Build_Help_Menu(bar->addMenu(QStringLiteral("&Help")));
}

}  // namespace barvon
