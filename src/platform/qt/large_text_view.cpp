#include "platform/qt/large_text_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cctype>
#include <utility>
#include <vector>

namespace barvon {

Large_Text_View::Large_Text_View(QWidget* parent) : QAbstractScrollArea(parent) {
  Speak_In_Words();
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setCursor(Qt::IBeamCursor);
  viewport()->setBackgroundRole(QPalette::Base);
  viewport()->setAutoFillBackground(true);
}

void Large_Text_View::Set_Rows(Text_Rows rows) {
  rows_ = std::move(rows);
  caret_ = anchor_ = 0;
  widest_ = 0;
  Rows_Came();
}

void Large_Text_View::Rows_Came() {
  Set_Ranges();
  viewport()->update();
  Tell_Reader();
}

int Large_Text_View::Row_Height() const { return std::max(1, fontMetrics().lineSpacing()); }

int Large_Text_View::Rows_In_View() const {
  return std::max(1, (viewport()->height() - 2 * kMargin) / Row_Height());
}

void Large_Text_View::Set_Ranges() {
  const int rows = static_cast<int>(rows_.Rows());
  verticalScrollBar()->setRange(0, std::max(0, rows - Rows_In_View()));
  verticalScrollBar()->setPageStep(Rows_In_View());
  const int letter = fontMetrics().averageCharWidth();
  const int width = std::max(widest_, static_cast<int>(rows_.Longest()) * letter) + 2 * kMargin;
  horizontalScrollBar()->setRange(0, std::max(0, width - viewport()->width()));
  horizontalScrollBar()->setPageStep(viewport()->width());
  horizontalScrollBar()->setSingleStep(letter * kTab);
}

void Large_Text_View::Go_To(std::size_t place, bool mark) {
  caret_ = std::min(place, rows_.Size());
  if (!mark) anchor_ = caret_;
  Show_Caret();
  viewport()->update();
  Tell_Reader();
  if (tell_) tell_();
}

void Large_Text_View::Show_Caret() {
  if (rows_.Rows() == 0) return;
  const std::size_t index = rows_.Row_At(caret_);
  QScrollBar* down = verticalScrollBar();
  const int row = static_cast<int>(index);
  if (row < down->value()) down->setValue(row);
  if (row >= down->value() + Rows_In_View()) down->setValue(row - Rows_In_View() + 1);
  QScrollBar* across = horizontalScrollBar();
  const int left = Left_Of(rows_.Row_Of(index), caret_) + kMargin;
  const int room = viewport()->width() - 2 * kMargin;
  widest_ = std::max(widest_, left);
  Set_Ranges();
  if (left - across->value() < kMargin) across->setValue(left - room / 2);
  if (left - across->value() > room) across->setValue(left - room);
}

QString Large_Text_View::Marked_Text() const {
  const auto [from, to] = std::minmax(caret_, anchor_);
  return QString::fromStdString(Row_Text(rows_.Bytes(from, to)));
}

bool Large_Text_View::Find(const QString& text, bool backward) {
  const std::string wanted = text.toStdString();
  const auto [from, to] = std::minmax(caret_, anchor_);
  auto found = rows_.Find(wanted, backward ? from : to, backward);
  if (!found) found = rows_.Find(wanted, backward ? rows_.Size() + 1 : 0, backward);
  if (!found) return false;
  std::size_t end = *found;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (!text[i].isLowSurrogate()) end = rows_.Behind(end);
  }
  Go_To(*found);
  Go_To(end, true);
  return true;
}

void Large_Text_View::Copy() const {
  if (caret_ != anchor_) QApplication::clipboard()->setText(Marked_Text());
}

void Large_Text_View::Mark_All() {
  anchor_ = 0;
  caret_ = rows_.Size();
  viewport()->update();
  Tell_Reader();
  if (tell_) tell_();
}

int Large_Text_View::Left_Of(const Text_Rows::Row& row, std::size_t place) const {
  const std::size_t end = std::clamp(place, row.start, row.end);
  return fontMetrics().horizontalAdvance(Shown(rows_.Bytes(row.start, end)));
}

void Large_Text_View::Paint_Row(QPainter& painter, std::size_t index, int top) {
  const Text_Rows::Row row = rows_.Row_Of(index);
  const QString text = Shown(rows_.Bytes(row));
  const int left = kMargin - horizontalScrollBar()->value();
  const int baseline = top + fontMetrics().ascent();
  painter.drawText(left, baseline, text);
  widest_ = std::max(widest_, fontMetrics().horizontalAdvance(text) + kMargin);
  const auto [from, to] = std::minmax(caret_, anchor_);
  if (from < to && from < row.next && to > row.start) {
    const int begin = left + Left_Of(row, from);
    // A line end that is marked shows as a letter's width.
    const int end = left + Left_Of(row, to) +
                    (to > row.end && row.next > row.end ? fontMetrics().averageCharWidth() : 0);
    const QRect marked(begin, top, end - begin, Row_Height());
    painter.save();
    painter.setClipRect(marked);
    painter.fillRect(marked, palette().highlight());
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawText(left, baseline, text);
    painter.restore();
  }
  if (hasFocus() && rows_.Row_At(caret_) == index) {
    painter.fillRect(left + Left_Of(row, caret_), top, 1, Row_Height(), palette().text());
  }
}

