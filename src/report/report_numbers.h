#pragma once

#include <string>
#include <vector>

namespace barvon {

/// The number as a screen shows it by its digit pattern, as long as that says all of it in no more
/// than 16 characters; otherwise with all its digits. What the report says is what the model gets.
std::string Whole_Number_Text(double value, const std::string& pattern);

/// The numbers of a column with equally many decimals, so that their points stand below each other:
/// as many as the longest of them needs, up to six. Those that need more have their own.
std::vector<std::string> Column_Texts(const std::vector<double>& values);

}  // namespace barvon
