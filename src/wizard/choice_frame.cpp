#include "wizard/choice_frame.h"

#include <QMouseEvent>

#include "platform/qt/fields/option_paint.h"

namespace barvon {
namespace {

constexpr QColor kGrey{0xc0, 0xc0, 0xc0};

}  // namespace

Choice_Frame::Choice_Frame(QWidget* parent) : QFrame(parent) {
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setLineWidth(3);
}

void Choice_Frame::Show_Chosen(bool chosen) {
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, chosen ? kBlue : kGrey);
  setPalette(colours);
}

void Choice_Frame::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit Clicked();
}

}  // namespace barvon
