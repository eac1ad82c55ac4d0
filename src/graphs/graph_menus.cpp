#include "graphs/graph_menus.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <array>
#include <functional>
#include <string>
#include <utility>

#include "graphs/frm_graphs.h"
#include "graphs/graph_exports.h"
#include "graphs/map_exports.h"
#include "graphs/picture_sequence.h"
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

/// Offered while the condition holds: as it stands when something of the window changes.
void Offer_While(frmGraphs& window, const QList<QAction*>& items, std::function<bool()> holds) {
  const auto show = [items, holds = std::move(holds)] {
    for (QAction* item : items) item->setEnabled(holds());
  };
  QObject::connect(&window, &frmGraphs::Things_Changed, &window, show);
  show();
}

/// Offered in an open menu alone by a condition that takes a while to be found out. A key is always
/// heard.
void Offer_In_Menu(QMenu* menu, const QList<QAction*>& items, std::function<bool()> holds) {
  QObject::connect(menu, &QMenu::aboutToShow, menu, [items, holds = std::move(holds)] {
    for (QAction* item : items) item->setEnabled(holds());
  });
  QObject::connect(menu, &QMenu::aboutToHide, menu, [items] {
    for (QAction* item : items) item->setEnabled(true);
  });
}

/// There is a picture of something in front, not of words alone.
bool Has_Content(const frmGraphs& window) {
  const Graph_Page* page = window.Page_In_Front();
  return page != nullptr && page->Has_Content();
}

bool Has_Map(const frmGraphs& window) {
  const Graph_Page* page = window.Page_In_Front();
  return page != nullptr && page->Map_Shown().has_value();
}

bool Has_Sequence(const frmGraphs& window) {
  const Graph_Page* page = window.Page_In_Front();
  return page != nullptr && page->Has_Content() && page->Sequence_Length() > 1;
}

/// A command for the picture in front. What it says comes to the status line.
template <class Command>
std::function<void()> For_Page(frmGraphs& window, Command command) {
  return [&window, command] {
    Graph_Page* page = window.Page_In_Front();
    // Held: an answer in a dialog must not find them gone.
    const Results_Held results = window.shown().own;
    if (page != nullptr) window.Say(command(*page, results));
  };
}

void Build_File_Menu(frmGraphs& window, QMenu* file) {
  frmGraphs* w = &window;
  Add(file, "&Open...", "Ctrl+O", "mnuOpen", [w] { w->Open(); });
  QAction* compare =
      Add(file, "Compare &with...", "Ctrl+Shift+O", "mnuCompare", [w] { w->Compare(); });
  QAction* alone = Add(file, "&No comparison", "", "mnuNoComparison", [w] { w->End_Comparison(); });
  file->addSeparator();
  QAction* picture =
      Add(file, "&Save picture...", "Ctrl+S", "mnuSavePicture", For_Page(window, Save_Picture_As));
  QAction* numbers = Add(file, "Save n&umbers...", "Ctrl+Shift+S", "mnuSaveNumbers",
                         For_Page(window, Save_Numbers_As));
  QAction* sequence =
      Add(file, "Save se&quence...", "", "mnuSaveSequence", For_Page(window, Save_Sequence));
  file->addSeparator();
  QAction* map =
      Add(file, "Save &map for a GIS...", "", "mnuSaveMap", For_Page(window, Save_Map_For_Gis));
  QAction* place = Add(file, "Place of the &grid...", "", "mnuPlace",
                       For_Page(window, [](Graph_Page&, const Results_Held& results) {
                         return Change_Place(results);
                       }));
  file->addSeparator();
  QAction* print = Add(file, "&Print...", "Ctrl+P", "mnuPrint", For_Page(window, Print_Picture));
  file->addSeparator();
  Add(file, "&Close", "Ctrl+W", "mnuClose", [w] { w->close(); });
  Offer_While(window, {compare, place}, [w] { return w->Page_In_Front() != nullptr; });
  Offer_While(window, {picture, numbers, print}, [w] { return Has_Content(*w); });
  Offer_While(window, {alone}, [w] { return w->shown().other != nullptr; });
  Offer_In_Menu(file, {map}, [w] { return Has_Map(*w); });
  Offer_In_Menu(file, {sequence}, [w] { return Has_Sequence(*w); });
}

void Copy(frmGraphs& window) {
  if (Graph_Page* page = window.Page_In_Front()) {
    window.Say(Copy_Picture(*page));
  } else {
    window.notice().Copy();
  }
}

void Build_Edit_Menu(frmGraphs& window, QMenu* edit) {
  frmGraphs* w = &window;
  QAction* copy = Add(edit, "&Copy", "Ctrl+C", "mnuCopy", [w] { Copy(*w); });
  QAction* numbers = Add(
      edit, "Copy &numbers", "Ctrl+Shift+C", "mnuCopyNumbers",
      For_Page(window, [](Graph_Page& page, const Results_Held&) { return Copy_Numbers(page); }));
  Offer_While(window, {numbers}, [w] { return Has_Content(*w); });
  // Of a notice its words are copied.
  Offer_While(window, {copy}, [w] { return w->Page_In_Front() == nullptr || Has_Content(*w); });
  edit->addSeparator();
  const QList<QAction*> in_listing = {
      Add(edit, "&Find in the listing", "Ctrl+F", "mnuFind", [w] { w->notice().Open_Find(); }),
      Add(edit, "Find n&ext", "F3", "mnuFindNext", [w] { w->notice().Find(false); }),
      Add(edit, "Find pre&vious", "Shift+F3", "mnuFindPrevious", [w] { w->notice().Find(true); })};
  Offer_In_Menu(edit, in_listing,
                [w] { return w->Page_In_Front() == nullptr && w->notice().Listing_Is_Shown(); });
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
  Offer_While(window, items, [w] { return w->Page_In_Front() != nullptr; });
  const auto mark = [w, items] { items[w->tabs().currentIndex()]->setChecked(true); };
  QObject::connect(w, &frmGraphs::Things_Changed, w, mark);
  mark();
  view->addSeparator();
  Add(view, "&Larger text", "Ctrl++", "mnuLarger", [w] { w->Change_Text_Size(1); });
  Add(view, "&Smaller text", "Ctrl+-", "mnuSmaller", [w] { w->Change_Text_Size(-1); });
  Add(view, "&Usual text", "Ctrl+0", "mnuUsual", [w] { w->Change_Text_Size(0); });
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
