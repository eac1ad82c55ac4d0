#include "platform/qt/fields/number_field.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QHelpEvent>
#include <QSignalBlocker>
#include <QTest>
#include <QToolTip>

#include "core/number_reading.h"
#include "platform/qt/fields/field_rows.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

class NumberField : public ::testing::Test {
 protected:
  NumberField() {
    field.resize(120, field.sizeHint().height());
    field.setText("1");
    Make_Number_Field(&field, Real_Note);
    field.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&field));
  }

  /// The mark inside the field; nothing while none is to be seen.
  QAbstractButton* Mark() {
    for (auto* button : field.findChildren<QAbstractButton*>()) {
      if (button->isVisible()) return button;
    }
    return nullptr;
  }

  void Expect_Note(const QString& note) {
    EXPECT_EQ(Mark() != nullptr, !note.isEmpty()) << field.text().toStdString();
    EXPECT_EQ(field.toolTip(), note) << field.text().toStdString();
    EXPECT_EQ(field.accessibleDescription(), note) << field.text().toStdString();
    EXPECT_EQ(Number_Note_Of(&field), note) << field.text().toStdString();
    if (Mark() != nullptr) {
      EXPECT_EQ(Mark()->toolTip(), note);
    }
  }

  QLineEdit field;
};

TEST_F(NumberField, Follows_Every_Key) {
  field.clear();
  Expect_Note("reads as 0");
  Type(&field, "6");
  Expect_Note("");
  Type(&field, "2");
  Expect_Note("");
  Type(&field, ",");
  Expect_Note("reads as 62");
  Type(&field, "5");
  Expect_Note("reads as 62");
  QTest::keyClick(&field, Qt::Key_Backspace);
  QTest::keyClick(&field, Qt::Key_Backspace);
  Expect_Note("");
}

TEST_F(NumberField, Follows_A_Text_Set_From_Code) {
  field.setText("1O0");
  Expect_Note("reads as 1");
  field.setText("62.50");
  Expect_Note("");
  field.setText("");
  Expect_Note("reads as 0");
}

TEST_F(NumberField, Follows_A_Text_Set_From_Code_With_Its_Signals_Blocked) {
  {
    const QSignalBlocker quiet(&field);
    field.setText("62,5");
  }
  EXPECT_TRUE(Wait_Until([this] { return Mark() != nullptr; }));
  Expect_Note("reads as 62");
  {
    const QSignalBlocker quiet(&field);
    field.setText("63");
  }
  EXPECT_TRUE(Wait_Until([this] { return Mark() == nullptr; }));
  Expect_Note("");
}

TEST_F(NumberField, Refuses_Nothing) {
  const QString typed = QString::fromUtf8("about 1\xC2\xBD ft");
  field.clear();
  Type(&field, typed);
  EXPECT_EQ(field.text(), typed);
  EXPECT_TRUE(field.hasAcceptableInput());
}

TEST_F(NumberField, The_Mark_Stands_Inside_At_The_Right_And_Does_Not_Cover_The_Text) {
  field.setText("62,5");
  ASSERT_NE(Mark(), nullptr);
  EXPECT_GT(Mark()->geometry().left(), field.width() / 2);
  EXPECT_TRUE(field.rect().contains(Mark()->geometry()));
  EXPECT_EQ(Mark()->focusPolicy(), Qt::NoFocus) << "Tab goes from field to field";
  field.setText("12345678901234567890,5");
  field.setCursorPosition(22);
  field.grab();  // the text is moved along when it is painted
  const QRect cursor = field.inputMethodQuery(Qt::ImCursorRectangle).toRect();
  EXPECT_LE(cursor.center().x(), Mark()->geometry().left());
}

TEST_F(NumberField, The_Mark_Is_Seen_Without_Colour) {
  field.setText("62,5");
  ASSERT_NE(Mark(), nullptr);
  const QImage grey = field.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
  const QRect mark = Mark()->geometry();
  int dark = 0;
  for (int y = mark.top(); y <= mark.bottom(); ++y) {
    for (int x = mark.left(); x <= mark.right(); ++x) dark += qGray(grey.pixel(x, y)) < 140 ? 1 : 0;
  }
  EXPECT_GE(dark, 20) << "a drawing on the field's white";
}

TEST_F(NumberField, The_Tool_Tip_Tells_What_Is_Read) {
  field.setText("62,5");
  QHelpEvent ask(QEvent::ToolTip, QPoint(5, 5), field.mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&field, &ask);
  EXPECT_EQ(QToolTip::text(), "reads as 62");
  QToolTip::hideText();
}

TEST_F(NumberField, Assistive_Tools_Hear_What_Is_Read) {
  field.setText("1O0");
  QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&field);
  ASSERT_NE(heard, nullptr);
  EXPECT_EQ(heard->text(QAccessible::Description), "reads as 1");
}

TEST_F(NumberField, Its_Own_Tool_Tip_And_Description_Stand_Again_Afterwards) {
  field.setToolTip("8 to 96");
  field.setAccessibleDescription("grid points");
  field.setText("4O");
  EXPECT_EQ(field.toolTip(), "reads as 4");
  field.setText("4OO");
  field.setText("40");
  EXPECT_EQ(field.toolTip(), "8 to 96");
  EXPECT_EQ(field.accessibleDescription(), "grid points");
}

