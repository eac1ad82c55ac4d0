#pragma once

#include <QTextBrowser>

namespace barvon {

class Help_Library;

/// Shows a page of the help file. Pages come from the library only; nothing is fetched.
class Help_Page : public QTextBrowser {
 public:
  Help_Page(Help_Library& library, QWidget* parent);

  QVariant loadResource(int type, const QUrl& name) override;

  void Zoom(int steps);
  void Zoom_Back();
  int zoom() const { return zoom_; }

 private:
  Help_Library& library_;
  int zoom_ = 0;  // steps away from the size of the desktop's font
};

}  // namespace barvon
