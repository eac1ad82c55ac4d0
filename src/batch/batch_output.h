#pragma once

#include <initializer_list>
#include <string>

namespace barvon {

/// A line on standard output: the parts with a tab between them. Whatever would break the line or
/// its columns becomes a blank.
void Say(std::initializer_list<std::string> parts);
/// Bytes on standard output as they are.
void Say_Text(const std::string& text);

/// "FILE: text" in one line on standard error; "barvon-run: text" when no file is named.
void Say_Problem(const std::string& file, const std::string& text);
void Say_Warning(const std::string& file, const std::string& text);

/// Brings out what is still on its way. 0 or an errno value: standard output could not take
/// everything that was said.
int Finish_Output();

}  // namespace barvon
