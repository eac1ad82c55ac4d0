#include "core/file_kinds.h"

namespace barvon {

void Register_File_Kind(const std::string&, File_Kind) {}
const File_Kind* Find_File_Kind(const std::string&) { return nullptr; }

}  // namespace barvon
