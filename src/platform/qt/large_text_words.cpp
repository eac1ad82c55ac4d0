#include <QAccessibleWidget>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "platform/qt/large_text_view.h"

namespace barvon {
namespace {

/// The text that is in view, to be read and marked.
class Spoken_Text : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit Spoken_Text(Large_Text_View* view)
      : QAccessibleWidget(view, QAccessible::EditableText), view_(*view) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = state.multiLine = state.selectableText = true;
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? view_.Text_In_View() : QAccessibleWidget::text(kind);
  }

  int characterCount() const override { return static_cast<int>(view_.Text_In_View().size()); }
  QString text(int from, int to) const override {
    return view_.Text_In_View().mid(from, to - from);
  }
  int cursorPosition() const override { return view_.Offset_In_View(view_.Place()); }
  void setCursorPosition(int offset) override { view_.Go_To(view_.Place_In_View(offset)); }

  int selectionCount() const override { return view_.Mark() == view_.Place() ? 0 : 1; }
  void selection(int, int* from, int* to) const override {
    const auto [first, last] = std::minmax({view_.Mark(), view_.Place()});
    *from = view_.Offset_In_View(first);
    *to = view_.Offset_In_View(last);
  }
  void addSelection(int from, int to) override { setSelection(0, from, to); }
  void removeSelection(int) override { view_.Go_To(view_.Place()); }
  void setSelection(int, int from, int to) override {
    const std::size_t first = view_.Place_In_View(from), last = view_.Place_In_View(to);
    view_.Go_To(first);
    view_.Go_To(last, true);
  }

  QRect characterRect(int offset) const override {
    const QRect letter = view_.Rect_In_View(offset);
    return {view_.viewport()->mapToGlobal(letter.topLeft()), letter.size()};
  }
  int offsetAtPoint(const QPoint& point) const override {
    return view_.Offset_At(view_.viewport()->mapFromGlobal(point));
  }
  void scrollToSubstring(int from, int) override { view_.Go_To(view_.Place_In_View(from)); }
  QString attributes(int, int* from, int* to) const override {
    *from = 0;
    *to = characterCount();
    return {};
  }

 private:
  Large_Text_View& view_;
};

}  // namespace

QString Large_Text_View::Shown(std::string_view bytes) {
  QString text = QString::fromStdString(Row_Text(bytes));
  if (text.contains(QLatin1Char('\t'))) {
    QString stopped;
    for (const QChar c : std::as_const(text)) {
      if (c == QLatin1Char('\t')) {
        stopped += QString(kTab - stopped.size() % kTab, QLatin1Char(' '));
      } else {
        stopped += c;
      }
    }
    text = stopped;
  }
  for (QChar& c : text) {
    if (c < QLatin1Char(' ')) c = QLatin1Char(' ');
  }
  return text;
}

void Large_Text_View::Speak_In_Words() {
  static const bool installed = [] {
    QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
      auto* view = dynamic_cast<Large_Text_View*>(object);
      return view == nullptr ? nullptr : new Spoken_Text(view);
    });
    return true;
  }();
  static_cast<void>(installed);
}

std::vector<Text_Rows::Row> Large_Text_View::Rows_Shown() const {
  std::vector<Text_Rows::Row> shown;
  const auto first = static_cast<std::size_t>(verticalScrollBar()->value());
  const std::size_t end = std::min(first + static_cast<std::size_t>(Rows_In_View()), rows_.Rows());
  for (std::size_t index = first; index < end; ++index) shown.push_back(rows_.Row_Of(index));
  return shown;
}

QString Large_Text_View::Text_In_View() const {
  QStringList lines;
  for (const Text_Rows::Row& row : Rows_Shown()) lines << Shown(rows_.Bytes(row));
  return lines.join(QLatin1Char('\n'));
}

int Large_Text_View::Offset_In_View(std::size_t place) const {
  qsizetype offset = 0;
  for (const Text_Rows::Row& row : Rows_Shown()) {
    if (place < row.start) break;
    if (place < row.next) {
      return static_cast<int>(offset +
                              Shown(rows_.Bytes(row.start, std::min(place, row.end))).size());
    }
    offset += Shown(rows_.Bytes(row)).size() + 1;
  }
  return static_cast<int>(std::max<qsizetype>(offset - 1, 0));
}

std::size_t Large_Text_View::Place_In_View(int offset) const {
  std::size_t place = caret_;
  qsizetype left = std::max(offset, 0);
  for (const Text_Rows::Row& row : Rows_Shown()) {
    place = row.start;
    while (place < row.end && Shown(rows_.Bytes(row.start, place)).size() < left) {
      place = std::min(rows_.Behind(place), row.end);
    }
    const qsizetype length = Shown(rows_.Bytes(row)).size();
    if (left <= length) return place;
    left -= length + 1;
  }
  return place;
}

QRect Large_Text_View::Rect_In_View(int offset) const {
  const std::size_t place = Place_In_View(offset);
  int top = kMargin;
  for (const Text_Rows::Row& row : Rows_Shown()) {
    if (place <= row.end) {
      const int left = Left_Of(row, place);
      const int width = place < row.end ? Left_Of(row, rows_.Behind(place)) - left
                                        : fontMetrics().averageCharWidth();
      return {kMargin - horizontalScrollBar()->value() + left, top, width, Row_Height()};
    }
    top += Row_Height();
  }
  return {};
}

int Large_Text_View::Offset_At(QPoint point) const { return Offset_In_View(Place_At(point)); }

void Large_Text_View::scrollContentsBy(int dx, int dy) {
  QAbstractScrollArea::scrollContentsBy(dx, dy);
  if (dy != 0) Tell_Reader();
}

void Large_Text_View::Tell_Reader() {
  if (!QAccessible::isActive()) return;
  QString now = Text_In_View();
  if (now != told_) {
    QAccessibleTextUpdateEvent changed(this, 0, std::exchange(told_, now), now);
    QAccessible::updateAccessibility(&changed);
  }
  QAccessibleTextCursorEvent moved(this, Offset_In_View(caret_));
  QAccessible::updateAccessibility(&moved);
}

}  // namespace barvon
