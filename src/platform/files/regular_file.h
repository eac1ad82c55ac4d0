#pragma once

#include <sys/stat.h>

#include <string>

namespace barvon {

/// Opens an existing regular file for reading; the caller closes the descriptor. An errno value,
/// with nothing open, where it can't be: EISDIR for a folder, ENOTSUP for what is no file.
int Open_Regular_File(const std::string& path, int& descriptor, struct stat& status);

}  // namespace barvon
