#pragma once

#include <string>
#include <vector>

namespace barvon {

/// A settings file in profile format: "[Section]" lines, "Key=Value" lines, comments from ";".
/// Section and key names are matched without regard to case. Texts are UTF-8 in memory.

inline constexpr int kProfileBuffer = 255;

/// The value of a key, cut to 255 bytes; `fallback` when the file, section or key is missing.
/// Blanks around the value and one pair of quotes around it are dropped. `error` is told why a file
/// that is there could not be read, as an errno value; 0 otherwise.
std::string Read_Profile_String(const std::string& path, const std::string& section,
                                const std::string& key, const std::string& fallback,
                                int* error = nullptr);

struct Profile_Entry {
  std::string section, key, value;
};

/// False for a text that can't stand there, one with a line break for instance.
bool Can_Be_In_Profile(const Profile_Entry& entry);

/// True for a value that Read_Profile_String gives back as it was set. One with blanks or quotes
/// around it is not, nor one that is longer than kProfileBuffer or no UTF-8.
bool Is_Read_Back_From_Profile(const std::string& value);

/// Sets keys, in one write of the file; of two entries of a key the later one holds. A missing
/// file, section or key is made; every other line keeps its text and its place. The file is
/// replaced whole or left as it was. 0 or an errno value: EINVAL when an entry can't stand there.
int Write_Profile_Strings(const std::string& path, const std::vector<Profile_Entry>& entries);

}  // namespace barvon
