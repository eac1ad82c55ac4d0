#include "support/screen_support.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>
#include <QTest>

namespace barvon::testing {

Reply Press(QMessageBox::StandardButton button) {
  return [button](QWidget* window) {
    auto* box = qobject_cast<QMessageBox*>(window);
    ASSERT_NE(box, nullptr);
    ASSERT_NE(box->button(button), nullptr);
    box->button(button)->click();
  };
}

Reply Press_Escape() {
  return [](QWidget* window) { QTest::keyClick(window, Qt::Key_Escape); };
}

Reply Close_Window() {
  return [](QWidget* window) { window->close(); };
}

Modal_Replies::Modal_Replies(std::vector<Reply> replies) : replies_(std::move(replies)) {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
  timer_.start(5);
}

Modal_Replies::~Modal_Replies() {
  EXPECT_EQ(static_cast<int>(replies_.size()), windows) << "windows that came up";
}

void Modal_Replies::Look() {
  QWidget* window = QApplication::activeModalWidget();
  if (window == nullptr || !answered_.insert(window).second) return;
  QObject::connect(window, &QObject::destroyed, &timer_,
                   [this, window] { answered_.erase(window); });
  if (auto* box = qobject_cast<QMessageBox*>(window)) {
    seen.push_back({box->windowTitle(), box->text(), box->icon(), box->textFormat(),
                    box->standardButtons(), box->standardButton(box->defaultButton())});
  }
  const auto turn = static_cast<std::size_t>(windows++);
  if (turn < replies_.size()) {
    // Not from the timer itself: it rests while a reply brings up the next window.
    QTimer::singleShot(0, window, [this, window, turn] { Reply_To(window, turn); });
  } else {
    ADD_FAILURE() << "unexpected window: " << window->windowTitle().toStdString();
    window->close();
  }
}

void Modal_Replies::Reply_To(QPointer<QWidget> window, std::size_t turn) {
  replies_[turn](window);
  // A check that ended the reply has left out what would have closed the window: waiting for that
  // would have no end.
  if (!::testing::Test::HasFatalFailure() || window == nullptr) return;
  if (auto* dialog = qobject_cast<QDialog*>(window)) return dialog->reject();
  window->close();
}

Main_Bench::Main_Bench() {
  main_ = std::make_unique<Main>(folder.path(), [this] { ++ended; });
  main_->show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(main_.get()));
}

Main_Bench::~Main_Bench() = default;

QAction* Main_Bench::Action(const char* name) { return controls().actions.value(name); }

void Type(QWidget* field, const QString& text) {
  for (const QChar character : text) {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(character));
    QApplication::sendEvent(field, &key);
  }
}

void Click(QAbstractButton* button) {
  QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

void Type_Into_Cell(F1Book& book, int row, int column, const QString& text) {
  book.setFocus();
  book.table().SetActiveCell(row, column);
  // The first key brings up the cell's own field, which takes the rest.
  for (const QChar key : text) QTest::keyClick(QApplication::focusWidget(), key.toLatin1());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

bool Has_Keyboard(QWidget* window) {
  return Wait_Until([window] {
    return QGuiApplication::focusWindow() == window->windowHandle() &&
           QApplication::activeWindow() == window;
  });
}

bool Wait_Until(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 10000);
}

}  // namespace barvon::testing
