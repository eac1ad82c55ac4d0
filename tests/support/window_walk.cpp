#include "support/window_walk.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTabBar>
#include <QTableView>
#include <QTableWidget>
#include <QTest>
#include <QToolBar>
#include <QTreeView>
#include <map>
#include <set>

#include "platform/qt/elided_label.h"

namespace barvon::testing {
namespace {

std::string Name_Of(const QWidget* control) {
  QString name = control->objectName();
  const auto* button = qobject_cast<const QAbstractButton*>(control);
  const auto* label = qobject_cast<const QLabel*>(control);
  if (button != nullptr) name += " \"" + button->text() + "\"";
  if (label != nullptr) name += " \"" + label->text().left(40) + "\"";
  return name.toStdString() + " (" + control->metaObject()->className() + ")";
}

bool Is_Elided(const QWidget* control) {
  return dynamic_cast<const Elided_Label*>(control) != nullptr;
}

/// A dialog of the window is a window by itself.
std::vector<QWidget*> Controls_In_View(const QWidget& window) {
  std::vector<QWidget*> controls;
  for (QWidget* control : window.findChildren<QWidget*>()) {
    if (control->window() == &window && control->isVisible()) controls.push_back(control);
  }
  return controls;
}

/// The mark in a field's edge has a text for assistive tools only.
bool Is_Mark_Of_A_Field(const QWidget* control) {
  return qobject_cast<const QLineEdit*>(control->parentWidget()) != nullptr;
}

/// The field inside of a spin or combo box, whose frame is the box's.
bool Is_Part_Of_Another(const QWidget* field) {
  const QWidget* parent = field->parentWidget();
  return qobject_cast<const QAbstractSpinBox*>(parent) || qobject_cast<const QComboBox*>(parent);
}

bool Has_Too_Little_Room(const QWidget* control) {
  if (Is_Mark_Of_A_Field(control)) return false;
  const auto* label = qobject_cast<const QLabel*>(control);
  const auto* button = qobject_cast<const QAbstractButton*>(control);
  if (label != nullptr && label->wordWrap()) {
    return label->height() < label->heightForWidth(label->width()) ||
           label->width() < label->minimumSizeHint().width();
  }
  // A mark inside a field is a picture; what it says is its tool tip.
  if (button != nullptr && qobject_cast<const QLineEdit*>(button->parentWidget())) return false;
  QSize wanted;
  if (label != nullptr) {
    wanted = control->sizeHint();
  } else if (button != nullptr && !button->text().isEmpty()) {
    wanted = control->minimumSizeHint();  // one with a picture may like more
  } else if (qobject_cast<const QGroupBox*>(control) || qobject_cast<const QComboBox*>(control) ||
             (qobject_cast<const QLineEdit*>(control) && !Is_Part_Of_Another(control))) {
    wanted = control->minimumSizeHint();
  }
  return control->width() < wanted.width() || control->height() < wanted.height();
}

/// Whether what a scroll area holds can not be brought into view by scrolling.
bool Is_Out_Of_Reach(const QScrollArea& area) {
  const QSize held = area.widget()->size(), room = area.viewport()->size();
  return (held.width() > room.width() && area.horizontalScrollBar()->maximum() == 0) ||
         (held.height() > room.height() && area.verticalScrollBar()->maximum() == 0);
}

/// Whether all of the control is in view. What is scrolled is to be had by scrolling, in an area
/// that is in view itself.
bool Reaches_Out(const QWidget* control, const QWidget& window) {
  for (const QWidget* at = control; at != &window;) {
    const QWidget* parent = at->parentWidget();
    if (qobject_cast<const QAbstractScrollArea*>(parent) != nullptr) return false;
    const auto* scrolled = qobject_cast<const QScrollArea*>(parent->parentWidget());
    if (scrolled != nullptr && scrolled->widget() == at) {
      if (Is_Out_Of_Reach(*scrolled)) return true;
      control = at = scrolled;
      continue;
    }
    const QRect place(control->mapTo(parent, QPoint(0, 0)), control->size());
    if (!parent->rect().contains(place)) return true;
    at = parent;
  }
  return false;
}

bool Holds_Text(const QWidget* control) {
  return qobject_cast<const QLabel*>(control) || qobject_cast<const QAbstractButton*>(control) ||
         qobject_cast<const QLineEdit*>(control) || qobject_cast<const QTabBar*>(control);
}

bool Hides_Commands(const QWidget* bar) {
  for (const char* extension : {"qt_toolbar_ext_button", "qt_menubar_ext_button"}) {
    const auto* button = bar->findChild<QWidget*>(extension, Qt::FindDirectChildrenOnly);
    if (button != nullptr && button->isVisible()) return true;
  }
  return false;
}

bool Cuts_A_Tab(const QTabBar* tabs) {
  for (int i = 0; i < tabs->count(); ++i) {
    const int text = tabs->fontMetrics().horizontalAdvance(tabs->tabText(i).remove('&'));
    if (tabs->tabRect(i).width() < text || tabs->tabRect(i).right() > tabs->width()) return true;
  }
  return false;
}

bool Cuts_A_Heading(const QHeaderView* header) {
  for (int i = 0; i < header->count(); ++i) {
    if (!header->isSectionHidden(i) && header->sectionSize(i) < header->sectionSizeHint(i)) {
      return true;
    }
  }
  return false;
}

bool Cuts_A_Column(const QTreeView* view) {
  const QAbstractItemView* items = view;
  const int columns = view->model() == nullptr ? 0 : view->model()->columnCount();
  for (int i = 0; i < columns; ++i) {
    if (!view->isColumnHidden(i) && view->columnWidth(i) < items->sizeHintForColumn(i)) return true;
  }
  return false;
}

Complaints Overlaps(const std::vector<QWidget*>& controls, const QWidget& window) {
  Complaints complaints;
  std::vector<const QWidget*> texts;
  for (const QWidget* control : controls) {
    // The buttons that move a row of tabs stand at each other's edge.
    const bool of_tabs = qobject_cast<const QTabBar*>(control->parentWidget()) != nullptr;
    if (Holds_Text(control) && !of_tabs) texts.push_back(control);
  }
  // What is scrolled away lies on nothing.
  const auto place = [&window](const QWidget* control) {
    QRect seen(control->mapTo(&window, QPoint(0, 0)), control->size());
    for (const QWidget* around = control->parentWidget(); around != nullptr && around != &window;
         around = around->parentWidget()) {
      seen &= QRect(around->mapTo(&window, QPoint(0, 0)), around->size());
    }
    return seen;
  };
  for (std::size_t i = 0; i < texts.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      if (texts[i]->isAncestorOf(texts[k]) || texts[k]->isAncestorOf(texts[i])) continue;
      if (!place(texts[i]).intersects(place(texts[k]))) continue;
      complaints.push_back(Name_Of(texts[i]) + " lies on " + Name_Of(texts[k]));
    }
  }
  return complaints;
}

class Claims {
 public:
  void Add(const QKeySequence& key, const std::string& who) {
    if (!key.isEmpty()) claims_[key.toString().toStdString()].insert(who);
  }
  Complaints Clashes() const {
    Complaints complaints;
    for (const auto& [key, who] : claims_) {
      if (who.size() < 2) continue;
      complaints.push_back(key + ":");
      for (const std::string& name : who) complaints.back() += " " + name;
    }
    return complaints;
  }

