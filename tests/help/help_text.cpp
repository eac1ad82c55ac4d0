#include "help/help_text.h"

#include <utility>

#include "support/plain_support.h"

namespace barvon::testing {

std::string Help_Folder() { return BARVON_SOURCE "/help/"; }

std::vector<std::string> Help_Pages() {
  std::vector<std::string> pages;
  for (const std::string& name : Names_In(Help_Folder())) {
    if (name.ends_with(".html")) pages.push_back(name);
  }
  return pages;
}

std::string Readable_Page(const std::string& name) {
  std::string text;
  bool in_tag = false;
  for (const char sign : Read_Text(Help_Folder() + name)) {
    if (sign == '<') in_tag = true;
    if (!in_tag) text += sign == '\n' ? ' ' : sign;
    if (sign == '>') in_tag = false;
  }
  for (const auto& [entity, sign] :
       {std::pair("&lt;", "<"), std::pair("&gt;", ">"), std::pair("&nbsp;", " "),
        std::pair("&quot;", "\""), std::pair("&#x27;", "'"), std::pair("&amp;", "&")}) {
    text = Replaced(text, entity, sign);
  }
  return text;
}

std::string With_Single_Blanks(std::string text) {
  while (text.find("  ") != std::string::npos) text = Replaced(text, "  ", " ");
  return text;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

}  // namespace barvon::testing
