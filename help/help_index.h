#pragma once

#include <string>
#include <vector>

namespace barvon {

/// A line of the help's index.
struct Help_Keyword {
  std::string name;
  std::string target;  // page, or page and place: "velocity.html#simulation-duration-hrs"
  std::string topic;   // what the program opens the page by: a number or "contents"; mostly empty

  bool operator==(const Help_Keyword&) const = default;
};

/// What a page gives the index, in the order of the page:
///   <h1 data-topic="3030" data-index="AMDEN | Water density">Caption</h1>
///   <p class="field"><a name="place" data-index="other | words">Caption</a></p>
///   <p class="message"><a name="place">Text of the message</a></p>
/// The caption of the page, of every field and of every message is a keyword as it is read: without
/// tags, entities resolved, a line break as a blank. Any other named place gives its caption only
/// if it has a data-index, were it empty. The words in data-index lead to the same place.
std::vector<Help_Keyword> Keywords_Of_Page(const std::string& page, const std::string& text);

/// The keywords as they are put into the help project, sorted as the index shows them, without
/// their twins.
std::string Keywords_Section(std::vector<Help_Keyword> keywords);

/// The text with what a file of this kind can't hold as it is replaced by entities.
std::string Escaped_For_Xml(const std::string& text);

}  // namespace barvon
