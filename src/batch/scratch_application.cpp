#include "batch/scratch_application.h"

#include <stdlib.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#include "core/desk/settings_keys.h"
#include "platform/files/paths.h"
#include "platform/text/letter_case.h"
#include "run/scratch_names.h"

namespace barvon {
namespace {

namespace fs = std::filesystem;

/// What a run writes into its application directory: an older one's must not be found there, nor
/// the solvers' folder be written through a link.
bool Is_Made_By_A_Run(const std::string& name) {
  return Upper_Case(name).starts_with(Upper_Case(kScratchName) + ".") ||
         Equal_Ignoring_Case(name, kMarkerFile) || Equal_Ignoring_Case(name, kSettingsFile);
}

std::error_code Link_Files(const fs::path& from, const fs::path& into) {
  std::error_code error;
  fs::directory_iterator entry(from, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const fs::path name = entry->path().filename();
    std::error_code unknown;  // a link that leads nowhere is no file
    if (!entry->is_regular_file(unknown) || Is_Made_By_A_Run(name.string())) continue;
    fs::create_symlink(entry->path(), into / name, error);
    if (error) break;
  }
  return error;
}

}  // namespace

std::unique_ptr<Scratch_Application> Scratch_Application::Make(const std::string& solver_folder,
                                                               std::string& problem) {
  const char* base = std::getenv("TMPDIR");
  std::string pattern = Join_Path(Absolute_Path(base != nullptr && *base != '\0' ? base : "/tmp"),
                                  "barvon-run-XXXXXX");
  if (mkdtemp(pattern.data()) == nullptr) {
    problem = "no scratch folder " + pattern + ": " + std::strerror(errno);
    return nullptr;
  }
  std::unique_ptr<Scratch_Application> made(new Scratch_Application(std::move(pattern)));
  const std::error_code error = Link_Files(Absolute_Path(solver_folder), made->Path());
  if (!error) return made;
  problem = "the solvers in " + solver_folder + " can't be used: " + error.message();
  return nullptr;
}

Scratch_Application::~Scratch_Application() {
  std::error_code ignored;  // nobody is left to be told
  fs::remove_all(path_, ignored);
}

}  // namespace barvon