 private:
  std::map<std::string, std::set<std::string>> claims_;
};

void Add_Letters_Of(const QWidget* control, Claims& claims) {
  const auto letter = [](const QString& text) { return QKeySequence::mnemonic(text); };
  if (const auto* bar = qobject_cast<const QMenuBar*>(control)) {
    // A hidden menu keeps its letter from the others too.
    for (const QAction* menu : bar->actions()) {
      claims.Add(letter(menu->text()), "menu " + menu->text().toStdString());
    }
  } else if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
    claims.Add(button->shortcut(), Name_Of(button));
  } else if (const auto* label = qobject_cast<const QLabel*>(control)) {
    if (label->buddy() != nullptr) claims.Add(letter(label->text()), Name_Of(label));
  } else if (const auto* frame = qobject_cast<const QGroupBox*>(control)) {
    claims.Add(letter(frame->title()), Name_Of(frame));
  } else if (const auto* tabs = qobject_cast<const QTabBar*>(control)) {
    for (int i = 0; i < tabs->count(); ++i) {
      claims.Add(letter(tabs->tabText(i)), "tab " + tabs->tabText(i).toStdString());
    }
  }
}

/// Whether a person works with the control, rather than with a part of it that has no name.
bool Is_Worked_With(const QWidget* control) {
  if (!control->isEnabled() || control->focusProxy() != nullptr) return false;
  const QWidget* parent = control->parentWidget();
  // A clear button is in the field's own keys; the parts of a bar, a box and a table belong to it.
  if (qobject_cast<const QLineEdit*>(parent) || qobject_cast<const QTabBar*>(parent) ||
      qobject_cast<const QAbstractSpinBox*>(parent) || qobject_cast<const QComboBox*>(parent) ||
      qobject_cast<const QAbstractItemView*>(parent) || qobject_cast<const QHeaderView*>(control)) {
    return false;
  }
  // A value that is only shown is read out with its label and passed by.
  const auto* field = qobject_cast<const QLineEdit*>(control);
  if (field != nullptr && field->isReadOnly()) return false;
  return qobject_cast<const QAbstractButton*>(control) || qobject_cast<const QLineEdit*>(control) ||
         qobject_cast<const QComboBox*>(control) ||
         qobject_cast<const QAbstractSpinBox*>(control) || qobject_cast<const QTabBar*>(control) ||
         qobject_cast<const QAbstractItemView*>(control) || control->inherits("QTextEdit") ||
         control->inherits("QPlainTextEdit");
}

