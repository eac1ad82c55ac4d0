#include "graphs/graph_words.h"

#include <array>
#include <ctime>
#include <string_view>

#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"

namespace barvon {
namespace {

constexpr std::string_view kNew = "New outputs ";

}  // namespace

Graph_Notice Notice_Of_Nothing() {
  return {
      "No results are open.\n\n"
      "Open... takes a project, or one of the files that a run of the companion solver has "
      "left beside it (.dut, .duc, .dup). View Graphics in BARVON opens those of its project "
      "by itself.",
      {}};
}

Graph_Notice Notice_Of(const Result_Problem& problem, const std::string& path) {
  const std::string listing = Find_Path(With_Extension(path, "duo")).value_or("");
  std::string words =
      problem.foreign
          ? "The outputs of " + path + " are of another solver.\n\n" + problem.Words() +
                "\n\nPictures are drawn of what the companion solver writes."
          : "There are no results to show of " + path + ".\n\n" + problem.Words() +
                "\n\nRun the simulation with the companion solver: the pictures come by themselves "
                "as soon as its outputs are there.";
  if (!listing.empty()) words += " The listing of this run can be read as text.";
  return {words, listing};
}

std::string Clock_Text(std::int64_t seconds) {
  const auto time = static_cast<std::time_t>(seconds);
  std::tm parts{};
  if (::localtime_r(&time, &parts) == nullptr) return "?";
  std::array<char, 32> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &parts);
  return {text.data(), length};
}

std::string Title_Line(const Results& results) {
  const std::string run = Name_Of(results.path) + ", run of " + Clock_Text(results.made);
  return results.title.empty() ? run : results.title + "  (" + run + ")";
}

std::string Window_Caption(const std::string& path) {
  return path.empty() ? "BARVON Graphics" : "BARVON Graphics - " + Name_Of(path);
}

std::string Fresh_Words(const Results& results) {
  return std::string(kNew) + "of " + Name_Of(results.path) + ", run of " + Clock_Text(results.made);
}

std::string Kept_Words(const Result_Problem& problem, const Results& shown) {
  return "Shown is the run of " + Clock_Text(shown.made) + "; " + problem.Words();
}

std::string Ended_Words(const std::string& path) {
  return "No longer compared with " + Name_Of(path) + ".";
}

std::string Words_Of_Both(const std::string& own, const std::string& other) {
  if (own == other) return own;  // a run compared with itself
  if (own.empty() || other.empty()) return own + other;
  const bool both_new = own.starts_with(kNew) && other.starts_with(kNew);
  return own + "; " + (both_new ? other.substr(kNew.size()) : other);
}

}  // namespace barvon
