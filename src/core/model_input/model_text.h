#pragma once

#include <string>
#include <string_view>

#include "core/number_text.h"

namespace barvon {

/// Builds the model input line by line, in UTF-8. Nothing is between two fields, and a field
/// that does not fit its columns is not cut: it moves the rest of its line to the right.
class Model_Text {
 public:
  /// Control characters would break the columns or the line; they are written as blanks.
  void Right(std::string_view text, std::size_t width);
  void Left(std::string_view text, std::size_t width);
  void Blanks(std::size_t count);

  /// Numbers in their default text form, right-justified in fields of one width.
  template <class... Number>
  void Numbers(std::size_t width, Number... values) {
    (Right(Plain_Number(values), width), ...);
  }
  template <class... Number>
  void Number_Line(std::size_t width, Number... values) {
    Numbers(width, values...);
    End_Line();
  }

  /// Numbers in a digit pattern, one after the other.
  template <class... Number>
  void Formatted(std::string_view pattern, Number... values) {
    (Format_One(static_cast<double>(values), pattern), ...);
  }
  template <class... Number>
  void Formatted_Line(std::string_view pattern, Number... values) {
    Formatted(pattern, values...);
    End_Line();
  }

  /// Ends the line with CR LF.
  void End_Line();

  const std::string& text() const { return text_; }

 private:
  void Format_One(double value, std::string_view pattern);

  std::string text_;
};

}  // namespace barvon
