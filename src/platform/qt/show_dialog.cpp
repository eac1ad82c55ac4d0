#include "platform/qt/show_dialog.h"

#include <QScreen>

namespace barvon {

void Show_Dialog(QDialog& dialog, bool blocking) {
  if (blocking) {
    // A window in view does not begin to block: it comes up anew.
    if (!dialog.isModal()) dialog.hide();
    dialog.exec();
    return;
  }
  dialog.setModal(false);
  dialog.show();
  dialog.raise();
  dialog.activateWindow();
}

void Centre_On_Display(QWidget& window) {
  window.adjustSize();
  const QRect display = window.screen()->geometry();
  window.move(display.left() + (display.width() - window.width()) / 2,
              display.top() + (display.height() - window.height()) / 2);
}

}  // namespace barvon
