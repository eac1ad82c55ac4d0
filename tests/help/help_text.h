#pragma once

#include <string>
#include <vector>

namespace barvon::testing {

/// The folder of the help's pages, ending in "/".
std::string Help_Folder();
/// Names of the help's pages.
std::vector<std::string> Help_Pages();
/// The page as it is read: without its tags and entities, a line break as a blank.
std::string Readable_Page(const std::string& name);

std::string With_Single_Blanks(std::string text);

/// The text with each `from` replaced.
std::string Replaced(std::string text, const std::string& from, const std::string& to);

}  // namespace barvon::testing
