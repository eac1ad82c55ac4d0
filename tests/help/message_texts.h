#pragma once

#include <string>
#include <vector>

namespace barvon::testing {

/// A source of the program.
struct Source_Text {
  std::string name;
  std::string text;
};

/// A piece of a message as a source holds it.
struct Message_Text {
  std::string file;
  std::string text;  // of several words, with single blanks and real quotes
};

/// Every literal of several words that a message box, a question or a procedure that hands its own
/// parameter on to one of them is given in these sources: adjacent literals joined, named constants
/// put in. Titles of boxes are left out.
std::vector<Message_Text> Message_Texts_Of(const std::vector<Source_Text>& sources);

}  // namespace barvon::testing
