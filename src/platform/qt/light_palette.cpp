#include "platform/qt/light_palette.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QToolTip>

namespace barvon {
namespace {

/// Without the pictures that some desktops put on the buttons of a box.
class House_Style : public QProxyStyle {
 public:
  House_Style() : QProxyStyle(QStringLiteral("Fusion")) {}
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, more);
  }
};

}  // namespace

void Apply_Light_Palette(QApplication& application) {
  const QColor window(240, 241, 243), base(Qt::white), text(Qt::black), button(233, 235, 238);
  const QColor highlight(48, 112, 192), faint(120, 124, 130);
  // Built from the button and window colours, so that every shade in between fits too.
  QPalette palette(button, window);
  palette.setColor(QPalette::WindowText, text);
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::AlternateBase, QColor(246, 247, 249));
  palette.setColor(QPalette::Text, text);
  palette.setColor(QPalette::ButtonText, text);
  palette.setColor(QPalette::BrightText, base);
  palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::PlaceholderText, faint);
  palette.setColor(QPalette::Highlight, highlight);
  palette.setColor(QPalette::HighlightedText, base);
  palette.setColor(QPalette::Link, QColor(0, 84, 166));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faint);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(200, 203, 208));
  // What is selected in a table that cannot be used is still to be read.
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, QColor(72, 76, 82));
  // An empty field has no text that could be grey.
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor(226, 228, 232));
  application.setStyle(new House_Style);
  application.setPalette(palette);
  QToolTip::setPalette(palette);
}

}  // namespace barvon