bool Group_Is_Reached(const QRadioButton* option, const std::set<const QWidget*>& reached) {
  // A group that is told to be one may be spread over several frames.
  if (option->group() != nullptr) {
    for (const QAbstractButton* other : option->group()->buttons()) {
      if (reached.count(other) != 0) return true;
    }
    return false;
  }
  for (const auto* other : option->parentWidget()->findChildren<QRadioButton*>()) {
    if (other->parentWidget() == option->parentWidget() && reached.count(other) != 0) return true;
  }
  return false;
}

/// Out of a table, whose cells Tab goes through, leads Tab with Ctrl.
void Press_Tab(QWidget* control) {
  // A table that is only read lets Tab go.
  const bool in_a_table = qobject_cast<QTableView*>(control) != nullptr &&
                          qobject_cast<QTableWidget*>(control) == nullptr;
  QTest::keyClick(control, Qt::Key_Tab, in_a_table ? Qt::ControlModifier : Qt::NoModifier);
}

}  // namespace

Complaints Cut_Off_Texts(const QWidget& window) {
  const std::vector<QWidget*> controls = Controls_In_View(window);
  Complaints complaints = Overlaps(controls, window);
  for (const QWidget* control : controls) {
    if (!Is_Elided(control) && Has_Too_Little_Room(control)) {
      complaints.push_back(Name_Of(control) + " is cut off");
    }
    if ((Holds_Text(control) || qobject_cast<const QGroupBox*>(control)) &&
        Reaches_Out(control, window)) {
      complaints.push_back(Name_Of(control) + " reaches out of its place");
    }
    if (Hides_Commands(control)) complaints.push_back(Name_Of(control) + " hides commands");
    const auto* tabs = qobject_cast<const QTabBar*>(control);
    if (tabs != nullptr && Cuts_A_Tab(tabs)) complaints.push_back(Name_Of(control) + " cuts a tab");
    const auto* header = qobject_cast<const QHeaderView*>(control);
    if (header != nullptr && Cuts_A_Heading(header)) {
      complaints.push_back(Name_Of(control) + " cuts a heading");
    }
    const auto* tree = qobject_cast<const QTreeView*>(control);
    if (tree != nullptr && Cuts_A_Column(tree)) {
      complaints.push_back(Name_Of(control) + " cuts a column");
    }
  }
  return complaints;
}

