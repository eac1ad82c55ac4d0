#include "platform/qt/page_stack.h"

namespace barvon {
namespace {

void Enable(QAbstractButton* button, bool enabled) {
  if (button != nullptr) button->setEnabled(enabled);
}

}  // namespace

Page_Stack::Page_Stack(QWidget* parent) : QStackedWidget(parent) {
  connect(this, &QStackedWidget::currentChanged, this, [this] { Show_Buttons(); });
}

void Page_Stack::Set_Buttons(const Step_Buttons& buttons) {
  buttons_ = buttons;
  Show_Buttons();
}

void Page_Stack::Start() { setCurrentIndex(0); }

void Page_Stack::Go_On() {
  if (!Is_At_End()) setCurrentIndex(currentIndex() + 1);
}

void Page_Stack::Go_Back() {
  if (currentIndex() > 0) setCurrentIndex(currentIndex() - 1);
}

void Page_Stack::Set_Complete(bool complete) {
  complete_ = complete;
  Show_Buttons();
}

QString Page_Stack::Step_Text() const {
  return QStringLiteral("Step %1 of  %2").arg(currentIndex() + 1).arg(count());
}

void Page_Stack::Show_Buttons() {
  const bool ends = Is_At_End() && complete_;
  Enable(buttons_.back, currentIndex() > 0);
  Enable(buttons_.next, !ends);
  Enable(buttons_.finished, ends);
}

}  // namespace barvon
