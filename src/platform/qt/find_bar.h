#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QString>
#include <QTextDocument>
#include <QWidget>
#include <functional>

namespace barvon {

/// Marks the next place of the text in a QTextEdit or QPlainTextEdit, from the other end again
/// behind the last. False, and the mark stays, when there is none.
template <class Text_Edit>
bool Find_Around(Text_Edit& edit, const QString& text, bool backward = false) {
  const QTextDocument::FindFlags way =
      backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  if (text.isEmpty()) return false;
  if (edit.find(text, way)) return true;
  const QTextCursor before = edit.textCursor();
  edit.moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
  if (edit.find(text, way)) return true;
  edit.setTextCursor(before);
  return false;
}

/// What a find bar says and looks in.
struct Find_Bar_Parts {
  QString name;  // its own is this and "Bar", its field's and "Text", its outcome's and "Outcome"
  QString caption;  // with the letter that leads to the field
  QString not_found;
  std::function<bool(const QString& text, bool backward)> find;
  QString previous = QStringLiteral("Pre&vious");  // with a letter that the window leaves free
};

/// Looks for a text, forth and back; Return in the field goes to the next place.
class Find_Bar : public QWidget {
 public:
  Find_Bar(Find_Bar_Parts parts, QWidget* parent);

  /// Shows the bar with its field marked, ready to be typed over.
  void Open();
  /// Goes to the next place of the text; opens the bar when there is no text yet.
  void Find(bool backward);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Find_Bar_Parts parts_;
  QLineEdit* text_;
  QLabel* outcome_;
};

}  // namespace barvon