TEST_F(NumberField, A_Tool_Tip_Given_While_The_Note_Stands_Is_Not_Lost) {
  field.setText("4O");
  field.setToolTip("8 to 96");
  field.setText("40");
  EXPECT_EQ(field.toolTip(), "8 to 96");
}

TEST_F(NumberField, Made_Anew_It_Says_The_New_Note_Alone) {
  field.setText("62.4");
  Expect_Note("");
  Make_Number_Field(&field, Whole_Note);
  Expect_Note("reads as 62");
  EXPECT_EQ(field.actions().size(), 1);
}

TEST(NumberFieldAtStart, A_Field_That_Is_Blank_When_It_Is_Made_Has_Its_Mark) {
  QLineEdit field;
  Make_Number_Field(&field, Real_Note);
  EXPECT_EQ(field.toolTip(), "reads as 0");
  EXPECT_EQ(field.actions().size(), 1);
  EXPECT_TRUE(field.actions().first()->isVisible());
}

TEST(NumberFieldAtStart, A_Field_Of_Another_Kind_Says_Nothing) {
  QLineEdit field("62,5");
  EXPECT_EQ(Number_Note_Of(&field), "");
}

TEST(TextField, Takes_What_The_Files_Hold_Up_To_Its_Length) {
  QLineEdit field;
  Make_Text_Field(&field, 5);
  Type(&field, QString::fromUtf8("a\xE2\x86\x92\xC3\xA9"
                                 "cdefg"));  // an arrow, an accent
  EXPECT_EQ(field.text(), QString::fromUtf8("a\xC3\xA9"
                                            "cde"));
}

TEST(TextField, Without_A_Length_Nothing_Is_Cut) {
  QLineEdit field;
  Make_Text_Field(&field);
  field.setText(QString(1000, 'x'));
  EXPECT_EQ(field.text().size(), 1000);
}

TEST(FieldRows, A_Line_Gives_Label_Field_Reference_And_Tag) {
  QWidget frame;
  ControlArray<QLineEdit> Text1(&frame, "Text1", 2);
  QLineEdit* Text3 = Named(new QLineEdit(&frame), "Text3");
  Field_Rows rows(&frame);
  const QLabel* depth = rows.Number("&Depth (ft)", Text1(0), Real_Note, "DEPC0");
  rows.Number("Points", Text1(1), Whole_Note, "NROA0");
  rows.Text("Sand && Clay", Text3, 20);

  EXPECT_EQ(depth->text(), "&Depth (ft)");
  EXPECT_EQ(depth->buddy(), Text1(0));
  EXPECT_EQ(frame.findChild<QLineEdit*>("Text1(0)"), Text1(0));
  EXPECT_EQ(frame.findChild<QLineEdit*>("Text3"), Text3);
  EXPECT_EQ(Tag_Of(Text1(0)), "DEPC0");
  EXPECT_EQ(Tag_Of(Text1(1)), "NROA0");
  EXPECT_EQ(Tag_Of(Text3), "");
  EXPECT_EQ(Text1(0)->accessibleName(), "Depth (ft)");
  EXPECT_EQ(Text3->accessibleName(), "Sand & Clay");
  Text1(0)->setText("62.4"), Text1(1)->setText("62.4"), Text3->setText("62,4");
  EXPECT_EQ(Text1(0)->toolTip(), "");
  EXPECT_EQ(Text1(1)->toolTip(), "reads as 62");
  EXPECT_EQ(Text3->toolTip(), "");
  EXPECT_EQ(Text3->maxLength(), 20);
}

TEST_F(NumberField, A_Text_That_Is_Entered_Is_Undone_As_A_Typed_One) {
  Type(&field, "5");
  Enter_Text(&field, "1200");
  EXPECT_EQ(field.text(), "1200");
  field.undo();
  EXPECT_EQ(field.text(), "15");
}

TEST(FieldRows, Tab_Goes_Down_The_Rows_In_Whatever_Order_The_Fields_Were_Made) {
  QWidget frame;
  ControlArray<QLineEdit> Text1(&frame, "Text1", 3);
  Field_Rows rows(&frame);
  rows.Number("Third", Text1(2), Real_Note);
  rows.Number("First", Text1(0), Real_Note);
  auto* note = new QLineEdit(&frame);
  rows.Whole_Row(note);
  rows.Number("Second", Text1(1), Real_Note);
  frame.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
  Text1(2)->setFocus();
  const QList<QWidget*> order = {Text1(2), Text1(0), note, Text1(1)};
  for (qsizetype i = 0; i < order.size(); ++i) {
    EXPECT_EQ(frame.focusWidget(), order[i]) << i;
    if (i > 0) {
      EXPECT_GT(order[i]->y(), order[i - 1]->y()) << i;
    }
    QTest::keyClick(frame.focusWidget(), Qt::Key_Tab);
  }
}

TEST(FieldRows, A_Number_Is_Read_Beside_The_Mark) {
  QWidget frame;
  auto* field = new QLineEdit(&frame);
  Field_Rows rows(&frame);
  rows.Number("Volume of the load in the vessel (cu yd)", field, Real_Note);
  field->setText("12345678,5");
  frame.adjustSize();
  frame.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
  const auto* mark = field->findChild<QAbstractButton*>();
  ASSERT_NE(mark, nullptr);
  EXPECT_LE(field->fontMetrics().horizontalAdvance(field->text()), mark->x() - 4);
}

}  // namespace
}  // namespace barvon::testing
