#include "graphs/hand_over.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/profile_settings.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

bool Is_A_File(const std::string& name) {
  const auto found = Find_Path(name);
  std::error_code error;
  return found && std::filesystem::is_regular_file(*found, error);
}

int View_Of_Type(const std::string& type) {
  for (int view = 0; view < kGraphViews; ++view) {
    if (Equal_Ignoring_Case(type, "Type " + std::to_string(view))) return view;
  }
  return kOverview;
}

}  // namespace

Hand_Over Read_Hand_Over(const std::string& application_folder) {
  const std::string settings = Path_To_Write(Join_Path(application_folder, kHandOverFile));
  std::string file = Read_Profile_String(settings, kGraphFileSectionName, kGraphFileKeyName, "");
  if (!file.empty() && file.front() != '/') file = Join_Path(application_folder, file);
  return {file,
          View_Of_Type(Read_Profile_String(settings, kSimTypeSectionName, kSimTypeKeyName, ""))};
}

bool Leads_To_Results(const std::string& file) {
  if (file.empty()) return false;
  static constexpr std::array<const char*, 4> kOutputs{"dut", "duc", "dup", "duo"};
  return Is_A_File(file) || std::ranges::any_of(kOutputs, [&](const char* output) {
           return Is_A_File(With_Extension(file, output));
         });
}

}  // namespace barvon
