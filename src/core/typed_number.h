#pragma once

#include <optional>
#include <string>
#include <utility>

#include "core/number_text.h"

namespace barvon {

/// A number field as a person leaves it: what it shows, and as long as that is what the screen
/// filled in, the value that it was filled with. What is shown of a value may be rounded.
struct Typed_Number {
  Typed_Number() = default;
  Typed_Number(const char* typed) : text(typed) {}
  Typed_Number(std::string typed) : text(std::move(typed)) {}
  Typed_Number(std::string filled, double value) : text(std::move(filled)), kept(value) {}

  std::string text;
  std::optional<double> kept;

  /// The value kept, else the leading number of the text.
  double Number() const { return kept ? *kept : Lenient_Number(text); }
};

/// What the field of `typed` stands for when it was filled as `filled`.
inline Typed_Number As_Filled(const std::string& typed, const Typed_Number& filled) {
  return typed == filled.text ? filled : Typed_Number(typed);
}

}  // namespace barvon
