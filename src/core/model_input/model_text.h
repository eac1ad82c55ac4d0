#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/number_text.h"

namespace barvon {

/// A value that is wider than its columns: what follows it on its line is moved to the right.
struct Wide_Value {
  int line = 0;       // of the model input, from 1
  std::string array;  // the field without its subscripts
  std::string field;  // "DX0", "SolidSG(2)", "DepthGrid(3,4)"
  std::string value;  // as written
  std::size_t columns = 0;
};

/// Builds the model input line by line, as bytes of the file. Texts come in UTF-8. Nothing is
/// between two fields, and a field that does not fit its columns is not cut: it moves the rest of
/// its line to the right.
class Model_Text {
 public:
  /// Control characters would break the columns or the line; they are written as blanks.
  void Right(std::string_view text, std::size_t width);
  void Left(std::string_view text, std::size_t width);
  void Blanks(std::size_t count);

  /// A text, left-justified, under the name of its field and its subscript.
  void Named_Left(std::size_t width, std::string_view field, std::string_view text, int i);
  /// A number in its default text form, right-justified, under the name of its field and its
  /// subscripts, 0 for none.
  template <class Number>
  void Named(std::size_t width, std::string_view field, Number value, int i = 0, int j = 0) {
    const Plain_Letters number(value);
    const std::size_t size = number.text().size();
    if (size > width) Note_Wide(number.text(), width, field, i, j);
    Blanks(width > size ? width - size : 0);
    text_ += number.text();
  }

  /// Numbers in fields of one width; `fields` names them in their order, a blank between two.
  template <class... Number>
  void Numbers(std::size_t width, std::string_view fields, Number... values) {
    (Named(width, Take_Name(fields), values), ...);
  }
  template <class... Number>
  void Number_Line(std::size_t width, std::string_view fields, Number... values) {
    Numbers(width, fields, values...);
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
  /// A number whose pattern is its columns.
  void Named_Formatted(std::string_view pattern, std::string_view field, double value, int i);

  /// Ends the line with CR LF.
  void End_Line();

  /// All that was built; nothing is left here.
  std::string Take_Text() { return std::exchange(text_, {}); }
  const std::vector<Wide_Value>& wide_values() const { return wide_values_; }

 private:
  /// The first name of the list, which loses it.
  static std::string_view Take_Name(std::string_view& fields);
  void Format_One(double value, std::string_view pattern);
  void Note_Wide(std::string_view text, std::size_t width, std::string_view field, int i, int j);

  std::string text_;
  int line_ = 1;
  std::vector<Wide_Value> wide_values_;
};

}  // namespace barvon
