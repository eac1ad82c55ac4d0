#include "core/project_file/column_reader.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include "core/number_text.h"
#include "core/project_file/exact_values.h"
#include "core/project_file/value_slots.h"

namespace barvon {
namespace {

using Texts = std::vector<std::string>;

bool Same_Bits(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

rc::Gen<std::string> Joined_From(const std::vector<std::string>& pieces) {
  return rc::gen::map(rc::gen::container<Texts>(rc::gen::elementOf(pieces)),
                      [](const Texts& chosen) {
                        std::string text;
                        for (const std::string& piece : chosen) text += piece;
                        return text;
                      });
}

/// What free-form numbers may be and what may stand between them, good and bad.
rc::Gen<std::string> Free_Form() {
  return Joined_From({"0.46",    "-12.5", "+3",   "0",         "-0",
                      ".5",      "5.",    "-",    ".",         "+.",
                      "1D3",     "2e-2",  "1E",   "1E999",     "-1e-999",
                      "0.1-0.2", "abc",   "j",    "123456789", "0.123456789012345",
                      "00000",   "1.2.3", "\x1A", "x",         std::string("\0", 1),
                      " ",       "   ",   "\t",   ",",         " , ",
                      "\r\n",    "\n",    "\r",   " ",         "    "});
}

/// A short file whose lines in front of the velocity fields are blank.
std::string Short_File_With(const std::string& velocities) {
  constexpr int kReals = kFirstDepthSlot - 1 + kShortLayoutPoints * kShortLayoutPoints;
  std::string text = "   DUMP    3\r\n";
  for (int line = 1; line < 5 + kReals / 6 + 1 + 3; ++line) text += "\r\n";
  return text + velocities;
}

/// Texts between delimiters, step by step as the format has them.
Texts Tokens_Of(const std::string& text) {
  Texts tokens;
  for (std::size_t at = 0;;) {
    at = text.find_first_not_of(" \t\r\n", at);
    if (at == std::string::npos) return tokens;
    const std::size_t end = std::min(text.find_first_of(" \t\r\n,", at), text.size());
    tokens.push_back(text.substr(at, end - at));
    const std::size_t next = text.find_first_not_of(" \t", end);
    at = next != std::string::npos && text[next] == ',' ? next + 1 : end;
  }
}

/// Behind a letter that ends it, a number is no short decimal any more.
double Read_The_Long_Way(const std::string& number) { return Column_Number(number + "x"); }

RC_GTEST_PROP(ReadColumns, Takes_Free_Form_Numbers_As_Their_Texts_Between_Delimiters_Read, ()) {
  static const std::regex kNumber(R"([+-]?(\d+\.?\d*|\.\d+)([eEdD][+-]?\d+)?)");
  const std::string velocities = *Free_Form();
  const Columns_Read read = Read_Columns(Short_File_With(velocities), kShortLayoutPoints, nullptr);
  Failure failure = Failure::None;
  const auto note = [&](Failure one) {
    if (failure == Failure::None) failure = one;
  };
  int place = 0;
  for (const std::string& token : Tokens_Of(velocities)) {
    const int a = place / kShortLayoutPoints + 1, b = place % kShortLayoutPoints + 1;
    ++place;
    double value = 0;
    bool given = false;
    if (!std::regex_match(token, kNumber)) {
      note(Failure::Type_Mismatch);
    } else {
      try {
        value = Read_The_Long_Way(token);
        given = true;
      } catch (const Run_Time_Failure& stopped) {
        note(stopped.failure);
      }
    }
    RC_ASSERT(Same_Bits(read.image.VelocityFieldX[a][b], value));
    RC_ASSERT(given == (read.given[Index_Of({Image_Number::Part::FieldX, a, b})] != 0));
  }
  RC_PRE(place < kShortLayoutPoints * kShortLayoutPoints);
  note(Failure::Input_Past_End);
  RC_ASSERT(read.failure == failure);
}

RC_GTEST_PROP(SplitFile, Finds_The_Last_Head_Whatever_Stands_Around_It, ()) {
  const std::string head =
      "Exact values of this project that the columns above this line can not hold: ";
  const std::string text = *Joined_From(
      {"\n" + head, head, "\n", "j", "\nE", head.substr(0, 25), "\n" + head.substr(0, 30), "ject"});
  const File_Parts parts = Split_File(text);
  RC_ASSERT(std::string(parts.columns) + std::string(parts.exact) == text);
  const std::size_t found = text.rfind("\n" + head);
  const std::size_t last_line = text.rfind('\n');
  if (found != std::string::npos) {
    RC_ASSERT(parts.columns.size() == found + 1);
  } else if (last_line != std::string::npos &&
             head.starts_with(std::string_view(text).substr(last_line + 1))) {
    RC_ASSERT(parts.columns.size() == last_line + 1);
  } else {
    RC_ASSERT(parts.exact.empty());
  }
}

}  // namespace
}  // namespace barvon
