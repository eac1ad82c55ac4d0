#include "platform/qt/table/book_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "platform/ask/message_box.h"
#include "platform/table/decimal_commas.h"

namespace barvon {
namespace {

constexpr std::size_t kCellsShown = 3;

std::string Shown_Cells(const std::vector<std::string>& cells) {
  std::string shown = cells.front();
  for (std::size_t at = 1; at < std::min(cells.size(), kCellsShown); ++at)
    shown += "; " + cells[at];
  return cells.size() > kCellsShown ? shown + "; ..." : shown;
}

}  // namespace

Text_Block Clipboard_Cells(Letters letters) {
  const QString text = QGuiApplication::clipboard()->text();
  if (text.isEmpty()) return {};
  Text_Block cells = Read_Tab_Text(text.toStdString());
  const Encoding_Validator validator(nullptr, letters);
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

bool Agree_On_Commas(Text_Block& cells) {
  const std::vector<std::string> with_comma = Decimal_Comma_Cells(cells);
  if (with_comma.empty()) return true;
  const Answer answer =
      Ask("There are commas in the numbers to be pasted: " + Shown_Cells(with_comma) +
              "\n\nAre they decimal points?  Yes pastes a point for each comma.  No pastes the "
              "numbers as they stand, and each is read up to its comma.",
          Buttons::YesNoCancel, Icon::Question);
  if (answer == Answer::Yes) cells = With_Points(std::move(cells));
  return answer != Answer::Cancel;
}

void Set_Clipboard_Cells(const Text_Block& cells) {
  if (cells.empty()) return;
  QGuiApplication::clipboard()->setText(QString::fromStdString(Write_Tab_Text(cells)));
}

}  // namespace barvon
