#include "platform/qt/fields/encoding_validator.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

#include "support/screen_support.h"

namespace barvon {
namespace {

struct Field : QLineEdit {
  Field() { setValidator(new Encoding_Validator(this)); }
};

TEST(EncodingValidator, Lets_Every_Character_Of_The_Encoding_In) {
  Field field;
  const QString text = QString::fromUtf8("Site 4, 50 € – Dépôt Œuvre ÿ");
  testing::Type(&field, text);
  EXPECT_EQ(field.text(), text);
}

TEST(EncodingValidator, Keeps_Out_What_The_Encoding_Does_Not_Hold) {
  Field field;
  testing::Type(&field, QString::fromUtf8("a→bΩ"));
  EXPECT_EQ(field.text(), "ab");
}

TEST(EncodingValidator, Where_Any_Letter_Is_Kept_Only_Controls_And_The_Minus_Sign_Change) {
  const Encoding_Validator any(nullptr, Letters::any);
  QString text = QString::fromUtf8("a→b\tΩ\U0001F6A2 −5");
  int position = 0;
  any.validate(text, position);
  EXPECT_EQ(text, QString::fromUtf8("a→bΩ\U0001F6A2 -5"));
}

TEST(EncodingValidator, A_Pasted_Text_Goes_In_Without_The_Characters_That_Do_Not_Fit) {
  Field field;
  field.setText("[]");
  field.setCursorPosition(1);
  QApplication::clipboard()->setText(QString::fromUtf8("x→y\t\U0001F6A2z"));
  field.paste();
  EXPECT_EQ(field.text(), "[xyz]");
  EXPECT_EQ(field.cursorPosition(), 4);
}

TEST(EncodingValidator, A_Typographic_Minus_Sign_Is_A_Minus_Sign) {
  Field field;
  testing::Type(&field, QString::fromUtf8("\u22121.5e\u22123"));
  EXPECT_EQ(field.text(), "-1.5e-3");
}

TEST(EncodingValidator, A_Letter_With_Its_Accent_Behind_It_Becomes_One_Character) {
  Field field;
  field.setText(QString::fromUtf8("De\u0301po\u0302t"));
  EXPECT_EQ(field.text(), QString::fromUtf8("D\u00e9p\u00f4t"));
}

}  // namespace
}  // namespace barvon
