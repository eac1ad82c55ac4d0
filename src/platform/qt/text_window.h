#pragma once

#include <QDialog>
#include <QPlainTextEdit>
#include <string>

namespace barvon {

/// Shows a text file to be read: columns stay aligned, and text can be searched and copied. It
/// deletes itself when it is closed.
class Text_Window : public QDialog {
 public:
  explicit Text_Window(QWidget* parent);

  /// Takes the file's text, in Windows-1252 or UTF-8. False when it can't be read.
  bool Load(const std::string& path);

 private:
  QPlainTextEdit* Text1;
};

}  // namespace barvon
