#pragma once

#include <QValidator>

namespace barvon {

/// Which letters a text field takes: those of the files' encoding, or any, where the field says
/// what becomes of the others.
enum class Letters { of_files, any };

/// For text fields that end up in files: keeps out every character that the files' encoding
/// (Windows-1252) does not hold, and control characters, which would break a line. What is typed
/// or pasted goes in without them; a typographic minus sign goes in as "-".
/// With any letters only the control characters stay out.
class Encoding_Validator : public QValidator {
 public:
  explicit Encoding_Validator(QObject* parent = nullptr, Letters letters = Letters::of_files)
      : QValidator(parent), letters_(letters) {}
  State validate(QString& text, int& position) const override;

 private:
  Letters letters_;
};

}  // namespace barvon
