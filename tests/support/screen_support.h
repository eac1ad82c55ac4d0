#pragma once

#include <QAbstractButton>
#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <functional>
#include <set>
#include <vector>

#include "platform/qt/qt_services.h"
#include "platform/qt/table/spreadsheet_view.h"
#include "support/plain_support.h"
#include "workspace/main_window.h"

namespace barvon::testing {

/// What a message box showed when it came up.
struct Seen_Box {
  QString title, text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  Qt::TextFormat format = Qt::AutoText;
  QMessageBox::StandardButtons buttons;
  QMessageBox::StandardButton default_button = QMessageBox::NoButton;
};

using Reply = std::function<void(QWidget*)>;
Reply Press(QMessageBox::StandardButton button);
Reply Press_Escape();
Reply Close_Window();

/// Answers the modal windows that come up, one reply for each in turn. A window beyond the
/// replies fails the test and is closed.
class Modal_Replies {
 public:
  explicit Modal_Replies(std::vector<Reply> replies);
  ~Modal_Replies();

  std::vector<Seen_Box> seen;
  int windows = 0;

 private:
  void Look();
  void Reply_To(QPointer<QWidget> window, std::size_t turn);

  std::vector<Reply> replies_;
  std::set<QWidget*> answered_;
  QTimer timer_;
};

/// The main window on a scratch folder, with the toolkit behind the faces.
class Main_Bench {
 public:
  Main_Bench();
  ~Main_Bench();

  Main& main() { return *main_; }
  Main_Controls& controls() { return main_->controls(); }
  QAction* Action(const char* name);
  template <class T>
  T* Child(const char* name) {
    return main_->findChild<T*>(QLatin1String(name));
  }

  Scratch_Folder folder;
  int ended = 0;  // how often the process would have ended

 private:
  Qt_Services services_;
  std::unique_ptr<Main> main_;
};

/// Types a text of any alphabet.
void Type(QWidget* field, const QString& text);

/// Clicks where a person does, at a button's left end.
void Click(QAbstractButton* button);

/// Types into a cell of a table and ends with Return.
void Type_Into_Cell(F1Book& book, int row, int column, const QString& text);

/// Waits until the window has the keyboard. That a window is active says less: a dialog's parent is
/// active with it.
bool Has_Keyboard(QWidget* window);

/// Lets events pass until the condition holds; false when it still does not after ten seconds.
bool Wait_Until(const std::function<bool()>& condition);

}  // namespace barvon::testing
