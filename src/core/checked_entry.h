#pragma once

#include <cstddef>

#include "core/failure.h"

namespace barvon {

/// The entry of an array used from 1. A count from a file may lead beyond the array: throws
/// Run_Time_Failure (Subscript) outside it. Index 0 is there and empty.
template <class Array>
auto& Entry(Array& array, int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= array.size()) {
    throw Run_Time_Failure{Failure::Subscript};
  }
  return array[static_cast<std::size_t>(index)];
}

}  // namespace barvon
