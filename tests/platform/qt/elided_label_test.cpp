#include "platform/qt/elided_label.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>

namespace barvon {
namespace {

QString Tip_Of(Elided_Label& label) {
  QHelpEvent rests(QEvent::ToolTip, QPoint(2, 2), label.mapToGlobal(QPoint(2, 2)));
  QApplication::sendEvent(&label, &rests);
  return QToolTip::text();
}

TEST(ElidedLabel, A_Text_That_Is_Cut_Is_Whole_In_Its_Tip_With_Its_Tags_As_Letters) {
  Elided_Label label;
  label.setText("/home/<b>anna</b>/a & b/site.DUI");
  label.resize(1000, 20);
  label.show();
  EXPECT_FALSE(label.Is_Cut());
  EXPECT_EQ(Tip_Of(label), "");
  label.resize(40, 20);
  EXPECT_TRUE(label.Is_Cut());
  EXPECT_EQ(Tip_Of(label), "/home/&lt;b&gt;anna&lt;/b&gt;/a &amp; b/site.DUI");
  QToolTip::hideText();
}

}  // namespace
}  // namespace barvon
