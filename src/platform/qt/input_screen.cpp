#include "platform/qt/input_screen.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QShowEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>
#include <algorithm>

#include "platform/ask/help_viewer.h"
#include "platform/qt/screen_window.h"
#include "platform/qt/show_dialog.h"
#include "platform/qt/tab_order.h"
#include "platform/qt/table/spreadsheet_view.h"

namespace barvon {
namespace {

constexpr double kPlace = 0.03;          // of the display's width and height
constexpr double kPartOfDisplay = 0.93;  // its place and its frame take the rest

QWidget* Widget_Of(const QWindow* window) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->windowHandle() == window) return widget;
  }
  return nullptr;
}

/// Brings every tab to the front that the control is in.
void Show_Tabs_Of(QWidget* control) {
  for (QWidget* inside = control; inside != nullptr; inside = inside->parentWidget()) {
    for (QWidget* at = inside->parentWidget(); at != nullptr; at = at->parentWidget()) {
      auto* tabs = qobject_cast<QTabWidget*>(at);
      if (tabs != nullptr && tabs->indexOf(inside) >= 0) tabs->setCurrentWidget(inside);
    }
  }
}

/// Tab enters a group of options at the one that is set.
bool Is_Passed_By(const QWidget* control) {
  const auto* option = qobject_cast<const QRadioButton*>(control);
  if (option == nullptr || !option->autoExclusive() || option->isChecked()) return false;
  const auto group =
      option->parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
  return std::any_of(group.begin(), group.end(),
                     [](const QRadioButton* other) { return other->isChecked(); });
}

QWidget* First_Control(QWidget* screen) {
  for (QWidget* at = screen->nextInFocusChain(); at != screen; at = at->nextInFocusChain()) {
    // A row of tabs is reached by Shift+Tab; a person comes to fill in its first page.
    if (qobject_cast<QTabBar*>(at) != nullptr || qobject_cast<QTabWidget*>(at) != nullptr) continue;
    const bool takes_tab = (at->focusPolicy() & Qt::TabFocus) != 0;
    if (takes_tab && !Is_Passed_By(at) && screen->isAncestorOf(at) && at->isVisibleTo(screen) &&
        at->isEnabled()) {
      return at;
    }
  }
  return nullptr;
}

}  // namespace

Input_Screen::Input_Screen(const char* name, QWidget* workspace, const Screen_Setup& setup)
    : QDialog(workspace), setup_(setup) {
  Name_Screen(*this, name);
  connect(qApp, &QGuiApplication::focusWindowChanged, this, &Input_Screen::Window_In_Focus);
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, [this] {
    if (setup_.help) Run_Command(*setup_.help);
  });
}

QHBoxLayout* Input_Screen::Make_Command1(const std::vector<QString>& captions) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  std::vector<QPushButton*> buttons;
  for (const QString& caption : captions) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QStringLiteral("Command1(%1)").arg(buttons.size()));
    row->addWidget(button);
    buttons.push_back(button);
  }
  Take_Commands(buttons);
  return row;
}

void Input_Screen::Take_Commands(const std::vector<QPushButton*>& buttons) {
  commands_ = buttons;
  int index = 0;
  for (QPushButton* button : commands_) {
    connect(button, &QPushButton::clicked, this, [this, index] { Run_Command(index); });
    ++index;
  }
  Command1(setup_.on_return)->setDefault(true);
}

void Input_Screen::Tab_Through(std::vector<QWidget*> order) {
  order.insert(order.end(), commands_.begin(), commands_.end());
  Set_Tab_Order(order);
}

void Input_Screen::Open(bool blocking, const std::string& control) {
  if (isVisible()) {
    Opened_Again();
    Focus(control);
    raise();
    activateWindow();
    return;
  }
  was_elsewhere_ = false;
  FillingForm = true;
  Opening();
  FillingForm = false;
  Controls_Are_Stored();
  Activated();
  Fit_To_Contents();
  Place();
  if (QWidget* first = First_Control(this)) first->setFocus(Qt::OtherFocusReason);
  Focus(control);
  Show_Dialog(*this, blocking);
}

