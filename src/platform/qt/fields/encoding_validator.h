#pragma once

#include <QValidator>

namespace barvon {

/// For text fields that end up in files: keeps out every character that the files' encoding
/// (Windows-1252) does not hold, and control characters, which would break a line. What is typed
/// or pasted goes in without them; a typographic minus sign goes in as "-".
class Encoding_Validator : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& text, int& position) const override;
};

}  // namespace barvon
