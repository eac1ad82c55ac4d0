#include "help_index.h"

#include <algorithm>
#include <cctype>
#include <tuple>
#include <utility>

namespace barvon {
namespace {

struct Entity {
  const char* written;
  const char* read;
};

// "&amp;" is the last to be resolved and the first to be written.
constexpr Entity kEntities[] = {{"&lt;", "<"},   {"&gt;", ">"},   {"&quot;", "\""},
                                {"&nbsp;", " "}, {"&#x27;", "'"}, {"&amp;", "&"}};

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

std::string Without_Tags(const std::string& text) {
  std::string words;
  bool in_tag = false;
  for (const char sign : text) {
    if (sign == '<') in_tag = true;
    if (!in_tag) words += sign;
    if (sign == '>') in_tag = false;
  }
  return words;
}

std::string As_Read(const std::string& text) {
  std::string words = Replaced(Without_Tags(text), "\n", " ");
  for (const Entity& entity : kEntities) words = Replaced(words, entity.written, entity.read);
  const auto first = words.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return words.substr(first, words.find_last_not_of(' ') - first + 1);
}

/// An opening tag and what follows it up to its closing tag.
struct Element {
  std::string tag;
  std::string content;
};

bool Has(const Element& element, const std::string& attribute) {
  return element.tag.find(attribute + "=\"") != std::string::npos;
}

std::string Value_Of(const Element& element, const std::string& attribute) {
  if (!Has(element, attribute)) return {};
  const std::size_t start = element.tag.find(attribute + "=\"") + attribute.size() + 2;
  return element.tag.substr(start, element.tag.find('"', start) - start);
}

/// The element that begins at `start` with "<name".
Element Element_At(const std::string& text, std::size_t start, const std::string& name) {
  const std::size_t end_of_tag = text.find('>', start);
  if (end_of_tag == std::string::npos) return {text.substr(start), {}};
  const std::size_t end = text.find("</" + name + ">", end_of_tag);
  return {text.substr(start, end_of_tag - start),
          text.substr(end_of_tag + 1, end == std::string::npos ? end : end - end_of_tag - 1)};
}

bool Caption_Counts_Before(const std::string& text, std::size_t start) {
  const std::string before = text.substr(0, start);
  return before.ends_with("<p class=\"field\">") || before.ends_with("<p class=\"message\">");
}

void Add_Words(const Element& element, const std::string& target,
               std::vector<Help_Keyword>& keywords) {
  std::string words = Value_Of(element, "data-index");
  while (!words.empty()) {
    const std::size_t bar = words.find('|');
    const std::string word = As_Read(words.substr(0, bar));
    if (!word.empty()) keywords.push_back({word, target, {}});
    words = bar == std::string::npos ? std::string() : words.substr(bar + 1);
  }
}

// As people look it up: small and capital letters are one.
std::string Folded(std::string text) {
  for (char& sign : text) {
    sign = static_cast<char>(std::tolower(static_cast<unsigned char>(sign)));
  }
  return text;
}

}  // namespace

std::vector<Help_Keyword> Keywords_Of_Page(const std::string& page, const std::string& text) {
  std::vector<Help_Keyword> keywords;
  const std::size_t heading = text.find("<h1");
  if (heading != std::string::npos) {
    const Element element = Element_At(text, heading, "h1");
    keywords.push_back({As_Read(element.content), page, Value_Of(element, "data-topic")});
    Add_Words(element, page, keywords);
  }
  const std::string kPlace = "<a name=\"";
  for (std::size_t at = text.find(kPlace); at != std::string::npos;
       at = text.find(kPlace, at + kPlace.size())) {
    const Element element = Element_At(text, at, "a");
    const std::string target = page + "#" + Value_Of(element, "name");
    if (Has(element, "data-index") || Caption_Counts_Before(text, at)) {
      keywords.push_back({As_Read(element.content), target, {}});
    }
    Add_Words(element, target, keywords);
  }
  return keywords;
}

std::string Keywords_Section(std::vector<Help_Keyword> keywords) {
  const auto order = [](const Help_Keyword& keyword) {
    return std::tuple(Folded(keyword.name), keyword.name, keyword.target, keyword.topic);
  };
  std::sort(keywords.begin(), keywords.end(),
            [&](const Help_Keyword& a, const Help_Keyword& b) { return order(a) < order(b); });
  keywords.erase(std::unique(keywords.begin(), keywords.end()), keywords.end());
  std::string section = "    <keywords>\n";
  for (const Help_Keyword& keyword : keywords) {
    section += "      <keyword name=\"" + Escaped_For_Xml(keyword.name) + "\"";
    if (!keyword.topic.empty()) section += " id=\"" + Escaped_For_Xml(keyword.topic) + "\"";
    section += " ref=\"" + Escaped_For_Xml(keyword.target) + "\"/>\n";
  }
  return section + "    </keywords>\n";
}

std::string Escaped_For_Xml(const std::string& text) {
  std::string escaped = Replaced(text, "&", "&amp;");
  for (const auto& [written, read] :
       {std::pair("&lt;", "<"), std::pair("&gt;", ">"), std::pair("&quot;", "\"")}) {
    escaped = Replaced(escaped, read, written);
  }
  return escaped;
}

}  // namespace barvon
