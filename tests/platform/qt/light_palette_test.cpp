#include <gtest/gtest.h>

#include <QApplication>
#include <cmath>

#include "platform/qt/fields/option_paint.h"
#include "platform/qt/light_palette.h"

namespace barvon {
namespace {

/// Contrast by the formula of the Web Content Accessibility Guidelines, 1 to 21.
double Contrast(const QColor& a, const QColor& b) {
  const auto channel = [](double c) {
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  const auto light = [&](const QColor& c) {
    return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
  };
  const double la = light(a), lb = light(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

TEST(LightPalette, Blue_And_Black_Are_Readable_Even_After_A_Dark_Desktop_Palette) {
  const QPalette former = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(20, 20, 20), QColor(10, 10, 10)));
  Apply_Light_Palette(*qApp);
  const QPalette palette = QApplication::palette();
  for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::Button}) {
    EXPECT_GE(Contrast(kBlue, palette.color(ground)), 4.5);
    EXPECT_GE(Contrast(kBlack, palette.color(ground)), 7);
  }
  EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)),
            4.5);
  EXPECT_EQ(former.color(QPalette::Window), palette.color(QPalette::Window));
}

TEST(LightPalette, A_Disabled_Field_Differs_From_An_Enabled_One_And_Stays_Readable) {
  const QPalette palette = QApplication::palette();
  const QColor ground = palette.color(QPalette::Disabled, QPalette::Base);
  EXPECT_GE(Contrast(ground, palette.color(QPalette::Active, QPalette::Base)), 1.2);
  for (const auto role : {QPalette::Text, QPalette::WindowText}) {
    EXPECT_GE(Contrast(palette.color(QPalette::Disabled, role), ground), 3);
    EXPECT_GE(Contrast(palette.color(QPalette::Disabled, role), kBlack), 4.5);
  }
  EXPECT_GE(Contrast(palette.color(QPalette::Disabled, QPalette::HighlightedText),
                     palette.color(QPalette::Disabled, QPalette::Highlight)),
            4.5);
}

}  // namespace
}  // namespace barvon
