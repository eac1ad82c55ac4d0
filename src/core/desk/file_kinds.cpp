#include "core/desk/file_kinds.h"

#include <map>
#include <utility>

#include "platform/text/letter_case.h"

namespace barvon {
namespace {

std::map<std::string, File_Kind>& Kinds() {
  static std::map<std::string, File_Kind> kinds;
  return kinds;
}

}  // namespace

void Register_File_Kind(const std::string& extension, File_Kind kind) {
  Kinds()[extension] = std::move(kind);
}

const File_Kind* Find_File_Kind(const std::string& extension) {
  const auto found = Kinds().find(extension);
  return found == Kinds().end() ? nullptr : &found->second;
}

std::string Last_Three_Letters(std::string_view path) {
  return Upper_Case(path.substr(path.size() < 3 ? 0 : path.size() - 3));
}

}  // namespace barvon
