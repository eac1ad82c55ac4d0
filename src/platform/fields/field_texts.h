#pragma once

#include <map>
#include <optional>
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

  /// What the screen filled the field with. The field must have a text.
  void Set_Filled(const Control_Name& control, std::string filled);
  /// Whether the text is still the one that the screen filled in. What it shows of a value may be
  /// rounded, so the value itself counts then.
  bool Is_Untouched(const Control_Name& control) const;

  bool operator==(const Field_Texts&) const = default;

 private:
  struct Entry {
    std::string text;
    std::optional<std::string> filled = {};
    bool operator==(const Entry&) const = default;
  };
  std::map<std::string, Entry> texts_;  // by reference
};

}  // namespace barvon
