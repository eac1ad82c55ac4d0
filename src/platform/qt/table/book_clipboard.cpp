#include "platform/qt/table/book_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "platform/qt/fields/encoding_validator.h"

namespace barvon {

Text_Block Clipboard_Cells() {
  const QString text = QGuiApplication::clipboard()->text();
  if (text.isEmpty()) return {};
  Text_Block cells = Read_Tab_Text(text.toStdString());
  const Encoding_Validator validator;
  for (auto& row : cells) {
    for (std::string& cell : row) {
      QString fitting = QString::fromStdString(cell);
      int position = 0;
      validator.validate(fitting, position);
      cell = fitting.toStdString();
    }
  }
  return cells;
}

void Set_Clipboard_Cells(const Text_Block& cells) {
  if (cells.empty()) return;
  QGuiApplication::clipboard()->setText(QString::fromStdString(Write_Tab_Text(cells)));
}

}  // namespace barvon
