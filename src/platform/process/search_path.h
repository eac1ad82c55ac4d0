#pragma once

#include <optional>
#include <string>
#include <vector>

namespace barvon {

/// The folders of the search path, each once and in its order. Relative and empty entries are
/// passed over: what they name depends on where this program happens to be, and whoever can write
/// there would choose what is started.
std::vector<std::string> Search_Folders();

/// The same as a search path for a program that is started from here; nothing when none is left,
/// since an empty search path means the current folder.
std::optional<std::string> Lasting_Search_Path();

/// Makes that the search path of this process, for good: the libraries that it loads look for
/// programs of their own. To be called first, before there is a second thread.
void Keep_Lasting_Search_Path();

/// The full path of the program of exactly that name on the search path; nothing when none of its
/// folders has one that may be executed. One that a stranger has put there is passed over.
std::optional<std::string> Find_Program(const std::string& name);

}  // namespace barvon
