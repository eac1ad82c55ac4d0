#pragma once

#include <QTabWidget>

namespace barvon {

/// Tabs that tell which page is left, since a page is read when the user goes away from it. Pages
/// are enabled one by one with setTabEnabled.
class Tab_Pages : public QTabWidget {
  Q_OBJECT

 public:
  explicit Tab_Pages(QWidget* parent);

  /// Brings a page to the front, an enabled one, while a screen fills itself: no page is told as
  /// left.
  void Start_At(int page);

 signals:
  /// The page that was in front, told when the other one is there: by click, key and
  /// setCurrentIndex, and when the page in front is disabled and gives way to another.
  void Left(int page);

 private:
  int front_ = -1;
};

}  // namespace barvon
