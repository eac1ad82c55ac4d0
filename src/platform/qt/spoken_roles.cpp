#include "platform/qt/spoken_roles.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "platform/qt/fields/plain_caption.h"

namespace barvon {
namespace {

constexpr char kRole[] = "spoken_role";

class Spoken_Frame : public QAccessibleWidget {
 public:
  explicit Spoken_Frame(QGroupBox* frame) : QAccessibleWidget(frame, QAccessible::Grouping) {}

  QString text(QAccessible::Text kind) const override {
    const auto* frame = static_cast<QGroupBox*>(object());
    const bool own = kind == QAccessible::Name && frame->accessibleName().isEmpty();
    return own ? Plain_Caption(frame->title()) : QAccessibleWidget::text(kind);
  }
};

/// The keyboard goes to the tabs, not to what they and the pages are in.
class Spoken_Pages : public QAccessibleWidget {
 public:
  explicit Spoken_Pages(QTabWidget* pages) : QAccessibleWidget(pages, QAccessible::Client) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = state.focused = false;
    return state;
  }
};

/// A button that is pressed or a choice that is made as by a click. The toolkit only turns the
/// choice over, which its screen does not hear of.
class Spoken_Button : public QAccessibleWidget {
 public:
  Spoken_Button(QAbstractButton* button, QAccessible::Role role)
      : QAccessibleWidget(button, role),
        action_(role == QAccessible::Button ? pressAction() : toggleAction()) {}

  QString text(QAccessible::Text kind) const override {
    const QString own = Button().accessibleName();
    if (kind == QAccessible::Name) return own.isEmpty() ? Plain_Caption(Button().text()) : own;
    if (kind == QAccessible::Accelerator) {
      return Button().shortcut().toString(QKeySequence::NativeText);
    }
    return QAccessibleWidget::text(kind);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (const auto* push = qobject_cast<QPushButton*>(object())) {
      state.defaultButton = push->isDefault();
    }
    if (role() == QAccessible::Button) return state;
    state.checkable = true;
    state.checked = Button().isChecked();
    return state;
  }
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (Button().isEnabled()) names.prepend(action_);
    return names;
  }
  void doAction(const QString& name) override {
    if (name != action_) return QAccessibleWidget::doAction(name);
    // Later, for it may bring up a window that waits for an answer.
    auto* button = static_cast<QAbstractButton*>(object());
    QMetaObject::invokeMethod(
        button,
        [button] {
          if (!Waits_For_A_Box(button)) button->click();
        },
        Qt::QueuedConnection);
  }

 private:
  const QAbstractButton& Button() const { return *static_cast<QAbstractButton*>(object()); }

  QString action_;
};

QAccessibleInterface* Spoken(const QString&, QObject* object) {
  if (object == nullptr || !object->isWidgetType()) return nullptr;
  if (auto* frame = qobject_cast<QGroupBox*>(object)) {
    return frame->isCheckable() ? nullptr : new Spoken_Frame(frame);
  }
  if (auto* pages = qobject_cast<QTabWidget*>(object)) return new Spoken_Pages(pages);
  if (auto* option = qobject_cast<QRadioButton*>(object)) {
    return new Spoken_Button(option, QAccessible::RadioButton);
  }
  if (auto* push = qobject_cast<QPushButton*>(object)) {
    const bool plain = !push->isCheckable() && push->menu() == nullptr;
    return plain ? new Spoken_Button(push, QAccessible::Button) : nullptr;
  }
  auto* box = qobject_cast<QCheckBox*>(object);
  if (box != nullptr && !box->isTristate()) return new Spoken_Button(box, QAccessible::CheckBox);
  const QVariant told = object->property(kRole);
  if (!told.isValid()) return nullptr;
  const auto role = static_cast<QAccessible::Role>(told.toInt());
  auto* button = qobject_cast<QAbstractButton*>(object);
  if (role == QAccessible::Button && button != nullptr) return new Spoken_Button(button, role);
  return new QAccessibleWidget(static_cast<QWidget*>(object), role);
}

}  // namespace

bool Waits_For_A_Box(const QWidget* control) {
  const QWidget* box = QApplication::activeModalWidget();
  const QWidget* at = control;
  while (at != nullptr && at != box) at = at->parentWidget();
  return box != nullptr && at == nullptr;
}

void Speak_As(QWidget* control, QAccessible::Role role) {
  Mend_Spoken_Controls();
  control->setProperty(kRole, static_cast<int>(role));
}

void Mend_Spoken_Controls() {
  static const bool installed = [] {
    QAccessible::installFactory(Spoken);
    return true;
  }();
  static_cast<void>(installed);
}

}  // namespace barvon
