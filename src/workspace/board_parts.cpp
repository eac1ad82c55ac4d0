#include "workspace/board_parts.h"

#include <QIcon>

namespace barvon {
namespace {

constexpr QSize kPicture{24, 24};

}  // namespace

QGroupBox* Frame(QGroupBox* frame, const char* name, const char* caption) {
  frame->setObjectName(QLatin1String(name));
  frame->setTitle(QLatin1String(caption));
  return frame;
}

QVBoxLayout* Lines(QGroupBox* frame, int gap) {
  auto* lines = new QVBoxLayout(frame);
  lines->setContentsMargins(12, gap, 12, gap + 2);
  lines->setSpacing(gap);
  return lines;
}

QLabel* Text(QLabel* label, const char* text) {
  label->setTextFormat(Qt::PlainText);
  label->setText(QLatin1String(text));
  return label;
}

QCheckBox* Shown_State(QCheckBox* box, const char* name, const char* caption) {
  if (*name != '\0') box->setObjectName(QLatin1String(name));
  box->setText(QLatin1String(caption));
  box->setFocusPolicy(Qt::TabFocus);  // to be read out
  QObject::connect(box, &QCheckBox::clicked, box, [box](bool now) { box->setChecked(!now); });
  return box;
}

Latching_Button* Picture_Button(Latching_Button* button, const char* picture, const char* name) {
  button->setIcon(QIcon(QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(picture))));
  button->setIconSize(kPicture);
  button->setToolTip(QLatin1String(name));
  button->setAccessibleName(QLatin1String(name));
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

}  // namespace barvon
