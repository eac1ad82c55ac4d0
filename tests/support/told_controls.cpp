#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <set>

#include "support/window_walk.h"

namespace barvon::testing {
namespace {

std::string Name_Of(const QWidget* control) {
  return control->objectName().toStdString() + " (" + control->metaObject()->className() + ")";
}

/// What a spin or combo box types in is told with the box, what is shown only with its label.
bool Is_Typed_In(const QLineEdit* field) {
  const QWidget* parent = field->parentWidget();
  return !field->isReadOnly() && field->isEnabled() &&
         qobject_cast<const QAbstractSpinBox*>(parent) == nullptr &&
         qobject_cast<const QComboBox*>(parent) == nullptr;
}

/// The caption of the frame around, which is told with a field.
QString Frame_Around(const QWidget* control) {
  for (const QWidget* at = control->parentWidget(); at != nullptr; at = at->parentWidget()) {
    if (const auto* frame = qobject_cast<const QGroupBox*>(at)) return frame->title();
  }
  return {};
}

}  // namespace

Complaints Misread_Controls(const QWidget& window) {
  Complaints complaints;
  std::set<QString> fields;
  for (QWidget* control : window.findChildren<QWidget*>()) {
    if (control->window() != &window || !control->isVisible()) continue;
    const auto* field = qobject_cast<const QLineEdit*>(control);
    if (field != nullptr && !Is_Typed_In(field)) continue;
    const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(control);
    if (told == nullptr) continue;
    const QString name = told->text(QAccessible::Name);
    if (told->role() == QAccessible::Client && told->state().focusable) {
      complaints.push_back(Name_Of(control) + " has no role");
    }
    const auto* frame = qobject_cast<const QGroupBox*>(control);
    if (frame != nullptr && frame->accessibleName().isEmpty() &&
        name != QString(frame->title()).remove(QLatin1Char('&'))) {
      complaints.push_back(Name_Of(control) + " is told as " + name.toStdString());
    }
    if (field == nullptr) continue;
    if (told->text(QAccessible::Value) != field->displayText()) {
      complaints.push_back(Name_Of(control) + " is told as another text");
    }
    if (!fields.insert(Frame_Around(field) + QLatin1Char('\n') + name).second) {
      complaints.push_back(Name_Of(control) + " is told as another field");
    }
  }
  return complaints;
}

}  // namespace barvon::testing
