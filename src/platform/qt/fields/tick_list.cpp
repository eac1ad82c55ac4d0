#include "platform/qt/fields/tick_list.h"

#include <cstddef>

namespace barvon {

Tick_List::Tick_List(QWidget* parent) : QListWidget(parent) {
  connect(this, &QListWidget::itemChanged, this, [this](const QListWidgetItem* line) {
    const auto at = static_cast<std::size_t>(row(line));
    const bool on = line->checkState() == Qt::Checked;
    if (at >= ticks_.size() || ticks_[at] == on) return;
    ticks_[at] = on;
    emit Ticked(row(line), on);
  });
}

void Tick_List::Fill(const QStringList& lines) {
  clear();
  ticks_.assign(static_cast<std::size_t>(lines.size()), false);
  for (const QString& text : lines) {
    auto* line = new QListWidgetItem(text);
    if (text.isEmpty()) {
      line->setFlags(line->flags() & ~Qt::ItemIsUserCheckable);
    } else {
      line->setCheckState(Qt::Unchecked);
    }
    addItem(line);
  }
}

bool Tick_List::Is_Ticked(int row) const { return ticks_.at(static_cast<std::size_t>(row)); }

void Tick_List::Tick(int row, bool on) {
  const auto at = static_cast<std::size_t>(row);
  if (item(row)->text().isEmpty()) return;
  ticks_.at(at) = on;
  item(row)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
}

}  // namespace barvon
