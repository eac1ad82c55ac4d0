#include "platform/qt/fields/table_fields.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <string>
#include <vector>

#include "platform/qt/fields/control_array.h"

namespace barvon::testing {
namespace {

std::string Even_Note(const std::string& typed) { return typed == "odd" ? "reads as even" : ""; }
std::string Blue_Note(const std::string& typed) { return typed == "odd" ? "reads as blue" : ""; }

/// A screen with two numbers and a result in one frame, and a name outside it.
class TableFields : public ::testing::Test {
 protected:
  static std::vector<Field_Face> Faces() {
    return {{.control = {"Text1", 1},
             .label_name = {"Label1", 1},
             .label = "&Length (ft)",
             .frame = "Vessel",
             .tag = "BINL",
             .note = Even_Note},
            {.control = {"Text1", 0}, .label = "Width (ft)", .frame = "Vessel", .note = Even_Note},
            {.control = {"Text2"}, .label = "Area", .frame = "Vessel", .kind = Field_Kind::Shown},
            {.control = {"Text3"}, .label = "Name", .kind = Field_Kind::Text, .max_length = 4}};
  }

  QWidget screen;
  ControlArray<QLineEdit> Text1{&screen, "Text1", 2};
  QLineEdit* Text2 = Named(new QLineEdit(&screen), "Text2");
  QLineEdit* Text3 = Named(new QLineEdit(&screen), "Text3");
  Table_Fields fields{&screen, Faces()};
  QGroupBox* vessel = fields.Frame("Vessel");
  QWidget other{&screen};
  Field_Rows rows{&other};
  QLabel* name = fields.Add(rows, {"Text3"});
};

TEST_F(TableFields, A_Frame_Holds_Its_Fields_In_The_Order_Of_The_Table) {
  EXPECT_EQ(vessel->title(), "Vessel");
  EXPECT_EQ(vessel->parentWidget(), &screen);
  auto* grid = qobject_cast<QGridLayout*>(vessel->layout());
  ASSERT_NE(grid, nullptr);
  std::vector<QWidget*> held;
  for (int row = 0; row < grid->rowCount(); ++row) {
    if (auto* item = grid->itemAtPosition(row, 1)) held.push_back(item->widget());
  }
  EXPECT_EQ(held, (std::vector<QWidget*>{Text1(1), Text1(0), Text2}));
  EXPECT_EQ(Text3->parentWidget(), &other);
}

TEST_F(TableFields, A_Field_Gets_Label_Reference_Tag_And_Accessible_Name) {
  const QLabel* length = fields.Label({"Text1", 1});
  ASSERT_NE(length, nullptr);
  EXPECT_EQ(length->text(), "&Length (ft)");
  EXPECT_EQ(length->buddy(), Text1(1));
  EXPECT_EQ(length->objectName(), "Label1(1)");
  EXPECT_EQ(Tag_Of(Text1(1)), "BINL");
  EXPECT_EQ(Text1(1)->accessibleName(), "Length (ft)");
  EXPECT_EQ(fields.Label({"Text1", 0})->objectName(), "");
  EXPECT_EQ(fields.Label({"Text3"}), name);
  EXPECT_EQ(fields.Label({"Text9"}), nullptr);
}

TEST_F(TableFields, Each_Kind_Is_Made_What_It_Is) {
  Text1(1)->setText("odd");
  EXPECT_EQ(Text1(1)->toolTip(), "reads as even");
  EXPECT_TRUE(Text2->isReadOnly());
  EXPECT_EQ(Text3->maxLength(), 4);
  EXPECT_FALSE(Text3->isReadOnly());
}

TEST_F(TableFields, Texts_Go_Through_The_Fields) {
  Field_Texts texts;
  texts("Text1", 0) = "12";
  texts("Text3") = "Lead";
  Text1(1)->setText("kept");
  fields.Show(texts);
  EXPECT_EQ(Text1(0)->text(), "12");
  EXPECT_EQ(Text1(1)->text(), "kept") << "without a text a field stays";
  Text1(0)->setText("13");
  texts("Text1", 0) = "13";
  texts("Text1", 1) = "kept";
  texts("Text2") = "";
  texts.Set_Filled({"Text1", 0}, "12");
  texts.Set_Filled({"Text3"}, "Lead");
  EXPECT_EQ(fields.Texts(), texts);
}

TEST_F(TableFields, A_Field_Is_Untouched_While_It_Shows_What_It_Was_Filled_With) {
  Field_Texts texts;
  texts("Text1", 0) = "12";
  fields.Show(texts);
  EXPECT_TRUE(fields.Texts().Is_Untouched({"Text1", 0}));
  EXPECT_FALSE(fields.Texts().Is_Untouched({"Text1", 1})) << "it was never filled";
  Text1(0)->setText("12.0");
  EXPECT_FALSE(fields.Texts().Is_Untouched({"Text1", 0}));
  Text1(0)->setText("12");
  EXPECT_TRUE(fields.Texts().Is_Untouched({"Text1", 0}));
}

TEST_F(TableFields, A_Text_That_Is_There_Already_Leaves_The_Cursor_Where_It_Is) {
  Text1(0)->setText("12.5");
  Text1(0)->setCursorPosition(1);
  Field_Texts texts;
  texts("Text1", 0) = "12.5";
  fields.Show(texts);
  EXPECT_EQ(Text1(0)->cursorPosition(), 1);
}

TEST_F(TableFields, Other_Keys_Change_Labels_Notes_And_What_Is_There) {
  std::vector<Field_Face> faces = Faces();
  faces[0].label = "Length of Barge";
  faces[0].note = Blue_Note;
  faces[0].tag = "BargeLength";
  faces[1].shown = false;
  faces[3].enabled = false;
  Text1(1)->setText("odd");
  fields.Follow(faces);
  EXPECT_EQ(fields.Label({"Text1", 1})->text(), "Length of Barge");
  EXPECT_EQ(Text1(1)->accessibleName(), "Length of Barge");
  EXPECT_EQ(Text1(1)->toolTip(), "reads as blue");
  EXPECT_EQ(Tag_Of(Text1(1)), "BargeLength");
  EXPECT_TRUE(Text1(0)->isHidden());
  EXPECT_TRUE(fields.Label({"Text1", 0})->isHidden());
  EXPECT_EQ(fields.Texts().Find({"Text1", 0}), nullptr) << "what is not there has no text";
  EXPECT_FALSE(Text3->isEnabled());

  fields.Follow(Faces());
  EXPECT_FALSE(Text1(0)->isHidden());
  EXPECT_FALSE(fields.Label({"Text1", 0})->isHidden());
  EXPECT_FALSE(Text3->isEnabled()) << "a face that says nothing about it leaves it";
}

TEST(FieldRows, Any_Control_Can_Have_A_Label) {
  QWidget frame;
  Field_Rows rows(&frame);
  auto* list = new QComboBox(&frame);
  auto* box = new QCheckBox(&frame);
  const QLabel* label = rows.Control("&Month", list, "MONTH");
  rows.Control("Printed", box);
  EXPECT_EQ(label->buddy(), list);
  EXPECT_EQ(list->accessibleName(), "Month");
  EXPECT_EQ(Tag_Of(list), "MONTH");
  EXPECT_EQ(box->accessibleName(), "Printed");
}

TEST_F(TableFields, A_Label_Is_Disabled_With_Its_Field) {
  const QLabel* length = fields.Label({"Text1", 1});
  const QLabel* width = fields.Label({"Text1", 0});
  Text1(1)->setEnabled(false);
  EXPECT_FALSE(length->isEnabled());
  EXPECT_TRUE(width->isEnabled());
  vessel->setEnabled(false);
  EXPECT_FALSE(width->isEnabled());
  Text1(1)->setEnabled(true);
  vessel->setEnabled(true);
  EXPECT_TRUE(length->isEnabled());
  EXPECT_TRUE(width->isEnabled());
}

TEST_F(TableFields, A_Field_That_Is_Disabled_Before_It_Has_A_Label_Disables_It_Too) {
  QWidget frame;
  Field_Rows late(&frame);
  auto* field = new QLineEdit;
  field->setEnabled(false);
  EXPECT_FALSE(late.Text("Port", field)->isEnabled());
}

}  // namespace
}  // namespace barvon::testing
