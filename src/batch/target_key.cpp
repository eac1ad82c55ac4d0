#include "batch/target_key.h"

#include <filesystem>
#include <system_error>

#include "platform/files/paths.h"
#include "platform/text/letter_case.h"

namespace barvon {

std::string Target_Key(const std::string& path) {
  std::error_code error;
  const std::string folder = Folder_Of(Absolute_Path(path));
  const auto real = std::filesystem::weakly_canonical(folder, error);
  return Join_Path(error ? folder : real.string(), Upper_Case(Name_Of(path)));
}

}  // namespace barvon
