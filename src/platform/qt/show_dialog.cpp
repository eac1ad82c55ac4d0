#include "platform/qt/show_dialog.h"

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

}  // namespace barvon
