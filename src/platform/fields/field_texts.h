#pragma once

#include <map>
#include <string>
#include <string_view>

namespace barvon {

inline constexpr int kNoIndex = -1;

/// A control by its array and its index: {"Text1", 4}; one that has no array by its name:
/// {"Text2"}.
struct Control_Name {
  std::string_view array = {};
  int index = kNoIndex;

  /// "Text1(4)", "Text2".
  std::string Reference() const;
  bool operator==(const Control_Name&) const = default;
};

/// The texts of a screen's fields, each by its control. A field that the screen does not show has
/// none.
class Field_Texts {
 public:
  /// The field's text; it gets an empty one when it has none yet.
  std::string& operator()(std::string_view array, int index = kNoIndex);
  /// "" when the field has none.
  const std::string& operator()(std::string_view array, int index = kNoIndex) const;

  /// Nothing when the field has none.
  const std::string* Find(const Control_Name& control) const;
  void Set(const Control_Name& control, std::string text);

  bool operator==(const Field_Texts&) const = default;

 private:
  std::map<std::string, std::string> texts_;  // by reference
};

}  // namespace barvon
