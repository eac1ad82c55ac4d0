#include "platform/qt/show_dialog.h"

namespace barvon {

void Show_Dialog(QDialog& dialog, bool blocking) {
  if (blocking) {
    dialog.exec();
    return;
  }
  dialog.setModal(false);
  dialog.show();
  dialog.raise();
  dialog.activateWindow();
}

}  // namespace barvon
