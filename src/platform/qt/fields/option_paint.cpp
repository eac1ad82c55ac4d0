#include "platform/qt/fields/option_paint.h"

#include <QPalette>
#include <QSignalBlocker>

namespace barvon {

void Paint_Text(QWidget* control, const QColor& colour) {
  QPalette palette = control->palette();
  // A disabled control keeps the palette's grey.
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::WindowText, colour);
    palette.setColor(group, QPalette::Text, colour);
  }
  control->setPalette(palette);
}

void Paint_Options(const ControlArray<QRadioButton>& options) {
  for (QRadioButton* option : options) Paint_Text(option, option->isChecked() ? kBlue : kBlack);
}

void Show_Option(const ControlArray<QRadioButton>& options, int index) {
  for (int i = options.first(); i <= options.last(); ++i) {
    QRadioButton* option = options(i);
    const QSignalBlocker quiet(option);
    // An exclusive option can't be cleared by itself.
    option->setAutoExclusive(false);
    option->setChecked(i == index);
    option->setAutoExclusive(true);
  }
  Paint_Options(options);
}

int Chosen_Option(const ControlArray<QRadioButton>& options) {
  for (int i = options.first(); i <= options.last(); ++i) {
    if (options(i)->isChecked()) return i;
  }
  return options.first() - 1;
}

}  // namespace barvon