void Large_Text_View::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  const auto first = static_cast<std::size_t>(verticalScrollBar()->value());
  const int before = widest_;
  for (int i = 0; i <= Rows_In_View() + 1 && first + static_cast<std::size_t>(i) < rows_.Rows();
       ++i) {
    Paint_Row(painter, first + static_cast<std::size_t>(i), kMargin + i * Row_Height());
  }
  if (widest_ > before) Set_Ranges();
}

void Large_Text_View::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  Set_Ranges();
}

void Large_Text_View::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  widest_ = 0;
  Rows_Came();
}

std::size_t Large_Text_View::Place_At(QPoint point) const {
  if (rows_.Rows() == 0) return 0;
  const int in_view = point.y() < kMargin ? -1 : (point.y() - kMargin) / Row_Height();
  const auto index = static_cast<std::size_t>(
      std::clamp(verticalScrollBar()->value() + in_view, 0, static_cast<int>(rows_.Rows()) - 1));
  const Text_Rows::Row row = rows_.Row_Of(index);
  const int x = point.x() - kMargin + horizontalScrollBar()->value();
  std::vector<std::size_t> places = {row.start};
  while (places.back() < row.end) places.push_back(std::min(rows_.Behind(places.back()), row.end));
  // The one behind which less than half a letter is left of the point.
  const int half = fontMetrics().averageCharWidth() / 2;
  const auto right_of = std::ranges::upper_bound(
      places, x + half, {}, [&](std::size_t place) { return Left_Of(row, place); });
  return right_of == places.begin() ? row.start : *(right_of - 1);
}

std::size_t Large_Text_View::Moved_By_Rows(std::ptrdiff_t by) const {
  if (rows_.Rows() == 0) return 0;
  const std::size_t index = rows_.Row_At(caret_);
  const auto last = static_cast<std::ptrdiff_t>(rows_.Rows()) - 1;
  const auto to = static_cast<std::size_t>(
      std::clamp<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(index) + by, 0, last));
  const Text_Rows::Row from_row = rows_.Row_Of(index);
  const Text_Rows::Row row = rows_.Row_Of(to);
  const qsizetype column =
      QString::fromStdString(
          Row_Text(rows_.Bytes(from_row.start, std::max(caret_, from_row.start))))
          .size();
  std::size_t place = row.start;
  for (qsizetype i = 0; i < column && place < row.end; ++i) place = rows_.Behind(place);
  return place;
}

void Large_Text_View::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return Copy();
  if (event->matches(QKeySequence::SelectAll)) return Mark_All();
  const bool mark = (event->modifiers() & Qt::ShiftModifier) != 0;
  const bool whole = (event->modifiers() & Qt::ControlModifier) != 0;
  const std::size_t rows = rows_.Rows();
  if (rows == 0) return QAbstractScrollArea::keyPressEvent(event);
  switch (event->key()) {
    case Qt::Key_Left:
      return Go_To(rows_.Before(caret_), mark);
    case Qt::Key_Right:
      return Go_To(rows_.Behind(caret_), mark);
    case Qt::Key_Up:
      return Go_To(Moved_By_Rows(-1), mark);
    case Qt::Key_Down:
      return Go_To(Moved_By_Rows(1), mark);
    case Qt::Key_PageUp:
      verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
      return Go_To(Moved_By_Rows(-Rows_In_View()), mark);
    case Qt::Key_PageDown:
      verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
      return Go_To(Moved_By_Rows(Rows_In_View()), mark);
    case Qt::Key_Home:
      return Go_To(whole ? rows_.Row_Of(0).start : rows_.Row_Of(rows_.Row_At(caret_)).start, mark);
    case Qt::Key_End:
      return Go_To(whole ? rows_.Size() : rows_.Row_Of(rows_.Row_At(caret_)).end, mark);
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

void Large_Text_View::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  Go_To(Place_At(event->position().toPoint()), (event->modifiers() & Qt::ShiftModifier) != 0);
}

void Large_Text_View::mouseMoveEvent(QMouseEvent* event) {
  if ((event->buttons() & Qt::LeftButton) != 0) Go_To(Place_At(event->position().toPoint()), true);
}

void Large_Text_View::mouseDoubleClickEvent(QMouseEvent* event) {
  if (rows_.Rows() == 0) return;
  const std::size_t place = Place_At(event->position().toPoint());
  const Text_Rows::Row row = rows_.Row_Of(rows_.Row_At(place));
  const auto is_word = [this](std::size_t at) {
    const auto c = static_cast<unsigned char>(rows_.Bytes(at, at + 1).front());
    return c >= 0x80 || c == '_' || c == '.' || std::isalnum(c) != 0;
  };
  std::size_t from = place;
  std::size_t to = place;
  while (from > row.start && is_word(from - 1)) --from;
  while (to < row.end && is_word(to)) ++to;
  Go_To(from);
  Go_To(to, true);
}

void Large_Text_View::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  QAction* copy = menu.addAction(QStringLiteral("&Copy"), this, [this] { Copy(); });
  copy->setEnabled(caret_ != anchor_);
  menu.addAction(QStringLiteral("Select &All"), this, [this] { Mark_All(); });
  menu.exec(event->globalPos());
}

void Large_Text_View::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}

void Large_Text_View::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

}  // namespace barvon
