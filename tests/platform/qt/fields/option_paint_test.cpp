#include "platform/qt/fields/option_paint.h"

#include <gtest/gtest.h>

namespace barvon {
namespace {

QColor Text_Colour(const QWidget* control) {
  return control->palette().color(QPalette::Active, QPalette::WindowText);
}

TEST(ControlArray, Names_Its_Controls_By_Their_Index) {
  QWidget parent;
  const ControlArray<QRadioButton> options{&parent, "SSRibbon1", 2, 3};
  EXPECT_EQ(options.first(), 3);
  EXPECT_EQ(options.last(), 4);
  EXPECT_EQ(options(3)->objectName(), "SSRibbon1(3)");
  EXPECT_EQ(options(4), parent.findChild<QRadioButton*>("SSRibbon1(4)"));
}

TEST(OptionPaint, The_Chosen_Option_Is_Blue_And_The_Others_Are_Black) {
  QWidget parent;
  const ControlArray<QRadioButton> options{&parent, "Option1", 3};
  for (int chosen = 0; chosen < 3; ++chosen) {
    Show_Option(options, chosen);
    EXPECT_EQ(Chosen_Option(options), chosen);
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(options(i)->isChecked(), i == chosen);
      EXPECT_EQ(Text_Colour(options(i)), QColor(i == chosen ? "#0000ff" : "#000000"));
    }
  }
}

TEST(OptionPaint, A_Group_Can_Be_Cleared_And_Stays_Exclusive) {
  QWidget parent;
  const ControlArray<QRadioButton> options{&parent, "Option1", 3};
  Show_Option(options, 1);
  Show_Option(options, -1);
  EXPECT_EQ(Chosen_Option(options), -1);
  EXPECT_EQ(Text_Colour(options(1)), QColor("#000000"));
  options(0)->click();
  options(2)->click();
  EXPECT_FALSE(options(0)->isChecked());
  EXPECT_EQ(Chosen_Option(options), 2);
}

}  // namespace
}  // namespace barvon
