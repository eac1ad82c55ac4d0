#include "workspace/document_menus.h"

#include <QApplication>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QWindow>
#include <vector>

#include "core/desk/edit_entries.h"
#include "platform/qt/screen_window.h"
#include "workspace/frm_note_pad.h"
#include "workspace/main_menus.h"
#include "workspace/menu_items.h"
#include "workspace/note_pads.h"
#include "workspace/text_documents.h"

namespace barvon {
namespace {

void Put(QWidget& window, const Window_Place& place) {
  if (window.isMaximized()) window.showNormal();
  const QSize frame = window.frameGeometry().size() - window.size();
  window.move(place.left, place.top);
  window.resize(QSize(place.width, place.height) - frame);
}

void Arrange(Main_Controls& controls, Arrangement how) {
  std::vector<frmNotePad*> texts = Open_Texts();
  // An icon is the desktop's.
  std::erase_if(texts, [](const frmNotePad* text) { return text->isMinimized(); });
  const std::vector<Window_Place> places =
      Places_For(how, static_cast<int>(texts.size()), Room_For_Texts(*controls.window));
  for (std::size_t i = 0; i < texts.size(); ++i) {
    Put(*texts[i], places[i]);
    texts[i]->raise();
  }
  if (!texts.empty()) texts.back()->activateWindow();
}

void Choose_Font(const QString& family) {
  for (frmNotePad* text : Open_Texts()) {
    if (text->index() == Documents().Last_In_Front()) text->Set_Font(family);
  }
}

QAction* Font_Item(Main_Controls& controls, QMenu* menu, int index) {
  QAction* item = menu->addAction(QString());
  QObject::connect(item, &QAction::triggered, menu,
                   [item] { Choose_Font(item->data().toString()); });
  return Name_Action(controls, item, "mnuFontName", index);
}

void Fill_Font_Menu(Main_Controls& controls, QMenu* menu) {
  const QStringList families = QFontDatabase::families();
  for (int i = 0; i < families.size(); ++i) {
    QAction* item = i == 0 ? Action_Of(controls, "mnuFontName", 0) : Font_Item(controls, menu, i);
    item->setData(families[i]);
    item->setText(QString(families[i]).replace(QLatin1Char('&'), QStringLiteral("&&")));
  }
}

void Empty_Font_Menu(Main_Controls& controls, QMenu* menu) {
  const QList<QAction*> items = menu->actions();
  for (qsizetype i = 1; i < items.size(); ++i) {
    controls.actions.remove(items[i]->objectName());
    delete items[i];
  }
}

void Show_Document_Menus(Main_Controls& controls, QMenu* fonts) {
  const bool any = Documents().Any_Open();
  if (any != Action_Of(controls, "mnuWindow")->isVisible()) {
    Show_Menu(controls, "mnuWindow", any);
    QAction* font = Action_Of(controls, "mnuEditItem", kEditFont);
    font->setVisible(any);
    font->setEnabled(any);
    any ? Fill_Font_Menu(controls, fonts) : Empty_Font_Menu(controls, fonts);
  }
  Show_Print_Item(controls);
}

/// Notices when a person turns from a text to something else of the program. A menu, a shortcut
/// and a message box are no turn.
class Turns : public QObject {
 public:
  explicit Turns(Main_Controls& controls) : QObject(controls.window), controls_(controls) {
    qApp->installEventFilter(this);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this] {
      const QWidget* front = QApplication::activeWindow();
      const bool text = dynamic_cast<const frmNotePad*>(front) != nullptr;
      if (front != nullptr && front != controls_.window && !text && Is_Screen(*front)) {
        Documents().Leave();
      }
    });
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool key =
        event->type() == QEvent::KeyPress && !static_cast<QKeyEvent*>(event)->text().isEmpty() &&
        (static_cast<QKeyEvent*>(event)->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) ==
            0;
    if ((key || event->type() == QEvent::MouseButtonPress) && watched->isWidgetType()) {
      const auto* widget = static_cast<const QWidget*>(watched);
      const QWidget* boards = controls_.window->centralWidget();
      if (boards != nullptr && boards->isAncestorOf(widget)) Documents().Leave();
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  Main_Controls& controls_;
};

}  // namespace

void Connect_Document_Menus(Main_Controls& controls) {
  Documents().Reset();
  auto* fonts = new QMenu(controls.window);
  fonts->setObjectName(QLatin1String(kFontMenu));
  Action_Of(controls, "mnuEditItem", kEditFont)->setMenu(fonts);
  Font_Item(controls, fonts, 0);
  new Turns(controls);
  Documents().When_Changed([&controls, fonts] { Show_Document_Menus(controls, fonts); });
}

void mnuWItem_Click(Main_Controls& controls, int index) {
  switch (index) {
    case kWindowCascade:
      return Arrange(controls, Arrangement::Cascade);
    case kWindowTileHorizontal:
      return Arrange(controls, Arrangement::Tile_Horizontal);
    case kWindowTileVertical:
      return Arrange(controls, Arrangement::Tile_Vertical);
    case kWindowArrangeIcons:
      // The desktop keeps the icons; this brings back what they stand for.
      for (frmNotePad* text : Open_Texts()) {
        if (text->isMinimized()) text->Come_To_Front();
      }
      return;
    default:
      return;
  }
}

}  // namespace barvon
