#pragma once

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

namespace companion {

/// A figure in two digits, as the table of the document shows it.
inline std::string Two_Digits(double value) {
  char text[32];
  const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::general, 2);
  return std::string(text, end.ptr);
}

/// One case of the verification table: `got` is how far the program is from `theory`, in parts of
/// it unless the theory's text says otherwise, and at most `bound`. The file that the environment
/// names in BARVON_VERIFICATION gets a line of four fields apart by tabs; the table of
/// docs/companion-solver.md is made of them. A name stands for one case; of several figures under
/// one name the table shows the largest.
inline void Verified(std::string_view name, std::string_view theory, double got, double bound) {
  EXPECT_LE(std::abs(got), bound) << name << ": " << theory;
  const char* path = std::getenv("BARVON_VERIFICATION");
  if (path == nullptr) return;
  std::ofstream(path, std::ios::app) << name << '\t' << theory << '\t' << Two_Digits(std::abs(got))
                                     << '\t' << Two_Digits(bound) << '\n';
}

}  // namespace companion
