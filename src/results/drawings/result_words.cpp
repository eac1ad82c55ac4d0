#include "results/drawings/result_words.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "pictures/shapes/axis_scale.h"
#include "platform/files/paths.h"
#include "results/summary.h"

namespace barvon {
namespace {

constexpr double kMinute = 60, kHour = 3600, kFirstInHours = 2 * kHour;  // s
constexpr double kHundredths = 100;

// In one decimal, where that is all there is to say.
std::string In_Tenths(double value) { return Short_Text(std::round(value * 10) / 10); }

}  // namespace

std::string Time_Words(double seconds) {
  std::string plain = Short_Text(seconds) + " s";
  if (!(std::abs(seconds) >= kMinute) || !std::isfinite(seconds)) return plain;
  const bool hours = std::abs(seconds) >= kFirstInHours;
  return plain + " (" + In_Tenths(seconds / (hours ? kHour : kMinute)) + (hours ? " h)" : " min)");
}

std::string Value_Words(double value, const std::string& unit) {
  return Short_Text(value) + " " + unit;
}

std::string Depth_Words(double feet) {
  return Short_Text(std::round(feet * kHundredths) / kHundredths) + " ft";
}

std::string Site_Name(const Results& own, const Results* other) {
  // Without a site there is none to be named.
  const bool alone = other == nullptr || !Has_Site(*other);
  const bool first = own.mixing_zone, second = alone ? first : other->mixing_zone;
  if (Has_Site(own) && first != second) return "site or zone";
  return second ? "mixing zone" : "site";
}

std::string Where_Words(Result_Where where, const Results& results) {
  switch (where) {
    case Result_Where::inside:
      return "inside the " + Site_Name(results);
    case Result_Where::outside:
      return "outside the " + Site_Name(results);
    case Result_Where::outside_zid:
      return "outside the ZID";
    case Result_Where::anywhere:
      break;
  }
  return "anywhere";
}

std::string Project_Name(const Results& results) { return Base_Name(Name_Of(results.path)); }

std::pair<std::string, std::string> Project_Names(const Results& own, const Results& other) {
  std::pair<std::string, std::string> names{Project_Name(own), Project_Name(other)};
  if (names.first != names.second) return names;
  const auto folder = [](const Results& results) {
    return " (" + Name_Of(Folder_Of(results.path)) + ")";
  };
  if (folder(own) == folder(other)) return {names.first, names.second + " (other)"};
  return {names.first + folder(own), names.second + folder(other)};
}

std::optional<int> Same_Species(const Results& other, const Results& own, int species) {
  const Result_Species& wanted = own.species[static_cast<std::size_t>(species - 1)];
  const auto is_alike = [&wanted](const Result_Species& one) {
    return one.name == wanted.name && one.unit == wanted.unit;
  };
  auto before = std::count_if(own.species.begin(), own.species.begin() + (species - 1), is_alike);
  for (std::size_t i = 0; i < other.species.size(); ++i) {
    if (is_alike(other.species[i]) && before-- == 0) return static_cast<int>(i) + 1;
  }
  return std::nullopt;
}

}  // namespace barvon
