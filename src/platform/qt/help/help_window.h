#pragma once

#include <QAction>
#include <QSplitter>
#include <QWidget>
#include <memory>

#include "platform/qt/find_bar.h"
#include "platform/qt/help/help_library.h"
#include "platform/qt/help/help_navigation.h"
#include "platform/qt/help/help_page.h"

namespace barvon {

/// The help window: contents, index and search beside the page. It can be used while an input
/// screen blocks the rest of the program.
class Help_Window : public QWidget {
 public:
  explicit Help_Window(std::unique_ptr<Help_Library> library);
  ~Help_Window() override;

  Help_Library& library() { return *library_; }
  Help_Navigation& navigation() { return *navigation_; }
  Help_Page& page() { return *page_; }

  void Show_Topic(int topic);
  void Show_Contents();
  /// Shows the window in front, with the contents page when it has none yet.
  void Come_Forward();
  /// Shows the window, if it is not there, beside the blocking one, which keeps the keyboard. Where
  /// the display is too narrow for both, the blocking window's buttons stay in sight.
  void Come_Beside();

 protected:
  bool event(QEvent* event) override;

 private:
  QAction* Add(const char* name, const QString& text, const QList<QKeySequence>& keys);
  void Build_Actions();
  void Place();
  void Place_Beside(const QRect& window);
  void Print();
  void Follow_Blocking_Window();

  std::unique_ptr<Help_Library> library_;
  QSplitter* halves_;
  Help_Navigation* navigation_;
  Help_Page* page_;
  Find_Bar* find_bar_;
};

}  // namespace barvon