Complaints Shortened_Texts(const QWidget& window) {
  Complaints complaints;
  for (const QWidget* control : Controls_In_View(window)) {
    const auto* line = dynamic_cast<const Elided_Label*>(control);
    if (line != nullptr && line->Is_Cut()) complaints.push_back(Name_Of(control));
  }
  return complaints;
}

Complaints Clashing_Keys(const QWidget& window) {
  Claims claims;
  for (const QWidget* control : Controls_In_View(window)) Add_Letters_Of(control, claims);
  const auto of_window = [&window](const QObject* key) {
    const auto* owner = qobject_cast<const QWidget*>(key->parent());
    return owner != nullptr && owner->window() == &window && owner->isVisible();
  };
  for (const QAction* action : window.findChildren<QAction*>()) {
    if (!of_window(action)) continue;
    for (const QKeySequence& key : action->shortcuts()) {
      claims.Add(key, "action " + action->objectName().toStdString());
    }
  }
  for (const auto* shortcut : window.findChildren<QShortcut*>()) {
    if (!of_window(shortcut) || shortcut->context() != Qt::WindowShortcut) continue;
    claims.Add(shortcut->key(), "key of " + shortcut->parent()->objectName().toStdString());
  }
  return claims.Clashes();
}

Complaints Unreached_Controls(QWidget& window) {
  constexpr int kLongestRound = 500;  // a page of help stops at each of its links
  std::set<const QWidget*> reached;
  window.activateWindow();
  if (!QTest::qWaitForWindowActive(&window)) return {"the window does not become active"};
  Press_Tab(window.focusWidget() ? window.focusWidget() : &window);
  const QWidget* first = window.focusWidget();
  bool left_first = false;
  for (int turn = 0; turn < kLongestRound && window.focusWidget() != nullptr; ++turn) {
    reached.insert(window.focusWidget());
    Press_Tab(window.focusWidget());
    if (window.focusWidget() != first) left_first = true;
    if (window.focusWidget() == first && left_first) break;
  }
  Complaints complaints;
  for (const QWidget* control : Controls_In_View(window)) {
    if (!Is_Worked_With(control) || reached.count(control) != 0) continue;
    const auto* option = qobject_cast<const QRadioButton*>(control);
    if (option != nullptr && Group_Is_Reached(option, reached)) continue;
    complaints.push_back(Name_Of(control));
  }
  return complaints;
}

Complaints Unnamed_Controls(const QWidget& window) {
  Complaints complaints;
  for (QWidget* control : Controls_In_View(window)) {
    const bool takes_focus =
        (control->focusPolicy() & Qt::TabFocus) != 0 && control->focusProxy() == nullptr;
    if (!Is_Worked_With(control) && !takes_focus) continue;
    if (qobject_cast<const QTabBar*>(control) != nullptr) continue;  // its tabs have the names
    const QAccessibleInterface* read_out = QAccessible::queryAccessibleInterface(control);
    if (read_out == nullptr || read_out->text(QAccessible::Name).isEmpty()) {
      complaints.push_back(Name_Of(control));
    }
  }
  return complaints;
}

std::string Listed(const Complaints& complaints) {
  std::string list;
  for (const std::string& complaint : complaints) list += "\n  " + complaint;
  return list;
}

}  // namespace barvon::testing
