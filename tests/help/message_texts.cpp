#include "help/message_texts.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <regex>

namespace barvon::testing {
namespace {

bool Is_Word_Sign(char sign) {
  return std::isalnum(static_cast<unsigned char>(sign)) != 0 || sign == '_';
}

/// Behind the literal, of a text or of one sign, that begins at `at`.
std::size_t Behind_Literal(const std::string& text, std::size_t at) {
  const char quote = text[at];
  for (++at; at < text.size() && text[at] != quote; ++at) {
    if (text[at] == '\\') ++at;
  }
  return at + 1;
}

bool Begins_Literal(const std::string& text, std::size_t at) {
  if (text[at] == '"') return true;
  // Not the mark between digits of a number.
  return text[at] == '\'' && (at == 0 || !Is_Word_Sign(text[at - 1]));
}

std::string Without_Comments(const std::string& source) {
  std::string code;
  for (std::size_t at = 0; at < source.size();) {
    if (Begins_Literal(source, at)) {
      const std::size_t end = Behind_Literal(source, at);
      code += source.substr(at, end - at);
      at = end;
    } else if (source.compare(at, 2, "//") == 0) {
      at = std::min(source.find('\n', at), source.size());
    } else {
      code += source[at++];
    }
  }
  return code;
}

/// What lies between the bracket at `open` and its partner.
std::string Inside(const std::string& code, std::size_t open) {
  int depth = 0;
  for (std::size_t at = open; at < code.size();) {
    if (Begins_Literal(code, at)) {
      at = Behind_Literal(code, at);
      continue;
    }
    if (code[at] == '(') ++depth;
    if (code[at] == ')' && --depth == 0) return code.substr(open + 1, at - open - 1);
    ++at;
  }
  return {};
}

/// The words of a literal as the box shows them, a line's end as a blank.
std::string Shown(const std::string& literal) {
  std::string shown;
  for (std::size_t at = 0; at < literal.size(); ++at) {
    char sign = literal[at];
    if (sign == '\\' && at + 1 < literal.size()) {
      sign = literal[++at];
      if (sign == 'n' || sign == 't') sign = ' ';
    }
    if (sign != ' ' || (!shown.empty() && shown.back() != ' ')) shown += sign;
  }
  while (!shown.empty() && shown.back() == ' ') shown.pop_back();
  return shown;
}

/// The literals of an expression, neighbours joined, constants put in.
std::vector<std::string> Literals(const std::string& expression,
                                  const std::map<std::string, std::string>& constants) {
  std::vector<std::string> found;
  bool joins = false;
  for (std::size_t at = 0; at < expression.size();) {
    if (expression[at] == '"') {
      const std::size_t end = Behind_Literal(expression, at);
      if (!joins) found.emplace_back();
      found.back() += expression.substr(at + 1, end - at - 2);
      joins = true;
      at = end;
    } else if (Is_Word_Sign(expression[at])) {
      std::string word;
      while (at < expression.size() && Is_Word_Sign(expression[at])) word += expression[at++];
      if (const auto constant = constants.find(word); constant != constants.end()) {
        found.push_back(constant->second);
      }
      joins = false;
    } else {
      if (std::isspace(static_cast<unsigned char>(expression[at])) == 0) joins = false;
      ++at;
    }
  }
  return found;
}

bool Is_Of_Several_Words(const std::string& text) {
  return std::regex_search(text, std::regex("[A-Za-z][.,:?]? +[A-Za-z]"));
}

/// Texts of named constants: kName[] = "..." and std::string kName = "...".
std::map<std::string, std::string> Constants_Of(const std::string& code) {
  std::map<std::string, std::string> constants;
  const std::regex named("\\b(k\\w+)(?:\\[\\])?\\s*=\\s*(?=\")");
  for (std::sregex_iterator at(code.begin(), code.end(), named), end; at != end; ++at) {
    const auto start = static_cast<std::size_t>(at->position() + at->length());
    const auto value = Literals(code.substr(start, code.find(';', start) - start), {});
    if (!value.empty()) constants[(*at)[1]] = value.front();
  }
  return constants;
}

/// `tellers` and the procedures that hand a text of their own on to one of them, in a pattern.
std::string Tellers_In(const std::string& code, const std::string& tellers) {
  const std::regex wrapper(
      "\\b(\\w+)\\((?:const )?(?:char\\*|std::string_view|std::string)&? (\\w+)[^;{}]*\\)\\s*\\{"
      "[^{}]*?\\b(?:" +
      tellers + ")\\(\\s*\\{?\\s*\\2\\b");
  std::string all = tellers;
  for (std::sregex_iterator at(code.begin(), code.end(), wrapper), end; at != end; ++at) {
    if (("|" + all + "|").find("|" + at->str(1) + "|") == std::string::npos)
      all += "|" + at->str(1);
  }
  return all == tellers ? all : Tellers_In(code, all);
}

/// What is told, in the order of the source.
std::vector<std::string> Told_By(const std::string& code, const std::string& tellers) {
  std::vector<std::string> told;
  const std::regex call("\\b(?:" + tellers + ")\\(|\\.(?:text|fault|refusal)\\s*=");
  for (std::sregex_iterator at(code.begin(), code.end(), call), end; at != end; ++at) {
    const auto last = static_cast<std::size_t>(at->position() + at->length() - 1);
    told.push_back(code[last] == '(' ? Inside(code, last)
                                     : code.substr(last, code.find(';', last) - last));
  }
  return told;
}

}  // namespace

std::vector<Message_Text> Message_Texts_Of(const std::vector<Source_Text>& sources) {
  std::map<std::string, std::string> constants;
  std::vector<Source_Text> plain;
  for (const auto& [name, text] : sources) {
    plain.push_back({name, Without_Comments(text)});
    constants.merge(Constants_Of(plain.back().text));
  }
  const std::string everywhere = "Show_Message|Show_Warning|Show_Critical|Show_Information|Ask";
  std::vector<Message_Text> found;
  for (const auto& [name, code] : plain) {
    // Of two constants of one name the file's own is meant.
    auto own_constants = Constants_Of(code);
    own_constants.insert(constants.begin(), constants.end());
    for (const std::string& expression : Told_By(code, Tellers_In(code, everywhere))) {
      for (const std::string& literal : Literals(expression, own_constants)) {
        const std::string text = Shown(literal);
        if (!Is_Of_Several_Words(text) || std::regex_match(text, std::regex("BARVON \\w+"))) {
          continue;
        }
        found.push_back({name, text});
      }
    }
  }
  return found;
}

}  // namespace barvon::testing