void Input_Screen::Fit_To_Contents() {
  if (layout() == nullptr || isMaximized()) return;
  setMinimumSize(0, 0);
  // What was shown or hidden a moment ago is still to be told to the layouts in between.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  layout()->activate();
  const bool wraps = layout()->hasHeightForWidth();
  QSize size = sizeHint();
  if (wraps) size.setHeight(layout()->totalHeightForWidth(size.width()));
  const QSize room = screen()->availableSize() * kPartOfDisplay;
  resize(size.boundedTo(room).expandedTo(layout()->totalMinimumSize()));
  // A window's own minimum leaves out what labels that wrap need in height.
  if (wraps) setMinimumSize(width(), layout()->totalMinimumHeightForWidth(width()));
}

// Only now do the controls have their final fonts and headings.
void Input_Screen::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;
  Fit_To_Contents();
  // move() places the frame's corner, but a resize of a window in view keeps the corner of what is
  // inside the frame: without this the frame would rise by the height of its title.
  if (windowHandle() != nullptr) windowHandle()->setFramePosition(pos());
}

void Input_Screen::Place() {
  const QRect display = screen()->geometry();
  if (setup_.place) {
    move(display.topLeft() + *setup_.place);
    return;
  }
  if (setup_.placement == Screen_Setup::Placement::Centre) {
    Centre_On_Display(*this);
    return;
  }
  move(display.left() + static_cast<int>(display.width() * kPlace),
       display.top() + static_cast<int>(display.height() * kPlace));
}

void Input_Screen::Focus(const std::string& name) {
  if (name.empty()) return;
  auto* control = findChild<QWidget*>(QString::fromStdString(name));
  if (control == nullptr) return;
  Show_Tabs_Of(control);
  control->setFocus(Qt::OtherFocusReason);
}

void Input_Screen::Window_In_Focus(QWindow* window) {
  if (window == nullptr || !isVisible()) return;
  const QWidget* front = Widget_Of(window);
  if (front == nullptr) return;
  if (front == this) {
    if (was_elsewhere_) Activated();
    was_elsewhere_ = false;
  } else if (Is_Screen(*front)) {
    was_elsewhere_ = true;
  }
}

void Input_Screen::reject() {
  // A button's own action has decided already.
  if (running_command_) {
    QDialog::reject();
  } else {
    Run_Command(setup_.cancel);
  }
}

void Input_Screen::Call_Off() {
  Discarding();
  Run_Command(setup_.cancel);
}

QWidget* Input_Screen::Window_Below(bool blocking, QWidget* workspace) {
  auto* front = dynamic_cast<Input_Screen*>(QApplication::activeWindow());
  return blocking && front != nullptr && front->isVisible() ? front : workspace;
}

bool Input_Screen::Holds_Unsaved_Input() {
  for (F1Book* table : findChildren<F1Book*>()) table->FinishEdit();
  return Controls_Show() != stored_;
}

std::vector<QString> Input_Screen::Controls_Show() const {
  std::vector<QString> shown;
  for (const QWidget* control : findChildren<QWidget*>()) {
    const auto add = [&](const QString& text) {
      shown.push_back(control->objectName() + QLatin1Char('\n') + text);
    };
    if (const auto* table = dynamic_cast<const F1Book*>(control)) {
      const Spreadsheet_Table& cells = table->table();
      QString texts;
      for (int row = 1; row <= cells.MaxRow(); ++row) {
        for (int col = 1; col <= cells.MaxCol(); ++col) {
          texts += QString::fromStdString(cells.EntryRC(row, col)) + QLatin1Char('\n');
        }
      }
      add(texts);
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
      if (button->isCheckable()) add(QString::number(button->isChecked()));
    } else if (const auto* field = qobject_cast<const QLineEdit*>(control)) {
      // One without a reference is a part of something else: the editor of a cell, a find bar.
      if (!field->isReadOnly() && !field->objectName().isEmpty()) add(field->text());
    } else if (const auto* list = qobject_cast<const QComboBox*>(control)) {
      add(list->currentText());
    }
  }
  // The order of the controls is none: a tab that comes to the front goes behind the others in it.
  std::ranges::sort(shown);
  return shown;
}

void Input_Screen::Unload() { done(Rejected); }

void Input_Screen::Run_Command(int index) {
  if (running_command_) return;
  running_command_ = true;
  const QPointer<Input_Screen> alive(this);
  // However the command was given: what is in a cell must be in the table now, not when the
  // screen has been saved or restored and takes the focus away by closing.
  for (F1Book* table : findChildren<F1Book*>()) table->FinishEdit();
  if (index == setup_.help && setup_.topic != 0) {
    Show_Topic(setup_.topic);
  } else {
    Command1_Click(index);
  }
  if (alive) running_command_ = false;
}

}  // namespace barvon
