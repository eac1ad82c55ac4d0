#pragma once

#include <functional>
#include <string>

namespace barvon {

/// The commands of the platform's help viewer, by their numbers.
enum class Help_Command { Context = 1, Quit = 2, Index = 3, Finder = 11, PartialKey = 261 };

struct Help_Request {
  Help_Command command = Help_Command::Index;
  int topic = 0;    // of Context
  std::string key;  // of PartialKey
  /// The page comes up beside the window in use, which keeps the keyboard.
  bool beside = false;
};

void Show_Help(const Help_Request& request);
/// The page of a topic.
void Show_Topic(int topic);
/// The same, beside the window in use, which keeps the keyboard.
void Show_Topic_Beside(int topic);

using Help_Presenter = std::function<void(const Help_Request&)>;
Help_Presenter Set_Help_Presenter(Help_Presenter presenter);

}  // namespace barvon
