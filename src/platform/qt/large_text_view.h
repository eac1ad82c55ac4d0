#pragma once

#include <QAbstractScrollArea>
#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "platform/files/text_rows.h"

namespace barvon {

/// Shows a text of any size to be read: what is in view is taken from the rows as it is painted.
/// Marking, copying and the keys are those of a text field that is read only.
class Large_Text_View : public QAbstractScrollArea {
 public:
  explicit Large_Text_View(QWidget* parent = nullptr);

  /// The text; who adds to it says so by Rows_Came.
  Text_Rows& rows() { return rows_; }
  void Set_Rows(Text_Rows rows);
  void Rows_Came();

  /// The place of the caret.
  std::size_t Place() const { return caret_; }
  void Go_To(std::size_t place, bool mark = false);
  QString Marked_Text() const;
  /// Marks the next place of the text, from the other end again behind the last. False, and the
  /// mark stays, when there is none.
  bool Find(const QString& text, bool backward);
  void Copy() const;
  void Mark_All();
  /// What is in view, a line a row, as it is told to assistive tools; a text of any size has no
  /// other end. Offsets are into this text, places outside of the view are at its ends.
  QString Text_In_View() const;
  int Offset_In_View(std::size_t place) const;
  std::size_t Place_In_View(int offset) const;
  /// Of the letter at an offset, in the widget.
  QRect Rect_In_View(int offset) const;
  int Offset_At(QPoint point) const;
  /// The other end of the mark; the place of the caret where nothing is marked.
  std::size_t Mark() const { return anchor_; }

  /// Called when the caret has moved.
  void When_Moved(std::function<void()> tell) { tell_ = std::move(tell); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  static constexpr int kMargin = 4, kTab = 8;  // pixels; letters from stop to stop

  /// As it is painted: tabs reach to the next of their stops, what has no shape is a blank.
  static QString Shown(std::string_view bytes);
  int Rows_In_View() const;
  int Row_Height() const;
  void Set_Ranges();
  void Show_Caret();
  void Paint_Row(QPainter& painter, std::size_t index, int top);
  int Left_Of(const Text_Rows::Row& row, std::size_t place) const;
  std::size_t Place_At(QPoint point) const;
  std::vector<Text_Rows::Row> Rows_Shown() const;
  static void Speak_In_Words();
  void Tell_Reader();
  std::size_t Moved_By_Rows(std::ptrdiff_t rows) const;

  Text_Rows rows_;
  std::size_t caret_ = 0, anchor_ = 0;
  int widest_ = 0;  // in pixels, of what has been painted
  std::function<void()> tell_;
  QString told_;  // to assistive tools
};

}  // namespace barvon
