#include "platform/qt/fields/encoding_validator.h"

#include "platform/files/text_encoding.h"

namespace barvon {
namespace {

bool Fits(QChar character, Letters letters) {
  if (character.category() == QChar::Other_Control) return false;
  return letters == Letters::any ||
         (!character.isSurrogate() && Fits_File_Encoding(QString(character).toStdString()));
}

constexpr QChar kMinusSign(0x2212);

/// A letter and its accent as one character, then only what fits.
QString Fitting(const QString& text, Letters letters) {
  QString fitting;
  for (const QChar character : text.normalized(QString::NormalizationForm_C)) {
    // Documents write negative numbers with it: left out it would turn their sign.
    if (character == kMinusSign) {
      fitting += QLatin1Char('-');
    } else if (Fits(character, letters)) {
      fitting += character;
    }
  }
  return fitting;
}

}  // namespace

QValidator::State Encoding_Validator::validate(QString& text, int& position) const {
  const QString fitting = Fitting(text, letters_);
  if (fitting != text) {
    position = static_cast<int>(Fitting(text.left(position), letters_).size());
    text = fitting;
  }
  return Acceptable;
}

}  // namespace barvon
