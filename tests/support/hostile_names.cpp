#include "support/hostile_names.h"

#include <climits>
#include <random>
#include <set>
#include <string_view>

#include "platform/text/letter_case.h"

namespace barvon::testing {
namespace {

constexpr std::size_t kLongest = NAME_MAX - 4;  // ".DUI" behind it

/// What names are made of beside single bytes.
const std::vector<std::string> kParts = {
    " ",
    "  ",
    "\t",
    "\n",
    "\r\n",
    "'",
    "\"",
    "`",
    "\\",
    ";",
    "&",
    "&&",
    "|",
    "<",
    ">",
    "$",
    "$HOME",
    "$(touch started)",
    "`touch started`",
    "; touch started;",
    "*",
    "?",
    "[a-z]",
    "[*]",
    "{a,b}",
    "~",
    "!",
    "#",
    "%",
    "%s%n",
    "%20",
    "=",
    ":",
    ",",
    "@",
    "^",
    "(",
    ")",
    "..",
    ".",
    "-",
    "--",
    "-o",
    "--help",
    "<b>bold<br>",
    "<img src=x>",
    "&amp;",
    "site",
    "Bay",
    "tmpfile",
    "Not Used",
    "UNTITLED",
    "\x1B[31m",
    "\x07",
    "\x7F",
    "\xC3\xA9",
    "\xC3\xBF",
    "\xE2\x82\xAC",
    "\xCE\xA9",
    "\xE6\xB5\xB7",
    "\xF0\x9F\x8C\x8A",
    "e\xCC\x81",
    "\xE2\x80\xAE",
    "\xE2\x80\xA8",
    "\xEF\xBB\xBF",
    "\xEF\xBF\xBD",
    "\xE9",
    "\xFF\xFE",
    "\xC0\xAF",
    "\xED\xA0\x80",
    "\xC3",
    "http:",
    "file:",
    "CON",
    "nul",
    ".DUI",
    ".duo",
    ".DUE",
};

/// Whole names worth to be tried by themselves. The first kFewNames are of every kind.
const std::vector<std::string> kWhole = {
    "-rf",
    "; touch started",
    "$(touch started)",
    "`touch started`",
    "a\nb",
    "'quoted'",
    "\"quoted\"",
    "\xC3\xA9t\xC3\xA9",
    "\xE9t\xE9",
    " leading",
    "*",
    "&File | %s%n",
    " ",
    "-",
    "--",
    "--solver-dir=x",
    "-o",
    ".hidden",
    "...",
    "trailing.",
    "trailing ",
    "\n",
    "?",
    "[*]",
    "| touch started",
    "~",
    "&File",
    "#",
    "%s%s%s%n",
    "\xFF",
    "Bay 1 (copy).old",
    "a.b.c",
    "x.DUO",
};

std::string Random_Name(std::mt19937& random) {
  const auto below = [&random](std::size_t end) { return random() % end; };
  std::string name;
  const std::size_t parts = 1 + below(6);
  for (std::size_t i = 0; i < parts; ++i) {
    if (below(4) == 0) {
      const char byte = static_cast<char>(1 + below(255));
      if (byte != '/') name += byte;
    } else {
      name += kParts[below(kParts.size())];
    }
  }
  // One in eight is as long as can be.
  if (below(8) == 0) {
    const std::string unit = kParts[below(kParts.size())];
    while (name.size() < kLongest) name += unit;
  }
  if (name.size() > kLongest) name.resize(kLongest);
  return name;
}

}  // namespace

std::vector<std::string> Hostile_Names(unsigned seed, long count) {
  std::mt19937 random(seed);
  std::vector<std::string> names;
  std::set<std::string> seen;
  std::size_t next = 0;
  while (static_cast<long>(names.size()) < count) {
    std::string name = next < kWhole.size() ? kWhole[next++] : Random_Name(random);
    if (name.empty() || name == "." || name == ".." || !seen.insert(Upper_Case(name)).second) {
      continue;
    }
    names.push_back(std::move(name));
  }
  return names;
}

}  // namespace barvon::testing
