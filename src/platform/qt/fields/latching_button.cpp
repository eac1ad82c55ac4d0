#include "platform/qt/fields/latching_button.h"

#include <utility>

#include "platform/qt/spoken_roles.h"

namespace barvon {

Latching_Button::Latching_Button(QWidget* parent) : QToolButton(parent) {
  setCheckable(true);
  Speak_As(this, QAccessible::Button);
  connect(this, &QToolButton::toggled, this, [this](bool down) {
    if (!down) return;
    if (action_) action_();
    setChecked(false);
  });
}

void Latching_Button::When_Down(std::function<void()> action) { action_ = std::move(action); }

}  // namespace barvon
